#include "desk/dati/sfondo.h"

#include <gtest/gtest.h>

#include <QSemaphore>

#include <atomic>

using giacenza::desk::Sfondo;
using namespace std::chrono_literals;

namespace {

TEST(SfondoFermato, chiHaFinitoNonSiAspetta)
{
    Sfondo uno;
    Sfondo due;
    QSemaphore fatto;
    uno.esegui([&] { fatto.release(); });
    ASSERT_TRUE(fatto.tryAcquire(1, 10'000));
    EXPECT_TRUE(Sfondo::fermatiEntro(10s));
}

TEST(SfondoFermato, chiNonFinisceSiAspettaPocoESiDice)
{
    QSemaphore risposta; // of a server that says nothing
    QSemaphore cominciato;
    std::atomic<bool> dopo = false;
    Sfondo muto;
    Sfondo altro;
    muto.esegui([&] {
        cominciato.release();
        risposta.acquire();
    });
    muto.esegui([&] { dopo = true; });
    ASSERT_TRUE(cominciato.tryAcquire(1, 10'000));
    EXPECT_FALSE(Sfondo::fermatiEntro(50ms));
    risposta.release();
    EXPECT_TRUE(Sfondo::fermatiEntro(10s));
    EXPECT_FALSE(dopo) << "what waited behind it is not begun";
}

} // namespace
