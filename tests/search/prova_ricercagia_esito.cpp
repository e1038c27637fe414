// What the shipment search says, gives back and remembers.

#include "search/bancoricerca.h"

#include "base/orologio.h"
#include "support/stampa.h"
#include "widgets/campodata.h"

#include <QHeaderView>
#include <QLineEdit>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

class RicercaGiaEsito : public BancoRicerca
{};
INSTANTIATE_TEST_SUITE_P(Basi, RicercaGiaEsito, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

namespace {

Messaggio vuoto()
{
    return {messaggioVuoto, Stile::informazione, titoloApplicazione()};
}

} // namespace

TEST_P(RicercaGiaEsito, neiPrimiGiorniDellAnnoLElencoDelleGiacenzeEVuoto)
{
    impostaOggi(QDate(2027, 1, 2));
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::giacenze);
    mostra(dialogo);
    EXPECT_THAT(mMessaggi.messaggi(), ElementsAre(vuoto()));
    EXPECT_EQ(righe(dialogo), u"Nessuna riga"_s);
    EXPECT_EQ(fuoco(dialogo), u"txtAnnoData"_s);
}

TEST_P(RicercaGiaEsito, unElencoVuotoSiDiceAncheDopoVisualizza)
{
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::letteraVettura);
    mostra(dialogo);
    EXPECT_THAT(mMessaggi.messaggi(), IsEmpty());
    scrivi(dialogo, u"txtValore"_s, u"99999"_s);
    premi(dialogo, u"cmdVisualizza"_s);
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(vuoto()));
    EXPECT_FALSE(trova<QPushButton>(dialogo, u"cmdSeleziona"_s)->isEnabled());
    EXPECT_EQ(fuoco(dialogo), u"txtValore"_s);
    scrivi(dialogo, u"txtValore"_s, u"900"_s);
    premi(dialogo, u"cmdVisualizza"_s);
    EXPECT_TRUE(trova<QPushButton>(dialogo, u"cmdSeleziona"_s)->isEnabled());
    EXPECT_EQ(righe(dialogo), u"2 righe"_s);
}

TEST_P(RicercaGiaEsito, senzaValoreNonCercaELoDice)
{
    const std::map<ModoRicerca, QString> attesi{
        {ModoRicerca::letteraVettura, u"Indicare il numero di lettera di vettura."_s},
        {ModoRicerca::riferimento, u"Indicare un riferimento Cliente."_s}};
    for (const auto& [modo, testo] : attesi) {
        frmRicercaGia dialogo;
        prepara(dialogo, modo);
        mostra(dialogo);
        istruzioni();
        for (const QString& valore : {u""_s, u"  "_s}) {
            scrivi(dialogo, u"txtValore"_s, valore);
            premi(dialogo, u"cmdVisualizza"_s);
            EXPECT_THAT(mMessaggi.prendi(),
                        ElementsAre(Messaggio{testo, Stile::informazione, titoloApplicazione()}));
        }
        EXPECT_THAT(istruzioni(), IsEmpty());
        EXPECT_GT(trova<QTableView>(dialogo, u"Griglia"_s)->model()->rowCount(), 0);
    }
}

TEST_P(RicercaGiaEsito, unaDataErrataNonCercaELoDice)
{
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::giacenze);
    mostra(dialogo);
    istruzioni();
    for (const QString& data : {u""_s, u"0104"_s, u"31022026"_s}) {
        scrivi(dialogo, u"txtAnnoData"_s, data);
        premi(dialogo, u"cmdVisualizza"_s);
        EXPECT_THAT(mMessaggi.prendi(), ElementsAre(Messaggio{u"Inserire una data valida."_s, Stile::avviso,
                                                              titoloApplicazione()}))
            << data.toStdString();
    }
    EXPECT_THAT(istruzioni(), IsEmpty());
    EXPECT_EQ(fuoco(dialogo), u"txtAnnoData"_s);
}

TEST_P(RicercaGiaEsito, laRigaSceltaTornaComeSiVede)
{
    struct Caso
    {
        ModoRicerca modo;
        int riga;
        QString numero;
        QString data;
    };
    for (const Caso& caso : {Caso{ModoRicerca::letteraVettura, 1, u"10"_s, u"16/01/2026"_s},
                             Caso{ModoRicerca::riferimento, 2, u"100"_s, u"04/03/2025"_s},
                             Caso{ModoRicerca::giacenze, 0, u"10"_s, u"16/01/2026"_s}}) {
        frmRicercaGia dialogo;
        prepara(dialogo, caso.modo);
        if (caso.modo == ModoRicerca::riferimento)
            dialogo.setRiferimentoCliente(u"RIF-A"_s);
        mostra(dialogo);
        auto* griglia = trova<QTableView>(dialogo, u"Griglia"_s);
        griglia->selectRow(caso.riga);
        // What is hidden or moved changes nothing.
        griglia->setColumnHidden(0, true);
        griglia->horizontalHeader()->moveSection(1, 5);
        premi(dialogo, u"cmdSeleziona"_s);
        EXPECT_TRUE(dialogo.accettato());
        EXPECT_EQ(dialogo.result(), QDialog::Accepted);
        EXPECT_EQ(dialogo.NumLetVett(), caso.numero);
        EXPECT_EQ(dialogo.DataLetVett(), caso.data);
    }
}

