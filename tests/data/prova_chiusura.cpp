#include "data/chiusura.h"

#include "support/spedizioni.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

#include <cmath>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;

namespace {

constexpr qint64 scala = 10'000;

/// Halves to even, by whole numbers: numeratore / divisore, divisore > 0.
qint64 diviso(qint64 numeratore, qint64 divisore)
{
    qint64 quoziente = numeratore / divisore;
    qint64 resto = numeratore % divisore;
    if (resto < 0) {
        resto += divisore;
        --quoziente;
    }
    if (resto * 2 > divisore || (resto * 2 == divisore && quoziente % 2 != 0))
        ++quoziente;
    return quoziente;
}

QString comeTesto(qint64 decimillesimi)
{
    const qint64 assoluto = std::abs(decimillesimi);
    return u"%1%2.%3"_s.arg(decimillesimi < 0 ? u"-"_s : QString())
        .arg(assoluto / scala)
        .arg(assoluto % scala, 4, 10, QChar(u'0'));
}

struct Caso
{
    qint64 giorni, franchi, alGiorno, minimo; // all but the days in ten-thousandths
};

std::vector<Caso> casi()
{
    std::vector<Caso> tutti;
    for (const qint64 giorni : {-3, 0, 1, 4, 5, 6, 7, 12, 31, 365, 32767})
        for (const qint64 franchi : {0, 5000, 15000, 25000, 50000, 100001, -20000})
            for (const qint64 alGiorno : {0, 50, 3330, 1250, 15000, 123456, -10000})
                for (const qint64 minimo : {0, 150000, 49, -20000})
                    tutti.push_back({giorni, franchi, alGiorno, minimo});
    return tutti;
}

/// The charge in ten-thousandths, worked out on whole numbers; nothing when the days overflow 16 bits.
std::optional<qint64> atteso(const Caso& caso)
{
    const qint64 daPagare = diviso(caso.giorni * scala - caso.franchi, scala);
    if (daPagare > 32767 || daPagare < -32768)
        return std::nullopt;
    if (daPagare <= 0)
        return 0;
    return std::max(diviso(caso.alGiorno * daPagare, 100) * 100, caso.minimo);
}

TEST(CostiGiacenza, SonoQuelliDiUnCalcoloIndipendente)
{
    const auto tutti = casi();
    ASSERT_GE(tutti.size(), 200U);
    int oltre = 0;
    for (const Caso& caso : tutti) {
        const CondizioniSosta condizioni = {u"7.5"_s, comeTesto(caso.franchi), comeTesto(caso.alGiorno),
                                            comeTesto(caso.minimo)};
        const QString giorni = QString::number(caso.giorni);
        const std::string quale =
            (giorni + u" giorni, %1 franchi, %2 al giorno, minimo %3"_s.arg(
                          *condizioni.giorniFranchi, *condizioni.alGiorno, *condizioni.minimo))
                .toStdString();
        const auto importo = atteso(caso);
        if (!importo) {
            ++oltre;
            EXPECT_THROW(calcolaImporti(condizioni, giorni), ErroreConversione) << quale;
            continue;
        }
        const ImportiGiacenza importi = calcolaImporti(condizioni, giorni);
        EXPECT_EQ(importi.fisso.testo(), u"7.5"_s);
        EXPECT_TRUE(confronta(importi.sosta.testo(), comeTesto(*importo)) == std::strong_ordering::equal)
            << quale << ": " << importi.sosta.testo().toStdString() << ", not "
            << comeTesto(*importo).toStdString();
    }
    EXPECT_GT(oltre, 0) << "some cases are beyond 16 bits";
}

TEST(CostiGiacenza, EsempiAMano)
{
    const CondizioniSosta condizioni = {u"7.50"_s, u"5"_s, u"1.5"_s, u"15"_s};
    EXPECT_EQ(calcolaImporti(condizioni, u"12"_s).sosta.testo(), u"15"_s) << "10.50 is below the minimum";
    EXPECT_EQ(calcolaImporti(condizioni, u"5"_s).sosta.testo(), u"0"_s) << "no day is charged: no minimum";
    EXPECT_EQ(calcolaImporti(condizioni, u"6"_s).sosta.testo(), u"15"_s);
    EXPECT_EQ(calcolaImporti(condizioni, u"15"_s).sosta.testo(), u"15.00"_s) << "the minimum itself";
    EXPECT_EQ(calcolaImporti(condizioni, u"16"_s).sosta.testo(), u"16.50"_s);
    EXPECT_EQ(calcolaImporti(condizioni, u"-2"_s).sosta.testo(), u"0"_s);
    EXPECT_EQ(calcolaImporti({u"0"_s, u"0"_s, u"0.333"_s, u"0"_s}, u"3"_s).sosta.testo(), u"1.00"_s);
    EXPECT_EQ(calcolaImporti({u"0"_s, u"0"_s, u"0.125"_s, u"0"_s}, u"1"_s).sosta.testo(), u"0.12"_s);
    EXPECT_EQ(calcolaImporti({u"0"_s, u"0"_s, u"0.375"_s, u"0"_s}, u"1"_s).sosta.testo(), u"0.38"_s);
    EXPECT_EQ(calcolaImporti({u"0"_s, u"0"_s, u"0.01"_s, u"0.0249"_s}, u"1"_s).sosta.testo(), u"0.0249"_s)
        << "the minimum is taken as it is";
}

TEST(CostiGiacenza, CioCheMancaFerma)
{
    const Valore si = u"1"_s;
    EXPECT_THROW(calcolaImporti({{}, si, si, si}, u"9"_s), ErroreConversione);
    EXPECT_THROW(calcolaImporti({si, {}, si, si}, u"9"_s), ErroreConversione);
    EXPECT_THROW(calcolaImporti({si, si, {}, si}, u"9"_s), ErroreConversione);
    EXPECT_THROW(calcolaImporti({si, si, si, {}}, u"9"_s), ErroreConversione);
    EXPECT_EQ(calcolaImporti({si, si, {}, {}}, u"1"_s).sosta.testo(), u"0"_s)
        << "within the free days nobody asks";
    for (const QString& giorni : {QString(), u"nove"_s, u"32768"_s, u"-32769"_s})
        EXPECT_THROW(calcolaImporti({si, si, si, si}, giorni), ErroreConversione) << giorni.toStdString();
}

/// What is read, by the year of the waybill.
class Chiusura : public testing::TestWithParam<std::string>
{
protected:
    Chiusura()
    {
        riempiDeposito(mBase);
        mBase.esegui(u"update letve00f set lecmpe='A' where lefili='MI';\n"
                     "insert into tabfatturazione (FALCOD,FACODI,FACMPE,FADFGI,FAFRGI,FATGIG,FAMIGI) values "
                     "('C',1001,'A',7.50,5,1.50,15.00),('C',1002,'A',1.00,1,1.00,1.00),"
                     "('F',1001,'A',9.00,9,9.00,9.00);"_s);
        mConnessione.apri(mBase.stringa());
    }

