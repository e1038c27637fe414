#pragma once

#include "schema/dati/cronologia.h"

namespace giacenza::dimostrazione {

/// The customer who sends a waybill, by its position in Cronologia::spedizioni.
const Cliente& mittenteDi(const std::vector<Cliente>& clienti, int posizione);

/// Turns what happened into the rows of the two tables of shipments. The same position always gives the same
/// row. Keeps references: both must outlive it.
class Righe
{
public:
    Righe(const Cronologia& cronologia, const std::vector<Cliente>& clienti)
        : mCronologia(cronologia), mClienti(clienti)
    {}

    /// posizione: in Cronologia::spedizioni.
    Riga spedizione(int posizione) const;
    /// posizione: in Cronologia::giacenze.
    Riga giacenza(int posizione) const;
    /// The one row of the general settings.
    Riga impostazioni() const;

private:
    struct Spedizione;
    Spedizione nuova(int posizione) const;
    Spedizione riconsegna(const Posto& posto) const;

    const Cronologia& mCronologia;
    const std::vector<Cliente>& mClienti;
};

} // namespace giacenza::dimostrazione
