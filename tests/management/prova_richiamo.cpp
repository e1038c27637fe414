#include "management/gestionediprova.h"

#include "screens/campi.h"
#include "support/stampa.h"
#include "support/trova.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QTest>

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Richiamo : public GestioneDiProva
{
protected:
    static Messaggio deiTrasporti(const QString& testo)
    {
        return {testo, Stile::avviso, QStringLiteral("Gestione Trasporti")};
    }
    QString blocco() const
    {
        return QStringLiteral(
            "SELECT letve00f.*, giace00f.*, forni.RagioneSociale as Vettore, filiali.Descrizione as filiale, "
            "codicizona.Descrizione as linea from (((letve00f LEFT JOIN giace00f on lefili=gifili and "
            "lenrlv=ginrlv and leanlv=gianlv) inner JOIN filiali ON lefili=filiali.codice) INNER JOIN "
            "codicizona on lelin1=codicizona.Codice) INNER join forni ON forni.Codice=lecdve");
    }
    bool attivo(const char* nome) const { return c(nome)->isEnabled(); }
    void riattiva()
    {
        QEvent attivata(QEvent::WindowActivate);
        QCoreApplication::sendEvent(mSchermata, &attivata);
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, Richiamo, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(Richiamo, SiApreVuotaPerNumero)
{
    apri();
    EXPECT_EQ(mSchermata->objectName(), QStringLiteral("frmGestGia"));
    EXPECT_EQ(mostrato("txtDataGia"), QStringLiteral("21/11/2026"));
    EXPECT_EQ(mostrato("lblDataLav"), QStringLiteral("21/11/2026"));
    EXPECT_TRUE(attivo("txtNGiace"));
    EXPECT_FALSE(attivo("txtCodiceCli"));
    EXPECT_FALSE(c("lblStatoCaso")->isVisible());
    EXPECT_LE(mSchermata->minimumSizeHint().width(), 1366);
    EXPECT_LE(mSchermata->minimumSizeHint().height(), 700);
}

TEST_P(Richiamo, PerNumeroMostraIlCasoEPortaIlFuoco)
{
    apri();
    const QStringList inviate = istruzioni([&] { richiamaChiuso(); });
    ASSERT_FALSE(inviate.isEmpty());
    EXPECT_EQ(inviate.front(), blocco() + QStringLiteral(" WHERE ginrgi='40' and GIDTGI='2026-11-13';"));
    const std::pair<const char*, const char16_t*> attesi[] = {
        {"txtLDV", u"4714"},
        {"txtAnnoLdv", u"2026"},
        {"txtFiliale", u"MI"},
        {"txtFilSped", u"MI"},
        {"barFilSped", u"Milano"},
        {"txtRiferimento", u"ORD-884"},
        {"txtAnnoRif", u"2026"},
        {"txtDataRifMitt", u"09/11/2026"},
        {"barVettore", u"Autotrasporti Riuniti"},
        {"barLineaCli", u"Brianza nord"},
        {"lblNrGia", u"40"},
        {"txtDataGia", u"13/11/2026"},
        {"lblDataAvviso", u"15/11/2026"},
        {"lblDataBuonFine", u"18/11/2026"},
        {"barGiorniSosta", u"5"},
        {"barFilialeGia", u"Bologna"},
        {"txtDescGia", u"13/11/2026 - Chiuso per ferie"},
        {"lblFattura", u"77"},
        {"lblDataLav", u"21/11/2026"},
        {"lblStatoCaso", u"CHIUSA · 2 AVVISI"},
        {"txtNGiace", u"40"},
    };
    for (const auto& [nome, valore] : attesi)
        EXPECT_EQ(mostrato(nome), QString::fromUtf16(valore)) << nome;
    EXPECT_TRUE(c("txtFilSped")->hasFocus());
    for (const char* chiave : {"txtLDV", "txtAnnoLdv", "txtFiliale", "txtDataGia"})
        EXPECT_TRUE(qobject_cast<QLineEdit*>(c(chiave))->isReadOnly()) << chiave;
}

TEST_P(Richiamo, NumeroEDataMancantiSiDiconoENonSiCerca)
{
    apri();
    EXPECT_THAT(istruzioni([&] { clicca("cmdRicGiac"); }), IsEmpty());
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(deiTrasporti(QStringLiteral("Manca il numero della giacenza."))));
    EXPECT_TRUE(c("txtNGiace")->hasFocus());

    const auto mancaData = deiTrasporti(QStringLiteral("Manca la data della giacenza."));
    scrivi("txtNGiace", QStringLiteral("41"));
    EXPECT_THAT(istruzioni([&] { clicca("cmdRicGiac"); }), IsEmpty());
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(mancaData));
    EXPECT_EQ(mostrato("txtNGiace"), QStringLiteral("41"));
    for (const char16_t* errata : {u"1011", u"31022026", u"00000000"}) {
        scrivi("txtDataGiace", QString::fromUtf16(errata));
        EXPECT_THAT(istruzioni([&] { tasto("txtDataGiace", Qt::Key_Enter); }), IsEmpty());
        EXPECT_THAT(mMessaggi.prendi(), ElementsAre(mancaData));
    }
}

