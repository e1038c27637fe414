// What the shipment search lists, says and gives back.

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

class RicercaGia : public BancoRicerca
{};
INSTANTIATE_TEST_SUITE_P(Basi, RicercaGia, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

namespace {

Messaggio vuoto()
{
    return {messaggioVuoto, Stile::informazione, titoloApplicazione()};
}

const QString elencoLettere =
    u"select lenrlv as Num_Ldv, ledtlv as Data_Emissione, leflbc as Bord_Inv, lerife as Numero_Rif, "
    "lerifd as Data_Rif, ledest as Destinatario,  ginrgi as Num_Giac, giangi as Anno_giac, lerico as "
    "Riconsegna from letve00f left join giace00f on lefili=gifili and lenrlv=ginrlv and leanlv=gianlv where "
    "lecodi=1001 and "_s;

const QString elencoGiacenze =
    u"select ginrlv, ledtlv, Ginrgi as Giacenza, gidtgi as Data_Giac, gicodi as cod_cliente, Lerife as "
    "Rif_Mitt, Lerifd as Data_Rif_Mitt,ledest as Destinatario, GIDTBF as Buon_Fine FROM giace00f INNER join "
    "letve00f on gifili=lefili and ginrlv=lenrlv and gianlv=leanlv where "_s;

} // namespace

TEST_P(RicercaGia, perLetteraDiVettura)
{
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::letteraVettura);
    mostra(dialogo);
    EXPECT_THAT(istruzioni(), ElementsAre(elencoLettere + u"lefili='MI' and LENRLV>='' ORDER BY "
                                                          "CAST(lenrlv as unsigned), leanlv;"_s));
    EXPECT_EQ(dialogo.windowTitle(), u"Ricerca di prova"_s);
    EXPECT_EQ(trova<QLabel>(dialogo, u"lblRif"_s)->text(), u"Num. LDV"_s);
    EXPECT_EQ(trova<QLabel>(dialogo, u"lblCliente"_s)->text(), u"ALFA & BETA S.R.L."_s);
    EXPECT_EQ(trova<QLabel>(dialogo, u"lblAnno"_s)->text(), u"Anno :"_s);
    EXPECT_EQ(trova<QPushButton>(dialogo, u"cmdSeleziona"_s)->text(), u"&Seleziona"_s);
    EXPECT_THAT(didascalieVisibili(dialogo),
                ElementsAre(u"Num_Ldv"_s, u"Data_Emissione"_s, u"Bord_Inv"_s, u"Numero_Rif"_s, u"Data_Rif"_s,
                            u"Destinatario"_s, u"Num_Giac"_s, u"Anno_giac"_s, u"Riconsegna"_s));
    EXPECT_THAT(colonna(dialogo, u"Num_Ldv"_s), ElementsAre(u"9"_s, u"10"_s, u"100"_s, u"900"_s, u"950"_s));
    EXPECT_THAT(
        colonna(dialogo, u"Data_Emissione"_s),
        ElementsAre(u"15/01/2026"_s, u"16/01/2026"_s, u"04/03/2025"_s, u"06/05/2025"_s, u"10/02/2026"_s));
    EXPECT_THAT(colonna(dialogo, u"Bord_Inv"_s), ElementsAre(u"*"_s, u""_s, u""_s, u""_s, u"*"_s));
    EXPECT_THAT(colonna(dialogo, u"Destinatario"_s),
                ElementsAre(u"ROSSI MARIO"_s, u"BIANCHI & C."_s, u"VERDI"_s, u""_s, u"D'AMICO 🚚"_s));
    EXPECT_THAT(colonna(dialogo, u"Num_Giac"_s), ElementsAre(u""_s, u"42"_s, u"7"_s, u""_s, u""_s));
    EXPECT_THAT(colonna(dialogo, u"Riconsegna"_s), ElementsAre(u""_s, u""_s, u"R"_s, u""_s, u"R"_s));
    EXPECT_EQ(righe(dialogo), u"5 righe"_s);
    EXPECT_EQ(aperte(), 0);
}

