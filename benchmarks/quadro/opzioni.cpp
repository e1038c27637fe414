#include "benchmarks/quadro/opzioni.h"

#include <giacenza/Errore.h>

#include <QCommandLineParser>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace banco {

namespace {

qint64 numero(const QString& testo, qint64 minimo)
{
    bool riuscito = false;
    const qint64 valore = testo.toLongLong(&riuscito);
    if (!riuscito || valore < minimo)
        throw giacenza::Errore(u"\"%1\" is not a whole number of at least %2."_s.arg(testo).arg(minimo));
    return valore;
}

void leggiMisure(Opzioni& opzioni, const QCommandLineParser& lettore)
{
    // A median of fewer runs says little; a page has 256 rows.
    constexpr qint64 corseMinime = 5;
    constexpr qint64 righeMinime = 256;
    if (lettore.isSet(u"quick"_s)) {
        opzioni.svelto = true;
        opzioni.corse = {5, 21};
    }
    if (lettore.isSet(u"runs"_s)) {
        const auto corse = static_cast<int>(numero(lettore.value(u"runs"_s), corseMinime));
        opzioni.corse = {corse, std::max(corse, opzioni.corse.brevi)};
    }
    if (lettore.isSet(u"rows"_s)) {
        const QStringList scritte = lettore.value(u"rows"_s).split(u',');
        for (const QString& scritta : scritte)
            opzioni.righe.push_back(numero(scritta, righeMinime));
    }
}

} // namespace

std::vector<qint64> Opzioni::misure(const std::vector<qint64>& tutte) const
{
    if (!righe.empty())
        return righe;
    return svelto ? std::vector{tutte.front()} : tutte;
}

Opzioni leggiOpzioni(const QStringList& argomenti)
{
    QCommandLineParser lettore;
    lettore.addOptions({{u"rows"_s, u"sizes"_s, u"n,n"_s},
                        {u"runs"_s, u"pairs of runs for each figure"_s, u"n"_s},
                        {u"quick"_s, u"small databases, few pairs"_s},
                        {u"database"_s, u"only sqlite or mariadb"_s, u"kind"_s},
                        {u"confronta"_s, u"earlier report"_s, u"file"_s},
                        {u"folder"_s, u"databases"_s, u"dir"_s},
                        {u"mariadb"_s, u"administrator"_s, u"string"_s},
                        {u"json"_s, u"report"_s, u"file"_s}});
    if (!lettore.parse(argomenti))
        throw giacenza::Errore(lettore.errorText());
    Opzioni opzioni;
    opzioni.nomi = lettore.positionalArguments();
    opzioni.cartella = lettore.value(u"folder"_s);
    opzioni.mariadb = lettore.value(u"mariadb"_s);
    opzioni.relazione = lettore.value(u"json"_s);
    opzioni.precedente = lettore.value(u"confronta"_s);
    leggiMisure(opzioni, lettore);
    if (lettore.isSet(u"database"_s)) {
        const QString base = lettore.value(u"database"_s);
        if (base != u"sqlite"_s && base != u"mariadb"_s)
            throw giacenza::Errore(u"There is no database \"%1\"."_s.arg(base));
        opzioni.basi = {base};
    }
    return opzioni;
}

} // namespace banco
