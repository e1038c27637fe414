#include "schema/script.h"

#include <QFile>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

QString testoRisorsa(const QString& nome)
{
    QFile file(u":/schema/"_s + nome);
    if (!file.open(QIODevice::ReadOnly))
        throw Errore(u"Manca lo schema %1."_s.arg(nome));
    return QString::fromUtf8(file.readAll());
}

QString traApici(QString nome, QChar apice)
{
    return apice + nome.replace(apice, QString(2, apice)) + apice;
}

} // namespace

QStringList istruzioniScript(const QString& testo)
{
    static const QRegularExpression commento(u"^--.*\\n?"_s, QRegularExpression::MultilineOption);
    static const QRegularExpression fine(u";\\s*$"_s, QRegularExpression::MultilineOption);
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
        return istruzioniScript(testoRisorsa(u"mariadb.sql"_s));
    case Dialetto::sqlite:
        return istruzioniScript(testoRisorsa(u"sqlite.sql"_s));
    case Dialetto::altro:
        break;
    }
    return {};
}

QStringList istruzioniPrivilegi(const QString& base, const QString& utente, const QString& host)
{
    const QString conto = traApici(utente, u'\'') + u'@' + traApici(host, u'\'');
    QStringList istruzioni = istruzioniScript(testoRisorsa(u"grants.sql"_s));
    for (QString& istruzione : istruzioni)
        istruzione.replace(":utente"_L1, conto).replace(":base"_L1, traApici(base, u'`'));
    return istruzioni;
}

} // namespace giacenza
