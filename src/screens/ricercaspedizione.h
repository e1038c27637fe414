#pragma once

#include <QString>

#include <optional>

class QWidget;

namespace giacenza {

/// What a working screen passes to the shipment search; what a mode does not need stays empty.
struct AperturaRicerca
{
    int tipoRicerca =
        0; ///< 1 by reference, 7 by waybill, 10 the re-deliveries of a held shipment, 11 held shipments
    QString titolo = {};
    QString captionLabel = {};
    QString ragioneSocialeCliente = {};
    QString cliente = {};
    QString filiale = {};
    QString riferimento = {};
    QString numero = {};
    QString annoOdata = {}; ///< a year, or the date as typed
    QString giacenza = {};
    QString annoGiacenza = {};
};

/// The waybill of the row that the operator took.
struct SpedizioneScelta
{
    QString numero;
    QString data; ///< "dd/mm/yyyy"
};

/// Opens the shipment search, modal over padre. Gives nothing when it was closed without a choice, or with
/// padre.
std::optional<SpedizioneScelta> apriRicercaSpedizione(QWidget* padre, const AperturaRicerca& apertura);

} // namespace giacenza
