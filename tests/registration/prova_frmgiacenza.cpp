#include "registration/registrazionediprova.h"

#include "screens/campi.h"
#include "support/stampa.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

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

const QString blocco =
    u"SELECT letve00f.*, giace00f.*, forni.RagioneSociale as Vettore, filiali.Descrizione as filiale, "
    "codicizona.Descrizione as linea from (((letve00f LEFT JOIN giace00f on lefili=gifili and lenrlv=ginrlv "
    "and "
    "leanlv=gianlv) LEFT JOIN filiali ON lefili=filiali.codice) LEFT JOIN codicizona on "
    "lelin1=codicizona.Codice) "
    "LEFT join forni ON forni.Codice=lecdve"_s;

TEST_P(Registrazione, SiApreVuotaConLaDataDiOggi)
{
    apri();
    EXPECT_EQ(mSchermata->objectName(), u"frmGiacenza"_s);
    EXPECT_EQ(mostrato("txtDataGia"), u"21/11/2026"_s);
    EXPECT_EQ(mostrato("lblDataLav"), u"21/11/2026"_s);
    EXPECT_EQ(mSchermata->property("NLettVett").toString(), QString());
    EXPECT_FALSE(c("lblGiaInGiacenza")->isVisible());
    EXPECT_EQ(qobject_cast<QComboBox*>(c("cmbPorto"))->count(), 3);
    EXPECT_EQ(qobject_cast<QComboBox*>(c("cmbPorto"))->itemText(1), u"2 - Assegnato"_s);
    EXPECT_LE(mSchermata->minimumSizeHint().width(), 1366);
    EXPECT_LE(mSchermata->minimumSizeHint().height(), 700);
}

TEST_P(Registrazione, LaConsegnaCercaUnaVoltaSola)
{
    apri();
    const QStringList inviate = istruzioni([&] {
        consegna(u"4711"_s);
        // A box or another window that comes and goes activates the screen again.
        QEvent attivata(QEvent::WindowActivate);
        QCoreApplication::sendEvent(mSchermata, &attivata);
        QCoreApplication::processEvents();
    });
    EXPECT_THAT(inviate,
                ElementsAre(u"select RagioneSociale from clien where Codice=1001;"_s,
                            blocco + u" WHERE lenrlv='4711' and ledtlv='2026-11-12' and lefili='MI';"_s));
    EXPECT_EQ(mostrato("barCliente"), u"Ferramenta Lombarda S.r.l."_s);
    EXPECT_TRUE(qobject_cast<QLineEdit*>(c("txtCodiceCli"))->isReadOnly());

    EXPECT_EQ(istruzioni([&] { consegna(u"4714"_s); }).size(), 3) << "also when it is open and active";
    EXPECT_EQ(mostrato("lblNrGia"), u"40"_s);
}

