#include "support/bancadati.h"
#include "support/registromessaggi.h"
#include "support/stampa.h"
#include "support/trova.h"

#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>

#include <QLineEdit>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;

class Base : public testing::TestWithParam<std::string>
{};

TEST_P(Base, haLoSchemaVuotoELUtenteLoUsa)
{
    const BancaDati base(GetParam());
    Connessione connessione = base.connessione();
    Recordset recordset;
    recordset.apri(connessione, u"select count(*) from Giace00f;"_s);
    EXPECT_EQ(recordset.valore(0), u"0"_s);
}

TEST_P(Base, eDiUnaProvaSola)
{
    const BancaDati una(GetParam());
    const BancaDati altra(GetParam());
    una.esegui(u"insert into porto (idPorto, Descrizione) values (1, 'Franco');"_s);
    EXPECT_EQ(una.leggi(u"select count(*) from porto"_s), u"1"_s);
    EXPECT_EQ(altra.leggi(u"select count(*) from porto"_s), u"0"_s);
}

TEST_P(Base, eseguePiuIstruzioniELeggeRighe)
{
    const BancaDati base(GetParam(), Contenuto::vuoto);
    base.esegui(u"create table t (a integer,\n b varchar(10));\n"
                "-- insert into t values (9, 'no');\n"
                "insert into t values (1, 'x;y');\ninsert into t values (2, null);\n"_s);
    const QList<QStringList> attese{{u"1"_s, u"x;y"_s}, {u"2"_s, u"NULL"_s}};
    EXPECT_EQ(base.righe(u"select * from t order by a"_s), attese);
}

INSTANTIATE_TEST_SUITE_P(Basi, Base, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST(BancaDatiDiProva, suMariadbLUtenteNonHaAltriPermessi)
{
    const BancaDati base("mariadb");
    Connessione connessione = base.connessione();
    EXPECT_THROW(connessione.esegui(u"delete from giace00f"_s), ErroreDatabase);
    EXPECT_THROW(connessione.esegui(u"create table t (a integer)"_s), ErroreDatabase);
}

TEST(BancaDatiDiProva, diUnTipoIgnotoSiLamenta)
{
    EXPECT_THROW(BancaDati("altro"), std::runtime_error);
}

TEST(Registro, tieneIMessaggiEDaLeRisposte)
{
    RegistroMessaggi registro;
    registro.rispondi(Risposta::si);
    const Messaggio domanda{u"Vuoi?"_s, Stile::domandaAvviso, titoloGestione()};
    const Messaggio notizia{u"Fatto."_s, Stile::informazione, titoloGestione()};
    EXPECT_EQ(mostraMessaggio(nullptr, domanda), Risposta::si);
    EXPECT_EQ(mostraMessaggio(nullptr, notizia), Risposta::ok);
    EXPECT_THAT(registro.prendi(), testing::ElementsAre(domanda, notizia));
    EXPECT_THAT(registro.testi(), testing::IsEmpty());
}

TEST(Registro, fallisceSuCioCheNonEraAtteso)
{
    const Messaggio domanda{u"Vuoi?"_s, Stile::domandaAvviso, titoloGestione()};
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
            mostraMessaggio(nullptr, {u"Errore."_s, Stile::critico, titoloGestione()});
        },
        "Messaggio che nessuno aspettava: \"Errore.\" (16");
}

TEST(Trova, daIlFiglioOElencaQuelliCheCiSono)
{
    QWidget finestra;
    finestra.setObjectName(u"frmProva"_s);
    auto* disposizione = new QVBoxLayout(&finestra);
    auto* campo = new QLineEdit(&finestra);
    campo->setObjectName(u"txtLDV"_s);
    disposizione->addWidget(campo);
    EXPECT_EQ(trova<QLineEdit>(finestra, u"txtLDV"_s), campo);
    try {
        trova<QLineEdit>(&finestra, u"txtData"_s);
        FAIL() << "non ha lanciato";
    } catch (const std::runtime_error& errore) {
        EXPECT_STREQ(errore.what(), "QLineEdit \"txtData\" non c'è in frmProva. Ci sono:\n"
                                    "  QLineEdit \"txtLDV\"\n");
    }
}
