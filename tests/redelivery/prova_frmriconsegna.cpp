#include "base/impostazioni.h"
#include "data/archivio.h"
#include "redelivery/schermatariconsegna.h"
#include "screens/campi.h"
#include "support/stampa.h"

#include <QComboBox>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class SchermataRiconsegna : public SchermataRiconsegnaDiProva
{
protected:
    static Messaggio avviso(const QString& testo) { return {testo, Stile::avviso, titoloApplicazione()}; }
};

INSTANTIATE_TEST_SUITE_P(Basi, SchermataRiconsegna, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

const QString controllaLdv = u"Controllare l'immissione del num. Ldv e/o data Ldv"_s;
const QString controllaRif = u"Controllare l'immissione del riferimento cliente e/o data rifer. cliente"_s;

TEST_P(SchermataRiconsegna, SiApreConLaDataDiOggiEIlTitoloDelLavoro)
{
    impostazioni().movimento = Movimento::reso;
    apri();
    EXPECT_EQ(mSchermata->windowTitle(), u"Reso a Mittente"_s);
    EXPECT_EQ(mostrato("txtDataGia"), u"21/11/2026"_s);
    EXPECT_EQ(qobject_cast<QComboBox*>(c("cmbPorto"))->count(), 3);
    EXPECT_TRUE(bottoneAcceso());
    EXPECT_LE(mSchermata->minimumSizeHint().width(), 1366);
    EXPECT_LE(mSchermata->minimumSizeHint().height(), 700);

    impostazioni().movimento = Movimento::riconsegna;
    mSchermata->raise();
    EXPECT_EQ(mSchermata->windowTitle(), u"Riconsegna a Destinatario"_s) << "shown again for the other job";
}

TEST_P(SchermataRiconsegna, SenzaClienteOConUnNumeroSbagliatoIlClicCheLasciaLaDataNonFaAltro)
{
    apri();
    const auto lasciaConUnClic = [this](const QString& numero) {
        scrivi("txtLDV", numero);
        scrivi("txtDataLdv", u"12112026"_s);
        clicca("cmdRicSped");
        EXPECT_EQ(mostrato("lblStato"), QString()) << "the button did nothing";
        return mMessaggi.testi();
    };
    EXPECT_THAT(lasciaConUnClic(u"4711"_s), ElementsAre(u"Selezionare il codice cliente."_s));
    mMessaggi.prendi();
    scrivi("txtCodiceCli", u"1001"_s);
    lascia("txtCodiceCli");
    EXPECT_THAT(lasciaConUnClic(u"47A"_s),
                ElementsAre(u"Controllare l'immissione del num. Ldv e/o data Ldv"_s));
    mMessaggi.prendi();
}

TEST_P(SchermataRiconsegna, MostraLaLdvEVuotaCioCheNonHaGiacenza)
{
    apri();
    cliente();
    EXPECT_EQ(istruzioni([&] { cerca(u"4714"_s); }),
              QStringList({lookup.arg(u"4714"_s, u"2026-11-12"_s), lookupFiliale}));
    const std::pair<const char*, const char16_t*> chiusa[] = {
        {"txtLDV", u""},
        {"txtDataLdv", u"12/11/2026"},
        {"txtFiliale", u"MI"},
        {"barFilSped", u"Milano"},
        {"txtDestinatario", u"Casalinghi Rossi"},
        {"barVettore", u"Autotrasporti Riuniti"},
        {"lblNrGia", u"40"},
        {"txtDataGia", u"13/11/2026"},
        {"lblDataAvviso", u"15/11/2026"},
        {"lblDataBuonFine", u"18/11/2026"},
        {"barGiorniSosta", u"5"},
        {"txtFilialeGia", u"BO"},
        {"barFilialeGia", u"Bologna"},
        {"lblFattura", u"77"},
        {"txtDataFatt", u"20/11/2026"},
        {"txtCodFatt", u"F"},
        {"txtGiaOld", u"39"},
        {"txtDataGiaOld", u"02/10/2026"},
        {"txtDescGia", u"13/11/2026 - Chiuso per ferie"},
        {"barLdv", u"4714 del 12/11/2026"},
    };
    for (const auto& [nome, atteso] : chiusa)
        EXPECT_EQ(mostrato(nome), QString::fromUtf16(atteso)) << nome;

    cerca(u"4711"_s);
    for (const char* nome : {"barFilialeGia", "barGiorniSosta", "lblDataAvviso", "lblDataBuonFine",
                             "txtImponibile", "lblFattura", "txtDataFatt", "txtCodFatt", "txtGiaOld",
                             "txtDataGiaOld", "txtDescGia", "txtRiconsegna"})
        EXPECT_EQ(mostrato(nome), QString()) << nome;
    for (const char* nome : {"lblNrGia", "txtDataGia", "txtFilialeGia"})
        EXPECT_TRUE(avanzo(nome)) << nome << ": not emptied, but another waybill's";
    EXPECT_EQ(stato()->text(), u"Questa lettera di vettura non è in giacenza."_s);
}

TEST_P(SchermataRiconsegna, ChiNonHaVettoreLineaOFilialeNonSiTrovaELoSchermoResta)
{
    cerca(u"4714"_s);
    cerca(u"4715"_s);
    EXPECT_EQ(mostrato("txtDestinatario"), u"Casalinghi Rossi"_s);
    EXPECT_EQ(mostrato("lblNrGia"), u"40"_s);
    EXPECT_EQ(stato()->text(), u"LDV 4715 del 12/11/2026: non trovata."_s);
    cerca(u"9999"_s);
    EXPECT_EQ(mostrato("lblNrGia"), u"40"_s);
    cerca(u"4'714"_s);
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(controllaLdv)) << "a quote is no number";
}

