#pragma once

#include "support/bancadati.h"

#include <vector>

namespace giacenza::prove {

/// A statement of the component with values that find something.
struct VoceCatalogo
{
    QString nome; ///< of its function in src/data, a blank, and which of its forms
    QString testo;
    std::vector<Valore> parametri{}; ///< for each "?" of the text
};

inline void PrintTo(const VoceCatalogo& voce, std::ostream* uscita)
{
    *uscita << voce.nome.toStdString();
}

/// Every statement that the component sends to this database, with the values of a held shipment of it.
std::vector<VoceCatalogo> catalogo(const BancaDati& base);

} // namespace giacenza::prove
