#include "host/avvio/frmArchivio.h"
#include "host/avvio/frmImpostazioni.h"
#include "host/avvio/vociimpostazioni.h"
#include "support/stampa.h"
#include "support/trova.h"

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

using namespace deposito;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;
using testing::IsEmpty;

namespace {

void premi(QWidget& finestra, Qt::Key lettera)
{
    finestra.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    QTest::keyClick(&finestra, lettera, Qt::AltModifier);
}

QStringList senzaNome(QWidget& finestra)
{
    QStringList nomi;
    const auto controlli = finestra.findChildren<QWidget*>();
    for (const QWidget* controllo : controlli) {
        const auto* bottone = qobject_cast<const QAbstractButton*>(controllo);
        const bool ingresso =
            qobject_cast<const QLineEdit*>(controllo) || qobject_cast<const QComboBox*>(controllo);
        if (controllo->objectName().startsWith(u"qt_"_s))
            continue;
        if ((ingresso && controllo->accessibleName().isEmpty()) ||
            (bottone && bottone->text().isEmpty() && bottone->accessibleName().isEmpty()))
            nomi << controllo->objectName();
    }
    return nomi;
}

TEST(FinestraArchivio, ConITastiSiSceglieIlServerELoSiUsaSeRisponde)
{
    std::pair<SceltaArchivio, QString> provata;
    frmArchivio finestra({}, true, nullptr, [&](const SceltaArchivio& scelta, const QString& parola) {
        provata = {scelta, parola};
        return EsitoProva{.riuscita = true, .testo = u"bene"_s};
    });
    premi(finestra, Qt::Key_S);
    EXPECT_TRUE(QTest::qWaitFor([&] { return trova<QWidget>(finestra, u"fraServer"_s)->isEnabled(); }));
    EXPECT_FALSE(trova<QWidget>(finestra, u"fraFile"_s)->isEnabled());
    const auto scrivi = [&](const QString& campo, const QString& testo) {
        auto* riga = trova<QLineEdit>(finestra, campo);
        riga->setFocus();
        QTest::keyClicks(riga, testo);
    };
    scrivi(u"txtServer"_s, u"db"_s);
    scrivi(u"txtBase"_s, u"depo"_s);
    scrivi(u"txtUtente"_s, u"ufficio"_s);
    scrivi(u"txtParola"_s, u"segreta"_s);
    EXPECT_EQ(trova<QLineEdit>(finestra, u"txtParola"_s)->echoMode(), QLineEdit::Password);
    QTest::keyClick(trova<QLineEdit>(finestra, u"txtParola"_s), Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return finestra.result() == QDialog::Accepted; }));
    EXPECT_EQ(provata.first.server, u"db"_s);
    EXPECT_EQ(provata.first.porta, 3306);
    EXPECT_EQ(provata.second, u"segreta"_s);
    EXPECT_EQ(finestra.scelta(), provata.first);
}

TEST(FinestraArchivio, UnArchivioCheNonVaSiUsaSoloChiedendoloDueVolte)
{
    int prove = 0;
    SceltaArchivio scelta;
    scelta.tipo = TipoArchivio::server;
    scelta.server = u"db"_s;
    scelta.base = u"depo"_s;
    scelta.utente = u"ufficio"_s;
    frmArchivio finestra(scelta, false, nullptr, [&](const SceltaArchivio&, const QString&) {
        ++prove;
        return EsitoProva{.testo = u"Il server dell'archivio non risponde."_s,
                          .dettaglio = u"Can't connect"_s};
    });
    EXPECT_EQ(trova<QComboBox>(finestra, u"cmbCustodia"_s)->findData(int(CustodiaParola::portachiavi)), -1);
    premi(finestra, Qt::Key_U);
    auto* esito = trova<QLabel>(finestra, u"lblEsito"_s);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return esito->text() == u"⚠ Il server dell'archivio non risponde."_s; }));
    EXPECT_EQ(esito->toolTip(), u"Can't connect"_s);
    EXPECT_TRUE(finestra.isVisible());
    EXPECT_EQ(trova<QAbstractButton>(finestra, u"cmdUsa"_s)->text(), u"&Usa lo stesso"_s);
    trova<QLineEdit>(finestra, u"txtBase"_s)->setFocus();
    QTest::keyClicks(trova<QLineEdit>(finestra, u"txtBase"_s), u"2"_s);
    EXPECT_EQ(trova<QAbstractButton>(finestra, u"cmdUsa"_s)->text(), u"&Usa questo archivio"_s)
        << "another one";
    QTest::keyClick(&finestra, Qt::Key_U, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return prove == 2 && finestra.isEnabled(); }));
    QTest::keyClick(&finestra, Qt::Key_U, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return finestra.result() == QDialog::Accepted; }));
    EXPECT_EQ(prove, 2);
}

