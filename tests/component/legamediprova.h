#pragma once

#include "component/componentediprova.h"

#include "support/stampa.h"

#include <giacenza/giacenza.h>

#include <gmock/gmock.h>

namespace giacenza::prove {

inline giacenza_valore testo(const char* valore)
{
    return {GIACENZA_TESTO, 0, valore};
}

inline giacenza_valore intero(int32_t valore)
{
    return {GIACENZA_INTERO, valore, nullptr};
}

/// "code: text" of the thread's last error.
inline std::string ultimo()
{
    return std::to_string(giacenza_errore_codice()) + ": " + giacenza_errore_testo();
}

/// The C interface with forms of the test's own; the classes that it makes are its own too.
class LegameC : public ComponenteDiProva
{
protected:
    LegameC() { EXPECT_EQ(giacenza_crea(&mOggetto), GIACENZA_BENE); }
    ~LegameC() override { giacenza_rilascia(mOggetto); }

    int32_t scrivi(uint32_t id, giacenza_valore valore) const
    {
        return giacenza_invoca(mOggetto, id, GIACENZA_SCRIVI, &valore, 1, nullptr);
    }
    int32_t metodo(uint32_t id) const
    {
        return giacenza_invoca(mOggetto, id, GIACENZA_METODO, nullptr, 0, nullptr);
    }
    /// What a get gives: its text, or "code: text" of its error.
    std::string leggi(uint32_t id) const
    {
        giacenza_valore valore = {99, 99, "mai"};
        if (giacenza_invoca(mOggetto, id, GIACENZA_LEGGI, nullptr, 0, &valore) != GIACENZA_BENE) {
            EXPECT_EQ(valore.tipo, GIACENZA_VUOTO);
            EXPECT_EQ(valore.testo, nullptr);
            return ultimo();
        }
        EXPECT_EQ(valore.tipo, GIACENZA_TESTO);
        std::string letto = valore.testo;
        giacenza_libera(&valore);
        return letto;
    }
    QWidget* schermata() const { return mForme->caricata(frmGestGia); }

    giacenza_oggetto mOggetto = 0;
};

} // namespace giacenza::prove
