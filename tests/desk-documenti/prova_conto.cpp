#include "contodiprova.h"

#include "data/sosta.h"

#include <gmock/gmock.h>

using namespace giacenza;
using namespace giacenza::documenti;
using namespace giacenza::prove;

namespace {

const QDate primo(2026, 11, 1);

/// What the closure of a day writes: fixed fee and storage, two decimals.
std::pair<QString, QString> chiusuraDi(const CondizioniSosta& condizioni, int giorni)
{
    const ImportiGiacenza importi = calcolaImporti(condizioni, QString::number(giorni));
    QString fisso = importi.fisso.testo();
    QString sosta = importi.sosta.testo();
    return {FormattaNumero(fisso), FormattaNumero(sosta)};
}

std::vector<CondizioniSosta> condizioni()
{
    std::vector<CondizioniSosta> tutte;
    for (const char* fisso : {"5", "7.505"})
        for (const char* franchi : {"0", "0.5", "2.5", "5", "30"})
            for (const char* alGiorno : {"0", "0.005", "0.333", "1.5", "12.3456"})
                for (const char* minimo : {"0", "0.005", "15", "100.125"})
                    tutte.push_back({QString::fromLatin1(fisso), QString::fromLatin1(franchi),
                                     QString::fromLatin1(alGiorno), QString::fromLatin1(minimo)});
    return tutte;
}

TEST(Conto, OgniGiornoEQuelloDellaChiusura)
{
    int guardati = 0;
    for (const CondizioniSosta& quali : condizioni()) {
        DatiConto dati = datiDiProva();
        dati.condizioni = quali;
        const Conto lungo = calcolaConto(dati, primo.addDays(35));
        ASSERT_EQ(lungo.righe.size(), 35U);
        QString fin = u"0"_s;
        for (int giorni = 0; giorni <= 35; ++giorni) {
            const auto [fisso, sosta] = chiusuraDi(quali, giorni);
            // The sheet of each day ends with what a closure of that day writes...
            const Conto conto = calcolaConto(dati, primo.addDays(giorni));
            ASSERT_EQ(conto.giorni, giorniSosta(primo, {}, primo.addDays(giorni)));
            ASSERT_TRUE(conto.importi);
            ASSERT_EQ(conto.importi->fisso, fisso);
            ASSERT_EQ(conto.importi->sosta, sosta);
            ASSERT_TRUE(confronta(conto.importi->totale, somma(fisso, sosta)) == 0);
            if (giorni == 0)
                continue;
            // ...and the same stands in the line of that day of a longer one, and is the sum of its days.
            const RigaConto& riga = lungo.righe[static_cast<std::size_t>(giorni) - 1];
            ASSERT_EQ(riga.giorni, giorni);
            ASSERT_EQ(riga.giorno, primo.addDays(giorni));
            ASSERT_EQ(riga.sosta, sosta);
            fin = somma(fin, riga.delGiorno);
            ASSERT_TRUE(confronta(fin, sosta) == 0);
            ++guardati;
        }
    }
    EXPECT_EQ(guardati, 200 * 35);
}

TEST(Conto, GiornoPerGiorno)
{
    const Conto conto = calcolaConto(datiDiProva(), primo.addDays(16));
    const auto riga = [&](std::size_t n) {
        const RigaConto& r = conto.righe.at(n - 1);
        return QStringList{dataBreve(r.giorno), parole(r.genere), r.delGiorno, r.sosta};
    };
    EXPECT_EQ(riga(1), (QStringList{u"02/11/2026"_s, u"senza addebito"_s, u"0.00"_s, u"0.00"_s}));
    EXPECT_EQ(riga(5), (QStringList{u"06/11/2026"_s, u"senza addebito"_s, u"0.00"_s, u"0.00"_s}));
    EXPECT_EQ(riga(6), (QStringList{u"07/11/2026"_s, u"nel minimo"_s, u"15.00"_s, u"15.00"_s}));
    EXPECT_EQ(riga(15), (QStringList{u"16/11/2026"_s, u"nel minimo"_s, u"0.00"_s, u"15.00"_s}));
    EXPECT_EQ(riga(16), (QStringList{u"17/11/2026"_s, u"a giornata"_s, u"1.50"_s, u"16.50"_s}));
    EXPECT_EQ(conto.importi->fisso, u"5.00"_s);
    EXPECT_EQ(conto.importi->sosta, u"16.50"_s);
    EXPECT_EQ(conto.importi->totale, u"21.50"_s);
    EXPECT_EQ(conto.mancante, QString());
    EXPECT_TRUE(conto.avvertenze.isEmpty());
}

TEST(Conto, IGiorniSiFermanoAlBuonFine)
{
    DatiConto dati = datiDiProva();
    dati.buonFine = primo.addDays(7);
    EXPECT_EQ(calcolaConto(dati, primo.addDays(40)).giorni, 7);
    EXPECT_EQ(calcolaConto(dati, primo.addDays(40)).importi->sosta, u"15.00"_s);
    // A day before the closure is that day's.
    EXPECT_EQ(calcolaConto(dati, primo.addDays(3)).giorni, 3);
}

TEST(Conto, PrimaDiCominciareSiAddebitaSoloIlFisso)
{
    const Conto conto = calcolaConto(datiDiProva(), primo.addDays(-3));
    EXPECT_EQ(conto.giorni, -3);
    EXPECT_TRUE(conto.righe.empty());
    EXPECT_EQ(conto.importi->sosta, u"0.00"_s);
    EXPECT_EQ(conto.avvertenze, QStringList{u"Alla data scelta la giacenza non era ancora cominciata."_s});
}

TEST(Conto, ITrattiSonoLeStesseRigheUnite)
{
    const Conto conto = calcolaConto(datiDiProva(), primo.addDays(40));
    const auto uniti = tratti(conto.righe);
    ASSERT_EQ(uniti.size(), 4U);
    EXPECT_EQ(uniti[0].giorni, 5);
    EXPECT_EQ(uniti[1].giorni, 1);
    EXPECT_EQ(uniti[2].giorni, 9);
    EXPECT_EQ(uniti[3].giorni, 25);
    EXPECT_EQ(uniti[3].da, QDate(2026, 11, 17));
    EXPECT_EQ(uniti[3].a, QDate(2026, 12, 11));
    EXPECT_EQ(uniti[3].alGiorno, u"1.50"_s);
    EXPECT_EQ(uniti[3].sosta, conto.importi->sosta);
    EXPECT_TRUE(tratti({}).empty());
}

} // namespace
