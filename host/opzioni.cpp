#include "opzioni.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QStandardPaths>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace deposito {

Opzioni leggiOpzioni(const QCoreApplication& applicazione)
{
    const QCommandLineOption aiuto({u"h"_s, u"help"_s}, u"Mostra queste righe."_s);
    const QCommandLineOption database(u"database"_s, u"Stringa di connessione ODBC dell'archivio."_s,
                                      u"stringa"_s);
    const QCommandLineOption ini(u"ini"_s, u"File delle impostazioni."_s, u"file"_s,
                                 QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                                     u"/giacenza/giacenza.ini"_s);
    const QCommandLineOption logo(u"logo"_s, u"Logo stampato in testa all'avviso di giacenza."_s, u"file"_s,
                                  QCoreApplication::applicationDirPath() + u"/logo.gif"_s);

    QCommandLineParser riga;
    riga.setApplicationDescription(u"Il programma del deposito: apre le schermate delle giacenze."_s);
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
    return traduzioni->load(italiano, u"qtbase"_s, u"_"_s,
                            QLibraryInfo::path(QLibraryInfo::TranslationsPath)) &&
           QCoreApplication::installTranslator(traduzioni);
}

} // namespace deposito
