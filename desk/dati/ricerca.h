#pragma once

#include "desk/dati/caso.h"

#include <QStringList>

#include <vector>

namespace giacenza::desk {

/// What a number led to: a waybill, and the case that it belongs to, if it does.
struct Trovata
{
    ChiaveSpedizione ldv;
    QDate dataLdv;
    QString cliente;
    QString ragioneSociale;
    QString destinatario;
    QString localita;
    QString riferimento;
    bool riconsegna = false;            ///< the waybill is a re-delivery or a return
    std::optional<ChiaveGiacenza> caso; ///< nothing: the waybill is not held
    QDate dal;                          ///< the case's held date
    QDate buonFine;                     ///< its closure; invalid: open
    bool sua = false;                   ///< the waybill is the one that is held, not one that followed
    QString come;                       ///< as what the number was found: "riferimento ORD-1"
};

/// What came of a search.
struct EsitoRicerca
{
    QString cercato;
    QStringList provati; ///< what was looked for, in order
    std::vector<Trovata> trovate;
    bool altre = false; ///< there are more than are listed
};

/// Looks a number up as everything that it may be. Each case, and each waybill that is not held, comes once:
/// open cases first, then waybills that are not held, then closed ones, the newest of each first. Throws
/// ErroreDatabase.
EsitoRicerca cerca(Connessione& connessione, const QString& digitato);

/// Why a search found nothing, for the operator: what was looked for, or that no number is so long.
QString senzaEsito(const EsitoRicerca& esito);

/// How many are listed at most.
inline constexpr std::size_t trovateMassime = 100;

} // namespace giacenza::desk
