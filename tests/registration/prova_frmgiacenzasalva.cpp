// The save and its notice.

#include "data/archivio.h"
#include "data/salvataggio.h"
#include "registration/registrazionediprova.h"

#include "screens/campi.h"
#include "support/stampa.h"

#include <QWindow>

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class RegistrazioneSalva : public RegistrazioneDiProva
{};

INSTANTIATE_TEST_SUITE_P(Basi, RegistrazioneSalva, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

Messaggio dellApplicazione(const QString& testo, Stile stile)
{
    return {testo, stile, titoloApplicazione()};
}

TEST_P(RegistrazioneSalva, MentreSiStampaLaSchermataNonStaSopraLeAltre)
{
    const auto inPrimoPiano = [this] {
        return mSchermata->windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint);
    };
    consegna(u"4711"_s);
    EXPECT_TRUE(inPrimoPiano());
    std::optional<bool> durante;
    mDuranteStampa = [&] { durante = inPrimoPiano(); };
    clicca("cmdSalva");
    mMessaggi.prendi();
    EXPECT_EQ(durante, false);
    EXPECT_TRUE(inPrimoPiano());
}

TEST_P(RegistrazioneSalva, IlCasoGuardatoPrimaNonPrestaLeSueDate)
{
    consegna(u"4714"_s);
    consegna(u"4711"_s);
    for (const char* nome :
         {"lblDataAvviso", "lblDataBuonFine", "lblFattura", "txtDataFatt", "txtDataGiaOld"}) {
        EXPECT_TRUE(avanzo(nome)) << nome;
        EXPECT_NE(mostrato(nome), QString()) << nome << " stays visible";
    }
    scrivi("txtDataGia", u"20112026"_s);
    EXPECT_FALSE(avanzo("txtDataGia"));
    scrivi("txtDescGia", u"chiuso"_s);
    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Giacenza aggiunta in database."_s));
    EXPECT_EQ(mBase.righe(u"select GINRGI,GIDTGI,GIGGSO,GINRAV,GIDTAV,GIDTBF,GIVNRG,GIVDTG "
                          "from giace00f where GINRLV='4711'"_s),
              (QList<QStringList>{{u"42"_s, u"2026-11-20"_s, u"1"_s, u"1"_s, u"2026-11-21"_s, u"NULL"_s,
                                   u"NULL"_s, u"NULL"_s}}));
}

TEST_P(RegistrazioneSalva, SalvaEAvvisaSoloConITasti)
{
    apri();
    scrivi("txtCodiceCli", u"1001"_s);
    lascia("txtCodiceCli");
    EXPECT_EQ(mostrato("barCliente"), u"Ferramenta Lombarda S.r.l."_s);
    scrivi("txtFiliale", u"MI"_s);
    scrivi("txtLDV", u"4711"_s);
    scrivi("txtDataLdv", u"12112026"_s);
    lascia("txtDataLdv");
    EXPECT_EQ(mostrato("txtDestinatario"), u"Utensileria del Lago"_s);
    scrivi("txtDataGia", u"20112026"_s);
    lascia("txtDataGia");
    EXPECT_EQ(mostrato("barGiorniSosta"), u"1"_s);
    scrivi("txtFilialeGia", u"BO"_s);
    scrivi("txtDescGia", u"L'insegna manca"_s);
    scorciatoia(Qt::Key_S);

    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(dellApplicazione(u"Giacenza aggiunta in database."_s, Stile::informazione)));
    EXPECT_EQ(mostrato("lblNrGia"), u"42"_s);
    EXPECT_EQ(mostrato("lblDataAvviso"), u"2026-11-21"_s);
    EXPECT_THAT(mStampe, ElementsAre(u"database "_s + mBase.stringa(), u"logo /logo"_s,
                                     u"didascalie uno|due|tre|quattro"_s, u"stampa 1"_s, u"tipo 5"_s,
                                     u"documento 42_2026"_s));
    EXPECT_EQ(mBase.righe(u"select GINRAV,GIDTAV,GIDES1 from giace00f where GINRGI='42'"_s),
              (QList<QStringList>{{u"1"_s, u"2026-11-21"_s, u"20/11/2026 - L'insegna manca"_s}}));
}

