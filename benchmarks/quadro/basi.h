#pragma once

#include "benchmarks/quadro/opzioni.h"

#include "database/connessione.h"

#include <functional>

namespace banco {

/// The databases that are measured on: made once and kept, since filling one takes longer than measuring.
class Basi
{
public:
    explicit Basi(const Opzioni& opzioni) : mOpzioni(opzioni) {}

    /// Puts the rows into a new database that has tables but no separate indexes yet.
    using Riempimento = std::function<void(giacenza::Connessione& connessione)>;

    /// The connection string of a database, made with the schema and filled first if it is not there whole.
    ///
    /// tipo: "sqlite" or "mariadb"; nome: lower case, digits and underscores; it must name all that the rows
    /// depend on. Throws giacenza::Errore.
    QString stringa(const QString& tipo, const QString& nome, const Riempimento& riempi) const;

private:
    Opzioni mOpzioni;
};

} // namespace banco
