// Files, papers and the desk under one locale; tests/dintorni/prova_locali holds the outcome against the
// others'.

#include "dintorni/racconto.h"

#include "base/cartellaprova.h"
#include "base/lettoreini.h"
#include "desk-documenti/depositodesk.h"
#include "desk/deskdiprova.h"
#include "desk/documenti/serieestratti.h"
#include "host/avvio/vociimpostazioni.h"
#include "reports/casodiprova.h"
#include "reports/letters/fontedocumenti.h"
#include "stampa/modulodeposito.h"
#include "widgets/naturamerce.h"

#include <QComboBox>
#include <QHeaderView>
#include <QProcess>

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;

namespace {

class LocaliFile : public CartellaProva
{};

TEST_F(LocaliFile, Impostazioni)
{
    const QString file = percorso(u"gest.ini"_s);
    scrivi(u"gest.ini"_s, "[DLLSTAMPE]\nIDENTIFICATIVODLL=Vini\n[lettere]\nINTESTAZIONE1=Città İ ı I i\n");
    EXPECT_EQ(LettoreIniProprio().leggi(file, u"DLLStampe"_s, u"IdentificativoDll"_s), u"Vini"_s);
    std::vector<QString> valori = deposito::leggiImpostazioni(file);
    QStringList letti(valori.begin(), valori.end());
    racconta(u"lette"_s, letti);
    for (std::size_t i = 0; i < valori.size(); ++i)
        valori[i] = valori[i].isEmpty() ? u"Iniziale %1,5 ı"_s.arg(i) : valori[i];
    EXPECT_EQ(deposito::scriviImpostazioni(file, valori), QString());
    EXPECT_EQ(deposito::leggiImpostazioni(file), valori);
    racconta(u"scritte"_s, leggi(u"gest.ini"_s));
}

TEST_F(LocaliFile, ListaDelleMerci)
{
    QComboBox elenco;
    elenco.setEditable(true);
    for (const QString& merce : {u"vini liguri"_s, u"caffè"_s, u"Zinco"_s, u"çelik"_s}) {
        elenco.setEditText(merce);
        AggiungiNaturaMerce(&elenco);
    }
    elenco.setEditText(u"VINI liguri"_s);
    AggiungiNaturaMerce(&elenco);
    EXPECT_EQ(mRegistro.testi().size(), 1) << "it is there already";
    EXPECT_EQ(leggi(u"listbox.dat"_s), "VEDI DDT\nVINI LIGURI\nCAFFÈ\nZINCO\nÇELIK\n");
    racconta(u"lista"_s, leggi(u"listbox.dat"_s));
}

class LocaliPdf : public CartellaProva, public testing::WithParamInterface<std::string>
{
protected:
    BancaDati mBase{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Basi, LocaliPdf, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(LocaliPdf, AvvisoEBuonFine)
{
    aggiungiCaso(mBase);
    for (const TipoDocumento tipo : {TipoDocumento::avviso, TipoDocumento::buonFine}) {
        const RichiestaDocumento richiesta = richiestaDelCaso(mBase, tipo);
        stampa::ModuloDeposito modulo;
        collegaFonte(modulo, nullptr);
        modulo.setPercorsoDatabase(richiesta.percorsoDatabase);
        modulo.setDidascalie(richiesta.didascalie);
        modulo.setStampa(true);
        modulo.setTipoDocumento(tipo);
        bool nonProdotto = true;
        modulo.stampaDocumento(u"1234_2015"_s, nonProdotto);
        EXPECT_FALSE(nonProdotto);
    }
    const QString avviso = testoPdf(percorso(u"documenti/1234_2015.pdf"_s));
    EXPECT_TRUE(avviso.contains(u"12.345,60 €"_s)) << avviso.toStdString();
    racconta(u"avviso"_s, avviso);
    racconta(u"buon fine"_s, testoPdf(percorso(u"documenti/1234_2015_buonfine.pdf"_s)));
}

class LocaliEstratti : public DepositoDesk
{
protected:
    static QByteArray byte(const QString& file)
    {
        QFile aperto(file);
        EXPECT_TRUE(aperto.open(QIODevice::ReadOnly)) << file.toStdString();
        return aperto.readAll();
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, LocaliEstratti, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(LocaliEstratti, InTreForme)
{
    Connessione connessione = mBase.connessione();
    documenti::SerieEstratti serie(mBase.accesso(), documenti::clientiConAperte(connessione),
                                   {{}, QDate(2026, 11, 1), QDate(2026, 11, 30), mOggi}, {true, true, true},
                                   carta(), mCartella.path());
    while (!serie.finita())
        serie.avanti();
    racconta(u"file"_s, salvati());
    ASSERT_EQ(salvati().size(), 6);
    for (const QString& nome : salvati()) {
        const QString file = mCartella.filePath(nome);
        if (nome.endsWith(u".pdf"_s))
            racconta(nome, testoPdf(file));
        else if (nome.endsWith(u".csv"_s))
            racconta(nome, byte(file));
        else
            for (const QString& parte :
                 {u"xl/worksheets/sheet1.xml"_s, u"xl/sharedStrings.xml"_s, u"xl/styles.xml"_s}) {
                const QTemporaryDir posto;
                QProcess apri;
                apri.setWorkingDirectory(posto.path());
                apri.start(u"cmake"_s, {u"-E"_s, u"tar"_s, u"xf"_s, file});
                ASSERT_TRUE(apri.waitForFinished());
                racconta(nome + u' ' + parte, byte(posto.filePath(parte)));
            }
    }
}

class LocaliDesk : public DeskDiProva
{};

INSTANTIATE_TEST_SUITE_P(Basi, LocaliDesk, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(LocaliDesk, ElencoInOgniOrdineECaso)
{
    mBase.esegui(u"update letve00f set ledest='Iris', lelocd='İstia' where lenrlv='4721';\n"
                 "update letve00f set ledest='ilario', lelocd='istia' where lenrlv='4722';\n"
                 "update letve00f set ledest='Zeta', lelocd='Çelle' where lenrlv='4723';\n"
                 "update letve00f set ledest='élite', lelocd='Istia' where lenrlv='4724';"_s);
    apriDesk();
    attendiElenco();
    ASSERT_EQ(elenco()->model()->rowCount(), 5);
    for (int quale = 0; quale < elenco()->model()->columnCount(); ++quale)
        for (const Qt::SortOrder verso : {Qt::AscendingOrder, Qt::DescendingOrder}) {
            elenco()->sortByColumn(quale, verso);
            racconta(u"ordine %1 %2"_s.arg(quale).arg(verso), colonna(elenco(), 1));
        }
    elenco()->sortByColumn(1, Qt::AscendingOrder);
    QStringList tutte;
    for (int quale = 0; quale < elenco()->model()->columnCount(); ++quale)
        tutte << colonna(elenco(), quale).join(u'|');
    racconta(u"elenco"_s, tutte);
    auto* filtro = figlio<QLineEdit>(u"txtFiltro");
    QStringList filtrate;
    for (const QString& parole : {u"ISTIA"_s, u"istia"_s, u"iris"_s, u"ILARIO"_s}) {
        filtro->setText(parole);
        filtrate << parole + u": "_s + colonna(elenco(), 1).join(u' ');
    }
    racconta(u"filtri"_s, filtrate);
    filtro->clear();
    mDesk->setFocus();
    scansiona(u"42/2026"_s);
    EXPECT_EQ(pagina(), u"pagCaso"_s);
    racconta(u"caso"_s, testiDi(*mFinestra->findChild<QWidget*>(u"pagCaso"_s)));
}

} // namespace
