#include "base/impostazioni.h"
#include "data/archivio.h"
#include "redelivery/emissionediprova.h"
#include "support/stampa.h"

#include <QLabel>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Riconsegna : public EmissioneDiProva
{
protected:
    ~Riconsegna() override { impostaTraccia({}); }

    static Messaggio dellApplicazione(const QString& testo, Stile stile = Stile::avviso)
    {
        return {testo, stile, titoloApplicazione()};
    }
    static Messaggio inesistente()
    {
        return dellApplicazione(u"Giacenza inesistente immettere la giacenza."_s);
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, Riconsegna, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(Riconsegna, EmetteSenzaChiedereSeCELaSolaPrimaLdv)
{
    cerca(u"950"_s);
    QStringList chiamate;
    const QStringList inviate = istruzioni([&] { chiamate = emetti({.riga = 1}); });
    EXPECT_EQ(chiamate, consegnaIntera(u"950"_s));
    EXPECT_THAT(
        inviate,
        ElementsAre(u"select * from letve00f where Lefili='MI' and Lenrlv='950' and Leanlv='2026';"_s,
                    u"select * from porto order by idPorto"_s,
                    u"SELECT letve00f.*, giace00f.* from letve00f INNER JOIN giace00f ON lerfgi=ginrgi and "
                    "leangi=giangi WHERE ginrgi='50' and giangi=2026;"_s));
    EXPECT_FALSE(bottoneAcceso());
    EXPECT_EQ(stato()->text(), u"Emessa da 950"_s);
    EXPECT_EQ(mEmissioni.vivi, 0) << "the issuer is released";
    EXPECT_EQ(mEmissioni.colonne.front().value(1).toLower(), u"lenrlv"_s);
    const Contesto& contesto = mEmissioni.contesti.front();
    EXPECT_EQ(contesto.porto, 2);
    EXPECT_EQ(contesto.numeroGiacenza, u"50"_s);
    EXPECT_EQ(contesto.annoGiacenza, 2026);
    EXPECT_TRUE(contesto.controlloGiacenza);
    EXPECT_EQ(contesto.riconsegne, 0);
    EXPECT_EQ(contesto.oggi, QDate(2026, 11, 21));
    EXPECT_EQ(contesto.finestra, mSchermata);

    cerca(u"951"_s);
    EXPECT_FALSE(bottoneAcceso()) << "one screen issues at most once";
}

TEST_P(Riconsegna, ChiedeSeCiSonoRiconsegneEPuoEssereRifiutata)
{
    const Messaggio domanda = dellApplicazione(
        u"Sono presenti n.2 riconsegne emettere una nuova riconsegna?"_s, Stile::domandaInformazione);
    cerca(u"951"_s);
    mMessaggi.rispondi(Risposta::no);
    EXPECT_THAT(emetti(), IsEmpty());
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(domanda));
    EXPECT_TRUE(bottoneAcceso());

    mMessaggi.rispondi(Risposta::si);
    EXPECT_EQ(emetti({.stampa = false}), consegnaIntera(u"951"_s, false));
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(domanda));
    EXPECT_EQ(mEmissioni.contesti.front().riconsegne, 2);
    EXPECT_FALSE(bottoneAcceso());
}

TEST_P(Riconsegna, ContaTuttiITrecentoLegami)
{
    cerca(u"954"_s);
    mMessaggi.rispondi(Risposta::no);
    emetti();
    EXPECT_THAT(mMessaggi.testi(),
                ElementsAre(u"Sono presenti n.299 riconsegne emettere una nuova riconsegna?"_s));
}

TEST_P(Riconsegna, LaGiacenzaChiusaSiRifiutaAncheConRiconsegneEConLaDataDelloSchermo)
{
    cerca(u"953"_s);
    mBase.esegui(u"update giace00f set GIDTBF='2026-11-20' where GINRGI='53';"_s);
    EXPECT_THAT(emetti(), IsEmpty());
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(dellApplicazione(
                    u"la Giacenza è stata chiusa con avviso di buon fine in data: 19/11/2026."_s)));
    EXPECT_TRUE(bottoneAcceso());

    // Closed by another workstation since it was shown: the label is still empty.
    cerca(u"950"_s);
    mBase.esegui(u"update giace00f set GIDTBF='2026-11-20' where GINRGI='50';"_s);
    emetti();
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(dellApplicazione(
                                        u"la Giacenza è stata chiusa con avviso di buon fine in data: ."_s)));
}

