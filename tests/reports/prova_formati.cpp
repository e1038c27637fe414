#include "reports/engine/formati.h"

#include "database/connessione.h"
#include "support/stampa.h"

#include <QLocale>

#include <gmock/gmock.h>

using namespace giacenza;
using namespace giacenza::report;
using namespace Qt::StringLiterals;

namespace {

class Formati : public testing::Test
{
protected:
    QString con(const Formato& formato, const Valore& valore)
    {
        return formato({valore, mRiga, mConnessione, QDate(2015, 4, 1)});
    }

    RigaReport mRiga;
    Connessione mConnessione;
};

TEST_F(Formati, date)
{
    EXPECT_EQ(con(formati::data, u"2015-03-02"_s), u"02/03/2015"_s);
    EXPECT_EQ(con(formati::data, u"2015-03-02 00:00:00"_s), u"02/03/2015"_s);
    EXPECT_EQ(con(formati::data, u"2015-03-02T00:00:00"_s), u"02/03/2015"_s);
    EXPECT_EQ(con(formati::data, u"2015-03-02xyz"_s), u"2015-03-02xyz"_s);
    EXPECT_EQ(con(formati::data, std::nullopt), QString());
    EXPECT_EQ(con(formati::data, u"0000-00-00"_s), u"0000-00-00"_s);
}

TEST_F(Formati, importi)
{
    EXPECT_EQ(con(formati::importo, u"1234.5"_s), u"1.234,50 €"_s);
    EXPECT_EQ(con(formati::importo, std::nullopt), QString());
    EXPECT_EQ(con(formati::importo, u"n.d."_s), u"n.d."_s);
}

TEST_F(Formati, quantita)
{
    EXPECT_EQ(con(formati::quantita(u"kg"_s), u"1234.50"_s), u"1.234,5 kg"_s);
    EXPECT_EQ(con(formati::quantita(u"m³"_s), u"0.750"_s), u"0,75 m³"_s);
    EXPECT_EQ(con(formati::quantita(), u"4"_s), u"4"_s);
    EXPECT_EQ(con(formati::quantita(), u"100.00"_s), u"100"_s);
    EXPECT_EQ(con(formati::quantita(), std::nullopt), QString());
    EXPECT_EQ(con(formati::quantita(u"kg"_s), u"pochi"_s), u"pochi"_s);
}

TEST_F(Formati, italianiInOgniLocale)
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(con(formati::quantita(u"kg"_s), u"1234.50"_s), u"1.234,5 kg"_s);
    EXPECT_EQ(con(formati::importo, u"1234.5"_s), u"1.234,50 €"_s);
    EXPECT_EQ(con(formati::data, u"2015-03-02"_s), u"02/03/2015"_s);
    QLocale::setDefault(QLocale::c());
}

TEST_F(Formati, localita)
{
    const Formato formato = formati::localita(u"cap"_s, u"citta"_s, u"prov"_s);
    EXPECT_EQ(con(formato, {}), QString());
    mRiga.aggiungi(u"CITTA"_s, u"Milano"_s);
    EXPECT_EQ(con(formato, {}), u"Milano"_s);
    mRiga.aggiungi(u"CAP"_s, u"20100"_s);
    mRiga.aggiungi(u"PROV"_s, u"MI"_s);
    EXPECT_EQ(con(formato, {}), u"20100 Milano (MI)"_s);
}

} // namespace
