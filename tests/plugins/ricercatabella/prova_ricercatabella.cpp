#include <giacenza/RicercaTabella.h>

#include "base/parti.h"
#include "data/istruzioni.h"
#include "support/albero.h"
#include "support/bancadati.h"
#include "support/modale.h"
#include "support/stampa.h"
#include "support/trova.h"

#include <gmock/gmock.h>

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <QWindow>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;

namespace {

/// The list as it stands open, and its controls.
struct Elenco
{
    explicit Elenco(QDialog& aperta) : finestra(aperta) {}

    QStringList colonna(int quale) const
    {
        QStringList testi;
        for (int riga = 0; riga < griglia->model()->rowCount(); ++riga)
            testi += griglia->model()->index(riga, quale).data().toString();
        return testi;
    }

    /// With letters that the simulated keyboard lacks, as a paste.
    void filtra(const QString& testo) const
    {
        filtro->selectAll();
        filtro->insert(testo);
    }

    QDialog& finestra;
    QTableView* griglia = trova<QTableView>(finestra, u"griglia"_s);
    QLineEdit* filtro = trova<QLineEdit>(finestra, u"txtFiltro"_s);
    QLabel* stato = trova<QLabel>(finestra, u"lblStato"_s);
};

class Tabella : public testing::TestWithParam<std::string>
{
protected:
    static void SetUpTestSuite() { qputenv("GIACENZA_PARTI", GIACENZA_PROVA_PARTI); }
    static void TearDownTestSuite() { qunsetenv("GIACENZA_PARTI"); }

    Tabella()
    {
        mBase.esegui(u"insert into filiali (codice, descrizione) values ('001', 'Bergamo'), "
                     "('002', 'Città Alta'), ('010', 'D''Alì 100%'), ('MI', 'Milano');"_s);
        auto creata = creaParteDi<RicercaTabella>(QString::fromUtf16(classeRicercaTabella));
        EXPECT_EQ(creata.motivo, QString());
        mParte = std::move(creata.parte);
        if (!mParte)
            throw std::runtime_error("the part was not made");
        mParte->setPercorsoDatabase(mBase.stringa());
        mParte->setScelta([this](const QStringList& valori) { mScelte += valori; });
    }

    /// Shows the branches and does something with the list.
    void mostra(const std::function<void(Elenco&)>& azione) { mostra(istruzioni::elencoFiliali(), azione); }

    void mostra(const QString& istruzione, const std::function<void(Elenco&)>& azione)
    {
        const QuandoAperta<QDialog> intanto([&](QDialog& aperta) {
            ASSERT_TRUE(QTest::qWaitForWindowActive(&aperta));
            Elenco elenco(aperta);
            azione(elenco);
        });
        mParte->mostra(istruzione, u"Ricerca Filiale"_s, nullptr);
    }

    void aggiungiMolte(int quante)
    {
        QStringList righe;
        for (int i = 0; i < quante; ++i)
            righe += u"('Z%1', 'Filiale %1')"_s.arg(i, 5, 10, QChar(u'0'));
        mBase.esegui(u"insert into filiali (codice, descrizione) values "_s + righe.join(u',') + u';');
    }

    BancaDati mBase{GetParam()};
    std::unique_ptr<RicercaTabella> mParte;
    QList<QStringList> mScelte;
};

} // namespace

TEST_P(Tabella, mostraLeRigheConLeColonneDellIstruzione)
{
    mostra([](Elenco& elenco) {
        EXPECT_EQ(elenco.finestra.windowTitle(), u"Ricerca Filiale"_s);
        const QAbstractItemModel* modello = elenco.griglia->model();
        ASSERT_EQ(modello->columnCount(), 2);
        EXPECT_EQ(modello->headerData(0, Qt::Horizontal).toString(), u"codice"_s);
        EXPECT_EQ(modello->headerData(1, Qt::Horizontal).toString(), u"descrizione"_s);
        EXPECT_EQ(elenco.colonna(1),
                  (QStringList{u"Bergamo"_s, u"Città Alta"_s, u"D'Alì 100%"_s, u"Milano"_s}));
        EXPECT_TRUE(elenco.filtro->hasFocus());
        EXPECT_EQ(elenco.stato->text(), QString());
        const AlberoAccessibile albero = alberoAccessibile(&elenco.finestra);
        EXPECT_EQ(albero.ingressi, 4);
        EXPECT_TRUE(albero.senzaNome.isEmpty()) << albero.senzaNome.join(u' ').toStdString();
        EXPECT_TRUE(albero.doppi.isEmpty()) << albero.doppi.join(u' ').toStdString();
        QTest::keyClick(elenco.filtro, Qt::Key_Escape);
    });
    EXPECT_TRUE(mScelte.isEmpty());
}

