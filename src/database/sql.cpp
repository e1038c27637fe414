#include "database/sql.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace giacenza::sql {

namespace {

/// As much of a refused value as fits an error's text.
constexpr qsizetype lunghezzaMostrata = 80;

[[noreturn]] void rifiuta(const QString& motivo)
{
    throw ErroreDatabase(u"42000"_s, 0, u"Errore di sintassi nell'istruzione SQL: %1."_s.arg(motivo));
}

[[noreturn]] void rifiuta(const QString& motivo, const QString& valore)
{
    rifiuta(u"%1 in \"%2\""_s.arg(motivo, valore.left(lunghezzaMostrata)));
}

bool apiciRaddoppiati(const QString& valore)
{
    for (qsizetype posto = valore.indexOf(u'\''); posto >= 0; posto = valore.indexOf(u'\'', posto + 2)) {
        if (posto + 1 == valore.size() || valore.at(posto + 1) != u'\'') {
            return false;
        }
    }
    return true;
}

} // namespace

QString testo(const QString& valore)
{
    if (valore.contains(QChar(u'\0'))) {
        rifiuta(u"carattere nullo"_s, valore);
    }
    if (!valore.isValidUtf16()) {
        throw ErroreDatabase(u"22021"_s, 0, u"Il testo contiene mezzo carattere."_s);
    }
    if (!apiciRaddoppiati(valore)) {
        rifiuta(u"apostrofo non raddoppiato"_s, valore);
    }
    return valore;
}

QString cifre(const QString& valore)
{
    if (!soloCifre(valore)) {
        rifiuta(u"attese solo cifre"_s, valore);
    }
    return valore;
}

QString numero(const QString& valore)
{
    static const QRegularExpression modello(u"\\A-?(?:[0-9]+\\.?[0-9]*|\\.[0-9]+)\\z"_s);
    if (!modello.match(valore).hasMatch()) {
        rifiuta(u"atteso un numero"_s, valore);
    }
    return valore;
}

QString data(QDate valore)
{
    if (!valore.isValid()) {
        rifiuta(u"attesa una data"_s);
    }
    return dataSql(valore);
}

QString conTesti(const QString& istruzione, std::span<const Valore> testi)
{
    const QStringList pezzi = istruzione.split(u'?');
    if (pezzi.size() != std::ssize(testi) + 1)
        throw ErroreDatabase(
            u"07002"_s, 0,
            u"L'istruzione aspetta %1 valori e ne riceve %2."_s.arg(pezzi.size() - 1).arg(testi.size()),
            istruzione);
    QString intera = pezzi.first();
    for (std::size_t i = 0; i < testi.size(); ++i) {
        const Valore& valore = testi[i];
        intera += valore ? u'\'' + testo(QString(*valore).replace(u"'"_s, u"''"_s)) + u'\'' : u"null"_s;
        intera += pezzi[static_cast<qsizetype>(i) + 1];
    }
    return intera;
}

} // namespace giacenza::sql
