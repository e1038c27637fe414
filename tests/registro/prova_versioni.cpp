#include "schema/registro.h"
#include "schema/script.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

using namespace giacenza;
using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

/// The first words of each statement, without what names nothing.
QStringList cheCosa(Dialetto dialetto, int versione)
{
    QStringList fatte;
    for (QString istruzione : istruzioniRegistro(dialetto, versione, u"registro_giacenza"_s)) {
        istruzione.remove(u"or replace definer = registro_giacenza "_s)
            .remove(u"if not exists "_s)
            .remove(u"if exists "_s);
        fatte << istruzione.split(u' ').mid(0, 3).join(u' ');
    }
    return fatte;
}

TEST(Versioni, diMariadb)
{
    EXPECT_EQ(ultimaVersioneRegistro(Dialetto::mariadb), 2);
    EXPECT_THAT(
        cheCosa(Dialetto::mariadb, 1),
        ElementsAre(u"create table registro_versione"_s, u"create table registro"_s,
                    u"create trigger registro_giace_nuova"_s, u"create trigger registro_giace_cambiata"_s,
                    u"create trigger registro_giace_tolta"_s, u"create trigger registro_letve_nuova"_s,
                    u"create trigger registro_letve_cambiata"_s, u"create trigger registro_letve_tolta"_s));
    EXPECT_THAT(cheCosa(Dialetto::mariadb, 2), ElementsAre(u"create table registro_note"_s));
    EXPECT_THAT(cheCosa(Dialetto::mariadb, 3), ElementsAre());
}

TEST(Versioni, diSqlite)
{
    EXPECT_EQ(ultimaVersioneRegistro(Dialetto::sqlite), 3);
    EXPECT_THAT(
        cheCosa(Dialetto::sqlite, 1),
        ElementsAre(u"create table registro_versione"_s, u"create table registro"_s,
                    u"create index registro_caso"_s, u"create trigger registro_giace_nuova"_s,
                    u"create trigger registro_giace_cambiata"_s, u"create trigger registro_giace_tolta"_s,
                    u"create trigger registro_letve_nuova"_s, u"create trigger registro_letve_cambiata"_s,
                    u"create trigger registro_letve_tolta"_s, u"create trigger registro_non_cambia"_s,
                    u"create trigger registro_non_si_toglie"_s,
                    u"create trigger registro_non_si_sostituisce"_s));
    EXPECT_THAT(cheCosa(Dialetto::sqlite, 2),
                ElementsAre(u"create table registro_note"_s, u"create index registro_note_caso"_s,
                            u"create trigger registro_note_non_cambia"_s,
                            u"create trigger registro_note_non_si_toglie"_s,
                            u"create trigger registro_note_non_si_sostituisce"_s));
    EXPECT_THAT(cheCosa(Dialetto::sqlite, 3),
                ElementsAre(u"drop trigger registro_non_si_sostituisce"_s,
                            u"create trigger registro_non_si_sostituisce"_s,
                            u"create trigger registro_numero_positivo"_s,
                            u"drop trigger registro_note_non_si_sostituisce"_s,
                            u"create trigger registro_note_non_si_sostituisce"_s,
                            u"create trigger registro_note_numero_positivo"_s));
}

TEST(Versioni, diUnAltroDatabaseNonCeNeSono)
{
    EXPECT_EQ(ultimaVersioneRegistro(Dialetto::altro), 0);
    EXPECT_THAT(istruzioniRegistro(Dialetto::altro, 1, {}), ElementsAre());
}

TEST(Versioni, ogniIstruzioneSiPuoRipetere)
{
    for (const Dialetto dialetto : {Dialetto::mariadb, Dialetto::sqlite})
        for (int versione = 1; versione <= ultimaVersioneRegistro(dialetto); ++versione)
            for (const QString& istruzione : istruzioniRegistro(dialetto, versione, u"x"_s))
                EXPECT_TRUE(istruzione.contains(u"if not exists"_s) || istruzione.contains(u"if exists"_s) ||
                            istruzione.startsWith(u"create or replace"_s))
                    << istruzione.toStdString();
}

TEST(Versioni, ogniScattoDiMariadbHaChiRaccoglieIGuasti)
{
    int scatti = 0;
    for (const QString& istruzione : istruzioniRegistro(Dialetto::mariadb, 1, u"x"_s)) {
        if (!istruzione.contains(u" trigger "_s))
            continue;
        ++scatti;
        EXPECT_TRUE(istruzione.startsWith(u"create or replace definer = x trigger registro_"_s));
        EXPECT_TRUE(istruzione.contains(
            u"for each row\nbegin\n    declare continue handler for sqlexception begin end;\n"_s))
            << istruzione.toStdString();
        EXPECT_TRUE(istruzione.endsWith(u"\nend"_s)) << istruzione.toStdString();
    }
    EXPECT_EQ(scatti, 6);
}

TEST(Versioni, iPrivilegiDiUnConto)
{
    EXPECT_THAT(istruzioniPrivilegiRegistro(u"ba`se"_s, u"'uno'@'10.0.0.%'"_s),
                ElementsAre(u"grant select on `ba``se`.registro to 'uno'@'10.0.0.%'"_s,
                            u"grant select, insert (GINRGI, GIANGI, autore, testo) on `ba``se`.registro_note "
                            "to 'uno'@'10.0.0.%'"_s));
}

TEST(Versioni, loScriptSiDivideAncheDoveGliScattiHannoPuntiEVirgola)
{
    EXPECT_THAT(
        istruzioniScript(u"create trigger a after insert on t\nbegin\n    select 1;\nend;\n"
                         "drop table t;\n"_s),
        ElementsAre(u"create trigger a after insert on t\nbegin\n    select 1;\nend"_s, u"drop table t"_s));
    EXPECT_THAT(istruzioniScript(u"delimiter //\ncreate or replace trigger a\nbegin\n    select 1;\nend //\n"
                                 "delimiter ;\ndrop table t;\n"_s),
                ElementsAre(u"create or replace trigger a\nbegin\n    select 1;\nend"_s, u"drop table t"_s));
}

} // namespace
