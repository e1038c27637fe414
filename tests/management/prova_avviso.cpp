#include "management/avvisodiprova.h"

#include "base/orologio.h"
#include "support/stampa.h"
#include "widgets/annuncio.h"

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Avviso : public AvvisoDiProva
{};

INSTANTIATE_TEST_SUITE_P(Basi, Avviso, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(Avviso, IlPrimoSiContaENonScriveLaDescrizione)
{
    richiamaMaiAvvisato();
    const QStringList inviate = istruzioni([&] { avvisa(u"Non paga"_s); });
    EXPECT_THAT(inviate, ElementsAre(u"select GINRAV, GIDTAV, GIDES1 from giace00f where ginrgi='41' and "
                                     "giangi=2026;"_s,
                                     u"UPDATE giace00f SET GINRAV='1', GIDTAV='2026-11-21' WHERE "
                                     "GINRGI='41' AND GIANGI=2026;"_s));
    EXPECT_EQ(mostrato("lblDataAvviso"), u"2026-11-21"_s);
    EXPECT_EQ(mostrato("lblStatoCaso"), u"APERTA · 1 AVVISO"_s);
    EXPECT_EQ(mostrato("txtDescGia"), u"10/11/2026 - Assente\n21/11/2026 - Non paga"_s);
    EXPECT_EQ(caso(u"GINRAV,GIDTAV,GIDES1"_s, u"41"_s), u"1|2026-11-21|10/11/2026 - Assente"_s);
    EXPECT_EQ(mStampe, stampata(5, u"41_2026"_s));
    EXPECT_EQ(mostrato("lblStato"),
              u"Avviso di giacenza 41_2026 prodotto. Il motivo scritto ora non è stato registrato."_s);
}

TEST_P(Avviso, IlSuccessivoSiContaESostituisceLaDescrizione)
{
    richiamaAvvisato();
    EXPECT_EQ(mostrato("lblStatoCaso"), u"APERTA · 3 AVVISI"_s);
    const QStringList inviate = istruzioni([&] { avvisa(u"L'ufficio rifiuta"_s); });
    ASSERT_EQ(inviate.size(), 2);
    EXPECT_EQ(inviate.back(), u"UPDATE giace00f SET GINRAV='4', GIDTAV='2026-11-21', GIDES1='Trasloco\r\n"
                              "21/11/2026 - L''ufficio rifiuta' WHERE GINRGI='39' AND GIANGI=2026;"_s);
    EXPECT_EQ(caso(u"GINRAV,GIDTAV,GIDES1"_s, u"39"_s),
              u"4|2026-11-21|Trasloco\r\n21/11/2026 - L'ufficio rifiuta"_s);
    EXPECT_EQ(mostrato("lblStatoCaso"), u"APERTA · 4 AVVISI"_s);
    EXPECT_EQ(mStampe, stampata(5, u"39_2026"_s));
}

TEST_P(Avviso, GiaIlSecondoSostituisceLaDescrizione)
{
    avvisi(u"'1'"_s, u"'2026-11-20'"_s);
    richiamaAvvisato();
    avvisa(u"Non paga"_s);
    EXPECT_EQ(caso(u"GINRAV,GIDTAV,GIDES1"_s, u"39"_s), u"2|2026-11-21|Trasloco\r\n21/11/2026 - Non paga"_s);
    EXPECT_EQ(mostrato("lblStato"), u"Avviso di giacenza 39_2026 prodotto."_s);
}

TEST_P(Avviso, LoStatoDelCasoSiAnnuncia)
{
    QStringList annunci;
    impostaAnnunciatore([&annunci](QWidget* etichetta, const QString& testo) {
        if (etichetta->objectName() == u"lblStatoCaso"_s)
            annunci << testo;
    });
    richiamaAvvisato();
    avvisa(u"L'ufficio rifiuta"_s);
    impostaAnnunciatore({});
    EXPECT_THAT(annunci, ElementsAre(u"APERTA · 3 AVVISI"_s, u"APERTA · 4 AVVISI"_s));
}

TEST_P(Avviso, LoStessoGiornoSiRistampaSenzaContare)
{
    richiamaAvvisato();
    avvisa(u"uno"_s);
    const QString prima = tutto(u"39"_s);
    mStampe.clear();
    avvisa(u"due"_s);
    EXPECT_EQ(tutto(u"39"_s), prima) << "nor is the second reason stored";
    EXPECT_EQ(mStampe, stampata(5, u"39_2026"_s));
    impostaOggi(QDate(2026, 11, 22));
    avvisa(u"tre"_s);
    EXPECT_EQ(caso(u"GINRAV,GIDTAV,GIDES1"_s, u"39"_s),
              u"5|2026-11-22|Trasloco\r\n21/11/2026 - uno\r\n21/11/2026 - due\r\n22/11/2026 - "
              "tre"_s);
}

TEST_P(Avviso, UnaDataInAvantiContaComeOggi)
{
    avvisi(u"'3'"_s, u"'2026-11-22'"_s);
    richiamaAvvisato();
    const QString prima = tutto(u"39"_s);
    avvisa(u"futuro"_s);
    EXPECT_EQ(tutto(u"39"_s), prima);
    EXPECT_EQ(mStampe, stampata(5, u"39_2026"_s));
    EXPECT_EQ(mostrato("lblDataAvviso"), u"22/11/2026"_s);
}

TEST_P(Avviso, SenzaContoEIlPrimoQualunqueSiaLaData)
{
    for (const char16_t* conto : {u"null", u"''"}) {
        avvisi(QString::fromUtf16(conto), u"'2026-11-30'"_s);
        richiamaAvvisato();
        avvisa(u"uno"_s);
        EXPECT_EQ(caso(u"GINRAV,GIDTAV,GIDES1"_s, u"39"_s), u"1|2026-11-21|Trasloco"_s);
    }
}

TEST_P(Avviso, ContoODataSbagliatiFermanoSenzaScrivereNeStampare)
{
    const QString ieri = u"'2026-11-20'"_s;
    std::vector<std::pair<QString, QString>> sbagliati = {
        {u"'due'"_s, ieri},
        {u"'32767'"_s, ieri},
        {u"'99999'"_s, ieri},
        {u"'3'"_s, u"null"_s},
    };
    if (GetParam() == "sqlite") // the other takes nothing but a date
        sbagliati.emplace_back(u"'3'"_s, u"'ieri'"_s);
    for (const auto& [conto, data] : sbagliati) {
        avvisi(conto, data);
        richiamaAvvisato();
        const QString prima = tutto(u"39"_s);
        const QString mostrata = mostrato("lblDataAvviso");
        avvisa(u"motivo"_s);
        const auto messaggi = mMessaggi.prendi();
        ASSERT_EQ(messaggi.size(), 1U) << conto.toStdString();
        EXPECT_EQ(messaggi.front().stile, Stile::critico);
        EXPECT_EQ(tutto(u"39"_s), prima);
        EXPECT_EQ(mostrato("lblDataAvviso"), mostrata);
        EXPECT_THAT(mStampe, IsEmpty());
    }
    avvisi(u"'32766'"_s, ieri);
    richiamaAvvisato();
    avvisa(u"ultimo"_s);
    EXPECT_EQ(caso(u"GINRAV"_s, u"39"_s), u"32767"_s);
}

TEST_P(Avviso, DueApostrofiFermanoPrimaDiScrivereEDiStampare)
{
    richiamaAvvisato();
    const QString prima = tutto(u"39"_s);
    descrivi(u"L'autista"_s);
    const QStringList inviate = istruzioni([&] { avvisa(u"dall'ufficio"_s); });
    EXPECT_EQ(inviate.size(), 1) << "the state was read, and nothing else was sent";
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(Messaggio{u"Operazione non riuscita.\n\nLa descrizione non si può scrivere: "
                                      "contiene più di un apostrofo. Lasciarne uno e ripetere."_s,
                                      Stile::critico, titoloApplicazione()}))
        << "nothing is said of the database, which has not failed";
    EXPECT_EQ(tutto(u"39"_s), prima);
    EXPECT_EQ(mostrato("lblDataAvviso"), u"20/11/2026"_s);
    EXPECT_THAT(mStampe, IsEmpty());

    descrivi(u"L'autista"_s);
    avvisa(u"ufficio"_s);
    EXPECT_EQ(caso(u"GIDES1"_s, u"39"_s), u"L'autista\r\n21/11/2026 - ufficio"_s);
}

