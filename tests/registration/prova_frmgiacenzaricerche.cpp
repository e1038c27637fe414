#include "registration/registrazionediprova.h"
#include "screens/campi.h"
#include "search/frmRicerca.h"
#include "search/frmRicercaGia.h"
#include "support/modale.h"
#include "support/stampa.h"
#include "support/trova.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTableView>
#include <QTest>

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Ricerche : public RegistrazioneDiProva
{
protected:
    void cliente()
    {
        apri();
        scrivi("txtCodiceCli", u"1001"_s);
        lascia("txtCodiceCli");
    }

    /// Takes the current row of the shipment search with Enter, having looked at how it was opened.
    static QuandoAperta<frmRicercaGia>::Azione prende(QStringList* aperta = nullptr)
    {
        return [aperta](frmRicercaGia& dialogo) {
            if (aperta)
                *aperta = QStringList{
                    QString::number(dialogo.TipoRicerca()), dialogo.windowTitle(),   dialogo.CaptionLabel(),
                    dialogo.RagioneSocialeCliente(),        dialogo.CodiceCliente(), dialogo.Filiale(),
                    dialogo.RiferimentoCliente(),           dialogo.NumLetVett(),    dialogo.AnnoOdata()};
            auto* griglia = trova<QTableView>(dialogo, u"Griglia"_s);
            griglia->setFocus();
            QTest::keyClick(griglia, Qt::Key_Return);
        };
    }

    QString trovata() const { return tag(qobject_cast<QLineEdit*>(c("txtLDV"))); }
};

