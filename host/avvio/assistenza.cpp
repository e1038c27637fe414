#include "host/avvio/assistenza.h"

#include "base/parti.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QScreen>
#include <QStringList>
#include <QSysInfo>

#include <sqlext.h>

using namespace Qt::StringLiterals;

namespace deposito {

namespace {

/// The drivers that ODBC's own list names.
QStringList driverOdbc()
{
    QStringList nomi;
    SQLHENV ambiente = SQL_NULL_HENV;
    if (!SQL_SUCCEEDED(SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &ambiente)))
        return nomi;
    SQLSetEnvAttr(ambiente, SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0);
    SQLCHAR nome[256];
    SQLCHAR attributi[1024];
    SQLUSMALLINT verso = SQL_FETCH_FIRST;
    while (SQL_SUCCEEDED(
        SQLDrivers(ambiente, verso, nome, sizeof nome, nullptr, attributi, sizeof attributi, nullptr))) {
        nomi << QString::fromUtf8(reinterpret_cast<const char*>(nome));
        verso = SQL_FETCH_NEXT;
    }
    SQLFreeHandle(SQL_HANDLE_ENV, ambiente);
    return nomi;
}

QString partiTrovate()
{
    QStringList trovate;
    const QStringList cartelle = giacenza::cartelleParti();
    for (const QString& cartella : cartelle) {
        const QStringList file = QDir(cartella).entryList({u"*.so"_s}, QDir::Files, QDir::Name);
        trovate << u"%1: %2"_s.arg(cartella, file.isEmpty() ? u"niente"_s : file.join(u", "_s));
    }
    return trovate.join(u"\n  "_s);
}

QString schermi()
{
    QStringList misure;
    const QList<QScreen*> tutti = QGuiApplication::screens();
    for (const QScreen* schermo : tutti)
        misure << u"%1×%2 a %3 %"_s.arg(QString::number(schermo->size().width()),
                                        QString::number(schermo->size().height()),
                                        QString::number(qRound(schermo->devicePixelRatio() * 100)));
    return misure.join(u", "_s);
}

} // namespace

QString senzaParola(const QString& stringa)
{
    static const QRegularExpression parola(
        // In braces up to the next semicolon behind them; what is never closed is hidden whole.
        u"((?:^|;)\\s*(?:PWD|PASSWORD)\\s*=\\s*)(?:\\{(?:[^}]|\\}\\})*+(?:\\}[^;]*|$)|[^;]*)"_s,
        QRegularExpression::CaseInsensitiveOption);
    QString pulita = stringa;
    return pulita.replace(parola, u"\\1…"_s);
}

QString informazioniAssistenza(const QString& stringa, const QString& fileIni)
{
    return u"Programma: %1 %2\n"
           "Data: %3\n"
           "Sistema: %4, %5\n"
           "Qt: %6, piattaforma %7\n"
           "Schermi: %8\n"
           "Driver ODBC: %9\n"_s.arg(
               QCoreApplication::applicationName(), QCoreApplication::applicationVersion(),
               QDateTime::currentDateTime().toString(Qt::ISODate), QSysInfo::prettyProductName(),
               QSysInfo::currentCpuArchitecture(), QString::fromLatin1(qVersion()),
               QGuiApplication::platformName(), schermi(), driverOdbc().join(u", "_s)) +
           u"Archivio: %1\n"
           "Impostazioni: %2%3\n"
           "Parti:\n  %4\n"_s.arg(senzaParola(stringa), fileIni,
                                  QFileInfo::exists(fileIni) ? QString() : u" (non c'è)"_s, partiTrovate());
}

QString fileGuida()
{
    const QDir programma(QCoreApplication::applicationDirPath());
    for (const char16_t* dove :
         {u"../../share/doc/giacenza-deposito/guida.html", // installed: programs lie in libexec/giacenza
          u"../share/doc/giacenza-deposito/guida.html", u"../share/doc/giacenza/guida.html",
          u"../docs/guida.html", u"../../../docs/guida.md"}) {
        const QFileInfo file(programma.filePath(QString::fromUtf16(dove)));
        if (file.isFile())
            return file.canonicalFilePath();
    }
    return {};
}

} // namespace deposito
