#pragma once

#include "benchmarks/chiave/riferimento/base.h"

/// The same statements as the component's, in the same order, on as many connections. Each operation gives
/// its milliseconds. Parts of a request: see casi.h.
namespace nudo {

using Parti = std::vector<std::string>;

double ricerca(Base& schermo, const Parti& parti);
double salvataggio(Base& schermo, const Parti& parti);
double avviso(Base& schermo, const Parti& parti);
double chiusura(Base& schermo, const Parti& parti);
double emissione(Base& schermo, const Parti& parti);

} // namespace nudo
