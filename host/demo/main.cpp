#include "aspetto.h"
#include "banco.h"
#include "finestra.h"
#include "gestione.h"
#include "registrazione.h"
#include "riconsegna.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QSettings>
#include <QTemporaryDir>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

QtMessageHandler diPrima = nullptr;

/// The platform without a display says at every window what it cannot do; everything else is passed on.
void senzaRumore(QtMsgType tipo, const QMessageLogContext& contesto, const QString& testo)
{
    if (!testo.startsWith("This plugin does not support"_L1))
        diPrima(tipo, contesto, testo);
}

int racconta(const QString& cartella, const QString& database)
{
    giacenza::cGiacenza componente;
    componente.setPercorsoDatabase(database);
    componente.setPercorsoFileIni(QDir(cartella).filePath(u"giacenza.ini"_s));
    componente.setPercorsoLogoIntestazione(QCoreApplication::applicationDirPath());
    Regista regista(cartella);
    Archivio archivio(database);
    raccontaRegistrazione(regista, componente, archivio, cartella);
    raccontaGestione(regista, componente, archivio, cartella);
    raccontaRiconsegna(regista, componente, archivio, cartella);
    raccontaBanco(regista, archivio, {database, cartella});
    regista.passo(u"Fatto: le righe attese sono in archivio."_s);
    return 0;
}

} // namespace

/// Plays the operator's day on the real screens; exits 0 only when the rows it expects are in the database.
int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    diPrima = qInstallMessageHandler(senzaRumore);
    deposito::presentati();
    // Not those of whoever plays it: the windows remember sizes and columns.
    const QTemporaryDir ricordi;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, ricordi.path());
    QApplication applicazione(argc, argv);
    QApplication::setWindowIcon(deposito::icona());
    deposito::parlaItaliano(applicazione);
    QCommandLineParser opzioni;
    opzioni.addOptions({{u"cartella"_s, u"Dove restano immagini e documenti."_s, u"cartella"_s},
                        {u"database"_s, u"Stringa di connessione; altrimenti è in GIACENZA_DATABASE."_s,
                         u"stringa"_s, qEnvironmentVariable("GIACENZA_DATABASE")}});
    aggiungiAspetto(opzioni);
    opzioni.addHelpOption();
    opzioni.process(applicazione);
    try {
        impostaAspetto(opzioni);
        return racconta(opzioni.value(u"cartella"_s), opzioni.value(u"database"_s));
    } catch (const std::exception& errore) {
        std::fprintf(stderr, "La dimostrazione si è fermata: %s\n", errore.what());
        return 1;
    }
}
