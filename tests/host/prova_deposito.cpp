#include "finestra.h"

#include "support/stampa.h"

#include <QAction>
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

/// Without a display, and without the platform that needs none.
Esito esegui(const QStringList& argomenti)
{
    QProcess processo;
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    for (const QString& nome : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s})
        ambiente.remove(nome);
    processo.setProcessEnvironment(ambiente);
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

TEST(Deposito, spiega_le_opzioni_in_italiano_anche_senza_schermo)
{
    for (const QString& opzione : {u"--help"_s, u"-h"_s}) {
        const Esito esito = esegui({opzione});
        EXPECT_EQ(esito.codice, 0) << esito.errori;
        EXPECT_EQ(esito.errori, "");
        EXPECT_THAT(esito.uscita, HasSubstr("Il programma del deposito: apre le schermate delle giacenze."));
        EXPECT_THAT(esito.uscita,
                    HasSubstr("--database <stringa>    Stringa di connessione ODBC dell'archivio."));
        EXPECT_THAT(esito.uscita, HasSubstr("--database-file <file>  File che contiene la stringa di"));
        EXPECT_THAT(esito.uscita, HasSubstr("GIACENZA_DATABASE."));
        EXPECT_THAT(esito.uscita, HasSubstr("--ini <file>            File delle impostazioni."));
        EXPECT_THAT(esito.uscita,
                    HasSubstr("--logo <file>           Logo stampato in testa all'avviso di giacenza."));
    }
}

TEST(Deposito, dice_la_versione_anche_senza_schermo)
{
    for (const QString& opzione : {u"--version"_s, u"-v"_s}) {
        const Esito esito = esegui({opzione});
        EXPECT_EQ(esito.codice, 0) << esito.errori;
        EXPECT_EQ(esito.errori, "");
        EXPECT_EQ(esito.uscita, "deposito " DEPOSITO_VERSIONE "\n");
    }
}

TEST(Deposito, rifiuta_un_opzione_sconosciuta)
{
    const Esito esito = esegui({u"-platform"_s, u"offscreen"_s, u"--sbagliata"_s});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_THAT(esito.errori, HasSubstr("Opzione sconosciuta 'sbagliata'."));
}

TEST(Deposito, rifiuta_due_stringhe_di_connessione)
{
    const Esito esito =
        esegui({u"-platform"_s, u"offscreen"_s, u"--database"_s, u"DSN=x"_s, u"--database-file"_s, u"/x"_s});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_THAT(esito.errori, testing::EndsWith("--database e --database-file non vanno insieme.\n"));
}

TEST(Deposito, dice_nella_finestra_perche_la_stringa_non_si_legge)
{
    deposito::Finestra finestra({{}, {}, {}, u"Il file non c'è."_s});
    EXPECT_EQ(finestra.findChild<QLabel*>(u"lblMessaggio"_s)->text(), u"Il file non c'è."_s);
}

TEST(Deposito, ha_un_icona_in_ogni_misura)
{
    const QIcon icona = deposito::icona();
    EXPECT_EQ(icona.availableSizes(), (QList<QSize>{{16, 16}, {32, 32}, {48, 48}, {128, 128}}));
    for (const QSize& misura : icona.availableSizes())
        EXPECT_EQ(icona.pixmap(misura).toImage().pixelColor(misura.width() / 2, misura.height() / 4),
                  QColor(Qt::white))
            << misura.width();
}

TEST(Deposito, con_un_archivio_che_non_c_e_nessuna_schermata_si_apre_e_la_finestra_lo_dice)
{
    deposito::Finestra finestra({u"DRIVER={Nessun driver};Database=x"_s, {}, {}});
    finestra.show();
    const auto* lettura = finestra.findChild<QLabel*>(u"lblLettura"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return lettura->text().startsWith(u"lettura non riuscita"_s); }));
    EXPECT_EQ(finestra.findChild<QLabel*>(u"lblTotali"_s)->text(), QString()) << "nothing is known";
    finestra.findChild<QAction*>(u"azNuovaLdv"_s)->trigger();
    for (const QString& azione :
         {u"azNuova"_s, u"azNuovaLdv"_s, u"azGestione"_s, u"azRiconsegna"_s, u"azReso"_s}) {
        finestra.findChild<QAction*>(azione)->trigger();
        const auto* messaggio = finestra.findChild<QLabel*>(u"lblMessaggio"_s);
        EXPECT_TRUE(messaggio->isVisible());
        EXPECT_THAT(messaggio->text().toStdString(),
                    testing::StartsWith(
                        "La schermata non è stata aperta. Manca il driver ODBC dell'archivio. Installare "
                        "odbc-mariadb per un server MariaDB, libsqliteodbc per un file.\n\n"
                        "Risposta dell'archivio: "));
        for (const QWidget* altra : QApplication::topLevelWidgets())
            EXPECT_TRUE(altra == &finestra || !altra->isVisible()) << altra->objectName().toStdString();
        QTest::mouseClick(finestra.findChild<QPushButton*>(u"cmdChiudiMessaggio"_s), Qt::LeftButton);
        EXPECT_FALSE(messaggio->isVisible());
    }
}
