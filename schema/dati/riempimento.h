#pragma once

#include "schema/dati/struttura.h"

#include <QDate>

#include <functional>

namespace giacenza::dimostrazione {

inline constexpr int massimoSpedizioni = 10'000'000;

struct Richiesta
{
    int spedizioni = 2000; ///< from 0 to massimoSpedizioni
    QDate oggi;            ///< the last day on which something happened
    bool crea = false;     ///< the tables are not there yet
};

struct Riepilogo
{
    qsizetype spedizioni = 0;
    qsizetype giacenze = 0;
    qsizetype clienti = 0;
};

/// Told now and then while rows are written; what it throws ends the filling.
using Avanzamento = std::function<void(qsizetype fatte, qsizetype totali)>;

/// Fills a database: all of it or nothing. The same request gives the same rows on both databases.
///
/// Throws Rifiuto when the database is not as it must be, ErroreDatabase when it fails.
Riepilogo riempi(Connessione& connessione, const Richiesta& richiesta, const Avanzamento& avanzamento = {});

} // namespace giacenza::dimostrazione
