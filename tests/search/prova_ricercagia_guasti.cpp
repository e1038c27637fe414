// The shipment search when the database does not answer, and when it is closed at the wrong moment.

#include "search/bancoricerca.h"

#include "base/impostazioni.h"
#include "support/cadute.h"
#include "support/stampa.h"

#include <QGuiApplication>
#include <QLineEdit>
#include <QPointer>
#include <QTimer>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

class RicercaGiaGuasti : public BancoRicerca
{};
INSTANTIATE_TEST_SUITE_P(Basi, RicercaGiaGuasti, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(RicercaGiaGuasti, unClienteNonNumericoDaLElencoVuoto)
{
    for (const QString& codice : {u"ABC"_s, u""_s, u"1001 or 1=1"_s}) {
        frmRicercaGia dialogo;
        prepara(dialogo, ModoRicerca::letteraVettura);
        dialogo.setCodiceCliente(codice);
        mostra(dialogo);
        EXPECT_THAT(istruzioni(), IsEmpty());
        EXPECT_THAT(mMessaggi.prendi(),
                    ElementsAre(Messaggio{messaggioVuoto, Stile::informazione, titoloApplicazione()}));
        EXPECT_TRUE(righe(dialogo).startsWith(u"Ricerca non riuscita: "_s)) << righe(dialogo).toStdString();
    }
}

TEST_P(RicercaGiaGuasti, unModoCheNonCEDaLElencoVuoto)
{
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::letteraVettura);
    dialogo.setTipoRicerca(3);
    mostra(dialogo);
    EXPECT_THAT(istruzioni(), IsEmpty());
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(messaggioVuoto));
    EXPECT_EQ(righe(dialogo), u"Ricerca non riuscita: Il tipo di ricerca 3 non esiste."_s);
}

TEST_P(RicercaGiaGuasti, senzaDatabaseDaLElencoVuotoEPoiRiprende)
{
    impostazioni().percorsoDatabase = u"DRIVER={nessuno}"_s;
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::letteraVettura);
    mostra(dialogo);
    EXPECT_THAT(mMessaggi.prendi().size(), 1U);
    EXPECT_FALSE(trova<QPushButton>(dialogo, u"cmdSeleziona"_s)->isEnabled());
    impostazioni().percorsoDatabase = base().stringa();
    scrivi(dialogo, u"txtValore"_s, u"9"_s);
    premi(dialogo, u"cmdVisualizza"_s);
    EXPECT_EQ(righe(dialogo), u"5 righe"_s);
    EXPECT_GT(trova<QTableView>(dialogo, u"Griglia"_s)->columnWidth(5), 100);
}

TEST_P(RicercaGiaGuasti, unIstruzioneFallitaSvuotaLElencoEChiude)
{
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::letteraVettura);
    dialogo.setCodiceCliente(u"2000"_s);
    mostra(dialogo);
    primaDi([] { throw ErroreDatabase(u"HYT00"_s, 0, u"Tempo scaduto"_s); });
    scrivi(dialogo, u"txtValore"_s, u"1001"_s);
    premi(dialogo, u"cmdVisualizza"_s);
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(messaggioVuoto));
    EXPECT_EQ(righe(dialogo), u"Ricerca non riuscita: L'archivio non ha risposto in tempo."_s);
    EXPECT_EQ(trova<QLabel>(dialogo, u"lblRighe"_s)->toolTip(), u"Tempo scaduto"_s) << "the driver's words";
    EXPECT_EQ(trova<QTableView>(dialogo, u"Griglia"_s)->model()->rowCount(), 0);
    EXPECT_EQ(aperte(), 0);
}

TEST_P(RicercaGiaGuasti, unAttesaSiVedeNellaRigaDelleRighe)
{
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::letteraVettura);
    mostra(dialogo);
    QString durante;
    primaDi([&] { durante = righe(dialogo); });
    scrivi(dialogo, u"txtValore"_s, u"9"_s);
    premi(dialogo, u"cmdVisualizza"_s);
    EXPECT_EQ(durante, u"Attendo l'archivio…"_s);
    EXPECT_EQ(righe(dialogo), u"5 righe"_s);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_P(RicercaGiaGuasti, siPuoChiudereODistruggereDuranteIlMessaggio)
{
    for (const bool distrugge : {false, true}) {
        QPointer<frmRicercaGia> dialogo = new frmRicercaGia;
        prepara(*dialogo, ModoRicerca::letteraVettura);
        dialogo->setCodiceCliente(u"9999"_s);
        mMessaggi.mentreAperto([&](QWidget*, const Messaggio&) {
            if (distrugge)
                delete dialogo.data();
            else
                dialogo->close();
        });
        dialogo->exec();
        EXPECT_THAT(mMessaggi.prendi().size(), 1U);
        EXPECT_EQ(dialogo.isNull(), distrugge);
        delete dialogo.data();
    }
    EXPECT_EQ(aperte(), 0);
}

TEST_P(RicercaGiaGuasti, chiusaPrimaDelMessaggioNonLoMostra)
{
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::letteraVettura);
    dialogo.setCodiceCliente(u"9999"_s);
    dialogo.show();
    dialogo.close();
    QCoreApplication::processEvents();
    EXPECT_THAT(mMessaggi.messaggi(), IsEmpty());
}

