// What one case leaves on the management screen is not written into the next one.

#include "management/avvisodiprova.h"

#include "support/stampa.h"
#include "support/trova.h"

#include <QCheckBox>
#include <QDialog>
#include <QTableView>
#include <QTest>

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class AvanziGestione : public AvvisoDiProva
{
protected:
    /// Takes the customer's case of a waybill from the list.
    void richiamaPerCliente(const QString& ldv)
    {
        if (!mSchermata) {
            apri();
            clicca("chkRicerca");
            scrivi("txtCodiceCli", u"1001"_s);
            lascia("txtCodiceCli");
        }
        nelDialogo([&](QDialog& dialogo) {
            auto* griglia = trova<QTableView>(dialogo, u"Griglia"_s);
            const auto trovate =
                griglia->model()->match(griglia->model()->index(0, 0), Qt::DisplayRole, ldv, 1);
            ASSERT_EQ(trovate.size(), 1);
            griglia->setCurrentIndex(trovate.front());
            QTest::keyClick(griglia, Qt::Key_Return);
        });
        clicca("cmdRicGiac");
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, AvanziGestione, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(AvanziGestione, LaDescrizioneAllungataDaUnAvvisoNonEDelCasoDopo)
{
    mBase.esegui(u"update giace00f set GIDES1=null, GINRAV='1', GIDTAV='2026-11-12' where GINRGI='41'"_s);
    richiamaPerCliente(u"4712"_s);
    avvisa(u"Non paga"_s);
    EXPECT_EQ(mostrato("txtDescGia"), u"Trasloco\n21/11/2026 - Non paga"_s);
    EXPECT_FALSE(avanzo("txtDescGia")) << "it is this case's";

    richiamaPerCliente(u"4711"_s);
    EXPECT_EQ(mostrato("lblNrGia"), u"41"_s);
    EXPECT_TRUE(avanzo("txtDescGia")) << "it is case 39's";
    avvisa(u"Assente"_s);
    EXPECT_EQ(caso(u"GINRAV"_s, u"41"_s), u"2"_s);
    EXPECT_EQ(QString(caso(u"GIDES1"_s, u"41"_s)).remove(u'\r'), u"\n21/11/2026 - Assente"_s);
    EXPECT_THAT(mMessaggi.testi(), IsEmpty());
}

TEST_P(AvanziGestione, NemmenoQuellaRimessaDaUnAvvisoFallitoOScrittaAMano)
{
    mBase.esegui(u"update giace00f set GIDES1=null where GINRGI='41'"_s);
    richiamaPerCliente(u"4712"_s);
    fallisce(u"UPDATE giace00f SET GINRAV"_s);
    avvisa(u"Non paga"_s);
    guarisce();
    EXPECT_EQ(mMessaggi.prendi().size(), 1U);
    richiamaPerCliente(u"4711"_s);
    EXPECT_EQ(mostrato("txtDescGia"), u"Trasloco"_s);
    EXPECT_TRUE(avanzo("txtDescGia"));

    richiamaPerCliente(u"4712"_s);
    scrivi("txtDescGia", u"scritto per la 39"_s);
    EXPECT_FALSE(avanzo("txtDescGia"));
    richiamaPerCliente(u"4711"_s);
    EXPECT_EQ(mostrato("txtDescGia"), u"scritto per la 39"_s);
    EXPECT_TRUE(avanzo("txtDescGia"));
}

TEST_P(AvanziGestione, LAvvertenzaDellaFilialeSegueIlCaso)
{
    mBase.esegui(u"update giace00f set GIFIGI='QQ' where GINRGI='39'"_s);
    mBase.esegui(u"update giace00f set GIFIGI=null where GINRGI='41'"_s);
    richiamaPerCliente(u"4712"_s);
    EXPECT_EQ(mostrato("lblAvvFilialeGia"), u"⚠ filiale sconosciuta"_s);
    richiamaPerCliente(u"4711"_s);
    EXPECT_TRUE(avanzo("txtFilialeGia"));
    EXPECT_FALSE(c("lblAvvFilialeGia")->isVisible()) << "a left-over is nobody's branch";
    richiamaPerCliente(u"4712"_s);
    EXPECT_TRUE(c("lblAvvFilialeGia")->isVisible()) << "the same text, this case's again";
}

} // namespace
