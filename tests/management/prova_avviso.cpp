#include "management/gestionediprova.h"

#include "component/impostazioni.h"
#include "component/orologio.h"
#include "support/stampa.h"

#include <QCoreApplication>
#include <QPlainTextEdit>

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Avviso : public GestioneDiProva
{
protected:
    QStringList stampata(int tipo, const QString& chiave) const
    {
        return {QStringLiteral("database ") + mBase.stringa(),
                QStringLiteral("logo /logo"),
                QStringLiteral("didascalie uno|due|tre|quattro"),
                QStringLiteral("stampa 1"),
                QStringLiteral("tipo %1").arg(tipo),
                QStringLiteral("documento ") + chiave};
    }
    void descrivi(const QString& testo)
    {
        qobject_cast<QPlainTextEdit*>(c("txtDescGia"))->setPlainText(testo);
    }
    /// The notices of case 39 as the database has them.
    void avvisi(const QString& numero, const QString& data)
    {
        mBase.esegui(
            QStringLiteral("update giace00f set GINRAV=%1, GIDTAV=%2 where GINRGI='39';").arg(numero, data));
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, Avviso, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(Avviso, IlPrimoSiContaENonScriveLaDescrizione)
{
    richiamaMaiAvvisato();
    const QStringList inviate = istruzioni([&] { avvisa(QStringLiteral("Non paga")); });
    EXPECT_THAT(
        inviate,
        ElementsAre(QStringLiteral("select GINRAV, GIDTAV, GIDES1 from giace00f where ginrgi='41' and "
                                   "giangi=2026;"),
                    QStringLiteral("UPDATE giace00f SET GINRAV='1', GIDTAV='2026-11-21' WHERE "
                                   "GINRGI='41' AND GIANGI=2026;")));
    EXPECT_EQ(mostrato("lblDataAvviso"), QStringLiteral("2026-11-21"));
    EXPECT_EQ(mostrato("lblStatoCaso"), QStringLiteral("APERTA · 1 AVVISO"));
    EXPECT_EQ(mostrato("txtDescGia"), QStringLiteral("10/11/2026 - Assente\n21/11/2026 - Non paga"));
    EXPECT_EQ(caso(QStringLiteral("GINRAV,GIDTAV,GIDES1"), QStringLiteral("41")),
              QStringLiteral("1|2026-11-21|10/11/2026 - Assente"));
    EXPECT_EQ(mStampe, stampata(5, QStringLiteral("41_2026")));
    EXPECT_EQ(mostrato("lblStato"), QStringLiteral("Avviso di giacenza 41_2026 prodotto."));
}

TEST_P(Avviso, IlSuccessivoSiContaESostituisceLaDescrizione)
{
    richiamaAvvisato();
    EXPECT_EQ(mostrato("lblStatoCaso"), QStringLiteral("APERTA · 3 AVVISI"));
    const QStringList inviate = istruzioni([&] { avvisa(QStringLiteral("L'ufficio rifiuta")); });
    ASSERT_EQ(inviate.size(), 2);
    EXPECT_EQ(inviate.back(),
              QStringLiteral("UPDATE giace00f SET GINRAV='4', GIDTAV='2026-11-21', GIDES1='Trasloco\r\n"
                             "21/11/2026 - L''ufficio rifiuta' WHERE GINRGI='39' AND GIANGI=2026;"));
    EXPECT_EQ(caso(QStringLiteral("GINRAV,GIDTAV,GIDES1"), QStringLiteral("39")),
              QStringLiteral("4|2026-11-21|Trasloco\r\n21/11/2026 - L'ufficio rifiuta"));
    EXPECT_EQ(mostrato("lblStatoCaso"), QStringLiteral("APERTA · 4 AVVISI"));
    EXPECT_EQ(mStampe, stampata(5, QStringLiteral("39_2026")));
}

TEST_P(Avviso, LoStessoGiornoSiRistampaSenzaContare)
{
    richiamaAvvisato();
    avvisa(QStringLiteral("uno"));
    const QString prima = tutto(QStringLiteral("39"));
    mStampe.clear();
    avvisa(QStringLiteral("due"));
    EXPECT_EQ(tutto(QStringLiteral("39")), prima) << "nor is the second reason stored";
    EXPECT_EQ(mStampe, stampata(5, QStringLiteral("39_2026")));
    impostaOggi(QDate(2026, 11, 22));
    avvisa(QStringLiteral("tre"));
    EXPECT_EQ(caso(QStringLiteral("GINRAV,GIDTAV,GIDES1"), QStringLiteral("39")),
              QStringLiteral("5|2026-11-22|Trasloco\r\n21/11/2026 - uno\r\n21/11/2026 - due\r\n22/11/2026 - "
                             "tre"));
}

TEST_P(Avviso, UnaDataInAvantiContaComeOggi)
{
    avvisi(QStringLiteral("'3'"), QStringLiteral("'2026-11-22'"));
    richiamaAvvisato();
    const QString prima = tutto(QStringLiteral("39"));
    avvisa(QStringLiteral("futuro"));
    EXPECT_EQ(tutto(QStringLiteral("39")), prima);
    EXPECT_EQ(mStampe, stampata(5, QStringLiteral("39_2026")));
    EXPECT_EQ(mostrato("lblDataAvviso"), QStringLiteral("22/11/2026"));
}

TEST_P(Avviso, SenzaContoEIlPrimoQualunqueSiaLaData)
{
    for (const char16_t* conto : {u"null", u"''"}) {
        avvisi(QString::fromUtf16(conto), QStringLiteral("'2026-11-30'"));
        richiamaAvvisato();
        avvisa(QStringLiteral("uno"));
        EXPECT_EQ(caso(QStringLiteral("GINRAV,GIDTAV,GIDES1"), QStringLiteral("39")),
                  QStringLiteral("1|2026-11-21|Trasloco"));
    }
}

TEST_P(Avviso, ContoODataSbagliatiFermanoSenzaScrivereNeStampare)
{
    const QString ieri = QStringLiteral("'2026-11-20'");
    std::vector<std::pair<QString, QString>> sbagliati = {
        {QStringLiteral("'due'"), ieri},
        {QStringLiteral("'32767'"), ieri},
        {QStringLiteral("'99999'"), ieri},
        {QStringLiteral("'3'"), QStringLiteral("null")},
    };
    if (GetParam() == "sqlite") // the other takes nothing but a date
        sbagliati.emplace_back(QStringLiteral("'3'"), QStringLiteral("'ieri'"));
    for (const auto& [conto, data] : sbagliati) {
        avvisi(conto, data);
        richiamaAvvisato();
        const QString prima = tutto(QStringLiteral("39"));
        const QString mostrata = mostrato("lblDataAvviso");
        avvisa(QStringLiteral("motivo"));
        const auto messaggi = mMessaggi.prendi();
        ASSERT_EQ(messaggi.size(), 1U) << conto.toStdString();
        EXPECT_EQ(messaggi.front().stile, Stile::critico);
        EXPECT_EQ(tutto(QStringLiteral("39")), prima);
        EXPECT_EQ(mostrato("lblDataAvviso"), mostrata);
        EXPECT_THAT(mStampe, IsEmpty());
    }
    avvisi(QStringLiteral("'32766'"), ieri);
    richiamaAvvisato();
    avvisa(QStringLiteral("ultimo"));
    EXPECT_EQ(caso(QStringLiteral("GINRAV"), QStringLiteral("39")), QStringLiteral("32767"));
}

TEST_P(Avviso, DueApostrofiFermanoPrimaDiScrivereEDiStampare)
{
    richiamaAvvisato();
    const QString prima = tutto(QStringLiteral("39"));
    descrivi(QStringLiteral("L'autista"));
    const QStringList inviate = istruzioni([&] { avvisa(QStringLiteral("dall'ufficio")); });
    EXPECT_EQ(inviate.size(), 1) << "the state was read, and nothing else was sent";
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(Messaggio{
                    QStringLiteral("Operazione non riuscita.\n\nLa descrizione non si può scrivere: "
                                   "contiene più di un apostrofo. Lasciarne uno e ripetere."),
                    Stile::critico, QStringLiteral("Gestione Trasporti")}))
        << "nothing is said of the database, which has not failed";
    EXPECT_EQ(tutto(QStringLiteral("39")), prima);
    EXPECT_EQ(mostrato("lblDataAvviso"), QStringLiteral("20/11/2026"));
    EXPECT_THAT(mStampe, IsEmpty());

    descrivi(QStringLiteral("L'autista"));
    avvisa(QStringLiteral("ufficio"));
    EXPECT_EQ(caso(QStringLiteral("GIDES1"), QStringLiteral("39")),
              QStringLiteral("L'autista\r\n21/11/2026 - ufficio"));
}

TEST_P(Avviso, UnaDescrizioneLunghissimaSiScriveTutta)
{
    richiamaAvvisato();
    const QString lunga = QString(59'980, QLatin1Char('x'));
    descrivi(lunga);
    avvisa(QStringLiteral("fine"));
    EXPECT_EQ(caso(QStringLiteral("GIDES1"), QStringLiteral("39")),
              lunga + QStringLiteral("\r\n21/11/2026 - fine"));
}

TEST_P(Avviso, LAnnullamentoDelRifiutoNonFaNiente)
{
    richiamaAvvisato();
    const QString prima = tutto(QStringLiteral("39"));
    EXPECT_THAT(istruzioni([&] { avvisa({}); }), IsEmpty());
    EXPECT_EQ(tutto(QStringLiteral("39")), prima);
    EXPECT_EQ(mostrato("txtDescGia"), QStringLiteral("Trasloco"));
    EXPECT_THAT(mStampe, IsEmpty());
}

TEST_P(Avviso, UnCasoChiusoRifiutaLAvvisoESiRistampa)
{
    richiamaChiuso();
    EXPECT_THAT(istruzioni([&] { clicca("cmdAvvisoGia"); }), IsEmpty()) << "and no dialog opens";
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(Messaggio{QStringLiteral("La giacenza risulta chiusa,in data: 18/11/2026."),
                                      Stile::informazione, QStringLiteral("Gestione Trasporti")}));
    EXPECT_THAT(mStampe, IsEmpty());
    const QString prima = tutto(QStringLiteral("40"));
    clicca("cmdRistampa");
    EXPECT_EQ(mStampe, stampata(5, QStringLiteral("40_2026")));
    EXPECT_EQ(tutto(QStringLiteral("40")), prima);
}

TEST_P(Avviso, ChiusoMentreIlRifiutoEApertoLaRoutineRifiuta)
{
    richiamaAvvisato();
    const QString prima = tutto(QStringLiteral("39"));
    nelDialogo([&](QDialog&) {
        scriviEtichetta("lblDataBuonFine", QStringLiteral("20/11/2026"));
        confermaRifiuto(QStringLiteral("tardi"));
    });
    clicca("cmdAvvisoGia");
    EXPECT_THAT(
        mMessaggi.prendi(),
        ElementsAre(Messaggio{QStringLiteral("E' già stato rilasciato il buon fine per questa giacenza."),
                              Stile::avviso, titoloApplicazione()}));
    EXPECT_EQ(tutto(QStringLiteral("39")), prima);
    EXPECT_THAT(mStampe, IsEmpty());
}

TEST_P(Avviso, LaRistampaNonScriveNienteAncheMaiAvvisato)
{
    richiamaMaiAvvisato();
    const QString prima = tutto(QStringLiteral("41"));
    EXPECT_THAT(istruzioni([&] { clicca("cmdRistampa"); }), IsEmpty());
    EXPECT_EQ(mStampe, stampata(5, QStringLiteral("41_2026")));
    EXPECT_EQ(tutto(QStringLiteral("41")), prima);
    EXPECT_EQ(mostrato("lblDataAvviso"), QString());
}

TEST_P(Avviso, SenzaUnCasoSiDiceESiSta)
{
    apri();
    for (const char* bottone : {"cmdAvvisoGia", "cmdRistampa", "cmdBuonFine"}) {
        scriviEtichetta("lblStato", {});
        EXPECT_THAT(istruzioni([&] { clicca(bottone); }), IsEmpty()) << bottone;
        EXPECT_EQ(mostrato("lblStato"),
                  QStringLiteral("Nessuna giacenza sullo schermo: richiamarne una prima."))
            << bottone;
    }
    EXPECT_THAT(mStampe, IsEmpty());
    EXPECT_THAT(mMessaggi.prendi(), IsEmpty());
}

TEST_P(Avviso, LaStampaCheNonRiesceSiDiceEIlContoResta)
{
    const std::string inizio = "L'avviso di giacenza non è stato stampato; la giacenza resta registrata.\n\n";
    richiamaAvvisato();
    mGuastoStampa = QStringLiteral("Il disco è pieno.");
    avvisa(QStringLiteral("uno"));
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(Messaggio{QString::fromStdString(inizio + "Il disco è pieno."), Stile::avviso,
                                      titoloApplicazione()}));
    EXPECT_EQ(caso(QStringLiteral("GINRAV"), QStringLiteral("39")), QStringLiteral("4"));
    mGuastoStampa.clear();
    mStampaNonProdotta = true;
    clicca("cmdRistampa");
    EXPECT_EQ(mMessaggi.prendi().front().testo.toStdString(),
              inizio + "Il modulo di stampa non ha prodotto il documento.");
    mDuranteStampa = [] { throw 42; };
    clicca("cmdRistampa");
    EXPECT_EQ(mMessaggi.prendi().front().testo.toStdString(), inizio + "errore sconosciuto");
    impostazioni().percorsoFileIni = QStringLiteral("/non/ce.ini");
    clicca("cmdRistampa");
    EXPECT_THAT(mMessaggi.prendi().front().testo.toStdString(),
                testing::StartsWith(inizio + "Manca la voce IdentificativoDll"));
}