TEST_P(RegistrazioneSalva, MandaLeIstruzioniDelSalvataggioEDelSuoAvvisoENullaDiPiu)
{
    consegna(u"4711"_s);
    scrivi("txtDescGia", u"Assente"_s);
    EXPECT_THAT(
        istruzioni([&] { clicca("cmdSalva"); }),
        ElementsAre(u"select Lerico, lerfgi, leangi from letve00f where lenrlv='4711' and "
                    "ledtlv='2026-11-12';"_s,
                    u"select * from giace00f"_s, // described, not executed
                    u"select UltimoNumGiacenza from ekelvorqzt_tabge00f;"_s,
                    u"update ekelvorqzt_tabge00f set UltimoNumGiacenza=42;"_s,
                    u"insert into giace00f (GIFILI, GINRLV, GIANLV, GICODI, GIFIGI, GIGGSO, GIDES1, GIANGI, "
                    "GIDTGI, GINRGI) values (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"_s,
                    u"update letve00f set LERFGI='42', LEANGI='2026', LEDTCO=null where lenrlv='4711' and "
                    "leanlv='2026';"_s,
                    u"select GINRAV, GIDTAV from giace00f where gifili='MI' and ginrlv='4711' and "
                    "gianlv='2026';"_s,
                    u"UPDATE giace00f SET GINRAV='1', GIDTAV='2026-11-21' WHERE GIFILI='MI' AND "
                    "GINRLV='4711' AND GIANLV=2026;"_s));
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Giacenza aggiunta in database."_s));
}

TEST_P(RegistrazioneSalva, SenzaClienteORiferimentoSalvaNonFaNiente)
{
    apri();
    clicca("cmdSalva");
    consegna(u"4711"_s);
    consegna(u"9999"_s);
    EXPECT_EQ(mostrato("txtRifMitt"), QString()) << "a lookup that finds nothing empties what a save needs";
    EXPECT_THAT(istruzioni([&] { clicca("cmdSalva"); }), IsEmpty());
}

TEST_P(RegistrazioneSalva, RifiutaCioCheNonSiPuoMettereInGiacenza)
{
    consegna(u"4713"_s);
    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(dellApplicazione(
                    u"La spedizione selezionata è una riconsegna relativa ad una giacenza già esistente."_s,
                    Stile::avviso)));
    consegna(u"4712"_s);
    mBase.esegui(u"delete from letve00f where lenrlv='4712';"_s);
    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(dellApplicazione(
                                        u"Lettera di vettura non presente in database."_s, Stile::avviso)));
    EXPECT_THAT(mStampe, IsEmpty());
}

TEST_P(RegistrazioneSalva, LaSpedizionePresaDaUnAltraPostazioneDopoLaRicercaERifiutata)
{
    consegna(u"4711"_s);
    mBase.esegui(u"update letve00f set LERFGI='41', LEANGI=2026 where lenrlv='4711';"_s);
    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Giacenza esistente impossibile inserirla in database."_s));
    EXPECT_EQ(mBase.leggi(u"select count(*) from giace00f where GINRLV='4711'"_s), u"0"_s);
}

/// Two sessions: the other one saves, whole, when this one's check has passed and its transaction has begun.
TEST_P(RegistrazioneSalva, ChiPerdeLaGaraPerLaSpedizioneSenteChiLaTiene)
{
    consegna(u"4711"_s);
    Connessione altra = mBase.connessione();
    bool salvata = false;
    QStringList mandate;
    const Traccia prima = impostaTraccia([&](EventoDati evento, const QString& testo) {
        if (evento != EventoDati::istruzione)
            return;
        mandate << testo;
        if (salvata || !testo.startsWith(u"select UltimoNumGiacenza"_s))
            return;
        salvata = true;
        const DatiGiacenza sua = {.filiale = u"MI"_s,
                                  .numeroLdv = u"4711"_s,
                                  .dataLdv = QDate(2026, 11, 12),
                                  .cliente = u"1001"_s,
                                  .filialeGiacenza = u"BO"_s,
                                  .giorniSosta = u"3"_s,
                                  .dataGiacenza = QDate(2026, 11, 19),
                                  .motivo = u"chiuso"_s};
        EXPECT_EQ(InserisciGiacenza(altra, mBase.accesso(), sua), u"42"_s);
    });
    clicca("cmdSalva");
    impostaTraccia(prima);
    EXPECT_TRUE(salvata);
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(dellApplicazione(
                                        u"Impossibile aggiungere la nuova giacenza."_s, Stile::critico)));
    EXPECT_EQ(
        mostrato("lblStato"),
        u"Giacenza esistente impossibile inserirla in database. La LDV 4711 è già la giacenza 42/2026 del 19/11/2026."_s);
    EXPECT_EQ(mostrato("lblNrGia"), QString());
    EXPECT_EQ(mandate.last(), u"select GINRGI, GIANGI, GIDTGI from giace00f where GIFILI='MI' and "
                              "GINRLV='4711' and GIANLV=2026;"_s);
    EXPECT_EQ(mBase.righe(u"select GINRGI, GIDTGI, LERFGI from giace00f join letve00f on ginrlv=lenrlv where "
                          "GINRLV='4711'"_s),
              (QList<QStringList>{{u"42"_s, u"2026-11-19"_s, u"42"_s}}));
    EXPECT_THAT(mStampe, IsEmpty()) << "and no notice follows";
    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(dellApplicazione(u"Giacenza esistente impossibile inserirla in database."_s,
                                             Stile::avviso)));
    consegna(u"4712"_s);
    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Giacenza aggiunta in database."_s)) << "the screen works";
}

