#include "schema/script.h"

#include "support/stampa.h"

#include <gmock/gmock.h>

using namespace giacenza;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

TEST(Script, siDivideDoveUnaRigaFinisceConIlPuntoEVirgola)
{
    const QString testo = u"-- Un commento; con dentro di tutto: 'apici'\n"
                          "-- e una riga ancora.\n"
                          "\n"
                          "create table t (\n    a integer,\n    -- in mezzo\n    b text default 'x;y'\n);\n"
                          "insert into t values (1);  \n"
                          "drop table t"_s;
    EXPECT_THAT(
        istruzioniScript(testo),
        ElementsAre(u"create table t (\n    a integer,\n    -- in mezzo\n    b text default 'x;y'\n)"_s,
                    u"insert into t values (1)"_s, u"drop table t"_s));
}

TEST(Script, senzaIstruzioniEVuoto)
{
    EXPECT_THAT(istruzioniScript(u"-- niente\n\n;\n"_s), IsEmpty());
}

TEST(Script, iDueSchemiCreanoLeStesseTabelle)
{
    const auto tabelle = [](Dialetto dialetto) {
        QStringList nomi;
        for (const QString& istruzione : istruzioniSchema(dialetto)) {
            const QStringList parole = istruzione.split(u' ');
            if (parole.value(1) == u"table"_s)
                nomi << parole.value(2);
        }
        nomi.sort();
        return nomi;
    };
    EXPECT_THAT(tabelle(Dialetto::mariadb),
                ElementsAre(u"clien"_s, u"codicizona"_s, u"ekelvorqzt_tabge00f"_s, u"filiali"_s, u"forni"_s,
                            u"giace00f"_s, u"letve00f"_s, u"porto"_s, u"tabfatturazione"_s));
    EXPECT_EQ(tabelle(Dialetto::sqlite), tabelle(Dialetto::mariadb));
}

TEST(Script, unDatabaseSconosciutoNonHaSchema)
{
    EXPECT_THAT(istruzioniSchema(Dialetto::altro), IsEmpty());
}

TEST(Script, iPrivilegiNominanoBaseEUtenteTraApici)
{
    const QStringList istruzioni = istruzioniPrivilegi(u"ba`se"_s, u"o'utente"_s, u"10.0.0.%"_s);
    EXPECT_THAT(istruzioni, testing::Contains(u"grant select on `ba``se`.clien to 'o''utente'@'10.0.0.%'"_s));
    EXPECT_THAT(istruzioni,
                testing::Each(testing::ResultOf([](const QString& i) { return i.contains(u':'); }, false)));
}

} // namespace