TEST_P(SchermataRiconsegna, LaDataLasciataCercaUnaVoltaSola)
{
    cerca(u"4711"_s);
    EXPECT_THAT(istruzioni([&] {
                    c("txtDataLdv")->setFocus();
                    lascia("txtDataLdv");
                }),
                IsEmpty())
        << "nothing was edited since";
    scrivi("txtDataLdv", u"1211"_s);
    EXPECT_THAT(istruzioni([&] { lascia("txtDataLdv"); }), IsEmpty()) << "an incomplete date";
}

TEST_P(SchermataRiconsegna, SenzaClienteLaDataLasciataLoChiede)
{
    apri();
    scrivi("txtLDV", u"4711"_s);
    scrivi("txtDataLdv", u"12112026"_s);
    EXPECT_THAT(istruzioni([&] { lascia("txtDataLdv"); }), IsEmpty());
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(avviso(u"Selezionare il codice cliente."_s)));
    scrivi("txtRiferimento", u"ORD"_s);
    scrivi("txtDataRif", u"10112026"_s);
    lascia("txtDataRif");
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(avviso(u"Selezionare il codice cliente."_s)));
}

TEST_P(SchermataRiconsegna, IControlliDeiCampiDiRicerca)
{
    apri();
    cliente();
    for (const Qt::Key tastoElenco : {Qt::Key_F9, Qt::Key_F12}) {
        scrivi("txtLDV", u"47A"_s);
        giacenza::scrivi(c("txtDataLdv"), u"12/11/2026"_s);
        tasto("txtLDV", tastoElenco);
        EXPECT_THAT(mMessaggi.prendi(), ElementsAre(avviso(controllaLdv))) << "the number is none";
        scrivi("txtLDV", u"4711"_s);
        giacenza::scrivi(c("txtDataLdv"), u"31/02/2026"_s);
        tasto("txtLDV", tastoElenco);
        EXPECT_THAT(mMessaggi.prendi(), ElementsAre(avviso(controllaLdv))) << "the day is none";
        tasto("txtRiferimento", tastoElenco);
        EXPECT_THAT(mMessaggi.prendi(), ElementsAre(avviso(controllaRif)));
    }
    clicca("cmdCercaLdv");
    clicca("cmdCercaRif");
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(avviso(controllaLdv), avviso(controllaRif)));
}

