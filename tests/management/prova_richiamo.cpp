#include "management/richiamodiprova.h"

#include "screens/campi.h"
#include "support/stampa.h"
#include "support/trova.h"

#include <QComboBox>
#include <QLineEdit>

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Richiamo : public RichiamoDiProva
{};

INSTANTIATE_TEST_SUITE_P(Basi, Richiamo, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(Richiamo, SiApreVuotaPerNumero)
{
    apri();
    EXPECT_EQ(mSchermata->objectName(), u"frmGestGia"_s);
    EXPECT_EQ(mostrato("txtDataGia"), u"21/11/2026"_s);
    EXPECT_EQ(mostrato("lblDataLav"), u"21/11/2026"_s);
    EXPECT_TRUE(attivo("txtNGiace"));
    EXPECT_FALSE(attivo("txtCodiceCli"));
    EXPECT_FALSE(c("lblStatoCaso")->isVisible());
    EXPECT_LE(mSchermata->minimumSizeHint().width(), 1366);
    EXPECT_LE(mSchermata->minimumSizeHint().height(), 700);
}

TEST_P(Richiamo, NasceNelModoDelNumero)
{
    const std::unique_ptr<Schermata> schermata = crea();
    EXPECT_TRUE(trova<QLineEdit>(*schermata, u"txtNGiace"_s)->isEnabled());
    EXPECT_TRUE(trova<QLineEdit>(*schermata, u"txtDataGiace"_s)->isEnabled());
    EXPECT_FALSE(trova<QLineEdit>(*schermata, u"txtCodiceCli"_s)->isEnabled());
}

TEST_P(Richiamo, IlNomeDellaFilialeCheNonSiLeggeSiDice)
{
    apri();
    fallisce(u"select descrizione from filiali where codice='BO';"_s);
    richiamaChiuso();
    guarisce();
    EXPECT_EQ(mostrato("lblNrGia"), u"40"_s);
    EXPECT_EQ(mostrato("barFilialeGia"), QString());
    EXPECT_EQ(mostrato("lblStato"),
              u"Il nome della filiale non si legge. L'archivio ha rifiutato l'operazione."_s);
}

TEST_P(Richiamo, PerNumeroMostraIlCasoEPortaIlFuoco)
{
    apri();
    const QStringList inviate = istruzioni([&] { richiamaChiuso(); });
    ASSERT_FALSE(inviate.isEmpty());
    EXPECT_EQ(inviate.front(), blocco() + u" WHERE ginrgi='40' and GIDTGI='2026-11-13';"_s);
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
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(deiTrasporti(u"Manca il numero della giacenza."_s)));
    EXPECT_TRUE(c("txtNGiace")->hasFocus());

    const auto mancaData = deiTrasporti(u"Manca la data della giacenza."_s);
    scrivi("txtNGiace", u"41"_s);
    EXPECT_THAT(istruzioni([&] { clicca("cmdRicGiac"); }), IsEmpty());
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(mancaData));
    EXPECT_EQ(mostrato("txtNGiace"), u"41"_s);
    for (const char16_t* errata : {u"1011", u"31022026", u"00000000"}) {
        scrivi("txtDataGiace", QString::fromUtf16(errata));
        EXPECT_THAT(istruzioni([&] { tasto("txtDataGiace", Qt::Key_Enter); }), IsEmpty());
        EXPECT_THAT(mMessaggi.prendi(), ElementsAre(mancaData));
    }
}

TEST_P(Richiamo, LaDataDellaRicercaSiControllaLasciandola)
{
    apri();
    scrivi("txtNGiace", u"41"_s);
    lascia("txtNGiace");
    scrivi("txtDataGiace", u"31022026"_s);
    lascia("txtDataGiace");
    const Messaggio attesa = {u"Inserire una data valida."_s, Stile::avviso, titoloApplicazione()};
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
    scrivi("txtDataGiace", u"14112026"_s);
    tasto("txtDataGiace", Qt::Key_Return);
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(deiTrasporti(u"Giacenza: 40 del 14/11/2026 non trovata."_s)));
    for (const char* nome : {"lblNrGia", "lblDataAvviso", "lblDataBuonFine", "lblFattura", "barGiorniSosta",
                             "barFilSped", "barFilialeGia", "txtLDV", "txtDestinatario", "txtDescGia"})
        EXPECT_EQ(mostrato(nome), QString()) << nome;
    EXPECT_EQ(mostrato("txtNGiace"), u"40"_s);
    EXPECT_EQ(mostrato("txtDataGiace"), u"14/11/2026"_s);
    EXPECT_FALSE(c("lblStatoCaso")->isVisible());
}

