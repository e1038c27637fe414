#pragma once

#include "host/avvio/provaarchivio.h"

#include <QDialog>

#include <functional>
#include <memory>

class QLineEdit;

namespace Ui {
class frmArchivio;
}

namespace deposito {

/// Asks where the archive is: the demonstration, a file, a server. "Prova" says what is wrong and what to do.
class frmArchivio : public QDialog
{
    Q_OBJECT

public:
    /// How an archive is tried; in a thread of its own.
    using Prova = std::function<EsitoProva(const SceltaArchivio& scelta, const QString& parola)>;

    /// scelta: what is preset. conPortachiavi: the machine has a key store. padre: may be null.
    frmArchivio(const SceltaArchivio& scelta, bool conPortachiavi, QWidget* padre = nullptr,
                Prova prova = provaArchivio);
    ~frmArchivio() override;

    /// What stands in the form.
    SceltaArchivio scelta() const;
    QString parola() const;

public Q_SLOTS:
    /// Takes the choice when it works; when it does not, says so, and takes it at the second time.
    void accept() override;
    /// Esc does not go while an archive is being tried: the answer would find nobody.
    void reject() override;

private:
    void mostra(const SceltaArchivio& scelta);
    void abilita();
    void cambiata();
    void sfoglia(const QString& titolo, const QString& filtro, QLineEdit* campo);
    /// Shows what trying says; true when the archive can be used.
    bool provata();
    void dici(const EsitoProva& esito);

    std::unique_ptr<Ui::frmArchivio> mUi;
    Prova mProva;
    bool mInProva = false;
    bool mRifiutata = false; ///< what stands in the form was tried and did not work
};

} // namespace deposito
