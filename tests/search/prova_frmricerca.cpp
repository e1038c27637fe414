#include "search/finestraricerca.h"

#include <QApplication>
#include <QClipboard>
#include <QGroupBox>
#include <QPushButton>
#include <QWindow>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

const auto nessuna = u"DRIVER={Un driver che non esiste};"_s;

} // namespace

TEST_F(FinestraRicerca, unMegabyteIncollatoSiTaglia)
{
    QApplication::clipboard()->setText(QString(1'000'000, u'x'));
    mTesto->paste();
    EXPECT_EQ(mTesto->text(), QString(1000, u'x'));
}

TEST_F(FinestraRicerca, leDidascalieSeguonoIlTipo)
{
    auto* optCodice = c<QRadioButton>(u"optCodice"_s);
    EXPECT_EQ(mFinestra.windowTitle(), u"Prove tecniche di trasmissione"_s);
    const QString iniziale = optCodice->text();
    for (const qint16 tipo : {qint16(0), qint16(4), qint16(-1), qint16(32767)}) {
        mFinestra.setClienti_Fornitori(tipo);
        EXPECT_EQ(mFinestra.windowTitle(), u"Prove tecniche di trasmissione"_s);
        EXPECT_EQ(optCodice->text(), iniziale);
    }
    mFinestra.setClienti_Fornitori(1);
    EXPECT_EQ(mFinestra.windowTitle(), u"Ricerca Cliente"_s);
    EXPECT_EQ(optCodice->text(), u"Cod. Cliente"_s);
    mFinestra.setClienti_Fornitori(2);
    EXPECT_EQ(mFinestra.windowTitle(), u"Ricerca Fornitore"_s);
    EXPECT_EQ(optCodice->text(), u"Cod.Fornitore"_s);
    mFinestra.setClienti_Fornitori(3);
    EXPECT_EQ(mFinestra.windowTitle(), u"Ricerca Destinatario"_s);
    EXPECT_EQ(optCodice->text(), u"Cod.Destinatario"_s);
    QTest::keyClick(mTesto, Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return optCodice->isChecked(); }));
}

TEST_F(FinestraRicerca, leOpzioniPerNumeroSpengonoIlTipoDiStringa)
{
    const QWidget* fra = c<QGroupBox>(u"fraTipoStringa"_s);
    auto* iniziale = c<QRadioButton>(u"optIniziale"_s);
    const auto* interna = c<QRadioButton>(u"optInterna"_s);
    EXPECT_TRUE(fra->isEnabled());
    for (const QString& nome : {u"optCodice"_s, u"optIva"_s}) {
        scegliOpzione(u"optRagSoc"_s);
        scegliOpzione(u"optInterna"_s);
        scegliOpzione(nome);
        EXPECT_TRUE(iniziale->isChecked());
        EXPECT_FALSE(fra->isEnabled());
        EXPECT_FALSE(iniziale->isEnabled());
        EXPECT_FALSE(interna->isEnabled());
        EXPECT_TRUE(mTesto->isEnabled());
        EXPECT_FALSE(mLista->isEnabled());
    }
    for (const QString& nome : {u"optRagSoc"_s, u"optLocalita"_s, u"optProvincia"_s}) {
        scegliOpzione(u"optIva"_s);
        scegliOpzione(nome);
        EXPECT_TRUE(fra->isEnabled());
        EXPECT_TRUE(iniziale->isEnabled());
        EXPECT_TRUE(interna->isEnabled());
    }
}

TEST_F(FinestraRicerca, unTestoVuotoLoDiceSottoLaSuaDidascaliaConOgniOpzione)
{
    for (const QString& nome :
         {u"optCodice"_s, u"optIva"_s, u"optRagSoc"_s, u"optLocalita"_s, u"optProvincia"_s}) {
        scegliOpzione(nome);
        QTest::mouseClick(c<QPushButton>(u"cmdRicerca"_s), Qt::LeftButton);
        EXPECT_THAT(mMessaggi.prendi(),
                    ElementsAre(Messaggio{u"Campo Ricerca vuoto! Bisogna inserire una stringa da ricercare"_s,
                                          Stile::avviso, u"Gestione trasorti"_s}));
        EXPECT_TRUE(mTesto->hasFocus());
    }
    EXPECT_TRUE(mFinestra.isVisible());
}

