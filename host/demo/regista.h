#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <deque>
#include <functional>
#include <stdexcept>

/// Something on the screen is not as the story wants it; the text says what, in Italian.
class Imprevisto : public std::runtime_error
{
public:
    explicit Imprevisto(const QString& testo) : std::runtime_error(testo.toStdString()) {}
};

/// Plays on the real screens what an operator does: keys, clicks, answers to boxes. Says each step, and keeps
/// a picture of the screen at each.
class Regista : public QObject
{
    Q_OBJECT

public:
    /// cartella: where the pictures go.
    explicit Regista(const QString& cartella);

    /// Says what happens now, on the standard output.
    void passo(const QString& testo);
    /// Keeps a picture of a window: "03-nome.png".
    void fotografa(QWidget* finestra, const QString& nome);
    /// Another one under the number of the last.
    void rifotografa(QWidget* finestra, const QString& nome);

    /// The visible window of an object name, waited for; throws Imprevisto when it does not come.
    QWidget* finestra(const QString& nome);

    /// A control of a window by object name; throws Imprevisto when there is none.
    static QWidget* controllo(QWidget* finestra, const QString& nome);
    /// What a control shows: text of a line, a label, a list.
    static QString testo(QWidget* finestra, const QString& nome);

    /// Types a text into a control, key by key, over what stands there.
    void scrive(QWidget* finestra, const QString& nome, const QString& testo);
    void preme(QWidget* destinatario, Qt::Key tasto, Qt::KeyboardModifiers modificatori = Qt::NoModifier);
    /// Arrow keys down a list or a grid until the row that is wanted is current; throws Imprevisto when it is
    /// not there.
    void scorre(QWidget* elenco, const std::function<bool(const QModelIndex&)>& voluta);
    void clicca(QWidget* finestra, const QString& nome);

    /// Does something that opens boxes or dialogs, one after the other, and answers each in its turn. Throws
    /// Imprevisto when one too many or one too few came.
    using Risposta = std::function<void(QWidget* dialogo)>;
    void rispondendo(const std::function<void()>& azione, std::deque<Risposta> risposte);

    /// The answer to a message: its text must be the one given; a picture is kept; Enter takes the preset
    /// button, another key is pressed in its place.
    Risposta messaggio(const QString& testo, Qt::Key tasto = Qt::Key_Return);

    /// Throws Imprevisto, with the text, when a fact does not hold.
    static void verifica(bool fatto, const QString& altrimenti);

    /// Lets the screens react, until a fact holds; throws Imprevisto when it does not within some seconds.
    static void attende(const std::function<bool()>& fatto, const QString& che);

private:
    void guardaDialoghi();

    QString mCartella;
    int mFoto = 0;
    QTimer mSguardo;
    std::deque<Risposta> mRisposte;
    QWidget* mRisposto = nullptr;
    QElapsedTimer mDaQuando;
    QString mFallito;
};
