#pragma once

#include "management/gestionediprova.h"

namespace giacenza::prove {

/// The management screen's retrieval of a case.
class RichiamoDiProva : public GestioneDiProva
{
protected:
    static Messaggio deiTrasporti(const QString& testo)
    {
        return {testo, Stile::avviso, u"Gestione Trasporti"_s};
    }
    QString blocco() const
    {
        return u"SELECT letve00f.*, giace00f.*, forni.RagioneSociale as Vettore, filiali.Descrizione as "
               u"filiale, "
               "codicizona.Descrizione as linea from (((letve00f LEFT JOIN giace00f on lefili=gifili and "
               "lenrlv=ginrlv and leanlv=gianlv) inner JOIN filiali ON lefili=filiali.codice) INNER JOIN "
               "codicizona on lelin1=codicizona.Codice) INNER join forni ON forni.Codice=lecdve"_s;
    }
    bool attivo(const char* nome) const { return c(nome)->isEnabled(); }
};

} // namespace giacenza::prove