TEST_P(Avviso, CollegamentoPersoPrimaDiOgniIstruzione)
{
    richiamaAvvisato();
    const QString prima = tutto(QStringLiteral("39"));
    for (const char16_t* punto : {u"select GINRAV", u"UPDATE giace00f SET GINRAV"}) {
        fallisce(QString::fromUtf16(punto), QStringLiteral("08S01"));
        avvisa(QStringLiteral("motivo"));
        guarisce();
        EXPECT_THAT(mMessaggi.prendi(),
                    ElementsAre(Messaggio{
                        QStringLiteral("Operazione non riuscita: il database o un suo dato non risponde come "
                                       "dovrebbe.\n\nguasto di prova"),
                        Stile::critico, QStringLiteral("Gestione Trasporti")}));
        EXPECT_EQ(tutto(QStringLiteral("39")), prima);
        EXPECT_EQ(mostrato("lblDataAvviso"), QStringLiteral("20/11/2026"));
        EXPECT_EQ(mostrato("lblStatoCaso"), QStringLiteral("APERTA · 3 AVVISI"));
        EXPECT_THAT(mStampe, IsEmpty());
    }
    avvisa(QStringLiteral("motivo"));
    EXPECT_EQ(caso(QStringLiteral("GINRAV"), QStringLiteral("39")), QStringLiteral("4"))
        << "and then it works";
}