TEST_P(RicercaGia, ilNumeroIniziaComeTestoEPoiComeNumero)
{
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::letteraVettura);
    dialogo.setNumLetVett(u"9"_s);
    mostra(dialogo);
    EXPECT_EQ(trova<QLineEdit>(dialogo, u"txtValore"_s)->text(), u"9"_s);
    EXPECT_THAT(istruzioni(), ElementsAre(elencoLettere + u"lefili='MI' and LENRLV>='9' ORDER BY "
                                                          "CAST(lenrlv as unsigned), leanlv;"_s));
    EXPECT_THAT(colonna(dialogo, u"Num_Ldv"_s), ElementsAre(u"9"_s, u"900"_s, u"950"_s));
    premi(dialogo, u"cmdVisualizza"_s);
    EXPECT_THAT(istruzioni(), ElementsAre(elencoLettere + u"cast(lenrlv as unsigned) >=9 and lefili='MI' "
                                                          "ORDER BY CAST(lenrlv as unsigned), leanlv;"_s));
    EXPECT_THAT(colonna(dialogo, u"Num_Ldv"_s), ElementsAre(u"9"_s, u"10"_s, u"100"_s, u"900"_s, u"950"_s));
}

TEST_P(RicercaGia, perLetteraDiVetturaEAnno)
{
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::letteraVettura);
    dialogo.setAnnoOdata(u"2025"_s);
    mostra(dialogo);
    EXPECT_THAT(istruzioni(), ElementsAre(elencoLettere + u"lefili='MI' and LENRLV>='' and LEANLV=2025 "
                                                          "ORDER BY CAST(lenrlv as unsigned), leanlv;"_s));
    EXPECT_THAT(colonna(dialogo, u"Num_Ldv"_s), ElementsAre(u"100"_s, u"900"_s));
    EXPECT_EQ(trova<QLineEdit>(dialogo, u"txtAnnoData"_s)->text(), u"2025"_s);
    scrivi(dialogo, u"txtValore"_s, u" 10 "_s);
    scrivi(dialogo, u"txtAnnoData"_s, u"20x26"_s);
    premi(dialogo, u"cmdVisualizza"_s);
    EXPECT_THAT(istruzioni(),
                ElementsAre(elencoLettere + u"cast(lenrlv as unsigned) >=10 and leanlv>='2026' and "
                                            "lefili='MI' ORDER BY CAST(lenrlv as unsigned), leanlv;"_s));
    EXPECT_THAT(colonna(dialogo, u"Num_Ldv"_s), ElementsAre(u"10"_s, u"950"_s));
}

TEST_P(RicercaGia, unaDataConsegnataNonRestringeLeLettere)
{
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::letteraVettura);
    dialogo.setAnnoOdata(u"16/01/2026"_s);
    mostra(dialogo);
    EXPECT_EQ(righe(dialogo), u"5 righe"_s);
    EXPECT_EQ(trova<QLineEdit>(dialogo, u"txtAnnoData"_s)->text(), QString());
}

