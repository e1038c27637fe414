#include "search/colonnericerca.h"

#include "support/stampa.h"

#include <gmock/gmock.h>

using namespace giacenza;
using namespace Qt::StringLiterals;

namespace {

TEST(BorCons, mostraUnAsteriscoPerCioCheEVero)
{
    for (const QString& vero : {u"1"_s, u"-1"_s, u"S"_s, u"*"_s, u"01"_s, u"0,5"_s, u"true"_s})
        EXPECT_EQ(BorCons(vero), u"*"_s) << vero.toStdString();
}

TEST(BorCons, nonMostraNullaPerFalsoENullo)
{
    for (const QString& falso : {u"0"_s, u" 0 "_s, u"0.00"_s, u"-0"_s, u""_s, u" "_s, u"False"_s})
        EXPECT_EQ(BorCons(falso), QString()) << falso.toStdString();
    EXPECT_EQ(BorCons(std::nullopt), QString());
}

TEST(ColonneRicerca, leDateSiMostranoComeSiScrivono)
{
    for (const QString& nome : {u"Data_Emissione"_s, u"Data_Rif"_s, u"Data_Giac"_s, u"Data_Rif_Mitt"_s,
                                u"Buon_Fine"_s, u"ledtlv"_s, u"LEDTLV"_s})
        EXPECT_EQ(aspetto(nome), Aspetto::data) << nome.toStdString();
    EXPECT_EQ(mostra(Aspetto::data, u"2026-03-01"_s), u"01/03/2026"_s);
    EXPECT_EQ(mostra(Aspetto::data, u"2026-03-01 10:20:30"_s), u"01/03/2026"_s);
    EXPECT_EQ(mostra(Aspetto::data, u"0000-00-00"_s), u"0000-00-00"_s);
    EXPECT_EQ(mostra(Aspetto::data, std::nullopt), QString());
}

TEST(ColonneRicerca, ilRestoETesto)
{
    EXPECT_EQ(aspetto(u"Bord_Inv"_s), Aspetto::segno);
    EXPECT_EQ(aspetto(u"lenrlv"_s), Aspetto::testo);
    EXPECT_EQ(mostra(Aspetto::testo, u" 007 "_s), u" 007 "_s);
    EXPECT_EQ(mostra(Aspetto::testo, std::nullopt), QString());
}

TEST(ColonneRicerca, soloLeGiacenzeNascondonoLaLettera)
{
    for (const QString& nome : {u"ginrlv"_s, u"ledtlv"_s}) {
        EXPECT_TRUE(nascosta(ModoRicerca::giacenze, nome));
        EXPECT_FALSE(nascosta(ModoRicerca::riferimento, nome));
    }
    EXPECT_FALSE(nascosta(ModoRicerca::giacenze, u"Giacenza"_s));
    EXPECT_EQ(didascalia(u"lenrlv"_s), u"Num_Ldv"_s);
    EXPECT_EQ(didascalia(u"Buon_Fine"_s), u"Buon_Fine"_s);
}

} // namespace
