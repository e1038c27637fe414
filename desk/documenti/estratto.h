#pragma once

#include "desk/documenti/conto.h"
#include "desk/registro/cronologia.h"

/// The statement of a customer: his cases of a period, what happened to them, what they cost.
namespace giacenza::documenti {

/// A customer with open cases.
struct ClienteAperto
{
    QString codice;
    QString ragioneSociale; ///< empty: he is not among the customers
    int aperte = 0;
};

/// Those that have any, by name. Throws ErroreDatabase.
std::vector<ClienteAperto> clientiConAperte(Connessione& connessione);

/// What a statement is asked for. The days count among the period.
struct RichiestaEstratto
{
    QString cliente;
    QDate da;
    QDate a;
    QDate oggi;
};

/// Where a case's amounts are from.
enum class Origine
{
    calcolati, ///< the case is open, or was at the period's end: as a closure of the statement's day would
               ///< charge
    scritti,   ///< the case is closed: what stands on it
    mancanti,  ///< neither can be said
};

struct CasoEstratto
{
    Conto conto; ///< at the statement's day, or at the closure; one that came after the period is left out
    QDate dataLdv;
    QString riferimento;
    QString localita;
    QString provincia;
    QString colli;
    QString peso;   ///< kg
    QString avvisi; ///< how many; empty: none
    std::optional<QDate> ultimoAvviso;
    Origine origine = Origine::mancanti;
    QString fisso; ///< this and the next: two decimals and a point, empty when missing
    QString sosta;
    QString totale;
    std::vector<registro::Evento> fatti; ///< of the period

    bool aperto() const { return !conto.dati.buonFine; }
};

struct Estratto
{
    RichiestaEstratto richiesta;
    QString ragioneSociale;
    QDate alla; ///< the day to which open cases are charged: the last of the period, today at the latest
    std::vector<CasoEstratto> casi;
    int aperti = 0;
    int senzaImporti = 0; ///< cases that the sums below leave out
    QString fisso = {};   ///< sums, two decimals and a point
    QString sosta = {};
    QString totale = {};
};

/// Reads a statement. Throws ErroreDatabase, and Errore in Italian for a period that ends before it begins.
Estratto leggiEstratto(Connessione& connessione, const RichiestaEstratto& richiesta);

/// "aperta", "chiusa il 18/11/2026", and the invoice where there is one.
QString statoInParole(const CasoEstratto& caso);

/// What happened, an event each line: "12/11/2026 Avviso n. 2".
QString fattiInParole(const CasoEstratto& caso);

/// "Estratto giacenze 1001 2026-11-01 2026-11-30", as its files are called.
QString nomeEstratto(const Estratto& estratto);

} // namespace giacenza::documenti