TEST_P(RicercaGiaGuasti, laFinestraPadrePuoSparire)
{
    auto padre = std::make_unique<QWidget>();
    padre->show();
    const QPointer<frmRicercaGia> dialogo = new frmRicercaGia(padre.get());
    prepara(*dialogo, ModoRicerca::letteraVettura);
    dialogo->setCodiceCliente(u"2000"_s);
    QTimer::singleShot(0, dialogo, [&] { padre.reset(); });
    EXPECT_EQ(dialogo->exec(), QDialog::Rejected);
    EXPECT_TRUE(dialogo.isNull());
    EXPECT_EQ(aperte(), 0);
}

class RicercaGiaSqlite : public RicercaGiaGuasti
{};
INSTANTIATE_TEST_SUITE_P(Basi, RicercaGiaSqlite, testing::Values("sqlite"),
                         nomeBase<testing::TestParamInfo<std::string>>);

// A view in the place of the waybills that fails on the 300th row read: held shipments are listed without an
// order, so this database works each row out as it is read.
TEST_P(RicercaGiaSqlite, unaLetturaInterrottaTieneLeRigheELoDiceUnaVolta)
{
    const BancaDati guasta("sqlite");
    guasta.esegui(
        u"drop table letve00f;\n"
        "create view letve00f as with recursive n(i) as (select 1 union all select i+1 from n where "
        "i<600) select 'MI' as lefili, cast(i as text) as lenrlv, 2026 as leanlv, '2026-01-15' as "
        "ledtlv, cast(1001 as integer) as lecodi, case i when 300 then abs(-9223372036854775808) else 'D' "
        "end as "
        "ledest, 'R' as lerife, null as lerifd from n;\n"
        "insert into giace00f (GIFILI, GINRLV, GIANLV, GICODI, GINRGI, GIANGI, GIDTGI) "
        "with recursive n(i) as (select 1 union all select i+1 from n where i<600) "
        "select 'MI', cast(i as text), 2026, 1001, cast(i as text), 2026, '2026-02-01' from n;\n"_s);
    impostazioni().percorsoDatabase = guasta.stringa();
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::giacenze);
    mostra(dialogo);
    EXPECT_EQ(righe(dialogo), u"256 righe lette, continua…"_s);
    auto* griglia = trova<QTableView>(dialogo, u"Griglia"_s);
    for (int volta = 0; volta < 5; ++volta) {
        QTest::keyClick(griglia, Qt::Key_End, Qt::ControlModifier);
        griglia->model()->fetchMore({});
        QCoreApplication::processEvents();
    }
    ASSERT_EQ(mMessaggi.messaggi().size(), 1U);
    EXPECT_EQ(mMessaggi.messaggi()[0].testo,
              u"La lettura dell'elenco si è interrotta: restano le righe già lette.\n\n"
              "L'archivio ha rifiutato l'operazione."_s);
    EXPECT_EQ(mMessaggi.messaggi()[0].stile, Stile::critico);
    EXPECT_EQ(righe(dialogo),
              u"299 righe lette, lettura interrotta: L'archivio ha rifiutato l'operazione."_s);
    EXPECT_TRUE(trova<QLabel>(dialogo, u"lblRighe"_s)->toolTip().contains(u"overflow"_s))
        << "the driver's words";
    EXPECT_EQ(aperte(), 0);
    QTest::keyClick(griglia, Qt::Key_End, Qt::ControlModifier);
    tasto(dialogo, Qt::Key_Return);
    EXPECT_TRUE(dialogo.accettato());
    EXPECT_EQ(dialogo.NumLetVett(), u"299"_s);
}

class RicercaGiaMariadb : public RicercaGiaGuasti
{};
INSTANTIATE_TEST_SUITE_P(Basi, RicercaGiaMariadb, testing::Values("mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(RicercaGiaMariadb, unaConnessioneUccisaPrimaDellIstruzioneDaLElencoVuotoEPoiRiprende)
{
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::letteraVettura);
    primaDi([this] {
        primaDi({});
        interrompi(base());
    });
    mostra(dialogo);
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(Messaggio{messaggioVuoto, Stile::informazione, titoloApplicazione()}));
    EXPECT_TRUE(righe(dialogo).startsWith(u"Ricerca non riuscita: "_s));
    EXPECT_EQ(aperte(), 0);
    scrivi(dialogo, u"txtValore"_s, u"9"_s);
    premi(dialogo, u"cmdVisualizza"_s);
    EXPECT_EQ(righe(dialogo), u"5 righe"_s);
}

TEST_P(RicercaGiaMariadb, unaConnessioneUccisaTraDuePagineNonFermaLOperatore)
{
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::letteraVettura);
    dialogo.setCodiceCliente(u"2000"_s);
    mostra(dialogo);
    interrompi(base());
    auto* griglia = trova<QTableView>(dialogo, u"Griglia"_s);
    for (int pagina = 0; pagina < 3; ++pagina)
        griglia->model()->fetchMore({});
    EXPECT_EQ(righe(dialogo), u"600 righe"_s);
    scrivi(dialogo, u"txtValore"_s, u"1599"_s);
    premi(dialogo, u"cmdVisualizza"_s);
    EXPECT_EQ(righe(dialogo), u"2 righe"_s);
}
