#include "search/righelette.h"

#include <gmock/gmock.h>

using namespace giacenza;

namespace {

QByteArray testo(std::optional<QByteArrayView> valore)
{
    return valore ? valore->toByteArray() : QByteArray("NULL");
}

TEST(RigheLette, tieneTestiVuotiENulliDistinti)
{
    RigheLette lette;
    lette.aggiungiRiga();
    lette.aggiungiValore(QByteArrayView("Perù 🚚"));
    lette.aggiungiValore(std::nullopt);
    lette.aggiungiValore(QByteArrayView(""));
    lette.aggiungiValore(QByteArrayView("fine"));
    EXPECT_EQ(lette.righe(), 1);
    EXPECT_EQ(testo(lette.valore(0, 0)), QByteArray("Perù 🚚"));
    EXPECT_FALSE(lette.valore(0, 1).has_value());
    ASSERT_TRUE(lette.valore(0, 2).has_value());
    EXPECT_EQ(lette.valore(0, 2)->size(), 0);
    EXPECT_EQ(testo(lette.valore(0, 3)), QByteArray("fine"));
}

TEST(RigheLette, tieneValoriDiOgniLunghezza)
{
    // Around the bounds of one, two and three bytes of length.
    const std::vector<qsizetype> lunghezze{0, 1, 126, 127, 128, 16382, 16383, 16384, 70000, 2097152};
    RigheLette lette;
    for (const qsizetype lunghezza : lunghezze) {
        lette.aggiungiRiga();
        lette.aggiungiValore(QByteArray(lunghezza, 'a'));
        lette.aggiungiValore(QByteArrayView("z"));
    }
    for (int riga = 0; riga < std::ssize(lunghezze); ++riga) {
        EXPECT_EQ(testo(lette.valore(riga, 0)), QByteArray(lunghezze[static_cast<std::size_t>(riga)], 'a'));
        EXPECT_EQ(testo(lette.valore(riga, 1)), QByteArray("z"));
    }
}

TEST(RigheLette, trovaLeRigheDiOgniPagina)
{
    RigheLette lette;
    constexpr int quante = RigheLette::righePagina * 3 + 1;
    for (int riga = 0; riga < quante; ++riga) {
        lette.aggiungiRiga();
        lette.aggiungiValore(QByteArray::number(riga));
        lette.aggiungiValore(std::nullopt);
        lette.aggiungiValore(QByteArray::number(-riga));
    }
    ASSERT_EQ(lette.righe(), quante);
    for (int riga = 0; riga < quante; ++riga) {
        ASSERT_EQ(testo(lette.valore(riga, 0)), QByteArray::number(riga));
        ASSERT_FALSE(lette.valore(riga, 1).has_value());
        ASSERT_EQ(testo(lette.valore(riga, 2)), QByteArray::number(-riga));
    }
}

TEST(RigheLette, siRileggonoInOgniOrdine)
{
    RigheLette lette;
    constexpr int pagine = 5;
    for (int riga = 0; riga < RigheLette::righePagina * pagine; ++riga) {
        lette.aggiungiRiga();
        lette.aggiungiValore(QByteArray::number(riga));
    }
    for (const int pagina : {0, 1, 0, 1, 4, 0, 3, 2, 1, 0, 4})
        for (const int riga : {0, RigheLette::righePagina - 1}) {
            const int quale = pagina * RigheLette::righePagina + riga;
            EXPECT_EQ(testo(lette.valore(quale, 0)), QByteArray::number(quale));
        }
    // What was the last page is one of the others now.
    lette.aggiungiRiga();
    lette.aggiungiValore(QByteArrayView("ultima"));
    EXPECT_EQ(testo(lette.valore(RigheLette::righePagina * pagine - 1, 0)),
              QByteArray::number(RigheLette::righePagina * pagine - 1));
    EXPECT_EQ(testo(lette.valore(RigheLette::righePagina * pagine, 0)), QByteArray("ultima"));
}

TEST(RigheLette, svuotataRicomincia)
{
    RigheLette lette;
    for (int riga = 0; riga <= RigheLette::righePagina; ++riga) {
        lette.aggiungiRiga();
        lette.aggiungiValore(QByteArrayView("prima"));
    }
    EXPECT_EQ(testo(lette.valore(0, 0)), QByteArray("prima"));
    lette.svuota();
    EXPECT_EQ(lette.righe(), 0);
    lette.aggiungiRiga();
    lette.aggiungiValore(QByteArrayView("dopo"));
    EXPECT_EQ(testo(lette.valore(0, 0)), QByteArray("dopo"));
}

} // namespace