TEST(FinestraArchivio, ChiSceglieLaParolaInChiaroLeggeCheCosaVuolDire)
{
    SceltaArchivio scelta;
    scelta.tipo = TipoArchivio::server;
    frmArchivio finestra(scelta, true);
    finestra.show();
    auto* custodia = trova<QComboBox>(finestra, u"cmbCustodia"_s);
    auto* avvertenza = trova<QLabel>(finestra, u"lblInChiaro"_s);
    EXPECT_FALSE(avvertenza->isVisible());
    const QSize prima = finestra.size();
    custodia->setFocus();
    QTest::keyClick(custodia, Qt::Key_End);
    EXPECT_EQ(custodia->currentText(), u"ricordarla in chiaro"_s);
    EXPECT_TRUE(avvertenza->isVisible());
    EXPECT_EQ(avvertenza->text(),
              u"⚠ Resta scritta nel file delle impostazioni: la legge chi usa questo computer con lo stesso "
              "utente."_s);
    EXPECT_GE(avvertenza->height(), avvertenza->heightForWidth(avvertenza->width())) << "all of it is seen";
    EXPECT_EQ(finestra.size(), prima);
    QTest::keyClick(custodia, Qt::Key_Home);
    EXPECT_FALSE(avvertenza->isVisible());
}

TEST(FinestraArchivio, OgniControlloHaUnNome)
{
    frmArchivio finestra({}, true);
    EXPECT_THAT(senzaNome(finestra), IsEmpty());
}

TEST(FinestraImpostazioni, CioCheSiScriveVaNelFile)
{
    QTemporaryDir cartella;
    const QString file = cartella.filePath(u"giacenza.ini"_s);
    frmImpostazioni finestra(file);
    EXPECT_THAT(senzaNome(finestra), IsEmpty());
    finestra.show();
    auto* giorni = trova<QLineEdit>(finestra, u"GiorniFerma"_s);
    giorni->setFocus();
    for (const QString& rifiutato : {u"dieci"_s, u"5000"_s, u"+5"_s, u"0"_s}) { // as the desk refuses them
        QTest::keyClicks(giorni, rifiutato);
        finestra.accept();
        EXPECT_TRUE(finestra.isVisible()) << rifiutato.toStdString();
        EXPECT_EQ(trova<QLabel>(finestra, u"lblEsito"_s)->text(),
                  u"⚠ Giorni per \"ferma\": scrivere un numero di giorni, da 1 a 3650."_s);
        giorni->clear();
    }
    QTest::keyClicks(giorni, u"10"_s);
    auto* modalita = trova<QComboBox>(finestra, u"Modalita"_s);
    modalita->setFocus();
    QTest::keyClick(modalita, Qt::Key_Down);
    finestra.accept();
    EXPECT_FALSE(finestra.isVisible());
    const auto valori = leggiImpostazioni(file);
    EXPECT_THAT(valori, testing::Contains(u"10"_s));
    EXPECT_THAT(valori, testing::Contains(u"pdf"_s));
}

TEST(FinestreAvvio, StannoInUnoSchermoPiccolo)
{
    // A screen of 1920x1080 at 200 %, less what a window manager puts around a window.
    constexpr QSize schermoPiccolo(960 - 16, 540 - 40);
    const QTemporaryDir cartella;
    SceltaArchivio server;
    server.tipo = TipoArchivio::server;
    frmArchivio archivio(server, true);
    frmImpostazioni impostazioni(cartella.filePath(u"giacenza.ini"_s));
    for (QWidget* finestra : {static_cast<QWidget*>(&archivio), static_cast<QWidget*>(&impostazioni)}) {
        finestra->show();
        EXPECT_LE(finestra->minimumSizeHint().width(), schermoPiccolo.width())
            << finestra->objectName().toStdString();
        EXPECT_LE(finestra->minimumSizeHint().height(), schermoPiccolo.height())
            << finestra->objectName().toStdString();
    }
}

} // namespace
