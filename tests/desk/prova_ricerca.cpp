#include "desk/dati/ricerca.h"

#include "desk/casi.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

using namespace giacenza;
using namespace giacenza::desk;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ProvaRicerca : public testing::TestWithParam<std::string>
{
protected:
    ProvaRicerca() { riempiCasi(mBase); }

    EsitoRicerca cercato(const QString& testo) { return cerca(mConnessione, testo); }
    /// Each as "LDV -> case".
    QStringList trovate(const QString& testo)
    {
        QStringList tutte;
        for (const Trovata& t : cercato(testo).trovate)
            tutte << nomeLdv(t.ldv) + u" -> "_s + (t.caso ? nomeGiacenza(*t.caso) : u"libera"_s);
        return tutte;
    }

    BancaDati mBase{GetParam()};
    Connessione mConnessione = mBase.connessione();
};

} // namespace

TEST_P(ProvaRicerca, ogniNumeroPortaAlCaso)
{
    const QString caso = u"4722/2026 MI -> 42/2026"_s;
    for (const QString& numero : {u"4722"_s, u"4722/2026"_s, u"MI-4722-2026"_s, u"mi'4722'2026"_s, u"42"_s,
                                  u"42/2026"_s, u"ORD-902"_s, u"ord-902"_s, u" 42 "_s})
        EXPECT_THAT(trovate(numero), ElementsAre(caso)) << numero.toStdString();
    EXPECT_THAT(trovate(u"4730"_s), ElementsAre(u"4730/2026 MI -> 42/2026"_s)) << "the waybill that followed";
    EXPECT_FALSE(cercato(u"4730"_s).trovate.front().sua);
    EXPECT_TRUE(cercato(u"4722"_s).trovate.front().sua);
}

TEST_P(ProvaRicerca, unSegnoStranoNonEsceDalSuoPosto)
{
    for (const QString& riferimento :
         {u"l'ordine"_s, u"l''ordine"_s, u"fine\\"_s, u"\\' or 1=1 --"_s, u"che cosa?"_s, u"a?b?c"_s,
          u"{d '2026-01-01'}"_s, u"100%_"_s, u"\"tra virgolette\""_s, u"però €"_s, u"; drop table x"_s}) {
        mBase.esegui(u"update letve00f set lerife='%1' where lenrlv='4722'"_s.arg(
            QString(riferimento).replace(u"'"_s, u"''"_s)));
        EXPECT_THAT(trovate(riferimento), ElementsAre(u"4722/2026 MI -> 42/2026"_s))
            << riferimento.toStdString();
    }
    EXPECT_THAT(trovate(u"x' or '1'='1"_s), IsEmpty());
}

TEST_P(ProvaRicerca, ilCasoChiusoSiTrova)
{
    const EsitoRicerca esito = cercato(u"4714"_s);
    ASSERT_EQ(esito.trovate.size(), 1U);
    EXPECT_EQ(esito.trovate.front().buonFine, QDate(2026, 11, 18));
}

TEST_P(ProvaRicerca, unaLetteraLiberaHaCioCheServeARegistrarla)
{
    const EsitoRicerca esito = cercato(u"4711"_s);
    ASSERT_EQ(esito.trovate.size(), 1U);
    const Trovata& t = esito.trovate.front();
    EXPECT_FALSE(t.caso);
    EXPECT_EQ(t.ldv.numero, u"4711"_s);
    EXPECT_EQ(t.ldv.filiale, u"MI"_s);
    EXPECT_EQ(t.dataLdv, QDate(2026, 11, 12));
    EXPECT_EQ(t.cliente, u"1001"_s);
    EXPECT_EQ(t.come, u"LDV 4711"_s);
}

TEST_P(ProvaRicerca, nienteEDiceCheCosaHaProvato)
{
    const EsitoRicerca esito = cercato(u"o'brien\\"_s);
    EXPECT_TRUE(esito.trovate.empty());
    EXPECT_THAT(esito.provati,
                ElementsAre(u"LDV o'brien\\"_s, u"giacenza o'brien\\"_s, u"riferimento o'brien\\"_s));
    EXPECT_TRUE(cercato(u"  "_s).provati.isEmpty());
}

TEST_P(ProvaRicerca, piuDiUnaInOrdine)
{
    mBase.esegui(u"insert into letve00f (lefili,lenrlv,leanlv,ledtlv,lecodi) values "
                 u"('BO','4722',2025,'2025-03-01',1002),"
                 "('BO','4714',2026,'2026-11-01',1002)"_s);
    EXPECT_THAT(trovate(u"4722"_s), ElementsAre(u"4722/2026 MI -> 42/2026"_s, u"4722/2025 BO -> libera"_s));
    EXPECT_THAT(trovate(u"4714"_s), ElementsAre(u"4714/2026 BO -> libera"_s, u"4714/2026 MI -> 40/2026"_s))
        << "closed ones come last";
    EXPECT_THAT(trovate(u"BO-4714-2026"_s), ElementsAre(u"4714/2026 BO -> libera"_s));
}

TEST_P(ProvaRicerca, leTroppeSiDicono)
{
    QStringList valori;
    for (int i = 0; i < 120; ++i)
        valori << u"('F%1','77',2026,'2026-01-01',1001)"_s.arg(i);
    mBase.esegui(u"insert into letve00f (lefili,lenrlv,leanlv,ledtlv,lecodi) values "_s + valori.join(u','));
    const EsitoRicerca esito = cercato(u"77"_s);
    EXPECT_EQ(esito.trovate.size(), trovateMassime);
    EXPECT_TRUE(esito.altre);
    EXPECT_FALSE(cercato(u"4722"_s).altre);
}

INSTANTIATE_TEST_SUITE_P(Basi, ProvaRicerca, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);