TEST_P(Avviso, LaSchermataCheSeNeVaSottoIlRifiutoAbbandona)
{
    for (const bool distrutta : {false, true}) {
        richiamaAvvisato();
        const QString prima = tutto(QStringLiteral("39"));
        nelDialogo([&](QDialog&) {
            if (distrutta)
                delete mSchermata;
            else
                mSchermata->close();
        });
        clicca("cmdAvvisoGia");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(mSchermata.isNull());
        EXPECT_EQ(tutto(QStringLiteral("39")), prima);
        EXPECT_THAT(mMessaggi.prendi(), IsEmpty());
        EXPECT_THAT(mStampe, IsEmpty());
    }
}

TEST_P(Avviso, LaSchermataPuoSparireSottoLaStampa)
{
    mDuranteStampa = [this] { delete mSchermata; };
    for (const char* bottone : {"cmdRistampa", "cmdBuonFine"}) {
        richiamaAvvisato();
        clicca(bottone);
        EXPECT_TRUE(mSchermata.isNull()) << bottone;
        EXPECT_THAT(mMessaggi.prendi(), IsEmpty());
    }
    EXPECT_EQ(mStampe.filter(QStringLiteral("documento 39_2026")).size(), 2);
    EXPECT_EQ(caso(QStringLiteral("GIDTBF,GIGGSO"), QStringLiteral("39")), QStringLiteral("2026-11-21|16"));
}

