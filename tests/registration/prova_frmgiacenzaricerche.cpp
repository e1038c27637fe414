#include "redelivery/frmCalendario.h"
#include "registration/registrazionediprova.h"
#include "screens/campi.h"
#include "search/frmRicerca.h"
#include "search/frmRicercaGia.h"
#include "support/modale.h"
#include "support/stampa.h"
#include "support/trova.h"

#include <giacenza/RicercaTabella.h>

#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTableView>
#include <QTest>

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
        scrivi("txtCodiceCli", QStringLiteral("1001"));
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
            auto* griglia = trova<QTableView>(dialogo, QStringLiteral("Griglia"));
            griglia->setFocus();
            QTest::keyClick(griglia, Qt::Key_Return);
        };
    }

    QString trovata() const { return tag(qobject_cast<QLineEdit*>(c("txtLDV"))); }
};

INSTANTIATE_TEST_SUITE_P(Basi, Ricerche, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

const QString daLdv = QStringLiteral(" WHERE lenrlv='4711' and ledtlv='2026-11-12';");

TEST_P(Ricerche, LElencoDelleLdvRidaNumeroEData)
{
    cliente();
    scrivi("txtFiliale", QStringLiteral("MI"));
    scrivi("txtLDV", QStringLiteral("4711"));
    scrivi("txtDataLdv", QStringLiteral("12112026"));
    QStringList aperta;
    const QStringList inviate = istruzioni([&] {
        const QuandoAperta<frmRicercaGia> intanto(prende(&aperta));
        tasto("txtDataLdv", Qt::Key_F9);
    });
    EXPECT_THAT(aperta, ElementsAre(QStringLiteral("7"), QStringLiteral("Ricerca per lettera di vettura"),
                                    QStringLiteral("Num. LDV"), QStringLiteral("Ferramenta Lombarda S.r.l."),
                                    QStringLiteral("1001"), QStringLiteral("MI"), QString(),
                                    QStringLiteral("4711"), QStringLiteral("12/11/2026")));
    ASSERT_FALSE(inviate.isEmpty());
    EXPECT_TRUE(inviate.filter(daLdv).size() == 1) << "the lookup is by number and date";
    EXPECT_TRUE(
        inviate.filter(daLdv).first().contains(QLatin1String(" left JOIN filiali "), Qt::CaseSensitive));
    EXPECT_EQ(trovata(), QStringLiteral("4711"));
    EXPECT_EQ(mostrato("txtDestinatario"), QStringLiteral("Utensileria del Lago"));
}

TEST_P(Ricerche, LElencoDeiRiferimentiRidaNumeroEData)
{
    cliente();
    scrivi("txtFiliale", QStringLiteral("MI"));
    scrivi("txtRiferimento", QStringLiteral("ORD-881"));
    scrivi("txtDataRif", QStringLiteral("10112026"));
    QStringList aperta;
    const QStringList inviate = istruzioni([&] {
        const QuandoAperta<frmRicercaGia> intanto(prende(&aperta));
        clicca("cmdCercaRif");
    });
    EXPECT_THAT(aperta,
                ElementsAre(QStringLiteral("1"), QStringLiteral("Ricerca per riferimento"),
                            QStringLiteral("Riferimento"), QStringLiteral("Ferramenta Lombarda S.r.l."),
                            QStringLiteral("1001"), QStringLiteral("MI"), QStringLiteral("ORD-881"),
                            QString(), QStringLiteral("10/11/2026")));
    ASSERT_EQ(inviate.filter(daLdv).size(), 1);
    EXPECT_TRUE(
        inviate.filter(daLdv).first().contains(QLatin1String(" LEFT JOIN filiali "), Qt::CaseSensitive));
    EXPECT_EQ(trovata(), QStringLiteral("4711"));
}

TEST_P(Ricerche, SenzaFilialeSiApreLElencoESenzaSceltaNienteCorre)
{
    consegna(QStringLiteral("4711"));
    scrivi("txtFiliale", {});
    scrivi("txtLDV", QStringLiteral("4712"));
    scrivi("txtDataLdv", QStringLiteral("12112026"));
    const QStringList inviate = istruzioni([&] {
        const QuandoAperta<frmRicercaGia> intanto(
            [](frmRicercaGia& dialogo) { QTest::keyClick(&dialogo, Qt::Key_Escape); });
        lascia("txtDataLdv");
        QTest::qWait(1);
    });
    mMessaggi.prendi();
    EXPECT_THAT(inviate.filter(QStringLiteral("giace00f.*")), IsEmpty()) << "no lookup";
    EXPECT_EQ(mostrato("txtDestinatario"), QStringLiteral("Utensileria del Lago"))
        << "the screen is as it was";
    EXPECT_EQ(
        mostrato("lblStato"),
        QStringLiteral("L'elenco mostra solo le spedizioni della filiale scritta: scrivere la filiale."));
}

TEST_P(Ricerche, SenzaFilialeLaSceltaSiCercaPerNumeroEData)
{
    mBase.esegui(QStringLiteral("update letve00f set lefili='' where lenrlv='4711' and leanlv=2026;"));
    cliente();
    scrivi("txtLDV", QStringLiteral("4711"));
    scrivi("txtDataLdv", QStringLiteral("12112026"));
    const QStringList inviate = istruzioni([&] {
        const QuandoAperta<frmRicercaGia> intanto(prende());
        lascia("txtDataLdv");
        QTest::qWait(1);
    });
    ASSERT_EQ(inviate.filter(daLdv).size(), 1);
    EXPECT_EQ(trovata(), QStringLiteral("4711"));
    EXPECT_EQ(mostrato("txtDestinatario"), QStringLiteral("Utensileria del Lago"));
}

TEST_P(Ricerche, LImmissioneSiControllaPrimaDellElenco)
{
    cliente();
    const auto avviso = [](const QString& testo) {
        return Messaggio{testo, Stile::avviso, titoloApplicazione()};
    };
    const auto ldv = avviso(QStringLiteral("Controllare l'immissione del num. Ldv e/o data Ldv"));
    const auto riferimento =
        avviso(QStringLiteral("Controllare l'immissione del riferimento cliente e/o data rifer. cliente"));
    EXPECT_THAT(istruzioni([&] {
                    clicca("cmdCercaLdv");
                    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(ldv));
                    clicca("cmdCercaRif");
                    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(riferimento));
                    scrivi("txtLDV", QStringLiteral("4711"));
                    tasto("txtLDV", Qt::Key_F9);
                    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(ldv)) << "a number without a date";
                    scrivi("txtDataRif", QStringLiteral("10112026"));
                    tasto("txtDataRif", Qt::Key_F9);
                    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(riferimento)) << "a date without a reference";
                    scrivi("txtDataLdv", QStringLiteral("1211"));
                    lascia("txtDataLdv");
                }),
                IsEmpty());
}