TEST_P(RicercaGia, perRiferimento)
{
    const QString elenco =
        u"select lenrlv, leflbc as Bord_Inv, lerife as Numero_Rif, lerifd as Data_Rif, ledest as "
        "Destinatario, ledtlv as Data_Emissione, ginrgi as Num_Giac, giangi as Anno_giac,lerico as "
        "Riconsegna  from letve00f left join giace00f on lefili=gifili and lenrlv=ginrlv and "
        "leanlv=gianlv where lecodi=1001 and "_s;
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::riferimento);
    dialogo.setRiferimentoCliente(u"RIF-B"_s);
    mostra(dialogo);
    EXPECT_THAT(istruzioni(),
                ElementsAre(elenco + u"LERIFE>='RIF-B' and lefili='MI' ORDER BY lerife, ledtlv;"_s));
    EXPECT_EQ(trova<QLineEdit>(dialogo, u"txtValore"_s)->text(), u"RIF-B"_s);
    EXPECT_THAT(didascalieVisibili(dialogo),
                ElementsAre(u"Num_Ldv"_s, u"Bord_Inv"_s, u"Numero_Rif"_s, u"Data_Rif"_s, u"Destinatario"_s,
                            u"Data_Emissione"_s, u"Num_Giac"_s, u"Anno_giac"_s, u"Riconsegna"_s));
    EXPECT_THAT(colonna(dialogo, u"Num_Ldv"_s), ElementsAre(u"10"_s, u"100"_s, u"950"_s));
    scrivi(dialogo, u"txtValore"_s, u"RIF-C"_s);
    premi(dialogo, u"cmdVisualizza"_s);
    EXPECT_THAT(istruzioni(),
                ElementsAre(u"select lenrlv, leflbc as Bord_Inv, lerife as Numero_Rif, lerifd as Data_Rif, "
                            "ledest as Destinatario, ledtlv as Data_Emissione, ginrgi as Num_Giac, giangi as "
                            "Anno_giac, lerico as Riconsegna  from letve00f left join giace00f on "
                            "lefili=gifili and lenrlv=ginrlv and leanlv=gianlv where lecodi=1001 and lerife "
                            ">='RIF-C' and lefili='MI' ORDER BY lerife, ledtlv;"_s));
    EXPECT_THAT(colonna(dialogo, u"Num_Ldv"_s), ElementsAre(u"100"_s, u"950"_s));
}

TEST_P(RicercaGia, perRiferimentoEAnno)
{
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::riferimento);
    dialogo.setAnnoOdata(u"2025"_s);
    mostra(dialogo);
    EXPECT_THAT(istruzioni().value(0),
                testing::ResultOf([](const QString& testo) { return testo.toStdString(); },
                                  testing::EndsWith("and LERIFE>='' and year(LERIFD)=2025 and lefili='MI' "
                                                    "ORDER BY lerife, ledtlv;")));
    EXPECT_THAT(colonna(dialogo, u"Num_Ldv"_s), ElementsAre(u"10"_s, u"100"_s));
    const auto* anno = trova<QLineEdit>(dialogo, u"txtAnnoData"_s);
    EXPECT_EQ(anno->text(), u"2025"_s);
    EXPECT_FALSE(anno->isEnabled());
    scrivi(dialogo, u"txtValore"_s, u"RIF-A"_s);
    premi(dialogo, u"cmdVisualizza"_s);
    EXPECT_EQ(anno->text(), QString());
    EXPECT_EQ(righe(dialogo), u"4 righe"_s);
}

TEST_P(RicercaGia, leRiconsegneDiUnaGiacenzaSiGuardanoSoltanto)
{
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::riconsegne);
    dialogo.setNumLetVett(u"10"_s);
    dialogo.setDataLetVett(u"16/01/2026"_s);
    mostra(dialogo);
    EXPECT_THAT(istruzioni(),
                ElementsAre(u"SELECT lenrlv as Num_Ldv, ledtlv as Data_Emissione, leflbc as Bord_Inv, lerife "
                            "as Numero_Rif, lerifd as Data_Rif, ledest as Destinatario, lerico as Riconsegna "
                            "from (letve00f inner JOIN giace00f on lefili=gifili and lerfgi=ginrgi and "
                            "leangi=giangi) where ginrgi='42' and giangi=2026;"_s));
    EXPECT_THAT(didascalieVisibili(dialogo),
                ElementsAre(u"Num_Ldv"_s, u"Data_Emissione"_s, u"Bord_Inv"_s, u"Numero_Rif"_s, u"Data_Rif"_s,
                            u"Destinatario"_s, u"Riconsegna"_s));
    EXPECT_THAT(colonna(dialogo, u"Num_Ldv"_s), ElementsAre(u"950"_s));
    EXPECT_EQ(righe(dialogo), u"1 riga"_s);
    for (const QString& nome :
         {u"lblRif"_s, u"txtValore"_s, u"lblAnno"_s, u"txtAnnoData"_s, u"cmdVisualizza"_s})
        EXPECT_FALSE(trova<QWidget>(dialogo, nome)->isVisible()) << nome.toStdString();
    EXPECT_EQ(trova<QPushButton>(dialogo, u"cmdSeleziona"_s)->text(), u"&Esci"_s);
    premi(dialogo, u"cmdSeleziona"_s);
    EXPECT_FALSE(dialogo.isVisible());
    EXPECT_FALSE(dialogo.accettato());
    EXPECT_EQ(dialogo.NumLetVett(), u"10"_s);
    EXPECT_EQ(dialogo.DataLetVett(), u"16/01/2026"_s);
}

