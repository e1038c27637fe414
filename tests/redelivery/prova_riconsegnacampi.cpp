// What the fields of the re-delivery screen say beside each other, and what they ask for when they are left.

#include "base/impostazioni.h"
#include "base/parti.h"
#include "redelivery/frmRiconsegna.h"
#include "redelivery/schermatariconsegna.h"
#include "support/stampa.h"

#include <giacenza/RicercaTabella.h>

#include <QLabel>
#include <QTest>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class RiconsegnaCampi : public SchermataRiconsegnaDiProva
{};

INSTANTIATE_TEST_SUITE_P(Basi, RiconsegnaCampi, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(RiconsegnaCampi, IGiorniELaFilialeDellOperatoreRestanoSenzaGiacenza)
{
    apri();
    cliente();
    giacenza::scrivi(c("txtFilialeGia"), u"BO"_s);
    cerca(u"4711"_s);
    EXPECT_EQ(stato()->text(), u"Questa lettera di vettura non è in giacenza."_s);
    EXPECT_EQ(mostrato("txtDataGia"), u"21/11/2026"_s) << "set when the screen was loaded";
    EXPECT_EQ(mostrato("barGiorniSosta"), u"0"_s);
    EXPECT_EQ(mostrato("barFilialeGia"), u"Bologna"_s);
}

TEST_P(RiconsegnaCampi, IGiorniDiUnAltraGiacenzaNonRestanoAccantoAUnaDataVuota)
{
    cerca(u"4714"_s);
    ASSERT_EQ(mostrato("barGiorniSosta"), u"5"_s);
    giacenza::scrivi(c("txtDataGia"), {});
    cerca(u"4711"_s);
    EXPECT_EQ(mostrato("barGiorniSosta"), QString());
}

TEST_P(RiconsegnaCampi, LaFilialeRimastaDaUnAltraGiacenzaNonSiControlla)
{
    cerca(u"4714"_s);
    cerca(u"4711"_s);
    ASSERT_TRUE(avanzo("txtFilialeGia"));
    EXPECT_THAT(istruzioni([this] { lascia("txtFilialeGia"); }), IsEmpty());
    EXPECT_THAT(mMessaggi.prendi(), IsEmpty());
}

TEST_P(RiconsegnaCampi, IlNomeDiUnaFilialeNonRestaAccantoAUnCodiceSconosciuto)
{
    mBase.esegui(u"update giace00f set GIFIGI='QQ' where GINRGI='50'"_s);
    mBase.esegui(u"update giace00f set GIFIGI=null where GINRGI='51'"_s);
    for (const auto& [ldv, codice] : {std::pair(u"950"_s, u"QQ"_s), {u"951"_s, u"BO"_s}}) {
        cerca(u"4714"_s);
        ASSERT_EQ(mostrato("barFilialeGia"), u"Bologna"_s);
        cerca(ldv);
        EXPECT_EQ(mostrato("txtFilialeGia"), codice);
        EXPECT_EQ(mostrato("barFilialeGia"), QString());
    }
    EXPECT_TRUE(avanzo("txtFilialeGia"));
}

TEST_P(RiconsegnaCampi, IlNomeDellaFilialeCheNonSiLeggeSiDice)
{
    mBase.esegui(u"update giace00f set GIFIGI='MI' where GINRGI='50'"_s);
    cerca(u"4714"_s);
    ASSERT_EQ(mostrato("barFilialeGia"), u"Bologna"_s);
    fallisce(u"select descrizione from filiali"_s);
    cerca(u"950"_s);
    guarisce();
    EXPECT_EQ(mostrato("lblNrGia"), u"50"_s);
    EXPECT_EQ(mostrato("txtFilialeGia"), u"MI"_s);
    EXPECT_EQ(mostrato("barFilialeGia"), QString());
    EXPECT_EQ(stato()->text(),
              u"Il nome della filiale non si legge. L'archivio ha rifiutato l'operazione."_s);
    EXPECT_THAT(mMessaggi.prendi(), IsEmpty());
}

TEST_P(RiconsegnaCampi, LElencoDelleFilialiCheNonSiLeggeNonMostraRiquadri)
{
    /// A table search whose reading fails.
    class Guasta : public RicercaTabella
    {
    public:
        void setPercorsoDatabase(const QString&) override {}
        void setScelta(Scelta) override {}
        void mostra(const QString& istruzione, const QString&, QWidget*) override
        {
            throw ErroreDatabase(u"HY000"_s, 1, u"guasto di prova"_s, istruzione);
        }
    };
    registraParte(QString::fromUtf16(classeRicercaTabella), [] { return std::make_unique<Guasta>(); });
    apri();
    scrivi("txtFilialeGia", u"BO"_s);
    tasto("txtFilialeGia", Qt::Key_F12);
    registraParte(QString::fromUtf16(classeRicercaTabella), {});
    EXPECT_THAT(mMessaggi.prendi(), IsEmpty());
    EXPECT_EQ(mostrato("txtFilialeGia"), u"BO"_s);
    EXPECT_EQ(stato()->text(),
              u"L'elenco delle filiali non si legge. L'archivio ha rifiutato l'operazione."_s);
}

TEST_P(RiconsegnaCampi, UnaDataLasciataSenzaClienteChiedeIlCliente)
{
    for (const auto& [numero, data] : {std::pair(u"47A"_s, u"12112026"_s),
                                       {u"4711"_s, u"12112026"_s},
                                       {QString(), u"12112026"_s},
                                       {u"4711"_s, u"1211"_s}})
        for (const auto& [campo, campoData] :
             {std::pair("txtLDV", "txtDataLdv"), {"txtRiferimento", "txtDataRif"}}) {
            apri();
            scrivi(campo, numero);
            scrivi(campoData, data);
            EXPECT_THAT(istruzioni([&, dove = campoData] {
                            lascia(dove);
                            QCoreApplication::processEvents();
                        }),
                        IsEmpty());
            EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Selezionare il codice cliente."_s))
                << campo << numero.toStdString() << data.toStdString();
            mMessaggi.prendi();
            delete mSchermata;
        }
}

TEST_P(RiconsegnaCampi, IlTitoloSegueIlLavoroAncheAppenaCaricata)
{
    for (const auto& [movimento, titolo] : {std::pair(Movimento::reso, u"Reso a Mittente"_s),
                                            {Movimento::riconsegna, u"Riconsegna a Destinatario"_s}}) {
        impostazioni().movimento = movimento;
        frmRiconsegna schermata;
        schermata.carica();
        EXPECT_EQ(schermata.windowTitle(), titolo);
    }
}

TEST_P(RiconsegnaCampi, UnaConsegnaDuranteLEmissioneNonRiaccendeIlBottone)
{
    cerca(u"950"_s);
    mEmissioni.durante = [this] {
        mSchermata->setProperty("Filiale", u"XX"_s);
        mSchermata->setProperty("NLettVett", u"951"_s);
        mSchermata->setProperty("DataLdv", u"12/11/2026"_s);
        mSchermata->setProperty("CodiceCliente", u"1001"_s);
        QCoreApplication::processEvents();
    };
    emetti();
    EXPECT_FALSE(bottoneAcceso());
    cerca(u"950"_s);
    EXPECT_FALSE(bottoneAcceso());
}

} // namespace