TEST_P(Avviso, LaSchermataPuoSparireSottoOgniSuoMessaggio)
{
    mMessaggi.mentreAperto([this](QWidget*, const Messaggio&) { delete mSchermata; });
    const std::pair<std::function<void()>, QString> modi[] = {
        {[this] {
             apri();
             clicca("cmdRicGiac");
         },
         QStringLiteral("Manca il numero della giacenza.")},
        {[this] { richiama(QStringLiteral("41"), {}); }, QStringLiteral("Manca la data della giacenza.")},
        {[this] { richiama(QStringLiteral("77"), QStringLiteral("10112026")); },
         QStringLiteral("Giacenza: 77 del 10/11/2026 non trovata.")},
        {[this] {
             richiamaChiuso();
             clicca("cmdAvvisoGia");
         },
         QStringLiteral("La giacenza risulta chiusa,in data: 18/11/2026.")},
        {[this] {
             richiamaMaiAvvisato();
             clicca("cmdBuonFine");
         },
         QStringLiteral("Non è stato ancora emesso un avviso di giacenza.")},
        {[this] {
             richiamaChiuso();
             mGuastoStampa = QStringLiteral("guasto");
             clicca("cmdRistampa");
         },
         QStringLiteral("L'avviso di giacenza non è stato stampato; la giacenza resta "
                        "registrata.\n\nguasto")},
    };
    for (const auto& [modo, messaggio] : modi) {
        modo();
        EXPECT_TRUE(mSchermata.isNull()) << messaggio.toStdString();
        EXPECT_EQ(mMessaggi.testi(), QStringList{messaggio});
        mMessaggi.prendi();
    }
}

} // namespace
