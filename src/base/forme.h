#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>

namespace giacenza {

/// The shared instances of the forms: of each name at most one is loaded, one set for each thread.
///
/// A form is forgotten when it is destroyed and when it raises its signal Uscita(): the next one that asks
/// for it gets a new one. A form that has raised Uscita() deletes itself.
class Forme : public QObject
{
    Q_OBJECT

public:
    using Creatore = std::function<std::unique_ptr<QWidget>()>;

    /// The set of this thread. Whoever may outlive the thread's own data keeps the reference.
    static std::shared_ptr<Forme> delThread();

    /// Says who makes the form of a name, in place of who did so before; a form that is loaded stays.
    ///
    /// Classe: made without arguments; a signal Uscita() of its, if it has one, is listened to; its carica(),
    /// if it has one, is called once before anybody sees the form, and may throw.
    template<class Classe>
    void registra(const QString& nome);
    /// The same for a form that raises no Uscita(). creatore: may throw; an empty one takes the
    /// registration away.
    void registra(const QString& nome, Creatore creatore);
    bool registrata(const QString& nome) const;

    /// The shared instance, made if it is not loaded; null when the name is not registered. What its making
    /// throws goes to the caller unchanged, and nothing is kept.
    QWidget* forma(const QString& nome);
    /// The shared instance, null when it is not loaded; never makes one.
    QWidget* caricata(const QString& nome) const;

    /// Takes a form that somebody else made and owns, a dialog while it is open, so that scarica() closes it.
    void annota(const QString& nome, QWidget* finestra);

    /// Closes the form if it is loaded. One of ours that stays all the same is hidden, forgotten and deleted
    /// as soon as control is back in the event loop.
    void scarica(const QString& nome);

Q_SIGNALS:
    /// A form has raised Uscita() and is forgotten already.
    void uscita(QWidget* finestra);

private:
    struct Caricata
    {
        QPointer<QWidget> finestra;
        bool nostra = true;
    };

    void esce(QWidget* finestra);

    QHash<QString, Creatore> mCreatori;
    QHash<QString, Caricata> mCaricate;
};

template<class Classe>
void Forme::registra(const QString& nome)
{
    registra(nome, [this]() -> std::unique_ptr<QWidget> {
        auto finestra = std::make_unique<Classe>();
        if constexpr (requires { &Classe::Uscita; }) {
            QWidget* uscente = finestra.get();
            connect(finestra.get(), &Classe::Uscita, this, [this, uscente] { esce(uscente); });
        }
        if constexpr (requires { finestra->carica(); })
            finestra->carica();
        return finestra;
    });
}

} // namespace giacenza
