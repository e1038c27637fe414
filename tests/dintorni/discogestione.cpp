// The management screen on a disk that is full, or read-only.

#include "dintorni/pocospazio.h"
#include "management/gestionediprova.h"

#include <QTest>

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;

namespace {

class DiscoGestione : protected SulDisco, public GestioneDiProva
{
protected:
    void attiva()
    {
        mSchermata->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(mSchermata));
    }

    /// Case 39: as it is before its closure, closed without the charges, and whole.
    Impresa chiusura()
    {
        const QString prima = u"3|2026-11-20|Trasloco|NULL|NULL|NULL|NULL"_s;
        return {.prepara =
                    [this] {
                        mBase.esegui(u"update giace00f set GINRAV='3', GIDTAV='2026-11-20', "
                                     u"GIDES1='Trasloco', GIDTBF=null, "
                                     "GIGGSO=null, FissoGiacenza=null, GIIMGI=null where GINRGI='39';"_s);
                        if (mSchermata)
                            attiva();
                        richiamaAvvisato();
                    },
                .compi = [this] { clicca("cmdBuonFine"); },
                .righe = [this] { return tutto(u"39"_s); },
                .stato = [this] { return mostrato("lblStato"); },
                .stati = {prima, u"3|2026-11-20|Trasloco|2026-11-21|16|NULL|NULL"_s,
                          u"3|2026-11-20|Trasloco|2026-11-21|16|7.5|16.5"_s},
                .vero =
                    [](const Esito& esito, const QString& frase) {
                        return esito.completo
                                   ? esito.stato.startsWith(u"Giacenza 39_2026 chiusa, documento"_s)
                                   : esito.detto(frase);
                    }};
    }

    Impresa avviso()
    {
        return {
            .prepara =
                [this] {
                    mBase.esegui(u"update giace00f set GINRAV='3', GIDTAV='2026-11-20', GIDES1='Trasloco' "
                                 "where GINRGI='39';"_s);
                    if (mSchermata)
                        attiva();
                    richiamaAvvisato();
                },
            .compi =
                [this] {
                    attiva();
                    avvisa(u"Bagnato"_s);
                },
            .righe = [this] { return caso(u"GINRAV,GIDTAV,GIDES1"_s, u"39"_s); },
            .stato = [this] { return mostrato("lblStato"); },
            .stati = {u"3|2026-11-20|Trasloco"_s, u"4|2026-11-21|Trasloco\r\n21/11/2026 - Bagnato"_s},
            .vero =
                [](const Esito& esito, const QString& frase) {
                    return esito.completo ? esito.stato.startsWith(u"Avviso di giacenza 39_2026 prodotto."_s)
                                          : esito.detto(frase);
                }};
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, DiscoGestione, testing::Values("sqlite"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(DiscoGestione, PienoMentreSiChiude)
{
    provaOgniPagina(mDisco, mMessaggi, mBase, chiusura());
}

TEST_P(DiscoGestione, PienoMentreSiChiudeConIlGiornaleDiSqlite)
{
    scegliGiornale(mBase, u"delete"_s);
    provaOgniPagina(mDisco, mMessaggi, mBase, chiusura());
}

TEST_P(DiscoGestione, PienoMentreSiAvvisa)
{
    provaOgniPagina(mDisco, mMessaggi, mBase, avviso());
}

TEST_P(DiscoGestione, InSolaLetturaMentreSiChiude)
{
    provaSolaLettura(mDisco, mMessaggi, chiusura(), [this] { mSchermata->rilasciaConnessione(); });
}

TEST_P(DiscoGestione, InSolaLetturaMentreSiAvvisa)
{
    provaSolaLettura(mDisco, mMessaggi, avviso(), [this] { mSchermata->rilasciaConnessione(); });
}

TEST_P(DiscoGestione, InSolaLetturaMentreSiAvvisaConIlGiornaleDiSqlite)
{
    scegliGiornale(mBase, u"delete"_s);
    provaSolaLettura(mDisco, mMessaggi, avviso(), [this] { mSchermata->rilasciaConnessione(); });
}

} // namespace