TEST_P(Registrazione, LaConsegnaIncompletaNonCerca)
{
    apri();
    const QString ldv = u"4711"_s, mi = u"MI"_s, cliente = u"1001"_s;
    const QString data = u"12/11/2026"_s;
    EXPECT_THAT(istruzioni([&] {
                    consegna(ldv, u"31/02/2026"_s, mi, cliente);
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
    consegna(u"4711"_s, u"12/11/2026"_s, u"MI"_s, u"abc"_s);
    QCoreApplication::processEvents();
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Codice cliente assente o errato"_s));
    EXPECT_TRUE(c("txtCodiceCli")->hasFocus()) << "the change is cancelled";
    EXPECT_EQ(mostrato("txtDestinatario"), QString()) << "it ends the hand-over";
    mMessaggi.prendi();

    consegna(u"4711"_s, u"12/11/2026"_s, u"MI"_s, u"77"_s);
    QCoreApplication::processEvents();
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Codice Cliente Inesistente"_s));
}

TEST_P(Registrazione, MostraLaSpedizioneInOgniCampo)
{
    consegna(u"4711"_s);
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
        {"txtPesoKg", u"45,5"},
        {"txtVolume", u"0,25"},
        {"txtContrassegno", u"120,00"},
        {"txtAnticipo", u"0,00"},
        {"txtValMerce", u"850,00"},
        {"txtNoteLdv", u"Solo al mattino"},
        {"lblNrGia", u""},
        {"txtDataGia", u"21/11/2026"},
        {"barGiorniSosta", u"0"},
    };
    for (const auto& [nome, valore] : attesi)
        EXPECT_EQ(mostrato(nome), QString::fromUtf16(valore)) << nome;
    EXPECT_EQ(tag(qobject_cast<QLineEdit*>(c("txtLDV"))), u"4711"_s);
    EXPECT_FALSE(c("lblGiaInGiacenza")->isVisible());
}

TEST_P(Registrazione, MostraLaSpedizioneGiaInGiacenza)
{
    consegna(u"4714"_s);
    EXPECT_TRUE(c("lblGiaInGiacenza")->isVisible());
    EXPECT_EQ(mostrato("lblNrGia"), u"40"_s);
    EXPECT_EQ(mostrato("txtDataGia"), u"13/11/2026"_s);
    EXPECT_EQ(mostrato("lblDataAvviso"), u"15/11/2026"_s);
    EXPECT_EQ(mostrato("lblDataBuonFine"), u"18/11/2026"_s);
    EXPECT_EQ(mostrato("barGiorniSosta"), u"5"_s) << "counted to the closure";
    EXPECT_EQ(mostrato("txtFilialeGia"), u"BO"_s);
    EXPECT_EQ(mostrato("barFilialeGia"), u"Bologna"_s);
    EXPECT_EQ(mostrato("txtDescGia"), u"13/11/2026 - Chiuso per ferie"_s);
    EXPECT_EQ(mostrato("txtImponibile"), u"15,00"_s);
    EXPECT_EQ(mostrato("lblFattura"), u"77"_s);
    EXPECT_EQ(mostrato("txtDataFatt"), u"20/11/2026"_s);
    EXPECT_EQ(mostrato("txtGiaOld"), u"39"_s);
    EXPECT_EQ(mostrato("txtDataGiaOld"), u"02/10/2026"_s);

    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(dellApplicazione(u"Giacenza esistente impossibile inserirla in database."_s,
                                             Stile::avviso)));
}

TEST_P(Registrazione, LaMarcaDiGiacenzaSegueLaSpedizione)
{
    const auto marca = [this] { return c("lblGiaInGiacenza")->isVisible(); };
    const auto mancaIlMotivo = [this] { return c("lblAvvMotivo")->isVisible(); };
    mBase.esegui(u"update giace00f set GIDES1=null where GINRLV='4714'"_s);
    apri();
    EXPECT_FALSE(mancaIlMotivo()) << "there is nothing to register";
    consegna(u"4714"_s);
    EXPECT_TRUE(marca());
    EXPECT_EQ(mostrato("txtDescGia"), QString());
    EXPECT_FALSE(mancaIlMotivo()) << "it is registered";
    consegna(u"9999"_s);
    EXPECT_FALSE(marca()) << "not found";
    consegna(u"4711"_s);
    EXPECT_FALSE(marca());
    EXPECT_TRUE(mancaIlMotivo());
    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Giacenza aggiunta in database."_s));
    EXPECT_TRUE(marca());
    EXPECT_FALSE(mancaIlMotivo());
}

TEST_P(Registrazione, TrovaAncheConVettoreLineaEFilialeSconosciuti)
{
    consegna(u"4715"_s, u"12/11/2026"_s, u"XX"_s, u"1001"_s);
    EXPECT_EQ(mostrato("txtRifMitt"), u"ORD-885"_s);
    EXPECT_EQ(mostrato("barVettore"), QString());
    EXPECT_EQ(mostrato("barFilSped"), QString());
}

TEST_P(Registrazione, CercaPerRiferimento)
{
    apri();
    scrivi("txtCodiceCli", u"1001"_s);
    scrivi("txtFiliale", u"MI"_s);
    scrivi("txtRiferimento", u"ORD-881"_s);
    scrivi("txtDataRif", u"10112026"_s);
    const QStringList inviate = istruzioni([&] { lascia("txtDataRif"); });
    EXPECT_THAT(inviate, ElementsAre(blocco + u" WHERE lerife='ORD-881' and lerifd='2026-11-10' and "
                                              "lefili='MI';"_s));
    EXPECT_EQ(tag(qobject_cast<QLineEdit*>(c("txtLDV"))), u"4711"_s);
    EXPECT_THAT(istruzioni([&] { lascia("txtDataRif"); }), IsEmpty()) << "nothing was edited since";
    EXPECT_EQ(istruzioni([&] { tasto("txtRiferimento", Qt::Key_F12); }).size(), 1);
}

TEST_P(Registrazione, UnaRicercaPerRiferimentoNonNeLasciaUnaPerNumeroInSospeso)
{
    apri();
    scrivi("txtCodiceCli", u"1001"_s);
    scrivi("txtFiliale", u"MI"_s);
    scrivi("txtLDV", u"47"_s);
    scrivi("txtRiferimento", u"ORD-881"_s);
    scrivi("txtDataRif", u"10112026"_s);
    lascia("txtDataRif");
    scrivi("txtDescGia", u"chiuso"_s);
    c("txtDataLdv")->setFocus();
    EXPECT_THAT(istruzioni([&] { lascia("txtDataLdv"); }), IsEmpty());
    EXPECT_EQ(mostrato("txtDescGia"), u"chiuso"_s) << "what the clerk has typed since stays";
}

TEST_P(Registrazione, IlNomeDellaFilialeNonRestaAccantoAUnAltroCodice)
{
    consegna(u"4714"_s);
    EXPECT_EQ(mostrato("barFilialeGia"), u"Bologna"_s);
    scrivi("txtFilialeGia", u"MI"_s);
    EXPECT_EQ(mostrato("barFilialeGia"), QString());
}

TEST_P(Registrazione, SenzaClienteNonCerca)
{
    apri();
    scrivi("txtFiliale", u"MI"_s);
    scrivi("txtLDV", u"4711"_s);
    const auto attesa = dellApplicazione(u"Selezionare il codice cliente."_s, Stile::avviso);
    EXPECT_THAT(istruzioni([&] { tasto("txtLDV", Qt::Key_F12); }), IsEmpty());
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(attesa));
    EXPECT_TRUE(c("txtCodiceCli")->hasFocus());
    scrivi("txtDataLdv", u"12112026"_s);
    EXPECT_THAT(istruzioni([&] { lascia("txtDataLdv"); }), IsEmpty());
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(attesa));
    EXPECT_TRUE(c("txtCodiceCli")->hasFocus());
}

TEST_P(Registrazione, IlCodiceClienteSiControlla)
{
    apri();
    scrivi("txtCodiceCli", u"abc"_s);
    EXPECT_THAT(istruzioni([&] { lascia("txtCodiceCli"); }), IsEmpty());
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(dellApplicazione(u"Codice cliente assente o errato"_s, Stile::avviso)));
    EXPECT_TRUE(c("txtCodiceCli")->hasFocus()) << "the change is cancelled";

    scrivi("txtCodiceCli", u"77"_s);
    lascia("txtCodiceCli");
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(Messaggio{u"Codice Cliente Inesistente"_s,
                                                          Stile::informazione, u"Gestione Trasporti"_s}));
    tasto("txtCodiceCli", Qt::Key_Return);
    EXPECT_TRUE(c("cmdCercaCliente")->hasFocus());
    EXPECT_EQ(mMessaggi.prendi().size(), 1U) << "leaving by Enter checks again";
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
