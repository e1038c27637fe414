#include "database/stringaconnessione.h"

#include <gtest/gtest.h>

using giacenza::voceConnessione;

TEST(StringaConnessione, UnaVoceSiTrovaComunqueSiaScritta)
{
    constexpr QStringView stringa =
        u" driver = {MariaDB Unicode} ;SERVER=db1;pwd={a;DATABASE=finta};DATABASE=depo ";
    EXPECT_EQ(voceConnessione(stringa, u"DRIVER"), u"MariaDB Unicode");
    EXPECT_EQ(voceConnessione(stringa, u"server"), u"db1");
    EXPECT_EQ(voceConnessione(stringa, u"PWD"), u"a;DATABASE=finta");
    EXPECT_EQ(voceConnessione(stringa, u"DATABASE"), u"depo") << "not the one within the braces";
}

TEST(StringaConnessione, CioCheNonCeEVuoto)
{
    EXPECT_TRUE(voceConnessione(u"SERVER=db1;UID=DATABASE", u"DATABASE").isEmpty());
    EXPECT_TRUE(voceConnessione(u"DATABASE=;UID=u", u"DATABASE").isEmpty());
    EXPECT_TRUE(voceConnessione(u"DATABASE", u"DATABASE").isEmpty()) << "a word without a value";
    EXPECT_TRUE(voceConnessione({}, u"DATABASE").isEmpty());
}
