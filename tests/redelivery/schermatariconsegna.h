#pragma once

#include "redelivery/riconsegnadiprova.h"

namespace giacenza::prove {

/// The statements that show a waybill: its own, with the number and the ISO date for %1 and %2, and its
/// branch's.
inline const QString lookup =
    u"SELECT letve00f.*, giace00f.*, forni.RagioneSociale as Vettore, filiali.Descrizione as filiale, "
    "codicizona.Descrizione as linea from (((letve00f LEFT JOIN giace00f on lefili=gifili and lenrlv=ginrlv "
    "and "
    "leanlv=gianlv) inner JOIN filiali ON lefili=filiali.codice) INNER JOIN codicizona on "
    "lelin1=codicizona.Codice) INNER join forni ON forni.Codice=lecdve WHERE lenrlv='%1' and ledtlv='%2';"_s;
inline const QString lookupFiliale = u"select descrizione from filiali where codice='BO';"_s;

/// The re-delivery screen, with a customer.
class SchermataRiconsegnaDiProva : public RiconsegnaDiProva
{
protected:
    void cliente()
    {
        scrivi("txtCodiceCli", u"1001"_s);
        lascia("txtCodiceCli");
    }
};

} // namespace giacenza::prove
