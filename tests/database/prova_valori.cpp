#include "database/valori.h"

#include "support/stampa.h"

#include <gmock/gmock.h>

#include <QLocale>

#include <clocale>

using namespace giacenza;
using namespace Qt::StringLiterals;

namespace {

/// A process that runs in another country, until the end of the test.
class AltroPaese
{
public:
    AltroPaese()
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        std::setlocale(LC_ALL, "C");
    }
    AltroPaese(const AltroPaese&) = delete;
    AltroPaese& operator=(const AltroPaese&) = delete;
    ~AltroPaese()
    {
        QLocale::setDefault(mPrima);
        std::setlocale(LC_ALL, mPrimaC.c_str());
    }

private:
    QLocale mPrima;
    std::string mPrimaC = std::setlocale(LC_ALL, nullptr);
};

struct CasoNumero
{
    const char16_t* testo;
    bool numero;
};

class Numero : public testing::TestWithParam<CasoNumero>
{};

TEST_P(Numero, eNumero)
{
    const QString testo = QString::fromUtf16(GetParam().testo);
    EXPECT_EQ(eNumero(testo), GetParam().numero) << testing::PrintToString(testo);
}

INSTANTIATE_TEST_SUITE_P(Accettati, Numero,
                         testing::Values(CasoNumero{u"0", true}, CasoNumero{u"41", true},
                                         CasoNumero{u"007", true}, CasoNumero{u"+5", true},
                                         CasoNumero{u"-5", true}, CasoNumero{u"3,5", true},
                                         CasoNumero{u"3.5", true}, CasoNumero{u"5.", true},
                                         CasoNumero{u",5", true}, CasoNumero{u"  12\t", true},
                                         CasoNumero{u"123456789012345678901234567890", true}));

INSTANTIATE_TEST_SUITE_P(
    Rifiutati, Numero,
    testing::Values(CasoNumero{u"", false}, CasoNumero{u"   ", false}, CasoNumero{u"-", false},
                    CasoNumero{u".", false}, CasoNumero{u"1.234,5", false}, CasoNumero{u"1,2,3", false},
                    CasoNumero{u"1e5", false}, CasoNumero{u"- 5", false}, CasoNumero{u"--5", false},
                    CasoNumero{u"5-", false}, CasoNumero{u"1 2", false}, CasoNumero{u"0x1F", false},
                    CasoNumero{u"12a", false}, CasoNumero{u"nan", false}, CasoNumero{u"٤٢", false}));

TEST(SoloCifre, cifreENullAltro)
{
    for (const char16_t* si : {u"0", u"0123", u"99999999999999999999"}) {
        EXPECT_TRUE(soloCifre(QString::fromUtf16(si)));
    }
    for (const char16_t* no : {u"", u" 1", u"1 ", u"-1", u"+1", u"1.0", u"1,0", u"1;", u"٤", u"1\n"}) {
        EXPECT_FALSE(soloCifre(QString::fromUtf16(no))) << testing::PrintToString(QString::fromUtf16(no));
    }
}

TEST(LeggiData, leDueForme)
{
    EXPECT_EQ(leggiData(u"05/03/2024"_s), QDate(2024, 3, 5));
    EXPECT_EQ(leggiData(u"2024-03-05"_s), QDate(2024, 3, 5));
    EXPECT_EQ(leggiData(u"29/02/2024"_s), QDate(2024, 2, 29));
    EXPECT_TRUE(eData(u"31/12/1999"_s));
}

TEST(LeggiData, ilGiornoNonSiScambiaColMese)
{
    EXPECT_EQ(leggiData(u"13/12/2024"_s), QDate(2024, 12, 13));
    EXPECT_FALSE(eData(u"12/13/2024"_s));
    EXPECT_FALSE(eData(u"2024-13-12"_s));
}

TEST(LeggiData, altroNonEData)
{
    for (const char16_t* testo :
         {u"", u"__/__/____", u"//", u"5/3/2024", u"05/03/24", u"05-03-2024", u"2024/03/05", u"30/02/2024",
          u"29/02/2023", u"00/01/2024", u"01/00/2024", u"01/01/0000", u" 05/03/2024", u"05/03/2024 ",
          u"05/03/2024\n", u"2024-03-05 00:00:00", u"05/03/_024", u"٠٥/٠٣/٢٠٢٤"}) {
        EXPECT_FALSE(eData(QString::fromUtf16(testo))) << testing::PrintToString(QString::fromUtf16(testo));
    }
}

TEST(TestoData, breveEPerSql)
{
    EXPECT_EQ(dataBreve(QDate(2024, 3, 5)), u"05/03/2024"_s);
    EXPECT_EQ(dataSql(QDate(2024, 3, 5)), u"2024-03-05"_s);
    EXPECT_EQ(dataSql(QDate(98, 3, 5)), u"0098-03-05"_s);
    EXPECT_EQ(dataBreve(QDate()), QString());
    EXPECT_EQ(dataSql(QDate()), QString());
}

TEST(TestoData, nonDipendeDalPaese)
{
    const AltroPaese altrove;
    EXPECT_EQ(dataBreve(QDate(2024, 3, 5)), u"05/03/2024"_s);
    EXPECT_EQ(leggiData(u"05/03/2024"_s), QDate(2024, 3, 5));
}