TEST_P(Riconsegna, SenzaGiacenzaOSenzaLegamiNonSiEmette)
{
    apri();
    EXPECT_THAT(emetti(), IsEmpty()) << "nothing on the screen";
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(inesistente()));
    cerca(u"952"_s);
    EXPECT_THAT(emetti(), IsEmpty()) << "held, but no waybill is linked";
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(inesistente()));
    cerca(u"950"_s);
    cerca(u"4711"_s);
    EXPECT_TRUE(avanzo("lblNrGia")) << "4711 is not held: the number is another waybill's";
    EXPECT_THAT(emetti(), IsEmpty());
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(inesistente()));
    EXPECT_TRUE(bottoneAcceso());
}

TEST_P(Riconsegna, SenzaControlloSiEmetteInOgniCaso)
{
    for (const auto& ldv : {u"953"_s, u"952"_s, u"4711"_s}) {
        if (mSchermata)
            clicca("cmdEsci");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        cerca(ldv);
        EXPECT_EQ(istruzioni([&] { EXPECT_EQ(emetti({.controllo = false}), consegnaIntera(ldv)); }).size(),
                  2);
        EXPECT_FALSE(bottoneAcceso());
    }
    EXPECT_FALSE(mEmissioni.contesti.back().controlloGiacenza);
    EXPECT_EQ(mEmissioni.contesti.back().riconsegne, 0);
}

TEST_P(Riconsegna, AnnullareIlPortoFermaLaCasellaDiChiusuraConferma)
{
    cerca(u"950"_s);
    EXPECT_THAT(emetti({.chiude = Porto::Chiude::annulla}), IsEmpty());
    EXPECT_THAT(emetti({.chiude = Porto::Chiude::esc}), IsEmpty());
    EXPECT_TRUE(bottoneAcceso());
    EXPECT_EQ(emetti({.chiude = Porto::Chiude::casella}), consegnaIntera(u"950"_s));
    EXPECT_FALSE(bottoneAcceso());
}

TEST_P(Riconsegna, ITerminiDiPortoVannoAChiEmette)
{
    mBase.esegui(u"delete from porto;"_s);
    cerca(u"950"_s);
    emetti();
    EXPECT_EQ(mEmissioni.contesti.back().porto, 0) << "an empty table stops nothing";

    clicca("cmdEsci");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    mBase.esegui(u"insert into porto values (1,'Franco'),(2,'Assegnato');"_s);
    impostazioni().movimento = Movimento::reso;
    cerca(u"950"_s);
    emetti();
    EXPECT_EQ(mEmissioni.contesti.back().porto, 1) << "with two rows the return's third is not there";
    EXPECT_TRUE(mEmissioni.contesti.back().resoAMittente);
    EXPECT_EQ(mEmissioni.contesti.back().lavoro, u"Reso a Mittente"_s);
}

TEST_P(Riconsegna, UnNumeroConLApiceDaUnRecordVuoto)
{
    cerca(u"950"_s);
    scrivi("txtLDV", u"9'50"_s);
    EXPECT_EQ(emetti({.controllo = false}), consegnaIntera(u"(vuota)"_s));
    EXPECT_FALSE(bottoneAcceso());
}

TEST_P(Riconsegna, IlNumeroScrittoVincePerLaLdvELaGiacenzaRestaQuellaMostrata)
{
    cerca(u"950"_s);
    scrivi("txtLDV", u"4711"_s);
    EXPECT_EQ(emetti(), consegnaIntera(u"4711"_s));
    EXPECT_EQ(mEmissioni.contesti.back().numeroGiacenza, u"50"_s);
}

TEST_P(Riconsegna, DopoOgniGiroLaConnessioneEChiusaESiRiapre)
{
    cerca(u"950"_s);
    int aperture = 0;
    int chiusure = 0;
    impostaTraccia([&](EventoDati evento, const QString&) {
        aperture += evento == EventoDati::apertura;
        chiusure += evento == EventoDati::chiusura;
    });
    emetti({.chiude = Porto::Chiude::annulla});
    EXPECT_EQ(aperture, 1) << "the dialog's own";
    EXPECT_EQ(chiusure, 2) << "the dialog's and the screen's";
    impostaTraccia({});
    cerca(u"951"_s);
    EXPECT_EQ(mostrato("lblNrGia"), u"51"_s);
}

TEST_P(Riconsegna, UnaDataGiacenzaErrataSiRifiutaAncheConLaScorciatoia)
{
    cerca(u"950"_s);
    scrivi("txtDataGia", u"31022026"_s);
    scorciatoia(Qt::Key_V);
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Controllare l'immissione della data giacenza."_s));
    EXPECT_THAT(mEmissioni.chiamate, IsEmpty());
}

} // namespace