INSTANTIATE_TEST_SUITE_P(Basi, Ricerche, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

const QString daLdv = u" WHERE lenrlv='4711' and ledtlv='2026-11-12';"_s;

TEST_P(Ricerche, LElencoDelleLdvRidaNumeroEData)
{
    cliente();
    scrivi("txtFiliale", u"MI"_s);
    scrivi("txtLDV", u"4711"_s);
    scrivi("txtDataLdv", u"12112026"_s);
    QStringList aperta;
    const QStringList inviate = istruzioni([&] {
        const QuandoAperta<frmRicercaGia> intanto(prende(&aperta));
        tasto("txtDataLdv", Qt::Key_F9);
    });
    EXPECT_THAT(aperta, ElementsAre(u"7"_s, u"Ricerca per lettera di vettura"_s, u"Num. LDV"_s,
                                    u"Ferramenta Lombarda S.r.l."_s, u"1001"_s, u"MI"_s, QString(), u"4711"_s,
                                    u"12/11/2026"_s));
    ASSERT_FALSE(inviate.isEmpty());
    EXPECT_TRUE(inviate.filter(daLdv).size() == 1) << "the lookup is by number and date";
    EXPECT_TRUE(inviate.filter(daLdv).first().contains(" left JOIN filiali "_L1, Qt::CaseSensitive));
    EXPECT_EQ(trovata(), u"4711"_s);
    EXPECT_EQ(mostrato("txtDestinatario"), u"Utensileria del Lago"_s);
}

TEST_P(Ricerche, LElencoDeiRiferimentiRidaNumeroEData)
{
    cliente();
    scrivi("txtFiliale", u"MI"_s);
    scrivi("txtRiferimento", u"ORD-881"_s);
    scrivi("txtDataRif", u"10112026"_s);
    QStringList aperta;
    const QStringList inviate = istruzioni([&] {
        const QuandoAperta<frmRicercaGia> intanto(prende(&aperta));
        clicca("cmdCercaRif");
    });
    EXPECT_THAT(aperta, ElementsAre(u"1"_s, u"Ricerca per riferimento"_s, u"Riferimento"_s,
                                    u"Ferramenta Lombarda S.r.l."_s, u"1001"_s, u"MI"_s, u"ORD-881"_s,
                                    QString(), u"10/11/2026"_s));
    ASSERT_EQ(inviate.filter(daLdv).size(), 1);
    EXPECT_TRUE(inviate.filter(daLdv).first().contains(" LEFT JOIN filiali "_L1, Qt::CaseSensitive));
    EXPECT_EQ(trovata(), u"4711"_s);
}

TEST_P(Ricerche, SenzaFilialeSiApreLElencoESenzaSceltaNienteCorre)
{
    consegna(u"4711"_s);
    scrivi("txtFiliale", {});
    scrivi("txtLDV", u"4712"_s);
    scrivi("txtDataLdv", u"12112026"_s);
    const QStringList inviate = istruzioni([&] {
        const QuandoAperta<frmRicercaGia> intanto(
            [](frmRicercaGia& dialogo) { QTest::keyClick(&dialogo, Qt::Key_Escape); });
        lascia("txtDataLdv");
        QTest::qWait(1);
    });
    mMessaggi.prendi();
    EXPECT_THAT(inviate.filter(u"giace00f.*"_s), IsEmpty()) << "no lookup";
    EXPECT_EQ(mostrato("txtDestinatario"), u"Utensileria del Lago"_s) << "the screen is as it was";
    EXPECT_EQ(mostrato("lblStato"),
              u"L'elenco mostra solo le spedizioni della filiale scritta: scrivere la filiale."_s);
}

TEST_P(Ricerche, SenzaFilialeLaSceltaSiCercaPerNumeroEData)
{
    mBase.esegui(u"update letve00f set lefili='' where lenrlv='4711' and leanlv=2026;"_s);
    cliente();
    scrivi("txtLDV", u"4711"_s);
    scrivi("txtDataLdv", u"12112026"_s);
    const QStringList inviate = istruzioni([&] {
        const QuandoAperta<frmRicercaGia> intanto(prende());
        lascia("txtDataLdv");
        QTest::qWait(1);
    });
    ASSERT_EQ(inviate.filter(daLdv).size(), 1);
    EXPECT_EQ(trovata(), u"4711"_s);
    EXPECT_EQ(mostrato("txtDestinatario"), u"Utensileria del Lago"_s);
}

/// Where the clerk types next is told by a shipment that was found alone.
TEST_P(Ricerche, SenzaSpedizioneIlFuocoResta)
{
    cliente();
    scrivi("txtFiliale", u"MI"_s);
    scrivi("txtLDV", u"9999"_s);
    scrivi("txtDataLdv", u"12112026"_s);
    tasto("txtLDV", Qt::Key_F12);
    EXPECT_EQ(mostrato("lblStato"), u"LDV 9999 del 12/11/2026, filiale MI: non trovata."_s);
    EXPECT_TRUE(c("txtLDV")->hasFocus()) << "there is none";
    for (const QString& filiale : {u"MI"_s, QString()}) {
        scrivi("txtFiliale", filiale);
        const QuandoAperta<frmRicercaGia> intanto(
            [](frmRicercaGia& dialogo) { QTest::keyClick(&dialogo, Qt::Key_Escape); });
        tasto("txtLDV", Qt::Key_F9);
        mSchermata->activateWindow(); // as a window manager does when the dialog has gone
        ASSERT_TRUE(QTest::qWaitForWindowActive(mSchermata));
        EXPECT_TRUE(c("txtLDV")->hasFocus()) << "nothing was chosen; branch " << filiale.toStdString();
        EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Non ci sono spedizioni per il cliente selezionato."_s));
        mMessaggi.prendi();
    }
    scrivi("txtDataLdv", u"1211"_s);
    tasto("txtLDV", Qt::Key_F12);
    EXPECT_EQ(mostrato("lblStato"), u"La data non è completa o non è valida: nessuna ricerca."_s);
    EXPECT_TRUE(c("txtLDV")->hasFocus()) << "there was no search";
    scrivi("txtFiliale", u"MI"_s);
    scrivi("txtLDV", u"4711"_s);
    scrivi("txtDataLdv", u"12112026"_s);
    tasto("txtLDV", Qt::Key_F12);
    EXPECT_TRUE(c("txtFilialeGia")->hasFocus()) << "it was found";
}

TEST_P(Ricerche, IlTastoDiSalvaCheAvviaUnElencoNonSalva)
{
    // The list shows the waybills of the branch that is written, and none is.
    mBase.esegui(u"update letve00f set lefili='' where lenrlv='4711' and leanlv=2026;"_s);
    cliente();
    scrivi("txtLDV", u"4711"_s);
    scrivi("txtDataLdv", u"12112026"_s);
    const QuandoAperta<frmRicercaGia> intanto(prende());
    scorciatoia(Qt::Key_S);
    EXPECT_EQ(trovata(), u"4711"_s);
    EXPECT_THAT(mMessaggi.testi(), IsEmpty());
    EXPECT_EQ(mostrato("lblNrGia"), QString());
    EXPECT_EQ(mBase.leggi(u"select count(*) from giace00f where GINRLV='4711'"_s), u"0"_s);
}

TEST_P(Ricerche, LImmissioneSiControllaPrimaDellElenco)
{
    cliente();
    const auto avviso = [](const QString& testo) {
        return Messaggio{testo, Stile::avviso, titoloApplicazione()};
    };
    const auto ldv = avviso(u"Controllare l'immissione del num. Ldv e/o data Ldv"_s);
    const auto riferimento =
        avviso(u"Controllare l'immissione del riferimento cliente e/o data rifer. cliente"_s);
    EXPECT_THAT(istruzioni([&] {
                    clicca("cmdCercaLdv");
                    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(ldv));
                    clicca("cmdCercaRif");
                    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(riferimento));
                    scrivi("txtLDV", u"4711"_s);
                    tasto("txtLDV", Qt::Key_F9);
                    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(ldv)) << "a number without a date";
                    scrivi("txtDataRif", u"10112026"_s);
                    tasto("txtDataRif", Qt::Key_F9);
                    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(riferimento)) << "a date without a reference";
                    scrivi("txtDataLdv", u"1211"_s);
                    lascia("txtDataLdv");
                }),
                IsEmpty());
}

