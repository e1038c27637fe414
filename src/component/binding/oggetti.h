#pragma once

#include <giacenza/giacenza.h>

#include <cstdint>
#include <memory>

namespace giacenza {

/// What a number of the C interface stands for. Used on the thread that made it.
class Oggetto
{
public:
    Oggetto() = default;
    Oggetto(const Oggetto&) = delete;
    Oggetto& operator=(const Oggetto&) = delete;
    virtual ~Oggetto() = default;

    /// risultato: empty when called; stays so when the call throws.
    virtual void invoca(uint32_t id, int32_t modo, const giacenza_valore* argomenti, int32_t numero,
                        giacenza_valore& risultato) = 0;
    virtual void ascolta(uint32_t evento) = 0;

    /// Who is told of the event; a null function: nobody.
    void setAscoltatore(giacenza_ascoltatore funzione, void* utente);
    /// Tells him. It may release this object, which is then gone.
    void racconta() const noexcept;

    void setNumero(giacenza_oggetto numero) { mNumero = numero; }
    bool delThread() const { return mThread == questoThread(); }

private:
    /// The number of the calling thread, which no other ever has: the system's are given again.
    static uint64_t questoThread();

    const uint64_t mThread = questoThread();
    giacenza_oggetto mNumero = 0;
    giacenza_ascoltatore mAscoltatore = nullptr;
    void* mUtente = nullptr;
};

/// Gives the object a number, never given before.
giacenza_oggetto annota(std::unique_ptr<Oggetto> oggetto);

/// The object of a number; it lives at least as long as the reference. Throws ErroreConfine when there is
/// none, or on another thread than its own.
std::shared_ptr<Oggetto> oggetto(giacenza_oggetto numero);

/// Forgets the number: the object goes with the last reference to it, and tells nobody anything more.
void rilascia(giacenza_oggetto numero);

/// Whether any has not been released.
bool ceNeSono();

/// An object of this library.
std::unique_ptr<Oggetto> nuovoOggetto();

} // namespace giacenza
