#include "depositodesk.h"

#include "desk/schede/finestraconto.h"
#include "support/albero.h"
#include "support/trova.h"
#include "widgets/campodata.h"

#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QTest>

using namespace giacenza;
using namespace giacenza::prove;
using giacenza::schede::FinestraConto;
using testing::ElementsAre;

namespace {

class SchedaConto : public DepositoDesk
{
protected:
    static QString testo(const FinestraConto& finestra, const QString& nome)
    {
        return trova<QLabel>(finestra, nome)->text();
    }
    static int righe(const FinestraConto& finestra)
    {
        return trova<QTableView>(finestra, u"tblGiorni"_s)->model()->rowCount();
    }
    /// Types another date over the one that is there.
    static CampoData* digita(FinestraConto& finestra, const QString& cifre)
    {
        finestra.show();
        finestra.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&finestra));
        auto* data = trova<CampoData>(finestra, u"txtAlla"_s);
        data->setFocus();
        data->selectAll();
        QTest::keyClicks(data, cifre);
        return data;
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, SchedaConto, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(SchedaConto, MostraIlContoDiOggi)
{
    FinestraConto finestra(mBase.accesso(), mAperta, carta());
    EXPECT_EQ(finestra.windowTitle(), u"Conto della sosta — giacenza 42/2026"_s);
    EXPECT_EQ(testo(finestra, u"lblTesta"_s), u"1001 Ferramenta Lombarda S.r.l. — destinatario Utensileria "
                                              u"del Lago\nLettera di vettura 4711/2026 MI, "
                                              "in giacenza dal 01/11/2026: 21 giorni"_s);
    EXPECT_EQ(testo(finestra, u"lblCondizioni"_s),
              u"Condizioni: giorni franchi 5, al giorno 1,50 €, minimo 15,00 €, fisso 5,00 €"_s);
    EXPECT_TRUE(trova<QLabel>(finestra, u"lblAvvertenze"_s)->isHidden());
    EXPECT_EQ(righe(finestra), 21);
    EXPECT_EQ(testo(finestra, u"lblTotaleCalcolato"_s), u"29,00 €"_s);
    EXPECT_EQ(testo(finestra, u"lblTotaleScritto"_s), u"—"_s);
}

TEST_P(SchedaConto, UnAltraDataSiScriveEInvioCalcola)
{
    FinestraConto finestra(mBase.accesso(), mAperta, carta());
    QTest::keyClick(digita(finestra, u"05122026"_s), Qt::Key_Return);
    EXPECT_EQ(righe(finestra), 34);
    EXPECT_EQ(testo(finestra, u"lblTotaleCalcolato"_s), u"48,50 €"_s);
    EXPECT_TRUE(finestra.isVisible());
    QTest::keyClick(digita(finestra, u"31022026"_s), Qt::Key_Return);
    EXPECT_EQ(testo(finestra, u"lblStato"_s), u"La data del conto non è una data."_s);
    EXPECT_EQ(testo(finestra, u"lblTotaleCalcolato"_s), u"48,50 €"_s);
    QTest::keyClick(&finestra, Qt::Key_Escape);
    EXPECT_FALSE(finestra.isVisible());
}

TEST_P(SchedaConto, CondizioniMancantiENonZeroEuro)
{
    FinestraConto finestra(mBase.accesso(), {u"43"_s, 2026}, carta());
    EXPECT_EQ(testo(finestra, u"lblAvvertenze"_s),
              u"Il cliente 1002 non ha condizioni di fatturazione: gli importi non si possono calcolare."_s);
    EXPECT_FALSE(trova<QLabel>(finestra, u"lblAvvertenze"_s)->isHidden());
    EXPECT_EQ(testo(finestra, u"lblTotaleCalcolato"_s), u"manca"_s);
}

TEST_P(SchedaConto, SalvaESiPuoAprire)
{
    FinestraConto finestra(mBase.accesso(), mChiusa, carta());
    auto* apri = trova<QPushButton>(finestra, u"cmdApri"_s);
    EXPECT_FALSE(apri->isEnabled());
    trova<QPushButton>(finestra, u"cmdSalvaPdf"_s)->click();
    trova<QPushButton>(finestra, u"cmdSalvaIntero"_s)->click();
    EXPECT_THAT(salvati(),
                ElementsAre(u"Conto della sosta 40-2026-2.pdf"_s, u"Conto della sosta 40-2026.pdf"_s));
    EXPECT_EQ(testo(finestra, u"lblStato"_s),
              u"Salvato: "_s + mCartella.filePath(u"Conto della sosta 40-2026-2.pdf"_s));
    EXPECT_TRUE(apri->isEnabled());
}

TEST_P(SchedaConto, SiSalvaAllaDataScrittaAncheSeNonCalcolata)
{
    FinestraConto finestra(mBase.accesso(), mAperta, carta());
    EXPECT_EQ(testo(finestra, u"lblCalcolati"_s), u"Calcolati al 22/11/2026"_s);
    digita(finestra, u"05122026"_s);
    trova<QPushButton>(finestra, u"cmdSalvaPdf"_s)->click();
    ASSERT_THAT(salvati(), ElementsAre(u"Conto della sosta 42-2026.pdf"_s));
    const QString pagina = testoPdf(mCartella.filePath(salvati().first())).simplified();
    EXPECT_TRUE(pagina.contains(u"Totale al 05/12/2026 48,50 €"_s)) << pagina.toStdString();
    EXPECT_EQ(testo(finestra, u"lblCalcolati"_s), u"Calcolati al 05/12/2026"_s);

    digita(finestra, u"31022026"_s);
    trova<QPushButton>(finestra, u"cmdSalvaPdf"_s)->click();
    EXPECT_EQ(testo(finestra, u"lblStato"_s), u"La data del conto non è una data."_s);
    EXPECT_THAT(salvati(), ElementsAre(u"Conto della sosta 42-2026.pdf"_s)) << "and nothing is saved";
    EXPECT_FALSE(trova<QPushButton>(finestra, u"cmdApri"_s)->isEnabled());
}

TEST_P(SchedaConto, UnCasoCheNonCeSiDice)
{
    const FinestraConto finestra(mBase.accesso(), {u"999"_s, 2026}, carta());
    EXPECT_EQ(testo(finestra, u"lblStato"_s), u"La giacenza 999 del 2026 non c'è."_s);
    EXPECT_FALSE(trova<QPushButton>(finestra, u"cmdSalvaPdf"_s)->isEnabled());
}

TEST_P(SchedaConto, OgniControlloHaUnNome)
{
    FinestraConto finestra(mBase.accesso(), mAperta, carta());
    finestra.show();
    const AlberoAccessibile albero = alberoAccessibile(&finestra);
    EXPECT_GE(albero.ingressi, 6);
    EXPECT_TRUE(albero.senzaNome.isEmpty()) << albero.senzaNome.join(u", "_s).toStdString();
    EXPECT_TRUE(albero.doppi.isEmpty()) << albero.doppi.join(u", "_s).toStdString();
}

} // namespace
