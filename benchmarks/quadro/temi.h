#pragma once

#include "benchmarks/quadro/basi.h"
#include "benchmarks/quadro/misura.h"
#include "benchmarks/quadro/opzioni.h"

/// What can be measured. A new topic is a function here, a line in main.cpp, and its programs in a folder of
/// its own.
namespace banco {

/// The shipment search: until its first page stands, and how much memory that takes.
std::vector<Confronto> temaGriglia(const Basi& basi, const Opzioni& opzioni);

/// The desk: until the first open cases stand in its list, all of them, a filter, a scan.
std::vector<Confronto> temaDesk(const Basi& basi, const Opzioni& opzioni);

/// A storage notice, from the database to the PDF in the archive.
std::vector<Confronto> temaStampa(const Basi& basi, const Opzioni& opzioni);

} // namespace banco