TEST_P(RicercaGia, leGiacenzeDiQuestAnnoEPoiDaUnaData)
{
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::giacenze);
    mostra(dialogo);
    EXPECT_THAT(istruzioni(), ElementsAre(elencoGiacenze + u"giangi=2026 and letve00f.lecodi='1001';"_s));
    EXPECT_EQ(trova<QLabel>(dialogo, u"lblAnno"_s)->text(), u"Data :"_s);
    EXPECT_FALSE(trova<QLineEdit>(dialogo, u"txtValore"_s)->isEnabled());
    EXPECT_THAT(didascalieVisibili(dialogo),
                ElementsAre(u"Giacenza"_s, u"Data_Giac"_s, u"cod_cliente"_s, u"Rif_Mitt"_s,
                            u"Data_Rif_Mitt"_s, u"Destinatario"_s, u"Buon_Fine"_s));
    EXPECT_THAT(colonna(dialogo, u"Giacenza"_s), ElementsAre(u"42"_s));
    scrivi(dialogo, u"txtAnnoData"_s, u"01042025"_s);
    premi(dialogo, u"cmdVisualizza"_s);
    EXPECT_THAT(istruzioni(),
                ElementsAre(elencoGiacenze + u"letve00f.Lecodi='1001' and gidtgi>='2025-04-01';"_s));
    EXPECT_THAT(colonna(dialogo, u"Giacenza"_s), testing::UnorderedElementsAre(u"42"_s, u"7"_s));
    EXPECT_THAT(colonna(dialogo, u"Buon_Fine"_s), testing::UnorderedElementsAre(u""_s, u"20/04/2025"_s));
}

TEST_P(RicercaGia, neiPrimiGiorniDellAnnoLElencoDelleGiacenzeEVuoto)
{
    impostaOggi(QDate(2027, 1, 2));
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::giacenze);
    mostra(dialogo);
    EXPECT_THAT(mMessaggi.messaggi(), ElementsAre(vuoto()));
    EXPECT_EQ(righe(dialogo), u"Nessuna riga"_s);
    EXPECT_EQ(fuoco(dialogo), u"txtAnnoData"_s);
}

TEST_P(RicercaGia, unElencoVuotoSiDiceAncheDopoVisualizza)
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

TEST_P(RicercaGia, senzaValoreNonCercaELoDice)
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

TEST_P(RicercaGia, unaDataErrataNonCercaELoDice)
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

TEST_P(RicercaGia, laRigaSceltaTornaComeSiVede)
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

TEST_P(RicercaGia, diNuovoApertaNonMostraNullaDiPrima)
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

TEST_P(RicercaGia, leRigheSiContanoMentreSiLeggono)
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

TEST_P(RicercaGia, leColonneCambiateSiRicordanoPerOgniModo)
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

TEST_P(RicercaGia, dopoUnElencoVuotoLeColonneSiMisuranoSulleRighe)
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
