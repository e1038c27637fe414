#include "registration/registrazionediprova.h"

#include "screens/campi.h"
#include "support/stampa.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Registrazione : public RegistrazioneDiProva
{};

INSTANTIATE_TEST_SUITE_P(Basi, Registrazione, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

Messaggio dellApplicazione(const QString& testo, Stile stile)
{
    return {testo, stile, titoloApplicazione()};
}

const QString blocco = QStringLiteral(
    "SELECT letve00f.*, giace00f.*, forni.RagioneSociale as Vettore, filiali.Descrizione as filiale, "
    "codicizona.Descrizione as linea from (((letve00f LEFT JOIN giace00f on lefili=gifili and lenrlv=ginrlv "
    "and "
    "leanlv=gianlv) LEFT JOIN filiali ON lefili=filiali.codice) LEFT JOIN codicizona on "
    "lelin1=codicizona.Codice) "
    "LEFT join forni ON forni.Codice=lecdve");

TEST_P(Registrazione, SiApreVuotaConLaDataDiOggi)
{
    apri();
    EXPECT_EQ(mSchermata->objectName(), QStringLiteral("frmGiacenza"));
    EXPECT_EQ(mostrato("txtDataGia"), QStringLiteral("21/11/2026"));
    EXPECT_EQ(mostrato("lblDataLav"), QStringLiteral("21/11/2026"));
    EXPECT_EQ(mSchermata->property("NLettVett").toString(), QString());
    EXPECT_FALSE(c("lblGiaInGiacenza")->isVisible());
    EXPECT_EQ(qobject_cast<QComboBox*>(c("cmbPorto"))->count(), 3);
    EXPECT_EQ(qobject_cast<QComboBox*>(c("cmbPorto"))->itemText(1), QStringLiteral("2 - Assegnato"));
    EXPECT_LE(mSchermata->minimumSizeHint().width(), 1366);
    EXPECT_LE(mSchermata->minimumSizeHint().height(), 700);
}

TEST_P(Registrazione, LaConsegnaCercaUnaVoltaSola)
{
    apri();
    const QStringList inviate = istruzioni([&] {
        consegna(QStringLiteral("4711"));
        // A box or another window that comes and goes activates the screen again.
        QEvent attivata(QEvent::WindowActivate);
        QCoreApplication::sendEvent(mSchermata, &attivata);
        QCoreApplication::processEvents();
    });
    EXPECT_THAT(inviate,
                ElementsAre(QStringLiteral("select RagioneSociale from clien where Codice=1001;"),
                            blocco + QStringLiteral(
                                         " WHERE lenrlv='4711' and ledtlv='2026-11-12' and lefili='MI';")));
    EXPECT_EQ(mostrato("barCliente"), QStringLiteral("Ferramenta Lombarda S.r.l."));
    EXPECT_TRUE(qobject_cast<QLineEdit*>(c("txtCodiceCli"))->isReadOnly());

    EXPECT_EQ(istruzioni([&] { consegna(QStringLiteral("4714")); }).size(), 3)
        << "also when it is open and active";
    EXPECT_EQ(mostrato("lblNrGia"), QStringLiteral("40"));
}

TEST_P(Registrazione, LaConsegnaIncompletaNonCerca)
{
    apri();
    const QString ldv = QStringLiteral("4711"), mi = QStringLiteral("MI"), cliente = QStringLiteral("1001");
    const QString data = QStringLiteral("12/11/2026");
    EXPECT_THAT(istruzioni([&] {
                    consegna(ldv, QStringLiteral("31/02/2026"), mi, cliente);
                    consegna({}, data, mi, cliente);
                    consegna(ldv, data, {}, cliente);
                    consegna(ldv, data, mi, {});
                    consegna({}, {}, {}, {});
                }),
                IsEmpty());
    EXPECT_EQ(mostrato("txtLDV"), QString());
    EXPECT_EQ(mostrato("txtCodiceCli"), QString());
}

TEST_P(Registrazione, LaConsegnaConUnClienteErratoLoDiceUnaVolta)
{
    consegna(QStringLiteral("4711"), QStringLiteral("12/11/2026"), QStringLiteral("MI"),
             QStringLiteral("abc"));
    QCoreApplication::processEvents();
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(QStringLiteral("Codice cliente assente o errato")));
    EXPECT_TRUE(c("txtCodiceCli")->hasFocus()) << "the change is cancelled";
    EXPECT_EQ(mostrato("txtDestinatario"), QStringLiteral("Utensileria del Lago"));
    mMessaggi.prendi();

    consegna(QStringLiteral("4711"), QStringLiteral("12/11/2026"), QStringLiteral("MI"),
             QStringLiteral("77"));
    QCoreApplication::processEvents();
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(QStringLiteral("Codice Cliente Inesistente")));
}

