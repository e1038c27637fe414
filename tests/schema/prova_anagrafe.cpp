#include "schema/dati/anagrafe.h"

#include "support/stampa.h"

#include <gmock/gmock.h>

#include <QSet>

using namespace giacenza::dimostrazione;
using namespace Qt::StringLiterals;

namespace {

TEST(PartitaIva, haLaCifraDiControllo)
{
    EXPECT_EQ(partitaIva(1234567, 890), u"12345678903"_s);
    EXPECT_EQ(partitaIva(0, 1), u"00000000018"_s);
    EXPECT_EQ(partitaIva(9999999, 999), u"99999999990"_s);
}

TEST(Costi, seguonoIlContratto)
{
    // In ten-thousandths: fee 8,50, five days free, 1,50 for each day, at least 15,00.
    const Condizioni condizioni{85000, 5, 15000, 150000};
    EXPECT_EQ(costi(condizioni, 4).importo, 0);
    EXPECT_EQ(costi(condizioni, 4).fisso, 850);
    EXPECT_EQ(costi(condizioni, 5).importo, 0) << "the minimum is charged only with a day to charge";
    EXPECT_EQ(costi(condizioni, 12).importo, 1500) << "seven days are less than the minimum";
    EXPECT_EQ(costi(condizioni, 16).importo, 1650);
    EXPECT_EQ(costi(condizioni, -3).importo, 0);
}

TEST(Costi, arrotondanoLeMetaAlPari)
{
    EXPECT_EQ(costi({0, 0, 3330, 0}, 3).importo, 100);
    EXPECT_EQ(costi({0, 0, 1250, 0}, 1).importo, 12) << "12,5 cents";
    EXPECT_EQ(costi({0, 0, 1350, 0}, 1).importo, 14) << "13,5 cents";
    EXPECT_EQ(costi({0, 0, 1251, 0}, 1).importo, 13);
}

TEST(Clienti, sonoTuttiDiversi)
{
    const std::vector<Cliente> elenco = clienti(massimoMittenti * 30);
    ASSERT_EQ(elenco.size(), static_cast<std::size_t>(massimoMittenti));
    QSet<int> codici;
    QSet<QString> ragioni;
    QSet<QString> partite;
    for (const Cliente& cliente : elenco) {
        codici << cliente.codice;
        ragioni << cliente.ragione;
        partite << cliente.iva;
    }
    EXPECT_EQ(codici.size(), massimoMittenti);
    EXPECT_EQ(ragioni.size(), massimoMittenti);
    EXPECT_EQ(partite.size(), massimoMittenti);
}

TEST(Clienti, sonoAlmenoQuaranta)
{
    EXPECT_EQ(clienti(0).size(), 40U);
    EXPECT_EQ(clienti(2000).size(), 66U);
}

TEST(Porto, laTerzaRigaEQuellaDelReso)
{
    const std::vector<Riga> righe = righePorto();
    ASSERT_GE(righe.size(), 3U);
    for (std::size_t i = 0; i < righe.size(); ++i)
        EXPECT_EQ(righe[i][0], QString::number(i + 1));
    EXPECT_EQ(righe[2][1], u"Reso al mittente"_s);
}

TEST(TestoDecimale, metteIlPunto)
{
    EXPECT_EQ(testoDecimale(1250, 2), u"12.50"_s);
    EXPECT_EQ(testoDecimale(5, 2), u"0.05"_s);
    EXPECT_EQ(testoDecimale(0, 3), u"0.000"_s);
    EXPECT_EQ(testoDecimale(-5, 2), u"-0.05"_s);
}

} // namespace
