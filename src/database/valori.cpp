#include "database/valori.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

bool eCifra(QChar carattere)
{
    return carattere >= u'0' && carattere <= u'9';
}

/// Whether a text has a digit for each "0" of a form, and its other characters where they are.
bool haForma(QStringView testo, QStringView forma)
{
    return testo.size() == forma.size() &&
           std::equal(testo.begin(), testo.end(), forma.begin(), [](QChar carattere, QChar atteso) {
               return atteso == u'0' ? eCifra(carattere) : carattere == atteso;
           });
}

} // namespace

bool soloCifre(const QString& testo)
{
    return !testo.isEmpty() && std::all_of(testo.cbegin(), testo.cend(), eCifra);
}

std::optional<QDate> leggiData(const QString& testo)
{
    // By hand: a row that is shown has some ten of them.
    const bool breve = haForma(testo, u"00/00/0000");
    if (!breve && !haForma(testo, u"0000-00-00"))
        return std::nullopt;
    const QStringView cifre = testo;
    const QDate giorno = breve ? QDate(cifre.mid(6).toInt(), cifre.mid(3, 2).toInt(), cifre.left(2).toInt())
                               : QDate(cifre.left(4).toInt(), cifre.mid(5, 2).toInt(), cifre.mid(8).toInt());
    return giorno.isValid() ? std::optional(giorno) : std::nullopt;
}

std::optional<QDate> leggiGiorno(const QString& valore)
{
    constexpr int lunghezzaData = 10;
    const QChar dopo = valore.size() > lunghezzaData ? valore.at(lunghezzaData) : u' ';
    return dopo == u' ' || dopo == u'T' ? leggiData(valore.left(lunghezzaData)) : std::nullopt;
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
