#pragma once

#include "benchmarks/quadro/basi.h"
#include "benchmarks/quadro/misura.h"
#include "benchmarks/quadro/opzioni.h"

#include <functional>

/// What can be measured. A new topic is a folder with a function here that tells its names, a line in
/// main.cpp, and its programs.
namespace banco {

/// What can be asked for by name.
struct Tema
{
    QString nome;
    /// Makes the databases that it needs, and says what to compare on them: often a row for each database and
    /// size. The rows' names begin with the topic's.
    std::function<std::vector<Confronto>(const Basi& basi, const Opzioni& opzioni)> confronti;
};

/// What works by key: lookup, save, notice, closure, issue, and how they grow with the depot.
std::vector<Tema> temiChiave();

/// The shipment search: first page, second page, whole scroll, the dialog.
std::vector<Tema> temiGriglia();

/// From the start of a process to the registration screen.
std::vector<Tema> temiAvvio();

/// A storage notice, from the database to the PDF in the archive.
std::vector<Tema> temiStampa();

/// The desk: first rows of the open cases, a filter, a scan.
std::vector<Tema> temiDesk();

} // namespace banco