TEST_P(Tabella, scrivendoSiRestringeEInvioPrende)
{
    mostra([](Elenco& elenco) {
        QTest::keyClicks(elenco.filtro, u"AL"_s);
        EXPECT_EQ(elenco.colonna(0), (QStringList{u"002"_s, u"010"_s}));
        QTest::keyClick(elenco.filtro, Qt::Key_Down);
        QTest::keyClick(elenco.filtro, Qt::Key_Return);
        EXPECT_FALSE(elenco.finestra.isVisible());
    });
    EXPECT_EQ(mScelte, (QList<QStringList>{{u"010"_s, u"D'Alì 100%"_s}}));
}

TEST_P(Tabella, ancheDallElencoLeLettereRestringono)
{
    mostra([](Elenco& elenco) {
        elenco.griglia->setFocus();
        QTest::keyClick(elenco.griglia, Qt::Key_Down);
        EXPECT_EQ(elenco.griglia->currentIndex().row(), 1);
        QTest::keyClick(elenco.griglia, Qt::Key_M);
        EXPECT_TRUE(elenco.filtro->hasFocus());
        QTest::keyClicks(elenco.filtro, u"il"_s);
        EXPECT_EQ(elenco.filtro->text(), u"mil"_s);
        EXPECT_EQ(elenco.colonna(0), QStringList{u"MI"_s});
        elenco.griglia->setFocus();
        QTest::keyClick(elenco.griglia, Qt::Key_Return);
    });
    EXPECT_EQ(mScelte, (QList<QStringList>{{u"MI"_s, u"Milano"_s}}));
}

TEST_P(Tabella, ilDoppioClicPrendeIlClicNo)
{
    mostra([](Elenco& elenco) {
        const QPoint dove = elenco.griglia->visualRect(elenco.griglia->model()->index(2, 1)).center();
        QTest::mouseClick(elenco.griglia->viewport(), Qt::LeftButton, {}, dove);
        EXPECT_TRUE(elenco.finestra.isVisible());
        QTest::mouseDClick(elenco.griglia->viewport(), Qt::LeftButton, {}, dove);
    });
    EXPECT_EQ(mScelte, (QList<QStringList>{{u"010"_s, u"D'Alì 100%"_s}}));
}

TEST_P(Tabella, chiusaInOgniModoNonSceglie)
{
    mostra([](Elenco& elenco) {
        elenco.griglia->setFocus();
        QTest::keyClick(elenco.griglia, Qt::Key_Escape);
    });
    mostra([](Elenco& elenco) { elenco.finestra.windowHandle()->close(); });
    mostra([](Elenco& elenco) {
        QTest::mouseClick(trova<QPushButton>(elenco.finestra, u"cmdAnnulla"_s), Qt::LeftButton);
    });
    EXPECT_TRUE(mScelte.isEmpty());
    mostra([](Elenco& elenco) {
        QTest::mouseClick(trova<QPushButton>(elenco.finestra, u"cmdSeleziona"_s), Qt::LeftButton);
    });
    EXPECT_EQ(mScelte, (QList<QStringList>{{u"001"_s, u"Bergamo"_s}}));
}

TEST_P(Tabella, ilFiltroStaPerSeStesso)
{
    mostra([](Elenco& elenco) {
        for (const QString& testo : {u"0%"_s, u"d'a"_s, u"ALÌ"_s}) {
            elenco.filtra(testo);
            EXPECT_EQ(elenco.colonna(0), QStringList{u"010"_s}) << testo.toStdString();
        }
        for (const QString& testo : {u".*"_s, u"\\"_s, u"🍕"_s, u"[a"_s, QString(10000, u'x')}) {
            elenco.filtra(testo);
            EXPECT_EQ(elenco.colonna(0), QStringList()) << testo.left(20).toStdString();
            EXPECT_EQ(elenco.stato->text(), u"Nessuna riga contiene il testo scritto."_s);
            QTest::keyClick(elenco.filtro, Qt::Key_Return);
            ASSERT_TRUE(elenco.finestra.isVisible());
        }
        elenco.filtro->clear();
        EXPECT_EQ(elenco.griglia->model()->rowCount(), 4);
        QTest::keyClick(elenco.filtro, Qt::Key_Escape);
    });
    EXPECT_TRUE(mScelte.isEmpty());
}

TEST_P(Tabella, unElencoVuotoLoDice)
{
    mostra(u"select codice, descrizione from filiali where codice='nessuna';"_s, [](Elenco& elenco) {
        EXPECT_EQ(elenco.stato->text(), u"L'elenco è vuoto."_s);
        EXPECT_FALSE(trova<QPushButton>(elenco.finestra, u"cmdSeleziona"_s)->isEnabled());
        QTest::keyClick(elenco.filtro, Qt::Key_Return);
        EXPECT_TRUE(elenco.finestra.isVisible());
        QTest::keyClick(elenco.filtro, Qt::Key_Escape);
    });
    EXPECT_TRUE(mScelte.isEmpty());
}