TEST_P(Richiamo, LaDataDellaRicercaSiControllaLasciandola)
{
    apri();
    scrivi("txtNGiace", QStringLiteral("41"));
    lascia("txtNGiace");
    scrivi("txtDataGiace", QStringLiteral("31022026"));
    lascia("txtDataGiace");
    const Messaggio attesa = {QStringLiteral("Inserire una data valida."), Stile::avviso,
                              titoloApplicazione()};
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(attesa));
    EXPECT_TRUE(c("txtDataGiace")->hasFocus());
    clicca("cmdRicGiac");
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(attesa)) << "the click that left the field is swallowed";
    clicca("cmdEsci");
    EXPECT_THAT(mMessaggi.prendi(), IsEmpty()) << "leaving the screen checks nothing";
}

TEST_P(Richiamo, CioCheNonCeSiDiceEResteranoSoloLeChiavi)
{
    richiamaChiuso();
    scrivi("txtDataGiace", QStringLiteral("14112026"));
    tasto("txtDataGiace", Qt::Key_Return);
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(deiTrasporti(QStringLiteral("Giacenza: 40 del 14/11/2026 non trovata."))));
    for (const char* nome : {"lblNrGia", "lblDataAvviso", "lblDataBuonFine", "lblFattura", "barGiorniSosta",
                             "barFilSped", "barFilialeGia", "txtLDV", "txtDestinatario", "txtDescGia"})
        EXPECT_EQ(mostrato(nome), QString()) << nome;
    EXPECT_EQ(mostrato("txtNGiace"), QStringLiteral("40"));
    EXPECT_EQ(mostrato("txtDataGiace"), QStringLiteral("14/11/2026"));
    EXPECT_FALSE(c("lblStatoCaso")->isVisible());
}

TEST_P(Richiamo, SenzaVettoreLineaOFilialeNonSiRichiama)
{
    for (const char16_t* colonna : {u"lecdve", u"lelin1"}) {
        for (const char16_t* valore : {u"null", u"'ZZ'"}) {
            mBase.esegui(QStringLiteral("update letve00f set %1=%2 where lenrlv='4711';")
                             .arg(QString::fromUtf16(colonna), QString::fromUtf16(valore)));
            richiamaMaiAvvisato();
            EXPECT_THAT(mMessaggi.prendi(), ElementsAre(deiTrasporti(
                                                QStringLiteral("Giacenza: 41 del 10/11/2026 non trovata."))));
        }
        mBase.esegui(QStringLiteral("update letve00f set lecdve='V01', lelin1='L05' where lenrlv='4711';"));
    }
}

TEST_P(Richiamo, LasciandoIlNumeroLaSchermataSiPulisce)
{
    richiamaChiuso();
    c("txtNGiace")->setFocus();
    lascia("txtNGiace");
    EXPECT_EQ(mostrato("txtNGiace"), QStringLiteral("40"));
    EXPECT_EQ(mostrato("txtDataGia"), QStringLiteral("21/11/2026"));
    EXPECT_EQ(mostrato("lblDataLav"), QStringLiteral("21/11/2026"));
    for (const char* nome :
         {"txtDataGiace", "txtLDV", "txtAnnoLdv", "txtFiliale", "txtDestinatario", "txtDescGia", "lblNrGia",
          "txtFilialeGia", "barFilialeGia", "lblDataAvviso", "lblDataBuonFine", "lblFattura", "txtDataFatt",
          "txtImponibile", "txtGiaOld", "txtDataGiaOld", "barGiorniSosta", "cmbPorto"})
        EXPECT_EQ(mostrato(nome), QString()) << nome;
    EXPECT_FALSE(qobject_cast<QLineEdit*>(c("txtDataGia"))->isReadOnly());
    qobject_cast<QComboBox*>(c("cmbNaturaMerce"))->setEditText(QStringLiteral("LIBRI"));
    c("txtNGiace")->setFocus();
    lascia("txtNGiace");
    EXPECT_EQ(mostrato("cmbNaturaMerce"), QStringLiteral("LIBRI")) << "the goods type stays";
}