TEST_P(Ricerche, SenzaClienteNemmenoLElenco)
{
    apri();
    scrivi("txtLDV", QStringLiteral("4711"));
    tasto("txtLDV", Qt::Key_F9);
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(QStringLiteral("Selezionare il codice cliente.")));
    EXPECT_TRUE(c("txtCodiceCli")->hasFocus());
}

TEST_P(Ricerche, IlClienteSiCercaPerNome)
{
    apri();
    const QuandoAperta<frmRicerca> intanto([](frmRicerca& dialogo) {
        EXPECT_EQ(dialogo.windowTitle(), QStringLiteral("Ricerca Cliente"));
        EXPECT_EQ(dialogo.NomeTabella(), QStringLiteral("Clien"));
        auto* testo = trova<QLineEdit>(dialogo, QStringLiteral("txtCerca"));
        QTest::mouseClick(trova<QWidget>(dialogo, QStringLiteral("optRagSoc")), Qt::LeftButton);
        testo->setFocus();
        QTest::keyClicks(testo, QStringLiteral("Oleif"));
        QTest::keyClick(testo, Qt::Key_Return);
        auto* elenco = trova<QWidget>(dialogo, QStringLiteral("lstCerca"));
        elenco->setFocus();
        QTest::keyClick(elenco, Qt::Key_Down);
        QTest::keyClick(elenco, Qt::Key_Return);
    });
    clicca("cmdCercaCliente");
    EXPECT_EQ(mostrato("txtCodiceCli"), QStringLiteral("1002"));
    EXPECT_EQ(mostrato("barCliente"), QStringLiteral("Oleificio del Garda"));
    EXPECT_FALSE(c("cmdData")->isEnabled());
    tasto("txtDataGia", Qt::Key_F12); // a calendar that opened would keep the test here
    EXPECT_EQ(mostrato("txtDataGia"), QStringLiteral("21/11/2026"));
}

