#pragma once

#include "database/valori.h"

#include <QString>

#include <vector>

namespace giacenza::desk {

/// Characters of the longest thing that is looked up, a customer's reference.
inline constexpr qsizetype riferimentoMassimo = 60;

/// One thing that a number may be.
struct Tentativo
{
    QString parole; ///< what is looked for, as the operator reads it: "giacenza 231 del 2026"
    QString istruzione;
    std::vector<Valore> parametri;
    bool basta = false; ///< what it finds is what was meant: the rest is not tried
};

/// What was typed or scanned, as it is looked for: no blanks around it, no characters that are not to be
/// seen.
QString ripulito(const QString& digitato);

/// What a number may be, in the order in which it is tried; empty for an empty text.
///
/// A barcode of our own letters and waybills names branch, number and year of a waybill; a scanner whose
/// keyboard is set to another language than the computer's writes its hyphens as apostrophes, and a hand may
/// write strokes. "231/2026" is a held shipment or a waybill of that year. Everything else may be the number
/// of a waybill, of a held shipment, or a customer's reference.
std::vector<Tentativo> tentativi(const QString& testo);

} // namespace giacenza::desk