    BancaDati mBase{GetParam()};
    Connessione mConnessione;
};

INSTANTIATE_TEST_SUITE_P(Basi, Chiusura, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(Chiusura, LeCondizioniSiTrovanoPerAnno)
{
    const auto condizioni = leggiCondizioni(mConnessione, u"4714"_s, 2026);
    ASSERT_TRUE(condizioni);
    const ImportiGiacenza importi = calcolaImporti(*condizioni, u"16"_s);
    EXPECT_TRUE(confronta(importi.fisso.testo(), u"7.50"_s) == std::strong_ordering::equal);
    EXPECT_EQ(importi.sosta.testo(), u"16.50"_s);
    EXPECT_FALSE(leggiCondizioni(mConnessione, u"4714"_s, 2025));
    EXPECT_FALSE(leggiCondizioni(mConnessione, u"4715"_s, 2026)) << "this waybill has no billing key";
    EXPECT_THROW(leggiCondizioni(mConnessione, u"47'14"_s, 2026), ErroreDatabase);
}

TEST_P(Chiusura, DiDueCondizioniVaLaPrimaRiga)
{
    mBase.esegui(u"insert into letve00f (lefili,lenrlv,leanlv,ledtlv,lecodi,lecmpe) values "
                 "('BO','4714',2026,'2026-11-12',1002,'A');"_s);
    const auto righe = mBase.righe(istruzioni::condizioniFatturazione(u"4714"_s, 2026));
    ASSERT_EQ(righe.size(), 2);
    const auto condizioni = leggiCondizioni(mConnessione, u"4714"_s, 2026);
    ASSERT_TRUE(condizioni);
    const auto colonna = 4; // FADFGI
    EXPECT_EQ(condizioni->fisso, righe.front().at(colonna));
}

TEST_P(Chiusura, INulliRestanoNulli)
{
    mBase.esegui(u"update tabfatturazione set FAMIGI=null;"_s);
    EXPECT_EQ(leggiCondizioni(mConnessione, u"4714"_s, 2026)->minimo, std::nullopt);
}

TEST_P(Chiusura, LaDataSiLeggeConLeDueChiavi)
{
    const QString stringa = mBase.stringa();
    EXPECT_EQ(LeggiDataBuonFine(stringa, ChiaveGiacenza{u"40"_s, 2026}), QDate(2026, 11, 18));
    EXPECT_EQ(LeggiDataBuonFine(stringa, ChiaveSpedizione{u"MI"_s, u"4714"_s, 2026}), QDate(2026, 11, 18));
    EXPECT_EQ(LeggiDataBuonFine(stringa, ChiaveGiacenza{u"40"_s, 2025}), std::nullopt);
    // On MariaDB the column drops what follows the day; a host's may keep it.
    mBase.esegui(u"update giace00f set GIDTBF='2026-11-19 00:00:00';"_s);
    EXPECT_EQ(LeggiDataBuonFine(stringa, ChiaveGiacenza{u"40"_s, 2026}), QDate(2026, 11, 19));
    mBase.esegui(u"update giace00f set GIDTBF=null;"_s);
    EXPECT_EQ(LeggiDataBuonFine(stringa, ChiaveGiacenza{u"40"_s, 2026}), std::nullopt);
    EXPECT_EQ(LeggiDataBuonFine(stringa, ChiaveSpedizione{u"MI"_s, u"4714"_s, 2026}), std::nullopt);
}

} // namespace
