#include "schema/script.h"

#include <QFile>
#include <QRegularExpression>

namespace giacenza {

namespace {

QString testoRisorsa(const QString& nome)
{
    QFile file(QStringLiteral(":/schema/") + nome);
    if (!file.open(QIODevice::ReadOnly))
        throw Errore(QStringLiteral("Manca lo schema %1.").arg(nome));
    return QString::fromUtf8(file.readAll());
}

QString traApici(QString nome, QChar apice)
{
    return apice + nome.replace(apice, QString(2, apice)) + apice;
}

} // namespace

QStringList istruzioniScript(const QString& testo)
{
    static const QRegularExpression commento(QStringLiteral("^--.*\\n?"),
                                             QRegularExpression::MultilineOption);
    static const QRegularExpression fine(QStringLiteral(";\\s*$"), QRegularExpression::MultilineOption);
    QStringList istruzioni;
    for (const QString& parte : QString(testo).remove(commento).split(fine)) {
        if (const QString istruzione = parte.trimmed(); !istruzione.isEmpty())
            istruzioni << istruzione;
    }
    return istruzioni;
}

QStringList istruzioniSchema(Dialetto dialetto)
{
    switch (dialetto) {
    case Dialetto::mariadb:
        return istruzioniScript(testoRisorsa(QStringLiteral("mariadb.sql")));
    case Dialetto::sqlite:
        return istruzioniScript(testoRisorsa(QStringLiteral("sqlite.sql")));
    case Dialetto::altro:
        break;
    }
    return {};
}

QStringList istruzioniPrivilegi(const QString& base, const QString& utente, const QString& host)
{
    const QString conto = traApici(utente, u'\'') + u'@' + traApici(host, u'\'');
    QStringList istruzioni = istruzioniScript(testoRisorsa(QStringLiteral("grants.sql")));
    for (QString& istruzione : istruzioni)
        istruzione.replace(QLatin1String(":utente"), conto)
            .replace(QLatin1String(":base"), traApici(base, u'`'));
    return istruzioni;
}

} // namespace giacenza
