#pragma once

#include <QString>

namespace giacenza {

/// What the host told the component: one set for each thread, written by cGiacenza only.
struct Impostazioni
{
    QString percorsoDatabase;         ///< connection string, as the host gave it
    QString percorsoFileIni;          ///< settings file; its folder holds the goods-type list
    QString percorsoLogoIntestazione; ///< letterhead logo
    QString etichettaReso; ///< "Reso a Mittente", "Riconsegna a Destinatario", or empty before any choice
};

Impostazioni& impostazioni();

} // namespace giacenza