TEST_P(Avviso, UnaDescrizioneLunghissimaSiScriveTutta)
{
    richiamaAvvisato();
    const QString lunga = QString(59'980, u'x');
    descrivi(lunga);
    avvisa(u"fine"_s);
    EXPECT_EQ(caso(u"GIDES1"_s, u"39"_s), lunga + u"\r\n21/11/2026 - fine"_s);
}

TEST_P(Avviso, LAnnullamentoDelRifiutoNonFaNiente)
{
    richiamaAvvisato();
    const QString prima = tutto(u"39"_s);
    EXPECT_THAT(istruzioni([&] { avvisa({}); }), IsEmpty());
    EXPECT_EQ(tutto(u"39"_s), prima);
    EXPECT_EQ(mostrato("txtDescGia"), u"Trasloco"_s);
    EXPECT_THAT(mStampe, IsEmpty());
}

TEST_P(Avviso, UnCasoChiusoRifiutaLAvvisoESiRistampa)
{
    richiamaChiuso();
    EXPECT_THAT(istruzioni([&] { clicca("cmdAvvisoGia"); }), IsEmpty()) << "and no dialog opens";
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(Messaggio{u"La giacenza risulta chiusa,in data: 18/11/2026."_s,
                                      Stile::informazione, u"Gestione Trasporti"_s}));
    EXPECT_THAT(mStampe, IsEmpty());
    const QString prima = tutto(u"40"_s);
    clicca("cmdRistampa");
    EXPECT_EQ(mStampe, stampata(5, u"40_2026"_s));
    EXPECT_EQ(tutto(u"40"_s), prima);
}

