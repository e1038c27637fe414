#include "finestra.h"

#include "support/stampa.h"

#include <QApplication>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::HasSubstr;

namespace {

struct Esito
{
    int codice;
    std::string uscita;
    std::string errori;
};

Esito esegui(const QStringList& argomenti)
{
    QProcess processo;
    processo.start(QStringLiteral(DEPOSITO), argomenti);
    if (!processo.waitForFinished(20000)) {
        processo.kill();
        processo.waitForFinished();
        throw std::runtime_error("il programma non finisce");
    }
    return {processo.exitCode(), processo.readAllStandardOutput().toStdString(),
            processo.readAllStandardError().toStdString()};
}

} // namespace

TEST(Deposito, spiega_le_opzioni_in_italiano)
{
    const Esito esito = esegui({u"--help"_s});
    EXPECT_EQ(esito.codice, 0);
    EXPECT_THAT(esito.uscita, HasSubstr("Il programma del deposito: apre le schermate delle giacenze."));
    EXPECT_THAT(esito.uscita, HasSubstr("--database <stringa>  Stringa di connessione ODBC dell'archivio."));
    EXPECT_THAT(esito.uscita, HasSubstr("--ini <file>          File delle impostazioni."));
    EXPECT_THAT(esito.uscita,
                HasSubstr("--logo <file>         Logo stampato in testa all'avviso di giacenza."));
}

TEST(Deposito, rifiuta_un_opzione_sconosciuta)
{
    const Esito esito = esegui({u"--sbagliata"_s});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_THAT(esito.errori, HasSubstr("Opzione sconosciuta 'sbagliata'."));
}

TEST(Deposito, con_un_archivio_che_non_c_e_nessuna_schermata_si_apre_e_la_finestra_lo_dice)
{
    deposito::Finestra finestra({u"DRIVER={Nessun driver};Database=x"_s, {}, {}});
    finestra.show();
    for (const QString& pulsante :
         {u"cmdNuova"_s, u"cmdNuovaLdv"_s, u"cmdGestione"_s, u"cmdRiconsegna"_s, u"cmdReso"_s}) {
        QTest::mouseClick(finestra.findChild<QPushButton*>(pulsante), Qt::LeftButton);
        const auto* messaggio = finestra.findChild<QLabel*>(u"lblMessaggio"_s);
        EXPECT_TRUE(messaggio->isVisible());
        EXPECT_THAT(
            messaggio->text().toStdString(),
            testing::StartsWith("La schermata non è stata aperta. Il driver ODBC indicato per l'archivio "
                                "non è installato.\n\nRisposta dell'archivio: "));
        for (const QWidget* altra : QApplication::topLevelWidgets())
            EXPECT_TRUE(altra == &finestra || !altra->isVisible()) << altra->objectName().toStdString();
        QTest::mouseClick(finestra.findChild<QPushButton*>(u"cmdChiudiMessaggio"_s), Qt::LeftButton);
        EXPECT_FALSE(messaggio->isVisible());
    }
}