TEST_P(Registrazione, MostraLaSpedizioneInOgniCampo)
{
    consegna(QStringLiteral("4711"));
    const std::pair<const char*, const char16_t*> attesi[] = {
        {"txtLDV", u""},
        {"txtDataLdv", u"12/11/2026"},
        {"lblDataLav", u"12/11/2026"},
        {"txtFilSped", u"MI"},
        {"txtFiliale", u"MI"},
        {"barFilSped", u"Milano"},
        {"txtDestinatario", u"Utensileria del Lago"},
        {"txtIndDestinatario", u"Corso Italia 44"},
        {"txtCapDestinatario", u"22100"},
        {"txtLocalitaDest", u"Como"},
        {"txtProvDest", u"CO"},
        {"txtVettore", u"V01"},
        {"barVettore", u"Autotrasporti Riuniti"},
        {"txtLinea", u"L05"},
        {"barLineaCli", u"Brianza nord"},
        {"cmbNaturaMerce", u"MINUTERIA"},
        {"txtRifMitt", u"ORD-881"},
        {"txtRiferimento", u"ORD-881"},
        {"txtDataRifMitt", u"10/11/2026"},
        {"txtDataRif", u"10/11/2026"},
        {"cmbPorto", u"2 - Assegnato"},
        {"txtColli", u"3"},
        {"txtNoteLdv", u"Solo al mattino"},
        {"lblNrGia", u""},
        {"txtDataGia", u"21/11/2026"},
        {"barGiorniSosta", u"0"},
    };
    for (const auto& [nome, valore] : attesi)
        EXPECT_EQ(mostrato(nome), QString::fromUtf16(valore)) << nome;
    EXPECT_EQ(tag(qobject_cast<QLineEdit*>(c("txtLDV"))), QStringLiteral("4711"));
    EXPECT_EQ(QString(mostrato("txtPesoKg")).remove(QLatin1Char('0')), QStringLiteral("45,5"));
    EXPECT_FALSE(c("lblGiaInGiacenza")->isVisible());
}

TEST_P(Registrazione, MostraLaSpedizioneGiaInGiacenza)
{
    consegna(QStringLiteral("4714"));
    EXPECT_TRUE(c("lblGiaInGiacenza")->isVisible());
    EXPECT_EQ(mostrato("lblNrGia"), QStringLiteral("40"));
    EXPECT_EQ(mostrato("txtDataGia"), QStringLiteral("13/11/2026"));
    EXPECT_EQ(mostrato("lblDataAvviso"), QStringLiteral("15/11/2026"));
    EXPECT_EQ(mostrato("lblDataBuonFine"), QStringLiteral("18/11/2026"));
    EXPECT_EQ(mostrato("barGiorniSosta"), QStringLiteral("5")) << "counted to the closure";
    EXPECT_EQ(mostrato("txtFilialeGia"), QStringLiteral("BO"));
    EXPECT_EQ(mostrato("barFilialeGia"), QStringLiteral("Bologna"));
    EXPECT_EQ(mostrato("txtDescGia"), QStringLiteral("13/11/2026 - Chiuso per ferie"));
    EXPECT_EQ(mostrato("lblFattura"), QStringLiteral("77"));
    EXPECT_EQ(mostrato("txtDataFatt"), QStringLiteral("20/11/2026"));
    EXPECT_EQ(mostrato("txtGiaOld"), QStringLiteral("39"));
    EXPECT_EQ(mostrato("txtDataGiaOld"), QStringLiteral("02/10/2026"));

    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(dellApplicazione(
                    QStringLiteral("Giacenza esistente impossibile inserirla in database."), Stile::avviso)));
}