TEST_P(Avviso, ChiusoMentreIlRifiutoEApertoLaRoutineRifiuta)
{
    richiamaAvvisato();
    const QString prima = tutto(u"39"_s);
    nelDialogo([&](QDialog&) {
        scriviEtichetta("lblDataBuonFine", u"20/11/2026"_s);
        confermaRifiuto(u"tardi"_s);
    });
    clicca("cmdAvvisoGia");
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(Messaggio{u"E' già stato rilasciato il buon fine per questa giacenza."_s,
                                      Stile::avviso, titoloApplicazione()}));
    EXPECT_EQ(tutto(u"39"_s), prima);
    EXPECT_THAT(mStampe, IsEmpty());
}

TEST_P(Avviso, LaRistampaNonScriveNienteAncheMaiAvvisato)
{
    richiamaMaiAvvisato();
    const QString prima = tutto(u"41"_s);
    EXPECT_THAT(istruzioni([&] { clicca("cmdRistampa"); }), IsEmpty());
    EXPECT_EQ(mStampe, stampata(5, u"41_2026"_s));
    EXPECT_EQ(tutto(u"41"_s), prima);
    EXPECT_EQ(mostrato("lblDataAvviso"), QString());
}

TEST_P(Avviso, SenzaUnCasoSiDiceESiSta)
{
    apri();
    for (const char* bottone : {"cmdAvvisoGia", "cmdRistampa", "cmdBuonFine"}) {
        scriviEtichetta("lblStato", {});
        EXPECT_THAT(istruzioni([&] { clicca(bottone); }), IsEmpty()) << bottone;
        EXPECT_EQ(mostrato("lblStato"), u"Nessuna giacenza sullo schermo: richiamarne una prima."_s)
            << bottone;
    }
    EXPECT_THAT(mStampe, IsEmpty());
    EXPECT_THAT(mMessaggi.prendi(), IsEmpty());
}

} // namespace
