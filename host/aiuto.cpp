#include "aiuto.h"

#include "guida.h"
#include "host/avvio/assistenza.h"
#include "host/avvio/avvio.h"
#include "host/avvio/frmImpostazioni.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QMainWindow>
#include <QMenu>
#include <QProcess>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace deposito {

namespace {

QAction* azione(QMainWindow& finestra, const QString& nome, const QString& testo, const QKeySequence& tasto,
                const std::function<void()>& fa)
{
    auto* nuova = new QAction(testo, &finestra);
    nuova->setObjectName(nome);
    nuova->setShortcut(tasto);
    QObject::connect(nuova, &QAction::triggered, &finestra, fa);
    return nuova;
}

} // namespace

Aiuto::Aiuto(QMainWindow& finestra, const Opzioni& opzioni, Messaggio messaggio)
    : mFinestra(finestra), mOpzioni(opzioni), mMessaggio(std::move(messaggio))
{}

void Aiuto::riempi(QMenu* menuFile, QMenu* menuAiuto)
{
    QAction* primo = menuFile->actions().value(0);
    menuFile->insertAction(
        primo, azione(mFinestra, u"azArchivio"_s, u"&Archivio…"_s, {}, [this] { cambiaArchivio(); }));
    menuFile->insertAction(primo, azione(mFinestra, u"azImpostazioni"_s, u"&Impostazioni…"_s, {},
                                         [this] { frmImpostazioni(mOpzioni.ini, &mFinestra).exec(); }));
    menuFile->insertSeparator(primo);
    menuAiuto->addAction(azione(mFinestra, u"azGuida"_s, u"&Guida"_s, Qt::Key_F1, [this] { mostraGuida(); }));
    menuAiuto->addAction(azione(mFinestra, u"azAssistenza"_s, u"&Informazioni per l'assistenza"_s, {},
                                [this] { copiaInformazioni(); }));
}

/// The open window goes on with the archive that it has: the new one is another program's from its start.
void Aiuto::cambiaArchivio()
{
    QSettings impostazioni;
    PortachiaviDiSistema portachiavi;
    if (!Avvio(impostazioni, portachiavi).scegli(&mFinestra))
        return;
    const QStringList argomenti = {u"--ini"_s, mOpzioni.ini, u"--logo"_s, mOpzioni.logo, u"--nuova"_s};
    if (QProcess::startDetached(QCoreApplication::applicationFilePath(), argomenti))
        mMessaggio(u"Il nuovo archivio si apre in un'altra finestra; questa continua a lavorare sul suo."_s);
    else
        mMessaggio(u"Il nuovo archivio vale dal prossimo avvio del programma."_s);
}

void Aiuto::mostraGuida()
{
    if (const QString guasto = apriGuida(ancoraGuida(QApplication::focusWidget())); !guasto.isEmpty())
        mMessaggio(guasto);
}

void Aiuto::copiaInformazioni()
{
    QApplication::clipboard()->setText(informazioniAssistenza(mOpzioni.database, mOpzioni.ini));
    mMessaggio(
        u"Le informazioni per l'assistenza sono negli appunti, senza la parola d'ordine: incollarle nel messaggio."_s);
}

} // namespace deposito
