#include "opzioni.h"

#include "connessione.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QStandardPaths>
#include <QTranslator>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace deposito {

namespace {

const QString nomeAiuto = u"help"_s;
const QString nomeVersione = u"version"_s;
const QString nomeDatabase = u"database"_s;
const QString nomeFileDatabase = u"database-file"_s;
const QString nomeIni = u"ini"_s;
const QString nomeLogo = u"logo"_s;
const QString nomeNuova = u"nuova"_s;
const QString nomePreparaRegistro = u"prepara-registro"_s;

void aggiungiOpzioni(QCommandLineParser& riga)
{
    riga.setApplicationDescription(u"Il programma del deposito: apre le schermate delle giacenze."_s);
    riga.addOptions({
        {{u"h"_s, nomeAiuto}, u"Mostra queste righe."_s},
        {{u"v"_s, nomeVersione}, u"Mostra la versione."_s},
        {nomeDatabase, u"Stringa di connessione ODBC dell'archivio."_s, u"stringa"_s},
        {nomeFileDatabase,
         u"File che contiene la stringa di connessione, che così non si legge nell'elenco dei processi. "
         "Come --database - (la prima riga dello standard input) e come la variabile d'ambiente %1."_s.arg(
             QLatin1StringView(variabileArchivio)),
         u"file"_s},
        {nomeIni, u"File delle impostazioni."_s, u"file"_s},
        {nomeLogo, u"Logo stampato in testa all'avviso di giacenza."_s, u"file"_s},
        {nomeNuova, u"Apre un'altra finestra, anche se il programma è già aperto."_s},
        {nomePreparaRegistro,
         u"Prepara il registro nell'archivio, o lo porta all'ultima versione, e finisce; la stringa "
         "di connessione è di chi amministra l'archivio."_s},
    });
}

QString oppure(const QCommandLineParser& riga, const QString& opzione, const QString& altrimenti)
{
    return riga.isSet(opzione) ? riga.value(opzione) : altrimenti;
}

[[noreturn]] void rifiuta(const QString& testo)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(testo));
    std::exit(1);
}

FonteArchivio fonteArchivio(const QCommandLineParser& riga)
{
    if (riga.isSet(nomeDatabase) && riga.isSet(nomeFileDatabase))
        rifiuta(u"--database e --database-file non vanno insieme."_s);
    return {riga.isSet(nomeDatabase) ? riga.value(nomeDatabase) : QString(),
            riga.isSet(nomeFileDatabase) ? riga.value(nomeFileDatabase) : QString()};
}

} // namespace

void presentati()
{
    // Without an organisation, the toolkit keeps the settings of every such program in one place.
    QCoreApplication::setOrganizationName(u"deposito"_s);
    QCoreApplication::setApplicationName(u"deposito"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(DEPOSITO_VERSIONE));
    QGuiApplication::setApplicationDisplayName(u"Gestione Trasporti"_s);
    // By the name of its menu entry a desktop finds the program's icon and title, on Wayland by nothing else.
    QGuiApplication::setDesktopFileName(u"local.giacenza.deposito"_s);
}

bool chiedeSoloTesto(int argc, const char* const* argv)
{
    QStringList argomenti;
    for (int i = 0; i < argc; ++i)
        argomenti << QString::fromLocal8Bit(argv[i]);
    QCommandLineParser riga;
    aggiungiOpzioni(riga);
    riga.parse(argomenti);
    return riga.isSet(nomeAiuto) || riga.isSet(nomeVersione) || riga.isSet(nomePreparaRegistro);
}

Opzioni leggiOpzioni(const QCoreApplication& applicazione)
{
    QCommandLineParser riga;
    aggiungiOpzioni(riga);
    riga.process(applicazione);
    if (riga.isSet(nomeAiuto))
        riga.showHelp();
    if (riga.isSet(nomeVersione))
        riga.showVersion();
    if (!riga.positionalArguments().isEmpty())
        riga.showHelp(1);

    QFile ingresso;
    if (!ingresso.open(stdin, QIODevice::ReadOnly))
        rifiuta(u"Lo standard input non si legge."_s);
    const StringaArchivio archivio = leggiArchivio(fonteArchivio(riga), ingresso);
    const QString dati = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return {archivio.stringa,
            oppure(riga, nomeIni, dati + u"/giacenza/giacenza.ini"_s),
            oppure(riga, nomeLogo, QCoreApplication::applicationDirPath() + u"/logo.gif"_s),
            archivio.guasto,
            riga.isSet(nomeNuova),
            riga.isSet(nomePreparaRegistro)};
}

bool parlaItaliano(QCoreApplication& applicazione)
{
    const QLocale italiano(QLocale::Italian, QLocale::Italy);
    QLocale::setDefault(italiano);
    auto* traduzioni = new QTranslator(&applicazione);
    return traduzioni->load(italiano, u"qtbase"_s, u"_"_s,
                            QLibraryInfo::path(QLibraryInfo::TranslationsPath)) &&
           QCoreApplication::installTranslator(traduzioni);
}

} // namespace deposito
