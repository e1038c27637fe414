#pragma once

#include "grappolo/giornale.h"

#include <QMap>

namespace giacenza::prove {

/// What was told of one waybill, by all workstations together. "Forse": told as unknown, or broken off before
/// it was told.
struct Racconto
{
    QStringList registrata; ///< the numbers of the held shipment that were told
    int forseRegistrata = 0;
    int detteEsistente = 0; ///< refused because it is held
    int avvisi = 0;         ///< counted ones
    int forseAvvisi = 0;
    int chiusure = 0;
    int forseChiusure = 0;
    QDate giornoChiusura; ///< the first
    QStringList emesse;   ///< numbers of the waybills that were issued
    int forseEmesse = 0;
};

/// By the number of the waybill.
QMap<QString, Racconto> racconta(const QList<Voce>& voci);

/// The lines of the ends, and those of beginnings that have no end.
QList<Voce> conclusioni(const QList<Voce>& voci);

} // namespace giacenza::prove
