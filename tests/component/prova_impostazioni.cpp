#include "component/impostazioni.h"
#include "component/percorsi.h"

#include <gtest/gtest.h>

#include <thread>

using giacenza::impostazioni;
using giacenza::percorsoNativo;

TEST(Impostazioni, nasconoVuote)
{
    std::thread([] {
        EXPECT_TRUE(impostazioni().percorsoDatabase.isNull());
        EXPECT_TRUE(impostazioni().percorsoFileIni.isNull());
        EXPECT_TRUE(impostazioni().percorsoLogoIntestazione.isNull());
        EXPECT_TRUE(impostazioni().etichettaReso.isNull());
    }).join();
}

TEST(Impostazioni, ogniThreadHaLeSue)
{
    impostazioni().percorsoDatabase = QStringLiteral("DSN=uno");
    std::thread([] {
        EXPECT_TRUE(impostazioni().percorsoDatabase.isEmpty());
        impostazioni().percorsoDatabase = QStringLiteral("DSN=due");
    }).join();
    EXPECT_EQ(impostazioni().percorsoDatabase, QStringLiteral("DSN=uno"));
    impostazioni() = {};
}

TEST(Percorsi, ambedueISeparatoriDiventanoQuelloDellaPiattaforma)
{
    EXPECT_EQ(percorsoNativo(QStringLiteral("/dati\\deposito/gest.ini")),
              QStringLiteral("/dati/deposito/gest.ini"));
    EXPECT_EQ(percorsoNativo(QString()), QString());
}
