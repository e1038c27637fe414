#include "depositodesk.h"

#include "desk/schede/finestracaso.h"
#include "support/albero.h"
#include "support/trova.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

using namespace giacenza;
using namespace giacenza::prove;
using giacenza::schede::FinestraCaso;
using testing::ElementsAre;

namespace {

class Scheda : public DepositoDesk
{
protected:
    static QStringList fatti(const FinestraCaso& finestra)
    {
        const QAbstractItemModel* modello = trova<QTableView>(finestra, u"tblCronologia"_s)->model();
        QStringList righe;
        for (int i = 0; i < modello->rowCount(); ++i)
            righe << modello->index(i, 2).data().toString();
        return righe;
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, Scheda, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(Scheda, SenzaRegistroSiLeggeQuelloCheCEENonSiScrive)
{
    const FinestraCaso finestra(mBase.accesso(), mAperta, carta());
    EXPECT_THAT(fatti(finestra),
                ElementsAre(u"Emessa la lettera di vettura 4720/2026 MI: Riconsegna a Destinatario"_s,
                            u"Avviso n. 2"_s, u"Messa in giacenza: 01/11/2026 - Chiuso"_s));
    auto* mancanza = trova<QLabel>(finestra, u"lblMancanza"_s);
    EXPECT_FALSE(mancanza->isHidden());
    EXPECT_TRUE(mancanza->text().contains(u"deposito --prepara-registro"_s));
    EXPECT_FALSE(trova<QPushButton>(finestra, u"cmdAggiungiNota"_s)->isEnabled());
    EXPECT_TRUE(trova<QPushButton>(finestra, u"cmdFascicolo"_s)->isEnabled());
}

TEST_P(Scheda, UnaNotaSiScriveConITasti)
{
    conRegistro();
    FinestraCaso finestra(mBase.accesso(), mAperta, carta());
    finestra.show();
    finestra.activateWindow();
    QCoreApplication::processEvents();
    EXPECT_TRUE(trova<QLabel>(finestra, u"lblMancanza"_s)->isHidden());
    const QSignalSpy aggiunte(&finestra.scheda(), &schede::SchedaCaso::notaAggiunta);
    auto* nota = trova<QPlainTextEdit>(finestra, u"txtNota"_s);
    EXPECT_EQ(trova<QLineEdit>(finestra, u"txtAutore"_s)->text(), u"Bianchi"_s);
    nota->setFocus();
    QTest::keyClicks(nota, u"Richiamano"_s);
    QTest::keyClick(nota, Qt::Key_Return);
    QTest::keyClicks(nota, u"domani"_s);
    QTest::keyClick(nota, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(aggiunte.size(), 1);
    EXPECT_EQ(nota->toPlainText(), QString());
    EXPECT_EQ(fatti(finestra).first(), u"Nota: Richiamano domani"_s);
    EXPECT_EQ(trova<QPlainTextEdit>(finestra, u"txtEvento"_s)->toPlainText(), u"Nota\nRichiamano\ndomani"_s);
    EXPECT_EQ(trova<QLabel>(finestra, u"lblStato"_s)->text(), u"Nota aggiunta."_s);
    EXPECT_EQ(mBase.leggi(u"select autore from registro_note"_s), u"Bianchi"_s);
}

TEST_P(Scheda, UnaNotaVuotaSiDiceEQuelloCheSiScriveResta)
{
    conRegistro();
    FinestraCaso finestra(mBase.accesso(), mAperta, carta());
    trova<QPushButton>(finestra, u"cmdAggiungiNota"_s)->click();
    EXPECT_EQ(trova<QLabel>(finestra, u"lblStato"_s)->text(), u"La nota è vuota."_s);
    auto* nota = trova<QPlainTextEdit>(finestra, u"txtNota"_s);
    nota->setPlainText(u"x"_s);
    trova<QLineEdit>(finestra, u"txtAutore"_s)->clear();
    trova<QPushButton>(finestra, u"cmdAggiungiNota"_s)->click();
    EXPECT_EQ(trova<QLabel>(finestra, u"lblStato"_s)->text(), u"Manca chi scrive la nota."_s);
    EXPECT_EQ(nota->toPlainText(), u"x"_s);
    // Another case's note is another note.
    finestra.scheda().mostra(mChiusa);
    EXPECT_EQ(nota->toPlainText(), QString());
    EXPECT_EQ(fatti(finestra).first(), u"Fattura n. 77"_s);
}

TEST_P(Scheda, IlFascicoloSiSalva)
{
    const FinestraCaso finestra(mBase.accesso(), mAperta, carta());
    trova<QPushButton>(finestra, u"cmdFascicolo"_s)->click();
    EXPECT_THAT(salvati(), ElementsAre(u"Fascicolo giacenza 42-2026.pdf"_s));
    EXPECT_TRUE(trova<QPushButton>(finestra, u"cmdApri"_s)->isEnabled());
}

TEST_P(Scheda, UnCasoCheNonCeSiDice)
{
    const FinestraCaso finestra(mBase.accesso(), {u"999"_s, 2026}, carta());
    EXPECT_EQ(trova<QLabel>(finestra, u"lblStato"_s)->text(), u"La giacenza 999 del 2026 non c'è."_s);
    EXPECT_FALSE(trova<QPushButton>(finestra, u"cmdFascicolo"_s)->isEnabled());
}

TEST_P(Scheda, OgniControlloHaUnNome)
{
    conRegistro();
    FinestraCaso finestra(mBase.accesso(), mAperta, carta());
    finestra.show();
    const AlberoAccessibile albero = alberoAccessibile(&finestra);
    EXPECT_GE(albero.ingressi, 7);
    EXPECT_TRUE(albero.senzaNome.isEmpty()) << albero.senzaNome.join(u", "_s).toStdString();
    EXPECT_TRUE(albero.doppi.isEmpty()) << albero.doppi.join(u", "_s).toStdString();
}

} // namespace
