#include "base/impostazioni.h"
#include "base/percorsi.h"

#include <gtest/gtest.h>

#include <thread>

using namespace Qt::StringLiterals;

using giacenza::impostazioni;
using giacenza::percorsoNativo;

TEST(Impostazioni, nasconoVuote)
{
    std::thread([] {
        EXPECT_TRUE(impostazioni().percorsoDatabase.isNull());
        EXPECT_TRUE(impostazioni().percorsoFileIni.isNull());
        EXPECT_TRUE(impostazioni().percorsoLogoIntestazione.isNull());
        EXPECT_TRUE(etichettaReso(impostazioni().movimento).isNull());
    }).join();
}

TEST(Impostazioni, ogniThreadHaLeSue)
{
    impostazioni().percorsoDatabase = u"DSN=uno"_s;
    std::thread([] {
        EXPECT_TRUE(impostazioni().percorsoDatabase.isEmpty());
        impostazioni().percorsoDatabase = u"DSN=due"_s;
    }).join();
    EXPECT_EQ(impostazioni().percorsoDatabase, u"DSN=uno"_s);
    impostazioni() = {};
}

TEST(Percorsi, ambedueISeparatoriDiventanoQuelloDellaPiattaforma)
{
    EXPECT_EQ(percorsoNativo(u"/dati\\deposito/gest.ini"_s), u"/dati/deposito/gest.ini"_s);
    EXPECT_EQ(percorsoNativo(QString()), QString());
}