TEST_P(Richiamo, IlCasoDiPrimaNonPrestaNiente)
{
    richiamaChiuso();
    scrivi("txtDataGiace", QStringLiteral("10112026"));
    qobject_cast<QLineEdit*>(c("txtNGiace"))->setText(QStringLiteral("41"));
    tasto("txtDataGiace", Qt::Key_Return);
    EXPECT_EQ(mostrato("lblNrGia"), QStringLiteral("41"));
    EXPECT_EQ(mostrato("lblDataBuonFine"), QString());
    EXPECT_EQ(mostrato("lblDataAvviso"), QString());
    EXPECT_EQ(mostrato("lblStatoCaso"), QStringLiteral("APERTA · NESSUN AVVISO"));
    EXPECT_EQ(mostrato("barGiorniSosta"), QStringLiteral("11"));
    for (const char* nome : {"txtDataFatt", "txtImponibile", "txtGiaOld"})
        EXPECT_TRUE(avanzo(nome)) << nome;
}

TEST_P(Richiamo, LaCasellaSceglieIlModo)
{
    apri();
    auto* casella = qobject_cast<QCheckBox*>(c("chkRicerca"));
    EXPECT_EQ(casella->text(), QStringLiteral("Ric. per n. giacenza"));
    c("chkRicerca")->setFocus();
    QTest::keyClick(casella, Qt::Key_Space);
    EXPECT_EQ(casella->text(), QStringLiteral("Ric. cod. cliente"));
    for (const char* nome : {"lblGiace", "lblDataGiace", "txtNGiace", "txtDataGiace"})
        EXPECT_FALSE(attivo(nome)) << nome;
    for (const char* nome : {"lblCliente", "txtCodiceCli", "barCliente", "cmdCercaCliente"})
        EXPECT_TRUE(attivo(nome)) << nome;
    const QColor bianco = c("txtCodiceCli")->palette().color(QPalette::Base);
    EXPECT_EQ(bianco, QColor(Qt::white));
    EXPECT_NE(c("txtNGiace")->grab().toImage().pixelColor(20, 4), bianco);
    QTest::keyClick(casella, Qt::Key_Space);
    EXPECT_TRUE(attivo("txtNGiace"));
    EXPECT_FALSE(attivo("txtCodiceCli"));
    EXPECT_EQ(c("txtNGiace")->grab().toImage().pixelColor(20, 4), bianco);
}

TEST_P(Richiamo, OgniAttivazioneTornaAiCampiDelNumeroELaCasellaResta)
{
    apri();
    clicca("chkRicerca");
    scrivi("txtCodiceCli", QStringLiteral("1001"));
    riattiva();
    EXPECT_TRUE(qobject_cast<QCheckBox*>(c("chkRicerca"))->isChecked());
    EXPECT_EQ(qobject_cast<QCheckBox*>(c("chkRicerca"))->text(), QStringLiteral("Ric. per n. giacenza"));
    EXPECT_TRUE(attivo("txtNGiace"));
    EXPECT_FALSE(attivo("txtCodiceCli"));
    bool venuta = false;
    nelDialogo([&](QDialog& dialogo) {
        venuta = dialogo.objectName() == QStringLiteral("frmRicercaGia");
        QTest::keyClick(&dialogo, Qt::Key_Escape);
    });
    clicca("cmdRicGiac");
    EXPECT_TRUE(venuta) << "the retrieval follows the check box";
    EXPECT_THAT(mMessaggi.prendi(), IsEmpty());
    EXPECT_EQ(mostrato("lblNrGia"), QString());
}

