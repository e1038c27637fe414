#pragma once

#include "screens/campocliente.h"
#include "screens/chiavericerca.h"

#include "data/istruzioni.h"

namespace giacenza {

/// The waybill of the row that the operator took.
struct SpedizioneScelta
{
    QString numero;
    QDate giorno;
};

/// A screen's opener of the shipment search, in any of its modes.
class ElencoSpedizioni
{
public:
    /// filiale: the field of the waybill's branch; null on a screen that hands none over.
    ElencoSpedizioni(Schermata& schermata, const CampoCliente& cliente, const QLineEdit* filiale);

    /// The two fields of a key, where they are filled as the search needs them; else says so. numero: what
    /// counts as a waybill number.
    bool ControllaImmissione(const ChiaveRicerca& chiave, bool (*numero)(const QString&));

    /// Opens the search on what a key holds, by reference or by waybill. Nothing when it was closed without a
    /// choice.
    std::optional<SpedizioneScelta> RicercaSpedizione(const ChiaveRicerca& chiave);
    /// Opens it on the customer's held shipments.
    std::optional<SpedizioneScelta> giacenze();
    /// Opens it on the waybills that re-deliver a held shipment, only to be looked at.
    void riconsegne(const ChiaveGiacenza& caso);

private:
    struct Apertura;
    std::optional<SpedizioneScelta> apri(const Apertura& apertura);

    Schermata& mSchermata;
    const CampoCliente& mCliente;
    const QLineEdit* mFiliale;
};

} // namespace giacenza
