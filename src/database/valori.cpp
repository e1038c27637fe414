#include "database/valori.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

bool eCifra(QChar carattere)
{
    return carattere >= u'0' && carattere <= u'9';
}

} // namespace

bool soloCifre(const QString& testo)
{
    return !testo.isEmpty() && std::all_of(testo.cbegin(), testo.cend(), eCifra);
}

std::optional<QDate> leggiData(const QString& testo)
{
    static const QRegularExpression breve(u"\\A([0-9]{2})/([0-9]{2})/([0-9]{4})\\z"_s);
    static const QRegularExpression perSql(u"\\A([0-9]{4})-([0-9]{2})-([0-9]{2})\\z"_s);
    QDate giorno;
    if (const auto gruppi = breve.match(testo); gruppi.hasMatch()) {
        giorno = QDate(gruppi.captured(3).toInt(), gruppi.captured(2).toInt(), gruppi.captured(1).toInt());
    } else if (const auto sql = perSql.match(testo); sql.hasMatch()) {
        giorno = QDate(sql.captured(1).toInt(), sql.captured(2).toInt(), sql.captured(3).toInt());
    }
    return giorno.isValid() ? std::optional(giorno) : std::nullopt;
}

QString dataBreve(QDate data)
{
    return data.toString(u"dd/MM/yyyy");
}

QString dataSql(QDate data)
{
    return data.toString(u"yyyy-MM-dd");
}

qint16 intero16(const QString& testo)
{
    bool entra = false;
    const qint16 intero = arrotonda(testo, 0, Arrotondamento::alPari).toShort(&entra);
    if (!entra) {
        throw ErroreConversione(u"\"%1\" supera un intero di 16 bit."_s.arg(testo));
    }
    return intero;
}

QString FormattaNumero(QString& valore)
{
    const QString perSql = arrotonda(valore, 2, Arrotondamento::lontanoDaZero);
    valore = QString(perSql).replace(u'.', u',');
    return perSql;
}

QString RaddoppiaApice(const QString& testo)
{
    const qsizetype primo = testo.indexOf(u'\'');
    return primo < 0 ? testo : QString(testo).insert(primo, u'\'');
}

QString conRitorniACapo(const QString& testo)
{
    return QString(testo).replace(u"\r\n"_s, u"\n"_s).replace(u'\n', u"\r\n"_s);
}

QString valuta(const QString& valore)
{
    QString testo = arrotonda(valore, 2, Arrotondamento::alPari).replace(u'.', u',');
    const qsizetype prima = testo.startsWith(u'-') ? 1 : 0;
    for (qsizetype posto = testo.indexOf(u',') - 3; posto > prima; posto -= 3) {
        testo.insert(posto, u'.');
    }
    return testo + u" €"_s;
}

} // namespace giacenza
