#pragma once

#include <QString>

namespace giacenza {

/// The kind of movement that follows a held shipment, as the host chose it.
enum class Movimento
{
    nessuno, ///< before any choice
    riconsegna,
    reso,
};

/// Its name on screens and documents: "Riconsegna a Destinatario", "Reso a Mittente", or empty.
QString etichettaReso(Movimento movimento);

/// What the host told the component: one set for each thread, written by cGiacenza only.
struct Impostazioni
{
    QString percorsoDatabase;         ///< connection string, as the host gave it
    QString percorsoFileIni;          ///< settings file; its folder holds the goods-type list
    QString percorsoLogoIntestazione; ///< letterhead logo
    Movimento movimento = Movimento::nessuno;
};

Impostazioni& impostazioni();

} // namespace giacenza