TEST_P(Richiamo, PerClienteSiPrendeLaRigaConITasti)
{
    apri();
    clicca("chkRicerca");
    scrivi("txtCodiceCli", QStringLiteral("1001"));
    lascia("txtCodiceCli");
    EXPECT_EQ(mostrato("barCliente"), QStringLiteral("Ferramenta Lombarda S.r.l."));
    QString ldv;
    nelDialogo([&](QDialog& dialogo) {
        EXPECT_EQ(trova<QLabel>(dialogo, QStringLiteral("lblCliente"))->text(),
                  QStringLiteral("Ferramenta Lombarda S.r.l."));
        auto* griglia = trova<QTableView>(dialogo, QStringLiteral("Griglia"));
        ASSERT_EQ(griglia->model()->rowCount(), 3);
        griglia->setFocus();
        QTest::keyClick(griglia, Qt::Key_Down);
        ldv = griglia->currentIndex().siblingAtColumn(0).data().toString();
        QTest::keyClick(griglia, Qt::Key_Return);
    });
    const QStringList inviate = istruzioni([&] { clicca("cmdRicGiac"); });
    EXPECT_THAT(inviate, testing::Contains(blocco() + QStringLiteral(" WHERE lenrlv='%1' and "
                                                                     "ledtlv='2026-11-12';")
                                                          .arg(ldv)));
    ASSERT_FALSE(ldv.isEmpty());
    EXPECT_EQ(mostrato("txtLDV"), ldv);
    EXPECT_EQ(mostrato("lblNrGia"),
              mBase.leggi(QStringLiteral("select GINRGI from giace00f where GINRLV='%1'").arg(ldv)));
    // The offscreen platform leaves it to us to wake the screen under a dialog that closed.
    mSchermata->activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return c("txtFilSped")->hasFocus(); }));
}

TEST_P(Richiamo, IlCodiceClienteSiControllaComeAllaRegistrazione)
{
    apri();
    clicca("chkRicerca");
    scrivi("txtCodiceCli", QStringLiteral("abc"));
    const auto attesa =
        Messaggio{QStringLiteral("Codice cliente assente o errato"), Stile::avviso, titoloApplicazione()};
    EXPECT_THAT(istruzioni([&] { lascia("txtCodiceCli"); }), IsEmpty());
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(attesa));
    scorciatoia(Qt::Key_H);
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(attesa)) << "a shortcut moves no focus";
    scrivi("txtCodiceCli", QStringLiteral("77"));
    EXPECT_THAT(istruzioni([&] { lascia("txtCodiceCli"); }),
                ElementsAre(QStringLiteral("select RagioneSociale from clien where Codice=77;")));
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(Messaggio{QStringLiteral("Codice Cliente Inesistente"), Stile::informazione,
                                      QStringLiteral("Gestione Trasporti")}));
    scrivi("txtCodiceCli", QStringLiteral("1001"));
    lascia("txtCodiceCli");
    EXPECT_TRUE(qobject_cast<QLineEdit*>(c("txtCodiceCli"))->isReadOnly());
    clicca("chkRicerca");
    clicca("chkRicerca");
    EXPECT_FALSE(qobject_cast<QLineEdit*>(c("txtCodiceCli"))->isReadOnly()) << "another customer may come";
}

TEST_P(Richiamo, LaDataDellaGiacenzaSiControllaSoloSenzaUnCaso)
{
    apri();
    scrivi("txtDataGia", QStringLiteral("31022026"));
    lascia("txtDataGia");
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(Messaggio{QStringLiteral("Controllare l'immissione della data giacenza."),
                                      Stile::avviso, titoloApplicazione()}));
    scrivi("txtDataGia", QStringLiteral("19112026"));
    lascia("txtDataGia");
    EXPECT_EQ(mostrato("barGiorniSosta"), QStringLiteral("2"));
    richiamaMaiAvvisato();
    scrivi("txtDataGia", QStringLiteral("31022026"));
    lascia("txtDataGia");
    EXPECT_EQ(mostrato("txtDataGia"), QStringLiteral("10/11/2026")) << "the shown case's key";
    EXPECT_THAT(mMessaggi.prendi(), IsEmpty());
}

TEST_P(Richiamo, UnNumeroConUnApostrofoNonParte)
{
    apri();
    EXPECT_THAT(istruzioni([&] { richiama(QStringLiteral("4'1"), QStringLiteral("10112026")); }), IsEmpty());
    ASSERT_EQ(mMessaggi.messaggi().size(), 1U);
    EXPECT_EQ(mMessaggi.messaggi().front().stile, Stile::critico);
}

} // namespace