TEST(Intero16, leMetaVannoAlPari)
{
    EXPECT_EQ(intero16(u"12"_s), 12);
    EXPECT_EQ(intero16(u"0,5"_s), 0);
    EXPECT_EQ(intero16(u"1.5"_s), 2);
    EXPECT_EQ(intero16(u"2,5"_s), 2);
    EXPECT_EQ(intero16(u"2,51"_s), 3);
    EXPECT_EQ(intero16(u"-1,5"_s), -2);
    EXPECT_EQ(intero16(u"-2.5"_s), -2);
    EXPECT_EQ(intero16(u" 7 "_s), 7);
}

TEST(Intero16, fuoriMisuraEErrore)
{
    EXPECT_EQ(intero16(u"32767"_s), 32767);
    EXPECT_EQ(intero16(u"32767,4"_s), 32767);
    EXPECT_EQ(intero16(u"-32768"_s), -32768);
    EXPECT_EQ(intero16(u"-32768,5"_s), -32768);
    EXPECT_THROW(intero16(u"32767,5"_s), ErroreConversione);
    EXPECT_THROW(intero16(u"32768"_s), ErroreConversione);
    EXPECT_THROW(intero16(u"-32769"_s), ErroreConversione);
    EXPECT_THROW(intero16(u"99999999999999999999"_s), ErroreConversione);
}

TEST(Intero16, altroNonENumero)
{
    EXPECT_THROW(intero16(QString()), ErroreConversione);
    EXPECT_THROW(intero16(u"dodici"_s), ErroreConversione);
}

TEST(FormattaNumero, dueDecimaliColPunto)
{
    QString valore = u"3,5"_s;
    EXPECT_EQ(FormattaNumero(valore), u"3.50"_s);
    valore = u"1234.5"_s;
    EXPECT_EQ(FormattaNumero(valore), u"1234.50"_s);
    valore = u"15"_s;
    EXPECT_EQ(FormattaNumero(valore), u"15.00"_s);
}

TEST(FormattaNumero, lArgomentoPrendeLaVirgola)
{
    QString valore = u"3.5"_s;
    FormattaNumero(valore);
    EXPECT_EQ(valore, u"3,50"_s);
    EXPECT_EQ(FormattaNumero(valore), u"3.50"_s);
}

TEST(FormattaNumero, leMetaVannoLontanoDaZero)
{
    QString valore = u"0,005"_s;
    EXPECT_EQ(FormattaNumero(valore), u"0.01"_s);
    valore = u"1.005"_s;
    EXPECT_EQ(FormattaNumero(valore), u"1.01"_s);
    valore = u"-2,675"_s;
    EXPECT_EQ(FormattaNumero(valore), u"-2.68"_s);
}

TEST(FormattaNumero, altroLasciaLArgomento)
{
    QString valore = u"molto"_s;
    EXPECT_THROW(FormattaNumero(valore), ErroreConversione);
    EXPECT_EQ(valore, u"molto"_s);
}

TEST(ConRitorniACapo, unSoloModoDiAndareACapo)
{
    EXPECT_EQ(conRitorniACapo(u"uno\ndue\r\ntre\n"_s), u"uno\r\ndue\r\ntre\r\n"_s);
    EXPECT_EQ(conRitorniACapo(QString()), QString());
}

TEST(RaddoppiaApice, soloIlPrimo)
{
    EXPECT_EQ(RaddoppiaApice(u"senza"_s), u"senza"_s);
    EXPECT_EQ(RaddoppiaApice(QString()), QString());
    EXPECT_EQ(RaddoppiaApice(u"l'atrio"_s), u"l''atrio"_s);
    EXPECT_EQ(RaddoppiaApice(u"l'atrio dell'arrivo"_s), u"l''atrio dell'arrivo"_s);
    EXPECT_EQ(RaddoppiaApice(u"'"_s), u"''"_s);
}

TEST(Valuta, italiana)
{
    EXPECT_EQ(valuta(u"0"_s), u"0,00 €"_s);
    EXPECT_EQ(valuta(u"15"_s), u"15,00 €"_s);
    EXPECT_EQ(valuta(u"999.99"_s), u"999,99 €"_s);
    EXPECT_EQ(valuta(u"1234.5"_s), u"1.234,50 €"_s);
    EXPECT_EQ(valuta(u"1234567,8"_s), u"1.234.567,80 €"_s);
    EXPECT_EQ(valuta(u"-123.4"_s), u"-123,40 €"_s);
    EXPECT_EQ(valuta(u"-1234.5"_s), u"-1.234,50 €"_s);
}

TEST(Valuta, leMetaVannoAlPari)
{
    EXPECT_EQ(valuta(u"0.125"_s), u"0,12 €"_s);
    EXPECT_EQ(valuta(u"0.135"_s), u"0,14 €"_s);
}

TEST(Valuta, nonDipendeDalPaese)
{
    const AltroPaese altrove;
    EXPECT_EQ(valuta(u"1234.5"_s), u"1.234,50 €"_s);
}

TEST(Valuta, altroEErrore)
{
    EXPECT_THROW(valuta(u"1.234,50"_s), ErroreConversione);
    EXPECT_THROW(valuta(QString()), ErroreConversione);
}

} // namespace
