#pragma once

#include "database/connessione.h"
#include "database/valori.h"

#include <span>

namespace giacenza {

/// A statement prepared once and executed many times with bound values.
class Comando
{
public:
    /// Throws ErroreDatabase.
    Comando(Connessione& connessione, const QString& istruzione);
    Comando(Comando&&) noexcept;
    Comando& operator=(Comando&&) noexcept;
    ~Comando();

    /// Runs it with one value for each "?". Throws ErroreDatabase. Returns the rows touched, -1 when unknown.
    qint64 esegui(std::span<const Valore> parametri);

private:
    class Interno;
    std::unique_ptr<Interno> mInterno;
};

} // namespace giacenza