TEST_P(RicercaGiaEsito, diNuovoApertaNonMostraNullaDiPrima)
{
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::riconsegne);
    mostra(dialogo);
    dialogo.close();
    prepara(dialogo, ModoRicerca::letteraVettura);
    dialogo.setNumLetVett(u"950"_s);
    dialogo.setAnnoOdata(u"2026"_s);
    dialogo.setTitolo(u"Seconda"_s);
    mostra(dialogo);
    EXPECT_EQ(dialogo.windowTitle(), u"Seconda"_s);
    EXPECT_THAT(colonna(dialogo, u"Num_Ldv"_s), ElementsAre(u"950"_s));
    EXPECT_TRUE(trova<QLineEdit>(dialogo, u"txtValore"_s)->isVisible());
    EXPECT_EQ(trova<QPushButton>(dialogo, u"cmdSeleziona"_s)->text(), u"&Seleziona"_s);
    premi(dialogo, u"cmdSeleziona"_s);
    EXPECT_TRUE(dialogo.accettato());

    prepara(dialogo, ModoRicerca::giacenze);
    dialogo.setCodiceCliente(u"1002"_s);
    dialogo.setAnnoOdata({});
    mostra(dialogo);
    EXPECT_FALSE(dialogo.accettato());
    EXPECT_EQ(trova<QTableView>(dialogo, u"Griglia"_s)->model()->rowCount(), 0);
    EXPECT_EQ(trova<QLineEdit>(dialogo, u"txtValore"_s)->text(), QString());
    EXPECT_EQ(trova<CampoData>(dialogo, u"txtAnnoData"_s)->testo(), QString());
    EXPECT_EQ(trova<QLabel>(dialogo, u"lblAnno"_s)->text(), u"Data :"_s);
    EXPECT_FALSE(trova<QPushButton>(dialogo, u"cmdSeleziona"_s)->isEnabled());
    EXPECT_THAT(mMessaggi.messaggi(), ElementsAre(vuoto()));
    dialogo.close();
    // The number of the row taken before is the caller's now.
    EXPECT_EQ(dialogo.NumLetVett(), u"950"_s);
}

TEST_P(RicercaGiaEsito, leRigheSiContanoMentreSiLeggono)
{
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::letteraVettura);
    dialogo.setCodiceCliente(u"3000"_s);
    mostra(dialogo);
    EXPECT_EQ(righe(dialogo), u"256 righe lette, continua…"_s);
    EXPECT_EQ(aperte(), GetParam() == "mariadb" ? 0 : 1);
    auto* griglia = trova<QTableView>(dialogo, u"Griglia"_s);
    for (int pagina = 0; pagina < 4; ++pagina) {
        QTest::keyClick(griglia, Qt::Key_End, Qt::ControlModifier);
        griglia->model()->fetchMore({});
    }
    EXPECT_EQ(righe(dialogo), u"1.204 righe"_s);
    EXPECT_EQ(aperte(), 0);
}

TEST_P(RicercaGiaEsito, leColonneCambiateSiRicordanoPerOgniModo)
{
    const auto larghezza = [](frmRicercaGia& dialogo) {
        return trova<QTableView>(dialogo, u"Griglia"_s)->columnWidth(1);
    };
    int propria = 0;
    {
        frmRicercaGia dialogo;
        prepara(dialogo, ModoRicerca::letteraVettura);
        mostra(dialogo);
        propria = larghezza(dialogo);
        trova<QTableView>(dialogo, u"Griglia"_s)->setColumnWidth(1, propria + 77);
        scrivi(dialogo, u"txtValore"_s, u"9"_s);
        premi(dialogo, u"cmdVisualizza"_s);
        EXPECT_EQ(larghezza(dialogo), propria + 77);
        dialogo.close();
    }
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::letteraVettura);
    mostra(dialogo);
    EXPECT_EQ(larghezza(dialogo), propria + 77);
    dialogo.close();
    prepara(dialogo, ModoRicerca::riconsegne);
    mostra(dialogo);
    EXPECT_EQ(larghezza(dialogo), propria);
    dialogo.close();
}

TEST_P(RicercaGiaEsito, dopoUnElencoVuotoLeColonneSiMisuranoSulleRighe)
{
    for (const bool cambiata : {false, true}) {
        frmRicercaGia dialogo;
        prepara(dialogo, ModoRicerca::riferimento);
        dialogo.setRiferimentoCliente(u"zzz"_s);
        mostra(dialogo);
        ASSERT_THAT(mMessaggi.prendi(), ElementsAre(vuoto()));
        auto* testata = trova<QTableView>(dialogo, u"Griglia"_s)->horizontalHeader();
        const int vuota = testata->sectionSize(3);
        if (cambiata)
            testata->resizeSection(2, testata->sectionSize(2) + 1);
        scrivi(dialogo, u"txtValore"_s, u"RIF"_s);
        premi(dialogo, u"cmdVisualizza"_s);
        ASSERT_GT(trova<QTableView>(dialogo, u"Griglia"_s)->model()->rowCount(), 0);
        EXPECT_EQ(testata->sectionSize(3) > vuota, !cambiata);
    }
}
