#include "depositodesk.h"

#include "desk/documenti/fascicolo.h"
#include "desk/documenti/salvati.h"
#include "desk/registro/note.h"

using namespace giacenza;
using namespace giacenza::documenti;
using namespace giacenza::prove;

namespace {

class Fascicolo : public DepositoDesk
{
protected:
    QString testo(const ChiaveGiacenza& caso)
    {
        const auto documento = fascicolo(mBase.accesso(), caso, carta(), mOggi);
        return testoPdf(salvaPdf(*documento, nomeFascicolo(caso), carta())).simplified();
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, Fascicolo, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(Fascicolo, IlCasoIntero)
{
    conRegistro();
    mBase.esegui(u"update giace00f set GINRAV='3' where GINRGI='42'"_s);
    Connessione connessione = mBase.connessione();
    registro::aggiungiNota(connessione, mAperta, u"Neri"_s, u"Richiamano lunedì."_s);
    const QString letto = testo(mAperta);
    for (const QString& atteso :
         {u"Fascicolo della giacenza n. 42 / 2026 — fatto il 22/11/2026"_s, u"Messa in giacenza"_s,
          u"Avviso n. 3"_s, u"Richiamano lunedì."_s, u" Neri "_s, u"Totale al 22/11/2026 29,00 €"_s,
          u"Avviso di giacenza"_s, u"Lettera di vettura n. 4711 / 2026"_s,
          u"Lettera di vettura n. 4720 / 2026"_s})
        EXPECT_TRUE(letto.contains(atteso)) << atteso.toStdString() << '\n' << letto.toStdString();
    EXPECT_FALSE(letto.contains(u"il registro non c'è"_s));
}

TEST_P(Fascicolo, UnCasoChiusoSenzaRegistro)
{
    const QString letto = testo(mChiusa);
    for (const QString& atteso : {u"chiusa il 18/11/2026"_s, u"il registro non c'è"_s, u"Fattura n. 77"_s,
                                  u"Un altro addebito sarebbe il secondo."_s, u"Buon fine"_s})
        EXPECT_TRUE(letto.contains(atteso)) << atteso.toStdString() << '\n' << letto.toStdString();
    EXPECT_THROW(fascicolo(mBase.accesso(), {u"999"_s, 2026}, carta(), mOggi), Errore);
}

} // namespace