TEST_F(FinestraRicerca, unTestoSbagliatoSiDiceESiCancella)
{
    const auto messaggio = [this](const QString& opzione, const QString& testo) {
        scegliOpzione(opzione);
        cerca(testo);
        EXPECT_EQ(mTesto->text(), QString());
        EXPECT_TRUE(mTesto->hasFocus());
        const auto mostrati = mMessaggi.prendi();
        EXPECT_EQ(mostrati.size(), 1U);
        return mostrati.empty() ? QString() : mostrati[0].titolo + u": "_s + mostrati[0].testo;
    };
    EXPECT_EQ(
        messaggio(u"optCodice"_s, u"rossi"_s),
        u"Gestione Trasporti: Bisogna inserire un valore numerico nella casella Ricerca, se si seleziona "
        "la ricerca per 'CODICE' o per 'P.IVA'"_s);
    EXPECT_EQ(messaggio(u"optRagSoc"_s, u"123"_s),
              u"Gestione Trasporti: Selezionando la ricerca per 'Ragione Sociale','Località','Provincia'; "
              "bisogna inserire nella casella ricerca un valore non numerico"_s);
    EXPECT_EQ(
        messaggio(u"optIva"_s, u"0123456789"_s),
        u"Gestione Trasporti: Selezionando la ricerca per 'partita iva'; bisogna inserire nella casella "
        "ricerca un valore numerico di 11 caratteri"_s);
}

TEST_F(FinestraRicerca, unDatabaseCheNonRispondeSiDiceELaFinestraResta)
{
    mFinestra.setNomeTabella(u"Clien"_s);
    mFinestra.setStringaConnessione(nessuna);
    cerca(u"alfa"_s);
    const auto mostrati = mMessaggi.prendi();
    ASSERT_EQ(mostrati.size(), 1U);
    EXPECT_EQ(mostrati[0].stile, Stile::critico);
    EXPECT_EQ(mostrati[0].titolo, titoloApplicazione());
    EXPECT_THAT(mostrati[0].testo.toStdString(),
                testing::StartsWith("La ricerca nel database non è riuscita."));
    EXPECT_EQ(mTesto->text(), u"alfa"_s);
    EXPECT_TRUE(mFinestra.isVisible());
}

TEST_F(FinestraRicerca, unNomeDiTabellaNonValidoSiDice)
{
    mFinestra.setNomeTabella(u"clien; drop table clien"_s);
    cerca(u"alfa"_s);
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(Messaggio{u"Il nome di tabella \"clien; drop table clien\" non è valido."_s,
                                      Stile::critico, titoloApplicazione()}));
}

TEST_F(FinestraRicerca, siChiudeSenzaSceltaInOgniModo)
{
    const std::function<void()> modi[] = {
        [this] { QTest::keyClick(mTesto, Qt::Key_Escape); },
        [this] { QTest::mouseClick(c<QPushButton>(u"cmdAnnulla"_s), Qt::LeftButton); },
        [this] { mFinestra.windowHandle()->close(); },
        [this] { QTest::keyClick(mTesto, Qt::Key_A, Qt::AltModifier); },
    };
    for (const auto& modo : modi) {
        modo();
        EXPECT_TRUE(QTest::qWaitFor([this] { return !mFinestra.isVisible(); }));
        EXPECT_EQ(mFinestra.result(), QDialog::Rejected);
        EXPECT_FALSE(mFinestra.trovato());
        EXPECT_EQ(mFinestra.IdRecord(), 0);
        apri();
    }
}