TEST_P(RegistrazioneSalva, TuttiINulliSiMostranoESiSalvano)
{
    consegna(u"4712"_s);
    EXPECT_EQ(mostrato("txtDestinatario"), QString());
    EXPECT_EQ(mostrato("cmbPorto"), QString());
    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Giacenza aggiunta in database."_s));
    EXPECT_EQ(mBase.leggi(u"select GINRAV from giace00f where GINRLV='4712'"_s), u"1"_s);
}

TEST_P(RegistrazioneSalva, LaDataDellaGiacenzaSiControlla)
{
    consegna(u"4711"_s);
    const auto attesa = dellApplicazione(u"Controllare l'immissione della data giacenza."_s, Stile::avviso);
    for (const char16_t* errata : {u"31022026", u"2011", u"000000"}) {
        scrivi("txtDataGia", QString::fromUtf16(errata));
        lascia("txtDataGia");
        EXPECT_THAT(mMessaggi.prendi(), ElementsAre(attesa));
        EXPECT_TRUE(c("txtDataGia")->hasFocus());
    }
    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(attesa)) << "the click that left the field is swallowed";
    scorciatoia(Qt::Key_S);
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(attesa))
        << "a shortcut moves no focus: the save checks first";
    EXPECT_EQ(mBase.leggi(u"select count(*) from giace00f where GINRLV='4711'"_s), u"0"_s);

    scrivi("txtDataGia", {});
    lascia("txtDataGia");
    EXPECT_EQ(mostrato("txtDataGia"), QString()) << "an untouched mask reads empty and raises no message";
    scrivi("txtDataGia", u"3102"_s);
    clicca("cmdEsci");
    EXPECT_FALSE(mSchermata && mSchermata->isVisible()) << "leaving checks nothing";
}

TEST_P(RegistrazioneSalva, LAvvisoSiContaUnaVoltaAlGiorno)
{
    consegna(u"4714"_s);
    mBase.esegui(u"update giace00f set GIDTAV='2026-11-20' where GINRGI='40';"_s);
    clicca("cmdAvvisoGia");
    const QString conto = u"select GINRAV,GIDTAV,GIDES1 from giace00f where GINRGI='40'"_s;
    const QList<QStringList> tre = {{u"3"_s, u"2026-11-21"_s, u"13/11/2026 - Chiuso per ferie"_s}};
    EXPECT_EQ(mBase.righe(conto), tre);
    clicca("cmdAvvisoGia");
    EXPECT_EQ(mBase.righe(conto), tre) << "a second one on the same day only prints again";
    EXPECT_EQ(mStampe.filter(u"documento 40_2026"_s).size(), 2);
}

TEST_P(RegistrazioneSalva, SenzaGiacenzaSulloSchermoNonCELAvviso)
{
    consegna(u"4711"_s);
    EXPECT_THAT(istruzioni([&] { clicca("cmdAvvisoGia"); }), IsEmpty());
    EXPECT_THAT(mStampe, IsEmpty());
    EXPECT_EQ(mostrato("lblStato"), u"Nessuna giacenza sullo schermo: richiamarne una prima."_s);
}

} // namespace