TEST_P(SchermataRiconsegna, UnGuastoDelDatabaseSiDiceNellaRigaDiStato)
{
    cerca(u"951"_s);
    impostaTraccia([](EventoDati evento, const QString& testo) {
        if (evento == EventoDati::istruzione && testo.startsWith(u"SELECT letve00f"_s))
            throw ErroreDatabase(u"08S01"_s, 1, u"guasto di prova"_s, testo);
    });
    cerca(u"950"_s);
    impostaTraccia({});
    EXPECT_EQ(stato()->text(), u"La connessione con l'archivio è caduta."_s);
    EXPECT_EQ(stato()->toolTip(), u"guasto di prova"_s);
    EXPECT_EQ(mostrato("lblNrGia"), u"51"_s);
    cerca(u"950"_s);
    EXPECT_EQ(mostrato("lblNrGia"), u"50"_s);
}

TEST_P(SchermataRiconsegna, IlCodiceClienteSiControllaConIlTitoloDellaSchermata)
{
    apri();
    scrivi("txtCodiceCli", u"ABC"_s);
    lascia("txtCodiceCli");
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(Messaggio{u"Codice cliente assente o errato"_s, Stile::avviso,
                                                          titoloGestione()}));
    EXPECT_TRUE(c("txtCodiceCli")->hasFocus());
    scrivi("txtCodiceCli", u"9999"_s);
    lascia("txtCodiceCli");
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(Messaggio{u"Codice Cliente Inesistente"_s,
                                                          Stile::informazione, titoloGestione()}));
    scrivi("txtCodiceCli", u"1002"_s);
    lascia("txtCodiceCli");
    EXPECT_EQ(mostrato("barCliente"), u"Oleificio del Garda"_s);
    QTest::keyClick(c("txtCodiceCli"), Qt::Key_Return);
    EXPECT_TRUE(c("cmdCercaCliente")->hasFocus());
}

TEST_P(SchermataRiconsegna, LaFilialeSiControllaComeUnClienteENonToccaAltro)
{
    apri();
    cliente();
    scrivi("txtFilialeGia", u"1002"_s);
    EXPECT_THAT(istruzioni([&] { lascia("txtFilialeGia"); }),
                ElementsAre(u"select RagioneSociale from clien where Codice=1002;"_s));
    EXPECT_EQ(mostrato("barCliente"), u"Ferramenta Lombarda S.r.l."_s);
    EXPECT_EQ(mostrato("barFilialeGia"), QString());
    scrivi("txtFilialeGia", u"77"_s);
    lascia("txtFilialeGia");
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(Messaggio{u"Codice Cliente Inesistente"_s,
                                                          Stile::informazione, titoloGestione()}));
    scrivi("txtFilialeGia", u"BO"_s);
    EXPECT_THAT(istruzioni([&] { lascia("txtFilialeGia"); }), IsEmpty());
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(Messaggio{u"Codice cliente assente o errato"_s, Stile::avviso,
                                                          titoloGestione()}));
    EXPECT_FALSE(c("txtFilialeGia")->hasFocus()) << "a branch's code is no number: the clerk may go on";
    scrivi("txtFilialeGia", {});
    EXPECT_THAT(istruzioni([&] { lascia("txtFilialeGia"); }), IsEmpty());
}

TEST_P(SchermataRiconsegna, LaDataGiacenzaErrataSiRifiuta)
{
    apri();
    scrivi("txtDataGia", u"31022026"_s);
    lascia("txtDataGia");
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(avviso(u"Controllare l'immissione della data giacenza."_s)));
    scrivi("txtDataGia", u"13112026"_s);
    lascia("txtDataGia");
    EXPECT_EQ(mostrato("barGiorniSosta"), u"8"_s);
}

TEST_P(SchermataRiconsegna, UscireChiudeLaConnessioneEAvvisaUnaVolta)
{
    apri();
    QSignalSpy uscite(mSchermata, &Schermata::Uscita);
    int chiusure = 0;
    impostaTraccia([&](EventoDati evento, const QString&) { chiusure += evento == EventoDati::chiusura; });
    scrivi("txtDataGia", u"31022026"_s);
    clicca("cmdEsci");
    impostaTraccia({});
    EXPECT_EQ(uscite.count(), 1);
    EXPECT_EQ(chiusure, 1);
}

} // namespace
