#include "database/sql.h"

#include "support/stampa.h"

#include <gmock/gmock.h>

#include <functional>

using namespace giacenza;
using namespace Qt::StringLiterals;

namespace {

QString motivo(const std::function<QString()>& incolla)
{
    try {
        incolla();
    } catch (const ErroreDatabase& errore) {
        EXPECT_EQ(errore.sqlstate(), u"42000"_s);
        EXPECT_EQ(errore.codiceNativo(), 0);
        return errore.testo();
    }
    ADD_FAILURE() << "nothing was refused";
    return {};
}

TEST(SqlTesto, passaImmutato)
{
    for (const char16_t* valore : {u"", u"123", u"MI", u"l''atrio", u"''", u"''''", u"a''b''c",
                                   u"100% ; -- /* */ # \\ \" ` %1 ?", u"riga\r\nriga", u"àèìòù €", u"😀"}) {
        EXPECT_EQ(sql::testo(QString::fromUtf16(valore)), QString::fromUtf16(valore));
    }
}

TEST(SqlTesto, unApostrofoNonRaddoppiatoNonPassa)
{
    for (const char16_t* valore : {u"'", u"l'atrio", u"'inizio", u"fine'", u"'''", u"a''b'c", u"a'b''c",
                                   u"' or '1'='1", u"x'; drop"}) {
        EXPECT_THROW(sql::testo(QString::fromUtf16(valore)), ErroreDatabase)
            << testing::PrintToString(QString::fromUtf16(valore));
    }
    EXPECT_EQ(motivo([] { return sql::testo(u"l'atrio"_s); }),
              u"Errore di sintassi nell'istruzione SQL: apostrofo non raddoppiato in \"l'atrio\"."_s);
}

TEST(SqlTesto, unCarattereNulloNonPassa)
{
    const QString valore = u"12"_s + QChar(u'\0') + u"34"_s;
    EXPECT_THAT(motivo([&] { return sql::testo(valore); }).toStdString(),
                testing::HasSubstr("carattere nullo"));
}

TEST(SqlTesto, mezzoCarattereNonPassa)
{
    for (const QString& valore :
         {u"a"_s + QChar(0xd83d), QChar(0xde00) + u"b"_s, QChar(0xd83d) + u"x"_s + QChar(0xde00)}) {
        try {
            sql::testo(valore);
            ADD_FAILURE() << "accepted";
        } catch (const ErroreDatabase& errore) {
            EXPECT_EQ(errore.sqlstate(), u"22021"_s);
            EXPECT_EQ(errore.testo(), u"Il testo contiene mezzo carattere."_s);
        }
    }
}

TEST(SqlTesto, lErroreMostraSoloLInizio)
{
    const QString valore = QString(10000, u'x') + u'\'';
    EXPECT_LT(motivo([&] { return sql::testo(valore); }).size(), 200);
}

TEST(SqlCifre, soloCifre)
{
    EXPECT_EQ(sql::cifre(u"00123"_s), u"00123"_s);
    for (const char16_t* valore : {u"", u"-1", u"1.5", u" 1", u"1 or 1=1", u"1;", u"abc", u"1''"}) {
        EXPECT_THROW(sql::cifre(QString::fromUtf16(valore)), ErroreDatabase)
            << testing::PrintToString(QString::fromUtf16(valore));
    }
    EXPECT_EQ(motivo([] { return sql::cifre(u"1 or 1=1"_s); }),
              u"Errore di sintassi nell'istruzione SQL: attese solo cifre in \"1 or 1=1\"."_s);
}

TEST(SqlNumero, ancheColSegnoEColPunto)
{
    for (const char16_t* valore : {u"0", u"12", u"-3", u"15.00", u"-0.50", u".5", u"5."}) {
        EXPECT_EQ(sql::numero(QString::fromUtf16(valore)), QString::fromUtf16(valore));
    }
    for (const char16_t* valore :
         {u"", u"-", u".", u"--1", u"+1", u"1,5", u"1.2.3", u"1e5", u" 1", u"1\n", u"1 -- "}) {
        EXPECT_THROW(sql::numero(QString::fromUtf16(valore)), ErroreDatabase)
            << testing::PrintToString(QString::fromUtf16(valore));
    }
}

TEST(SqlData, nellaFormaDellIstruzione)
{
    EXPECT_EQ(sql::data(QDate(2024, 3, 5)), u"2024-03-05"_s);
    EXPECT_EQ(motivo([] { return sql::data(QDate()); }),
              u"Errore di sintassi nell'istruzione SQL: attesa una data."_s);
}

TEST(SqlConTesti, ogniPostoHaIlSuo)
{
    const QString istruzione = u"select a from t where b=? and c=?"_s;
    EXPECT_EQ(sql::conTesti(istruzione, std::vector<Valore>{u"x"_s, u"l'uno ? e l''altro"_s}),
              u"select a from t where b='x' and c='l''uno ? e l''''altro'"_s);
    EXPECT_EQ(sql::conTesti(istruzione, std::vector<Valore>{std::nullopt, QString()}),
              u"select a from t where b=null and c=''"_s);
    EXPECT_EQ(sql::conTesti(u"select 1"_s, {}), u"select 1"_s);
    EXPECT_THROW(sql::conTesti(istruzione, std::vector<Valore>{u"x"_s}), ErroreDatabase) << "one is missing";
    EXPECT_THROW(sql::conTesti(u"?"_s, std::vector<Valore>{QString(QChar(u'\0'))}), ErroreDatabase);
    EXPECT_THROW(sql::conTesti(u"?"_s, std::vector<Valore>{QString(QChar(0xd800))}), ErroreDatabase);
}

} // namespace