TEST_P(Ricerche, LaRicercaDelClienteAnnullataNonTocca)
{
    cliente();
    const QuandoAperta<frmRicerca> intanto(
        [](frmRicerca& dialogo) { QTest::keyClick(&dialogo, Qt::Key_Escape); });
    tasto("txtCodiceCli", Qt::Key_F12);
    EXPECT_EQ(mostrato("txtCodiceCli"), QStringLiteral("1001"));
    EXPECT_EQ(mostrato("barCliente"), QStringLiteral("Ferramenta Lombarda S.r.l."));
    EXPECT_TRUE(c("cmdData")->isEnabled());
}

TEST_P(Ricerche, IlGiornoSiSceglieDalCalendario)
{
    consegna(QStringLiteral("4711"));
    const QuandoAperta<frmCalendario> intanto([](frmCalendario& dialogo) {
        EXPECT_EQ(dialogo.DataAttuale(), QDate(2026, 11, 12)) << "from the working date";
        QTest::mouseClick(trova<QWidget>(dialogo, QStringLiteral("cmdReset")), Qt::LeftButton);
    });
    scrivi("txtDataGia", QStringLiteral("01112026"));
    clicca("cmdData");
    EXPECT_EQ(mostrato("txtDataGia"), QStringLiteral("21/11/2026"));
    EXPECT_EQ(mostrato("lblDataLav"), QStringLiteral("21/11/2026"));
    EXPECT_EQ(mostrato("barGiorniSosta"), QStringLiteral("0"));
}

TEST_P(Ricerche, LaFilialeSiSceglieDallaTabella)
{
    /// A table search that gives one row back at once.
    class Tabella : public RicercaTabella
    {
    public:
        void setPercorsoDatabase(const QString& percorso) override { mPercorso = percorso; }
        void setScelta(Scelta scelta) override { mScelta = std::move(scelta); }
        void mostra(const QString& istruzione, const QString& titolo, QWidget*) override
        {
            EXPECT_EQ(istruzione, QStringLiteral("select codice, descrizione from filiali;"));
            EXPECT_EQ(titolo, QStringLiteral("Ricerca Filiale"));
            EXPECT_FALSE(mPercorso.isEmpty());
            mScelta({QStringLiteral("BO"), QStringLiteral("Bologna")});
        }

    private:
        QString mPercorso;
        Scelta mScelta;
    };
    registraParte(QString::fromUtf16(classeRicercaTabella), [] { return std::make_unique<Tabella>(); });
    apri();
    tasto("txtFilialeGia", Qt::Key_F12);
    registraParte(QString::fromUtf16(classeRicercaTabella), {});
    EXPECT_EQ(mostrato("txtFilialeGia"), QStringLiteral("BO"));
    EXPECT_EQ(mostrato("barFilialeGia"), QStringLiteral("Bologna"));
}

TEST_P(Ricerche, F11TieneLaNaturaDellaMerce)
{
    apri();
    auto* natura = qobject_cast<QComboBox*>(c("cmbNaturaMerce"));
    natura->setEditText(QStringLiteral("vino sfuso"));
    tasto("cmbNaturaMerce", Qt::Key_F11);
    EXPECT_EQ(natura->count(), 2);
    EXPECT_EQ(natura->itemText(0), QStringLiteral("VEDI DDT"));
    EXPECT_EQ(natura->itemText(1), QStringLiteral("VINO SFUSO"));
    EXPECT_EQ(natura->currentText(), QStringLiteral("vino sfuso"));
    QFile file(mCartella.filePath(QStringLiteral("listbox.dat")));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll().simplified(), QByteArray("VEDI DDT VINO SFUSO"));
    tasto("cmbNaturaMerce", Qt::Key_F11);
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(Messaggio{
                    QStringLiteral("Impossibile aggiungere il valore nella lista del controllo Natura merce"),
                    Stile::informazione, QStringLiteral("Gestione Trasporti")}));
}

} // namespace
