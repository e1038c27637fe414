#pragma once

#include "schema/dati/nomi.h"
#include "schema/dati/tabelle.h"

#include <optional>

namespace giacenza::dimostrazione {

/// The storage terms of a customer, in ten-thousandths of a euro; the free days are days.
struct Condizioni
{
    qint64 fisso = 0;
    int franchi = 0;
    qint64 giornaliero = 0;
    qint64 minimo = 0;
};

/// What a closed case costs, in cents.
struct Costi
{
    qint64 fisso = 0;
    qint64 importo = 0;
};

/// The fixed fee; for the days beyond the free ones the daily charge, halves of a cent to even, and no less
/// than the minimum.
Costi costi(const Condizioni& condizioni, int giorni);

struct Cliente
{
    int codice = 0;
    int filiale = 0; ///< position of the branch that collects its shipments
    QString ragione;
    QString indirizzo;
    const Comune* comune = nullptr;
    QString iva;
    QString mpe;                          ///< second key part of its terms
    std::optional<Condizioni> condizioni; ///< a few customers have none
};

/// The customers for so many waybills: one for every thirty of them, within reason.
std::vector<Cliente> clienti(int spedizioni);

QString codiceFiliale(int filiale);
/// The two lines of a branch: in the branch's own town, or around it.
QString codiceZona(int filiale, bool citta);
/// One of the two carriers of a branch.
QString codiceVettore(int filiale, bool secondo);

std::vector<Riga> righeFiliali();
std::vector<Riga> righeZone();
/// The third row is the one preset for a return.
std::vector<Riga> righePorto();
std::vector<Riga> righeFornitori();
std::vector<Riga> righeClienti(const std::vector<Cliente>& clienti);
std::vector<Riga> righeFatturazione(const std::vector<Cliente>& clienti);

} // namespace giacenza::dimostrazione
