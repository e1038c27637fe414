#include "search/controlloricerca.h"

#include "base/errorenumerato.h"
#include "database/valori.h"

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

constexpr qsizetype cifreIva = 11;

} // namespace

void ControllaCampoRicerca(const QString& testo, CampoSoggetto campo)
{
    const bool perNumero = campo == CampoSoggetto::codice || campo == CampoSoggetto::partitaIva;
    if (testo.isEmpty())
        sollevaErroreSoggetti(ErroreSoggetti::vuoto);
    if (perNumero && !eNumero(testo))
        sollevaErroreSoggetti(ErroreSoggetti::nonNumerico);
    if (!perNumero && eNumero(testo))
        sollevaErroreSoggetti(ErroreSoggetti::numerico);
    if (campo == CampoSoggetto::partitaIva && testo.size() != cifreIva)
        sollevaErroreSoggetti(ErroreSoggetti::lunghezzaIva);
}

void sollevaErroreSoggetti(ErroreSoggetti quale)
{
    const int numero = static_cast<int>(quale);
    throw ErroreNumerato(numero, messaggioSoggetti(numero)->testo);
}

std::optional<Messaggio> messaggioSoggetti(int numero)
{
    switch (static_cast<ErroreSoggetti>(numero)) {
    case ErroreSoggetti::vuoto:
        // The depots know this caption by its misspelling, and look it up by it.
        return Messaggio{u"Campo Ricerca vuoto! Bisogna inserire una stringa da ricercare"_s, Stile::avviso,
                         u"Gestione trasorti"_s};
    case ErroreSoggetti::nonNumerico:
        return Messaggio{u"Bisogna inserire un valore numerico nella casella Ricerca, se si seleziona la "
                         "ricerca per 'CODICE' o per 'P.IVA'"_s,
                         Stile::avviso, titoloGestione()};
    case ErroreSoggetti::numerico:
        return Messaggio{u"Selezionando la ricerca per 'Ragione Sociale','Località','Provincia'; bisogna "
                         "inserire nella casella ricerca un valore non numerico"_s,
                         Stile::avviso, titoloGestione()};
    case ErroreSoggetti::lunghezzaIva:
        return Messaggio{u"Selezionando la ricerca per 'partita iva'; bisogna inserire nella casella ricerca "
                         "un valore numerico di 11 caratteri"_s,
                         Stile::avviso, titoloGestione()};
    case ErroreSoggetti::nonTrovato:
        return Messaggio{u"Occorrenza non trovata nel database."_s, Stile::avviso, titoloGestione()};
    }
    return {};
}

} // namespace giacenza