TEST_P(Registrazione, IlCasoGuardatoPrimaNonPrestaLeSueDate)
{
    consegna(QStringLiteral("4714"));
    consegna(QStringLiteral("4711"));
    for (const char* nome :
         {"lblDataAvviso", "lblDataBuonFine", "lblFattura", "txtDataFatt", "txtDataGiaOld", "txtDataGia"}) {
        EXPECT_TRUE(avanzo(nome)) << nome;
        EXPECT_NE(mostrato(nome), QString()) << nome << " stays visible";
    }
    scrivi("txtDataGia", QStringLiteral("20112026"));
    EXPECT_FALSE(avanzo("txtDataGia"));
    scrivi("txtDescGia", QStringLiteral("chiuso"));
    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(QStringLiteral("Giacenza aggiunta in database.")));
    EXPECT_EQ(mBase.righe(QStringLiteral("select GINRGI,GIDTGI,GIGGSO,GINRAV,GIDTAV,GIDTBF,GIVNRG,GIVDTG "
                                         "from giace00f where GINRLV='4711'")),
              (QList<QStringList>{{QStringLiteral("42"), QStringLiteral("2026-11-20"), QStringLiteral("1"),
                                   QStringLiteral("1"), QStringLiteral("2026-11-21"), QStringLiteral("NULL"),
                                   QStringLiteral("NULL"), QStringLiteral("NULL")}}));
}

TEST_P(Registrazione, SalvaEAvvisaSoloConITasti)
{
    apri();
    scrivi("txtCodiceCli", QStringLiteral("1001"));
    lascia("txtCodiceCli");
    EXPECT_EQ(mostrato("barCliente"), QStringLiteral("Ferramenta Lombarda S.r.l."));
    scrivi("txtFiliale", QStringLiteral("MI"));
    scrivi("txtLDV", QStringLiteral("4711"));
    scrivi("txtDataLdv", QStringLiteral("12112026"));
    lascia("txtDataLdv");
    EXPECT_EQ(mostrato("txtDestinatario"), QStringLiteral("Utensileria del Lago"));
    scrivi("txtDataGia", QStringLiteral("20112026"));
    lascia("txtDataGia");
    EXPECT_EQ(mostrato("barGiorniSosta"), QStringLiteral("1"));
    scrivi("txtFilialeGia", QStringLiteral("BO"));
    scrivi("txtDescGia", QStringLiteral("L'insegna manca"));
    scorciatoia(Qt::Key_S);

    EXPECT_THAT(
        mMessaggi.prendi(),
        ElementsAre(dellApplicazione(QStringLiteral("Giacenza aggiunta in database."), Stile::informazione)));
    EXPECT_EQ(mostrato("lblNrGia"), QStringLiteral("42"));
    EXPECT_EQ(mostrato("lblDataAvviso"), QStringLiteral("2026-11-21"));
    EXPECT_THAT(mStampe,
                ElementsAre(QStringLiteral("database ") + mBase.stringa(), QStringLiteral("logo /logo"),
                            QStringLiteral("didascalie uno|due|tre|quattro"), QStringLiteral("stampa 1"),
                            QStringLiteral("tipo 5"), QStringLiteral("documento 42_2026")));
    EXPECT_EQ(mBase.righe(QStringLiteral("select GINRAV,GIDTAV,GIDES1 from giace00f where GINRGI='42'")),
              (QList<QStringList>{{QStringLiteral("1"), QStringLiteral("2026-11-21"),
                                   QStringLiteral("20/11/2026 - L'insegna manca")}}));
}

TEST_P(Registrazione, SenzaClienteORiferimentoSalvaNonFaNiente)
{
    apri();
    clicca("cmdSalva");
    consegna(QStringLiteral("4711"));
    consegna(QStringLiteral("9999"));
    EXPECT_EQ(mostrato("txtRifMitt"), QString()) << "a lookup that finds nothing empties what a save needs";
    EXPECT_THAT(istruzioni([&] { clicca("cmdSalva"); }), IsEmpty());
}

TEST_P(Registrazione, RifiutaCioCheNonSiPuoMettereInGiacenza)
{
    consegna(QStringLiteral("4713"));
    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(dellApplicazione(
                    QStringLiteral(
                        "La spedizione selezionata è una riconsegna relativa ad una giacenza già esistente."),
                    Stile::avviso)));
    consegna(QStringLiteral("4712"));
    mBase.esegui(QStringLiteral("delete from letve00f where lenrlv='4712';"));
    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(dellApplicazione(QStringLiteral("Lettera di vettura non presente in database."),
                                             Stile::avviso)));
    EXPECT_THAT(mStampe, IsEmpty());
}

