#pragma once

#include "data/istruzioni.h"
#include "desk/registro/evento.h"

#include <vector>

namespace giacenza::registro {

/// What of the register this archive has.
struct Presenza
{
    bool eventi = false;
    bool note = false;

    /// What is missing and what to do about it, in Italian; empty when nothing is.
    QString mancanza() const;
};

/// Asks the driver's catalog: no statement. Throws ErroreDatabase.
Presenza presenzaRegistro(Connessione& connessione);

/// What happened to a case, the oldest first.
struct Cronologia
{
    Presenza presenza;
    std::vector<Evento> eventi;
};

/// The register's events, the notes, and what the depot's tables tell besides: all of it where there is no
/// register, what is older than the register where there is one. Throws ErroreDatabase, and Errore when there
/// is no such case.
Cronologia leggiCronologia(Connessione& connessione, const ChiaveGiacenza& chiave);

/// The same when the presence is known already: for who reads many cases.
Cronologia leggiCronologia(Connessione& connessione, const ChiaveGiacenza& chiave, const Presenza& presenza);

} // namespace giacenza::registro
