// Notices that something interrupts: the printing, the database, the screen that goes.

#include "management/avvisodiprova.h"

#include "base/impostazioni.h"
#include "support/stampa.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <sys/stat.h>

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class AvvisoGuasti : public AvvisoDiProva
{};

INSTANTIATE_TEST_SUITE_P(Basi, AvvisoGuasti, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(AvvisoGuasti, LaStampaCheNonRiesceSiDiceEIlContoResta)
{
    const std::string inizio = "L'avviso di giacenza non è stato stampato; la giacenza resta registrata.\n\n";
    richiamaAvvisato();
    mGuastoStampa = u"Il disco è pieno."_s;
    avvisa(u"uno"_s);
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(Messaggio{QString::fromStdString(inizio + "Il disco è pieno."), Stile::avviso,
                                      titoloApplicazione()}));
    EXPECT_EQ(caso(u"GINRAV"_s, u"39"_s), u"4"_s);
    EXPECT_EQ(mostrato("lblStato"),
              u"Avviso di giacenza 39_2026 contato (n. 4) ma non stampato: ristamparlo oggi non lo conta di "
              "nuovo. La descrizione è registrata. Il disco è pieno."_s);
    mGuastoStampa.clear();
    mStampaNonProdotta = true;
    clicca("cmdRistampa");
    EXPECT_THAT(mMessaggi.prendi(), testing::IsEmpty()) << "the module has told why";
    EXPECT_TRUE(mostrato("lblStato").endsWith(u" Il modulo di stampa non ha prodotto il documento."_s));
    mDuranteStampa = [] { throw 42; };
    clicca("cmdRistampa");
    EXPECT_EQ(mMessaggi.prendi().front().testo.toStdString(), inizio + "errore sconosciuto");
    impostazioni().percorsoFileIni = u"/non/ce.ini"_s;
    clicca("cmdRistampa");
    EXPECT_THAT(mMessaggi.prendi().front().testo.toStdString(),
                testing::StartsWith(inizio + "Manca la voce IdentificativoDll"));
}

TEST_P(AvvisoGuasti, DiUnAvvisoNonStampatoSiDiceCheCosaEStatoFatto)
{
    mStampaNonProdotta = true;
    const QString motivo = u" Il modulo di stampa non ha prodotto il documento."_s;
    richiamaMaiAvvisato();
    avvisa(u"uno"_s);
    EXPECT_EQ(mostrato("lblStato"),
              u"Avviso di giacenza 41_2026 contato (n. 1) ma non stampato: ristamparlo oggi non lo conta di "
              "nuovo. Il motivo scritto ora non è stato registrato."_s +
                  motivo);
    avvisa(u"due"_s);
    EXPECT_EQ(mostrato("lblStato"),
              u"Avviso di giacenza 41_2026 non stampato e non contato: oggi lo era già. "
              "Il motivo scritto ora non è stato registrato."_s +
                  motivo);
    EXPECT_EQ(caso(u"GINRAV,GIDES1"_s, u"41"_s), u"1|10/11/2026 - Assente"_s);
    clicca("cmdRistampa");
    EXPECT_EQ(mostrato("lblStato"),
              u"L'avviso di giacenza non è stato stampato; la giacenza resta registrata."_s + motivo);
    EXPECT_THAT(mMessaggi.testi(), IsEmpty()) << "the module has told why";
}

TEST_P(AvvisoGuasti, UnModuloCheNonLeggeLArchivioNonParlaNellaLinguaDelDriver)
{
    richiamaAvvisato();
    mDuranteStampa = [] { throw ErroreDatabase(u"08S01"_s, 2013, u"Lost connection"_s); };
    clicca("cmdRistampa");
    EXPECT_EQ(mMessaggi.prendi().front().testo,
              u"L'avviso di giacenza non è stato stampato; la giacenza resta registrata.\n\n"
              "La connessione con l'archivio è caduta."_s);
    EXPECT_TRUE(c("lblStato")->toolTip().endsWith(u" Lost connection"_s));
}

TEST_P(AvvisoGuasti, UnFileDelleImpostazioniRifiutatoSiDiceENonScriveNiente)
{
    richiamaAvvisato();
    const QString prima = tutto(u"39"_s);
    QTemporaryDir cartella;
    impostazioni().percorsoFileIni = cartella.filePath(u"tubo.ini"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(impostazioni().percorsoFileIni).constData(), 0600), 0);
    const QString motivo =
        u"Il file \"%1\" non è stato letto: non è un file normale."_s.arg(impostazioni().percorsoFileIni);
    EXPECT_THAT(istruzioni([&] { avvisa(u"motivo"_s); }), IsEmpty());
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(Messaggio{u"Operazione non riuscita.\n\n"_s + motivo,
                                                          Stile::critico, titoloApplicazione()}));
    EXPECT_EQ(tutto(u"39"_s), prima);
    EXPECT_THAT(mStampe, IsEmpty());
}