TEST_P(Tabella, ilNulloEVuotoEIValoriSonoTutti)
{
    mostra(u"select codice as Cod, Indirizzo, descrizione, codice from filiali order by codice desc;"_s,
           [](Elenco& elenco) { QTest::keyClick(elenco.filtro, Qt::Key_Return); });
    EXPECT_EQ(mScelte, (QList<QStringList>{{u"MI"_s, u""_s, u"Milano"_s, u"MI"_s}}));
}

TEST_P(Tabella, leRigheSiLeggonoAPagineEIlFiltroLeVedeTutte)
{
    aggiungiMolte(1000);
    mostra([](Elenco& elenco) {
        const QAbstractItemModel* modello = elenco.griglia->model();
        EXPECT_LT(modello->rowCount(), 1000);
        QTest::keyClick(elenco.filtro, Qt::Key_PageDown);
        for (int volte = 0; volte < 50 && modello->rowCount() < 1004; ++volte) {
            elenco.griglia->verticalScrollBar()->setValue(elenco.griglia->verticalScrollBar()->maximum());
            QCoreApplication::processEvents();
        }
        EXPECT_EQ(modello->rowCount(), 1004);
        QTest::keyClick(elenco.filtro, Qt::Key_Escape);
    });
    mostra([](Elenco& elenco) {
        elenco.filtra(u"filiale 00999"_s);
        EXPECT_EQ(elenco.colonna(0), QStringList{u"Z00999"_s});
        QTest::keyClick(elenco.filtro, Qt::Key_Return);
    });
    EXPECT_EQ(mScelte, (QList<QStringList>{{u"Z00999"_s, u"Filiale 00999"_s}}));
}

class TabellaSqlite : public Tabella
{};
INSTANTIATE_TEST_SUITE_P(Basi, TabellaSqlite, testing::Values("sqlite"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(TabellaSqlite, unaLetturaInterrottaTieneLeRigheELoDice)
{
    mostra(
        u"with recursive n(i) as (select 1 union all select i+1 from n where i<600) select cast(i as text) "
        "as codice, case i when 300 then abs(-9223372036854775808) else 'D' end as descrizione from n;"_s,
        [](Elenco& elenco) {
            ASSERT_EQ(elenco.griglia->model()->rowCount(), 200);
            QTest::keyClicks(elenco.filtro, u"29"_s);
            EXPECT_EQ(elenco.colonna(0).first(), u"29"_s);
            EXPECT_EQ(elenco.colonna(0).last(), u"299"_s);
            EXPECT_EQ(elenco.stato->text(), u"La lettura si è interrotta: restano le righe già lette."_s);
            EXPECT_TRUE(elenco.stato->toolTip().contains(u"overflow"_s)) << "the driver's words";
            QTest::keyClick(elenco.filtro, Qt::Key_End);
            QTest::keyClicks(elenco.filtro, u"9"_s);
            QTest::keyClick(elenco.filtro, Qt::Key_Return);
        });
    EXPECT_EQ(mScelte, (QList<QStringList>{{u"299"_s, u"D"_s}}));
}

TEST_P(Tabella, unIstruzioneSbagliataLancia)
{
    EXPECT_THROW(mParte->mostra(u"select * from nessuna;"_s, u"x"_s, nullptr), ErroreDatabase);
    EXPECT_THROW(mParte->mostra(QString(), u"x"_s, nullptr), ErroreDatabase);
    mParte->setPercorsoDatabase(u"DRIVER={Un driver che non esiste};"_s);
    EXPECT_THROW(mParte->mostra(istruzioni::elencoFiliali(), u"x"_s, nullptr), ErroreDatabase);
    EXPECT_TRUE(mScelte.isEmpty());
}

TEST_P(Tabella, ilPadreSeNeVaConLaFinestraAperta)
{
    auto* padre = new QWidget;
    padre->show();
    const QuandoAperta<QDialog> intanto([&](QDialog& aperta) {
        QTest::keyClick(trova<QLineEdit>(aperta, u"txtFiltro"_s), Qt::Key_Down);
        delete padre;
    });
    mParte->mostra(istruzioni::elencoFiliali(), u"x"_s, padre);
    EXPECT_TRUE(mScelte.isEmpty());
}

TEST_P(Tabella, senzaEventoNonSuccedeNulla)
{
    mParte->setScelta({});
    mostra([](Elenco& elenco) { QTest::keyClick(elenco.filtro, Qt::Key_Return); });
    EXPECT_TRUE(mScelte.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Basi, Tabella, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);