TEST_P(Registrazione, LaSpedizionePresaDaUnAltraPostazioneDopoLaRicercaERifiutata)
{
    consegna(QStringLiteral("4711"));
    mBase.esegui(QStringLiteral("update letve00f set LERFGI='41', LEANGI=2026 where lenrlv='4711';"));
    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.testi(),
                ElementsAre(QStringLiteral("Giacenza esistente impossibile inserirla in database.")));
    EXPECT_EQ(mBase.leggi(QStringLiteral("select count(*) from giace00f where GINRLV='4711'")),
              QStringLiteral("0"));
}

TEST_P(Registrazione, TuttiINulliSiMostranoESiSalvano)
{
    consegna(QStringLiteral("4712"));
    EXPECT_EQ(mostrato("txtDestinatario"), QString());
    EXPECT_EQ(mostrato("cmbPorto"), QString());
    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(QStringLiteral("Giacenza aggiunta in database.")));
    EXPECT_EQ(mBase.leggi(QStringLiteral("select GINRAV from giace00f where GINRLV='4712'")),
              QStringLiteral("1"));
}

TEST_P(Registrazione, TrovaAncheConVettoreLineaEFilialeSconosciuti)
{
    consegna(QStringLiteral("4715"), QStringLiteral("12/11/2026"), QStringLiteral("XX"),
             QStringLiteral("1001"));
    EXPECT_EQ(mostrato("txtRifMitt"), QStringLiteral("ORD-885"));
    EXPECT_EQ(mostrato("barVettore"), QString());
    EXPECT_EQ(mostrato("barFilSped"), QString());
}

TEST_P(Registrazione, CercaPerRiferimento)
{
    apri();
    scrivi("txtCodiceCli", QStringLiteral("1001"));
    scrivi("txtFiliale", QStringLiteral("MI"));
    scrivi("txtRiferimento", QStringLiteral("ORD-881"));
    scrivi("txtDataRif", QStringLiteral("10112026"));
    const QStringList inviate = istruzioni([&] { lascia("txtDataRif"); });
    EXPECT_THAT(inviate,
                ElementsAre(blocco + QStringLiteral(" WHERE lerife='ORD-881' and lerifd='2026-11-10' and "
                                                    "lefili='MI';")));
    EXPECT_EQ(tag(qobject_cast<QLineEdit*>(c("txtLDV"))), QStringLiteral("4711"));
    EXPECT_THAT(istruzioni([&] { lascia("txtDataRif"); }), IsEmpty()) << "nothing was edited since";
    EXPECT_EQ(istruzioni([&] { tasto("txtRiferimento", Qt::Key_F12); }).size(), 1);
}

TEST_P(Registrazione, UnaRicercaPerRiferimentoNonNeLasciaUnaPerNumeroInSospeso)
{
    apri();
    scrivi("txtCodiceCli", QStringLiteral("1001"));
    scrivi("txtFiliale", QStringLiteral("MI"));
    scrivi("txtLDV", QStringLiteral("47"));
    scrivi("txtRiferimento", QStringLiteral("ORD-881"));
    scrivi("txtDataRif", QStringLiteral("10112026"));
    lascia("txtDataRif");
    scrivi("txtDescGia", QStringLiteral("chiuso"));
    c("txtDataLdv")->setFocus();
    EXPECT_THAT(istruzioni([&] { lascia("txtDataLdv"); }), IsEmpty());
    EXPECT_EQ(mostrato("txtDescGia"), QStringLiteral("chiuso")) << "what the clerk has typed since stays";
}

TEST_P(Registrazione, IlNomeDellaFilialeNonRestaAccantoAUnAltroCodice)
{
    consegna(QStringLiteral("4714"));
    EXPECT_EQ(mostrato("barFilialeGia"), QStringLiteral("Bologna"));
    scrivi("txtFilialeGia", QStringLiteral("MI"));
    EXPECT_EQ(mostrato("barFilialeGia"), QString());
}

