#include "schema/script.h"

#include <QFile>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

QString traApici(QString nome, QChar apice)
{
    return apice + nome.replace(apice, QString(2, apice)) + apice;
}

} // namespace

QString testoSchema(const QString& nome)
{
    QFile file(u":/schema/"_s + nome);
    if (!file.open(QIODevice::ReadOnly))
        throw Errore(u"Manca lo schema %1."_s.arg(nome));
    return QString::fromUtf8(file.readAll());
}

QStringList istruzioniScript(const QString& testo)
{
    static const QRegularExpression commento(u"^--.*\\n?"_s, QRegularExpression::MultilineOption);
    static const QRegularExpression scatto(u"^create trigger\\b"_s);
    QStringList istruzioni;
    QString fine = u";"_s;
    QString corrente;
    const auto chiudi = [&] {
        if (const QString istruzione = corrente.trimmed(); !istruzione.isEmpty())
            istruzioni << istruzione;
        corrente.clear();
    };
    for (const QString& riga : QString(testo).remove(commento).split(u'\n')) {
        const QString piena = riga.trimmed();
        if (piena.startsWith("delimiter "_L1)) {
            fine = piena.mid(10);
            continue;
        }
        corrente += riga + u'\n';
        // What a trigger does ends with semicolons too; "end" ends the trigger.
        const bool dentro = fine == u';' && scatto.match(corrente.trimmed()).hasMatch();
        if (!(dentro ? piena == "end;"_L1 : piena.endsWith(fine)))
            continue;
        corrente = corrente.trimmed();
        corrente.chop(fine.size());
        chiudi();
    }
    chiudi();
    return istruzioni;
}

QStringList istruzioniSchema(Dialetto dialetto)
{
    switch (dialetto) {
    case Dialetto::mariadb:
        return istruzioniScript(testoSchema(u"mariadb.sql"_s));
    case Dialetto::sqlite:
        return istruzioniScript(testoSchema(u"sqlite.sql"_s));
    case Dialetto::altro:
        break;
    }
    return {};
}

QStringList istruzioniPrivilegi(const QString& base, const QString& utente, const QString& host)
{
    const QString conto = traApici(utente, u'\'') + u'@' + traApici(host, u'\'');
    QStringList istruzioni = istruzioniScript(testoSchema(u"grants.sql"_s));
    for (QString& istruzione : istruzioni)
        istruzione.replace(":utente"_L1, conto).replace(":base"_L1, traApici(base, u'`'));
    return istruzioni;
}

} // namespace giacenza
