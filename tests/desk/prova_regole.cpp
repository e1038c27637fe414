#include "desk/dati/regole.h"

#include "support/stampa.h"

#include <gtest/gtest.h>

using namespace giacenza;
using namespace giacenza::desk;
using namespace Qt::StringLiterals;

namespace {

const QDate oggi(2026, 11, 20);
constexpr int setteGiorni = 7;

CondizioniSosta condizioni()
{
    return {u"2.5000"_s, u"5.0000"_s, u"1.5000"_s, u"4.0000"_s};
}

/// Held for so many days and told on the first, with terms.
Caso caso(int giorni)
{
    Caso c;
    c.chiave = {u"231"_s, 2026};
    c.ldv = {u"MI"_s, u"4711"_s, 2026};
    c.dal = oggi.addDays(-giorni);
    c.avvisi = u"1"_s;
    c.ultimoAvviso = c.dal;
    c.condizioni = condizioni();
    return c;
}

QString stato(const Caso& c, int giorniFerma = setteGiorni)
{
    return parole(valutazioneDi(c, oggi, giorniFerma).stato);
}

} // namespace

TEST(Stato, ilPrimoCheVa)
{
    Caso maiAvvisata = caso(30);
    maiAvvisata.avvisi.clear();
    EXPECT_EQ(stato(maiAvvisata), u"da avvisare"_s);
    EXPECT_EQ(stato(caso(6)), u"in addebito"_s);
    EXPECT_EQ(stato(caso(5)), u"in scadenza"_s) << "the last free day";
    EXPECT_EQ(stato(caso(3)), u"in scadenza"_s);
    EXPECT_EQ(stato(caso(2)), u"in attesa"_s);
    EXPECT_EQ(stato(caso(2), 2), u"ferma"_s);
}

TEST(Stato, fermaDaUltimoEvento)
{
    Caso c = caso(40);
    c.condizioni.reset();
    EXPECT_EQ(stato(c), u"ferma"_s);
    c.ultimoAvviso = oggi.addDays(-6);
    EXPECT_EQ(stato(c), u"in attesa"_s);
    c.ultimoAvviso = oggi.addDays(-7);
    EXPECT_EQ(stato(c), u"ferma"_s);
    c.ultimaLegata = oggi.addDays(-1);
    EXPECT_EQ(stato(c), u"in attesa"_s);
    c.ultimaLegata = oggi.addDays(1);
    EXPECT_EQ(stato(c), u"ferma"_s) << "a day ahead is no event";
}

TEST(Importo, comeLoScriveLaChiusura)
{
    const Valutazione v = valutazioneDi(caso(12), oggi, setteGiorni);
    EXPECT_EQ(v.giorni, 12);
    EXPECT_EQ(v.franchi, -7);
    EXPECT_EQ(v.fisso, u"2.50"_s);
    EXPECT_EQ(v.sosta, u"10.50"_s);
    EXPECT_EQ(v.centesimi, 1300);
    EXPECT_EQ(valutazioneDi(caso(6), oggi, setteGiorni).sosta, u"4.00"_s) << "the minimum";
    const Valutazione franca = valutazioneDi(caso(5), oggi, setteGiorni);
    EXPECT_EQ(franca.franchi, 0);
    EXPECT_EQ(franca.centesimi, 250) << "the fixed fee alone";
}

TEST(Importo, quattroDecimaliSiScrivonoConDue)
{
    Caso c = caso(8);
    c.condizioni = CondizioniSosta{u"0.0050"_s, u"5"_s, u"0.3330"_s, u"0"_s};
    const Valutazione v = valutazioneDi(c, oggi, setteGiorni);
    EXPECT_EQ(v.fisso, u"0.01"_s);
    EXPECT_EQ(v.sosta, u"1.00"_s);
    EXPECT_EQ(v.centesimi, 101);
}

TEST(Importo, senzaCondizioniLoDiceENonVaZero)
{
    Caso senza = caso(12);
    senza.condizioni.reset();
    Caso incomplete = caso(12);
    incomplete.condizioni->minimo.reset();
    Caso antica = caso(32768);
    Caso senzaData = caso(12);
    senzaData.dal = {};
    for (const auto& [c, parole] : {std::pair{senza, u"senza condizioni"_s},
                                    {incomplete, u"condizioni incomplete"_s},
                                    {antica, u"troppi giorni"_s},
                                    {senzaData, u"manca la data"_s}}) {
        const Valutazione v = valutazioneDi(c, oggi, setteGiorni);
        EXPECT_FALSE(v.centesimi);
        EXPECT_EQ(v.senzaImporto, parole);
    }
    EXPECT_EQ(valutazioneDi(incomplete, oggi, setteGiorni).franchi, -7) << "the free days are known";
    EXPECT_FALSE(valutazioneDi(senza, oggi, setteGiorni).franchi);
}

TEST(Filtro, ogniParolaOvunque)
{
    Caso c = caso(1);
    c.ragioneSociale = u"Ferramenta Lombarda"_s;
    c.destinatario = u"Bar È Qui"_s;
    c.riferimento = u"ORD-901"_s;
    const RigaCaso riga = rigaDi(c, oggi, setteGiorni);
    for (const QString& filtro :
         {u""_s, u"231"_s, u"231/2026"_s, u"4711"_s, u"lomb ord"_s, u"è qui"_s, u"  ORD-90 "_s})
        EXPECT_TRUE(passa(riga, paroleFiltro(filtro))) << filtro.toStdString();
    EXPECT_FALSE(passa(riga, paroleFiltro(u"lomb verde"_s)));
}

TEST(Totali, sommanoEDiconoQuantiNonNeHanno)
{
    Caso primo = caso(12);
    primo.colli = 3;
    primo.peso = u"45.50"_s;
    Caso secondo = caso(2);
    secondo.colli = 2;
    secondo.condizioni.reset();
    Totali totali;
    for (const Caso& c : {primo, secondo})
        aggiungi(totali, rigaDi(c, oggi, setteGiorni));
    EXPECT_EQ(totali.casi, 2);
    EXPECT_EQ(totali.colli, 5);
    EXPECT_EQ(totali.centesimiKg, 4550);
    EXPECT_EQ(totali.centesimi, 1300);
    EXPECT_EQ(totali.senzaImporto, 1);
}

TEST(Centesimi, vannoETornano)
{
    EXPECT_EQ(inCentesimi(u"12,5"_s), 1250);
    EXPECT_EQ(inCentesimi(u"-0.01"_s), -1);
    EXPECT_FALSE(inCentesimi(u"dodici"_s));
    EXPECT_FALSE(inCentesimi(QString(40, u'9')));
    EXPECT_EQ(daCentesimi(1250), u"12.50"_s);
    EXPECT_EQ(daCentesimi(-1), u"-0.01"_s);
    EXPECT_EQ(daCentesimi(0), u"0.00"_s);
}