TEST_P(Registrazione, SenzaClienteNonCerca)
{
    apri();
    scrivi("txtFiliale", QStringLiteral("MI"));
    scrivi("txtLDV", QStringLiteral("4711"));
    const auto attesa = dellApplicazione(QStringLiteral("Selezionare il codice cliente."), Stile::avviso);
    EXPECT_THAT(istruzioni([&] { tasto("txtLDV", Qt::Key_F12); }), IsEmpty());
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(attesa));
    EXPECT_TRUE(c("txtCodiceCli")->hasFocus());
    scrivi("txtDataLdv", QStringLiteral("12112026"));
    EXPECT_THAT(istruzioni([&] { lascia("txtDataLdv"); }), IsEmpty());
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(attesa));
    EXPECT_TRUE(c("txtCodiceCli")->hasFocus());
}

TEST_P(Registrazione, IlCodiceClienteSiControlla)
{
    apri();
    scrivi("txtCodiceCli", QStringLiteral("abc"));
    EXPECT_THAT(istruzioni([&] { lascia("txtCodiceCli"); }), IsEmpty());
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(dellApplicazione(
                                        QStringLiteral("Codice cliente assente o errato"), Stile::avviso)));
    EXPECT_TRUE(c("txtCodiceCli")->hasFocus()) << "the change is cancelled";

    scrivi("txtCodiceCli", QStringLiteral("77"));
    lascia("txtCodiceCli");
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(Messaggio{QStringLiteral("Codice Cliente Inesistente"), Stile::informazione,
                                      QStringLiteral("Gestione Trasporti")}));
    tasto("txtCodiceCli", Qt::Key_Return);
    EXPECT_TRUE(c("cmdCercaCliente")->hasFocus());
    EXPECT_EQ(mMessaggi.prendi().size(), 1U) << "leaving by Enter checks again";
}

TEST_P(Registrazione, LaDataDellaGiacenzaSiControlla)
{
    consegna(QStringLiteral("4711"));
    const auto attesa =
        dellApplicazione(QStringLiteral("Controllare l'immissione della data giacenza."), Stile::avviso);
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
    EXPECT_EQ(mBase.leggi(QStringLiteral("select count(*) from giace00f where GINRLV='4711'")),
              QStringLiteral("0"));

    scrivi("txtDataGia", {});
    lascia("txtDataGia");
    EXPECT_EQ(mostrato("txtDataGia"), QString()) << "an untouched mask reads empty and raises no message";
    scrivi("txtDataGia", QStringLiteral("3102"));
    clicca("cmdEsci");
    EXPECT_FALSE(mSchermata && mSchermata->isVisible()) << "leaving checks nothing";
}

TEST_P(Registrazione, LAvvisoSiContaUnaVoltaAlGiorno)
{
    consegna(QStringLiteral("4714"));
    mBase.esegui(QStringLiteral("update giace00f set GIDTAV='2026-11-20' where GINRGI='40';"));
    clicca("cmdAvvisoGia");
    const QString conto = QStringLiteral("select GINRAV,GIDTAV,GIDES1 from giace00f where GINRGI='40'");
    const QList<QStringList> tre = {
        {QStringLiteral("3"), QStringLiteral("2026-11-21"), QStringLiteral("13/11/2026 - Chiuso per ferie")}};
    EXPECT_EQ(mBase.righe(conto), tre);
    clicca("cmdAvvisoGia");
    EXPECT_EQ(mBase.righe(conto), tre) << "a second one on the same day only prints again";
    EXPECT_EQ(mStampe.filter(QStringLiteral("documento 40_2026")).size(), 2);
}

TEST_P(Registrazione, SenzaGiacenzaSulloSchermoNonCELAvviso)
{
    consegna(QStringLiteral("4711"));
    EXPECT_THAT(istruzioni([&] { clicca("cmdAvvisoGia"); }), IsEmpty());
    EXPECT_THAT(mStampe, IsEmpty());
    EXPECT_EQ(mostrato("lblStato"), QStringLiteral("Nessuna giacenza sullo schermo: richiamarne una prima."));
}

TEST_P(Registrazione, UscendoChiudeIlCollegamentoEPoiLoDice)
{
    apri();
    QSignalSpy uscite(mSchermata, &Schermata::Uscita);
    clicca("cmdEsci");
    EXPECT_EQ(uscite.size(), 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(mSchermata.isNull());
}

} // namespace