TEST_P(Ricerche, SenzaClienteNemmenoLElenco)
{
    apri();
    scrivi("txtLDV", u"4711"_s);
    tasto("txtLDV", Qt::Key_F9);
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Selezionare il codice cliente."_s));
    EXPECT_TRUE(c("txtCodiceCli")->hasFocus());
}

TEST_P(Ricerche, IlClienteSiCercaPerNome)
{
    apri();
    const QuandoAperta<frmRicerca> intanto([](frmRicerca& dialogo) {
        EXPECT_EQ(dialogo.windowTitle(), u"Ricerca Cliente"_s);
        EXPECT_EQ(dialogo.NomeTabella(), u"Clien"_s);
        auto* testo = trova<QLineEdit>(dialogo, u"txtCerca"_s);
        QTest::mouseClick(trova<QWidget>(dialogo, u"optRagSoc"_s), Qt::LeftButton);
        testo->setFocus();
        QTest::keyClicks(testo, u"Oleif"_s);
        QTest::keyClick(testo, Qt::Key_Return);
        auto* elenco = trova<QWidget>(dialogo, u"lstCerca"_s);
        elenco->setFocus();
        QTest::keyClick(elenco, Qt::Key_Down);
        QTest::keyClick(elenco, Qt::Key_Return);
    });
    clicca("cmdCercaCliente");
    EXPECT_EQ(mostrato("txtCodiceCli"), u"1002"_s);
    EXPECT_EQ(mostrato("barCliente"), u"Oleificio del Garda"_s);
    EXPECT_FALSE(c("cmdData")->isEnabled());
    tasto("txtDataGia", Qt::Key_F12); // a calendar that opened would keep the test here
    EXPECT_EQ(mostrato("txtDataGia"), u"21/11/2026"_s);
}

TEST_P(Ricerche, LaRicercaDelClienteAnnullataNonTocca)
{
    cliente();
    const QuandoAperta<frmRicerca> intanto(
        [](frmRicerca& dialogo) { QTest::keyClick(&dialogo, Qt::Key_Escape); });
    tasto("txtCodiceCli", Qt::Key_F12);
    EXPECT_EQ(mostrato("txtCodiceCli"), u"1001"_s);
    EXPECT_EQ(mostrato("barCliente"), u"Ferramenta Lombarda S.r.l."_s);
    EXPECT_TRUE(c("cmdData")->isEnabled());
}

} // namespace