TEST_P(Richiamo, SenzaVettoreLineaOFilialeNonSiRichiama)
{
    for (const char16_t* colonna : {u"lecdve", u"lelin1"}) {
        for (const char16_t* valore : {u"null", u"'ZZ'"}) {
            mBase.esegui(u"update letve00f set %1=%2 where lenrlv='4711';"_s.arg(QString::fromUtf16(colonna),
                                                                                 QString::fromUtf16(valore)));
            richiamaMaiAvvisato();
            EXPECT_THAT(mMessaggi.prendi(),
                        ElementsAre(deiTrasporti(u"Giacenza: 41 del 10/11/2026 non trovata."_s)));
        }
        mBase.esegui(u"update letve00f set lecdve='V01', lelin1='L05' where lenrlv='4711';"_s);
    }
}

TEST_P(Richiamo, LasciandoIlNumeroLaSchermataSiPulisce)
{
    richiamaChiuso();
    c("txtNGiace")->setFocus();
    lascia("txtNGiace");
    EXPECT_EQ(mostrato("txtNGiace"), u"40"_s);
    EXPECT_EQ(mostrato("txtDataGia"), u"21/11/2026"_s);
    EXPECT_EQ(mostrato("lblDataLav"), u"21/11/2026"_s);
    for (const char* nome :
         {"txtDataGiace", "txtLDV", "txtAnnoLdv", "txtFiliale", "txtDestinatario", "txtDescGia", "lblNrGia",
          "txtFilialeGia", "barFilialeGia", "lblDataAvviso", "lblDataBuonFine", "lblFattura", "txtDataFatt",
          "txtImponibile", "txtGiaOld", "txtDataGiaOld", "barGiorniSosta", "cmbPorto"})
        EXPECT_EQ(mostrato(nome), QString()) << nome;
    EXPECT_FALSE(qobject_cast<QLineEdit*>(c("txtDataGia"))->isReadOnly());
    qobject_cast<QComboBox*>(c("cmbNaturaMerce"))->setEditText(u"LIBRI"_s);
    c("txtNGiace")->setFocus();
    lascia("txtNGiace");
    EXPECT_EQ(mostrato("cmbNaturaMerce"), u"LIBRI"_s) << "the goods type stays";
}

TEST_P(Richiamo, IlCasoDiPrimaNonPrestaNiente)
{
    richiamaChiuso();
    scrivi("txtDataGiace", u"10112026"_s);
    qobject_cast<QLineEdit*>(c("txtNGiace"))->setText(u"41"_s);
    tasto("txtDataGiace", Qt::Key_Return);
    EXPECT_EQ(mostrato("lblNrGia"), u"41"_s);
    EXPECT_EQ(mostrato("lblDataBuonFine"), QString());
    EXPECT_EQ(mostrato("lblDataAvviso"), QString());
    EXPECT_EQ(mostrato("lblStatoCaso"), u"APERTA · NESSUN AVVISO"_s);
    EXPECT_EQ(mostrato("barGiorniSosta"), u"11"_s);
    for (const char* nome : {"txtDataFatt", "txtImponibile", "txtGiaOld"})
        EXPECT_TRUE(avanzo(nome)) << nome;
}

TEST_P(Richiamo, LaDataDellaGiacenzaSiControllaSoloSenzaUnCaso)
{
    apri();
    scrivi("txtDataGia", u"31022026"_s);
    lascia("txtDataGia");
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(Messaggio{u"Controllare l'immissione della data giacenza."_s,
                                                          Stile::avviso, titoloApplicazione()}));
    scrivi("txtDataGia", u"19112026"_s);
    lascia("txtDataGia");
    EXPECT_EQ(mostrato("barGiorniSosta"), u"2"_s);
    richiamaMaiAvvisato();
    scrivi("txtDataGia", u"31022026"_s);
    lascia("txtDataGia");
    EXPECT_EQ(mostrato("txtDataGia"), u"10/11/2026"_s) << "the shown case's key";
    EXPECT_THAT(mMessaggi.prendi(), IsEmpty());
}

TEST_P(Richiamo, UnNumeroConUnApostrofoNonParte)
{
    apri();
    EXPECT_THAT(istruzioni([&] { richiama(u"4'1"_s, u"10112026"_s); }), IsEmpty());
    ASSERT_EQ(mMessaggi.messaggi().size(), 1U);
    EXPECT_EQ(mMessaggi.messaggi().front().stile, Stile::critico);
}

} // namespace
