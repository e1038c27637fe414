#include "opzioni.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QStandardPaths>
#include <QTranslator>

namespace deposito {

Opzioni leggiOpzioni(const QCoreApplication& applicazione)
{
    const QCommandLineOption aiuto({QStringLiteral("h"), QStringLiteral("help")},
                                   QStringLiteral("Mostra queste righe."));
    const QCommandLineOption database(QStringLiteral("database"),
                                      QStringLiteral("Stringa di connessione ODBC dell'archivio."),
                                      QStringLiteral("stringa"));
    const QCommandLineOption ini(QStringLiteral("ini"), QStringLiteral("File delle impostazioni."),
                                 QStringLiteral("file"),
                                 QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                                     QStringLiteral("/giacenza/giacenza.ini"));
    const QCommandLineOption logo(
        QStringLiteral("logo"), QStringLiteral("Logo stampato in testa all'avviso di giacenza."),
        QStringLiteral("file"), QCoreApplication::applicationDirPath() + QStringLiteral("/logo.gif"));

    QCommandLineParser riga;
    riga.setApplicationDescription(
        QStringLiteral("Il programma del deposito: apre le schermate delle giacenze."));
    riga.addOptions({aiuto, database, ini, logo});
    riga.process(applicazione);
    if (riga.isSet(aiuto))
        riga.showHelp();
    if (!riga.positionalArguments().isEmpty())
        riga.showHelp(1);
    return {riga.value(database), riga.value(ini), riga.value(logo)};
}

bool parlaItaliano(QCoreApplication& applicazione)
{
    const QLocale italiano(QLocale::Italian, QLocale::Italy);
    QLocale::setDefault(italiano);
    auto* traduzioni = new QTranslator(&applicazione);
    return traduzioni->load(italiano, QStringLiteral("qtbase"), QStringLiteral("_"),
                            QLibraryInfo::path(QLibraryInfo::TranslationsPath)) &&
           QCoreApplication::installTranslator(traduzioni);
}

} // namespace deposito