TEST_P(AvvisoGuasti, UnAvvisoFallitoRimetteLaDescrizione)
{
    richiamaAvvisato();
    const QString prima = mostrato("txtDescGia");
    for (int volta = 0; volta < 2; ++volta) {
        fallisce(u"UPDATE giace00f SET GINRAV"_s);
        avvisa(u"Non paga"_s);
        guarisce();
        EXPECT_EQ(mMessaggi.prendi().size(), 1U);
        EXPECT_EQ(mostrato("txtDescGia"), prima);
    }
    avvisa(u"Non paga"_s);
    EXPECT_EQ(mostrato("txtDescGia"), prima + u"\n21/11/2026 - Non paga"_s) << "once";
    EXPECT_EQ(mostrato("lblClienteCaso"), u"Cliente 1001"_s);
}

TEST_P(AvvisoGuasti, CollegamentoPersoPrimaDiOgniIstruzione)
{
    richiamaAvvisato();
    const QString prima = tutto(u"39"_s);
    const std::pair<QString, QString> guasti[] = {
        {u"select GINRAV"_s,
         u"Operazione non riuscita: il database o un suo dato non risponde come dovrebbe."_s},
        {u"UPDATE giace00f SET GINRAV"_s, u"Non si sa se l'operazione è riuscita: l'archivio non ha risposto "
                                          u"mentre scriveva. Ripeterla non la "
                                          "conta due volte."_s}};
    for (const auto& [punto, detto] : guasti) {
        fallisce(punto, u"08S01"_s);
        avvisa(u"motivo"_s);
        guarisce();
        EXPECT_THAT(mMessaggi.prendi(),
                    ElementsAre(Messaggio{detto + u"\n\nLa connessione con l'archivio è caduta."_s,
                                          Stile::critico, titoloApplicazione()}));
        EXPECT_EQ(c("lblStato")->toolTip(), u"guasto di prova"_s) << "the driver's words";
        EXPECT_EQ(tutto(u"39"_s), prima);
        EXPECT_EQ(mostrato("lblDataAvviso"), u"20/11/2026"_s);
        EXPECT_EQ(mostrato("lblStatoCaso"), u"APERTA · 3 AVVISI"_s);
        EXPECT_THAT(mStampe, IsEmpty());
    }
    avvisa(u"motivo"_s);
    EXPECT_EQ(caso(u"GINRAV"_s, u"39"_s), u"4"_s) << "and then it works";
}

TEST_P(AvvisoGuasti, LaSchermataCheSeNeVaSottoIlRifiutoAbbandona)
{
    for (const bool distrutta : {false, true}) {
        richiamaAvvisato();
        const QString prima = tutto(u"39"_s);
        nelDialogo([&](QDialog&) {
            if (distrutta)
                delete mSchermata;
            else
                mSchermata->close();
        });
        clicca("cmdAvvisoGia");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(mSchermata.isNull());
        EXPECT_EQ(tutto(u"39"_s), prima);
        EXPECT_THAT(mMessaggi.prendi(), IsEmpty());
        EXPECT_THAT(mStampe, IsEmpty());
    }
}

TEST_P(AvvisoGuasti, LaSchermataPuoSparireSottoLaStampa)
{
    mDuranteStampa = [this] { delete mSchermata; };
    for (const char* bottone : {"cmdRistampa", "cmdBuonFine"}) {
        richiamaAvvisato();
        clicca(bottone);
        EXPECT_TRUE(mSchermata.isNull()) << bottone;
        EXPECT_THAT(mMessaggi.prendi(), IsEmpty());
    }
    EXPECT_EQ(mStampe.filter(u"documento 39_2026"_s).size(), 2);
    EXPECT_EQ(caso(u"GIDTBF,GIGGSO"_s, u"39"_s), u"2026-11-21|16"_s);
}

TEST_P(AvvisoGuasti, LaSchermataPuoSparireSottoOgniSuoMessaggio)
{
    mMessaggi.mentreAperto([this](QWidget*, const Messaggio&) { delete mSchermata; });
    const std::pair<std::function<void()>, QString> modi[] = {
        {[this] {
             apri();
             clicca("cmdRicGiac");
         },
         u"Manca il numero della giacenza."_s},
        {[this] { richiama(u"41"_s, {}); }, u"Manca la data della giacenza."_s},
        {[this] { richiama(u"77"_s, u"10112026"_s); }, u"Giacenza: 77 del 10/11/2026 non trovata."_s},
        {[this] {
             richiamaChiuso();
             clicca("cmdAvvisoGia");
         },
         u"La giacenza risulta chiusa,in data: 18/11/2026."_s},
        {[this] {
             richiamaMaiAvvisato();
             clicca("cmdBuonFine");
         },
         u"Non è stato ancora emesso un avviso di giacenza."_s},
        {[this] {
             richiamaChiuso();
             mGuastoStampa = u"guasto"_s;
             clicca("cmdRistampa");
         },
         u"L'avviso di giacenza non è stato stampato; la giacenza resta "
         "registrata.\n\nguasto"_s},
    };
    for (const auto& [modo, messaggio] : modi) {
        modo();
        EXPECT_TRUE(mSchermata.isNull()) << messaggio.toStdString();
        EXPECT_EQ(mMessaggi.testi(), QStringList{messaggio});
        mMessaggi.prendi();
    }
}

} // namespace
