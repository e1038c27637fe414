#include "support/bancadati.h"
#include "support/registromessaggi.h"
#include "support/stampa.h"
#include "support/trova.h"

#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>

#include <QLineEdit>
#include <QVBoxLayout>

using namespace giacenza;
using namespace giacenza::prove;

class Base : public testing::TestWithParam<std::string>
{};

TEST_P(Base, haLoSchemaVuotoELUtenteLoUsa)
{
    const BancaDati base(GetParam());
    Connessione connessione = base.connessione();
    Recordset recordset;
    recordset.apri(connessione, QStringLiteral("select count(*) from Giace00f;"));
    EXPECT_EQ(recordset.valore(0), QStringLiteral("0"));
}

TEST_P(Base, eDiUnaProvaSola)
{
    const BancaDati una(GetParam());
    const BancaDati altra(GetParam());
    una.esegui(QStringLiteral("insert into porto (idPorto, Descrizione) values (1, 'Franco');"));
    EXPECT_EQ(una.leggi(QStringLiteral("select count(*) from porto")), QStringLiteral("1"));
    EXPECT_EQ(altra.leggi(QStringLiteral("select count(*) from porto")), QStringLiteral("0"));
}

TEST_P(Base, eseguePiuIstruzioniELeggeRighe)
{
    const BancaDati base(GetParam(), Contenuto::vuoto);
    base.esegui(QStringLiteral("create table t (a integer,\n b varchar(10));\n"
                               "-- insert into t values (9, 'no');\n"
                               "insert into t values (1, 'x;y');\ninsert into t values (2, null);\n"));
    const QList<QStringList> attese{{QStringLiteral("1"), QStringLiteral("x;y")},
                                    {QStringLiteral("2"), QStringLiteral("NULL")}};
    EXPECT_EQ(base.righe(QStringLiteral("select * from t order by a")), attese);
}

INSTANTIATE_TEST_SUITE_P(Basi, Base, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST(BancaDatiDiProva, suMariadbLUtenteNonHaAltriPermessi)
{
    const BancaDati base("mariadb");
    Connessione connessione = base.connessione();
    EXPECT_THROW(connessione.esegui(QStringLiteral("delete from giace00f")), ErroreDatabase);
    EXPECT_THROW(connessione.esegui(QStringLiteral("create table t (a integer)")), ErroreDatabase);
}

TEST(BancaDatiDiProva, diUnTipoIgnotoSiLamenta)
{
    EXPECT_THROW(BancaDati("altro"), std::runtime_error);
}

TEST(Registro, tieneIMessaggiEDaLeRisposte)
{
    RegistroMessaggi registro;
    registro.rispondi(Risposta::si);
    const Messaggio domanda{QStringLiteral("Vuoi?"), Stile::domandaAvviso, titoloGestione()};
    const Messaggio notizia{QStringLiteral("Fatto."), Stile::informazione, titoloGestione()};
    EXPECT_EQ(mostraMessaggio(nullptr, domanda), Risposta::si);
    EXPECT_EQ(mostraMessaggio(nullptr, notizia), Risposta::ok);
    EXPECT_THAT(registro.prendi(), testing::ElementsAre(domanda, notizia));
    EXPECT_THAT(registro.testi(), testing::IsEmpty());
}

TEST(Registro, fallisceSuCioCheNonEraAtteso)
{
    const Messaggio domanda{QStringLiteral("Vuoi?"), Stile::domandaAvviso, titoloGestione()};
    EXPECT_NONFATAL_FAILURE(
        {
            RegistroMessaggi registro;
            EXPECT_EQ(mostraMessaggio(nullptr, domanda), Risposta::no);
            registro.prendi();
        },
        "Domanda senza una risposta preparata: \"Vuoi?\"");
    EXPECT_NONFATAL_FAILURE(
        {
            RegistroMessaggi registro;
            registro.rispondi(Risposta::si);
        },
        "Risposte preparate e mai chieste: 1");
    EXPECT_NONFATAL_FAILURE(
        {
            RegistroMessaggi registro;
            mostraMessaggio(nullptr, {QStringLiteral("Errore."), Stile::critico, titoloGestione()});
        },
        "Messaggio che nessuno aspettava: \"Errore.\" (16");
}

TEST(Trova, daIlFiglioOElencaQuelliCheCiSono)
{
    QWidget finestra;
    finestra.setObjectName(QStringLiteral("frmProva"));
    auto* disposizione = new QVBoxLayout(&finestra);
    auto* campo = new QLineEdit(&finestra);
    campo->setObjectName(QStringLiteral("txtLDV"));
    disposizione->addWidget(campo);
    EXPECT_EQ(trova<QLineEdit>(finestra, QStringLiteral("txtLDV")), campo);
    try {
        trova<QLineEdit>(&finestra, QStringLiteral("txtData"));
        FAIL() << "non ha lanciato";
    } catch (const std::runtime_error& errore) {
        EXPECT_STREQ(errore.what(), "QLineEdit \"txtData\" non c'è in frmProva. Ci sono:\n"
                                    "  QLineEdit \"txtLDV\"\n");
    }
}
