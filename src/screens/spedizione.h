#pragma once

#include "database/recordset.h"

#include <QLatin1String>

#include <vector>

namespace giacenza {

/// Where a row of the shipment lookup is written: the controls of a screen, by name.
class DestinazioneSpedizione
{
public:
    DestinazioneSpedizione() = default;
    DestinazioneSpedizione(const DestinazioneSpedizione&) = delete;
    DestinazioneSpedizione& operator=(const DestinazioneSpedizione&) = delete;
    virtual ~DestinazioneSpedizione() = default;

    /// A text, a caption or a date ("dd/mm/yyyy") as it is to be shown; empty empties the control.
    virtual void scrivi(QLatin1String controllo, const QString& testo) = 0;
    /// A text that the control keeps without showing it as its own.
    virtual void scriviTag(QLatin1String controllo, const QString& testo) = 0;
    /// The row of a list, from 0; -1 selects none; a row that is not there leaves the list as it was,
    /// a left-over.
    virtual void seleziona(QLatin1String controllo, int riga) = 0;
    /// The row has nothing for the control, which stays as it was and is a left-over from now on.
    virtual void lascia(QLatin1String controllo) = 0;
    /// Whether the waybill is already held.
    virtual void giaInGiacenza(bool giacente) = 0;
};

/// What is done with a column on its way to its control. A null, or a value that cannot be converted, leaves
/// the control as it was, but for the kinds that say otherwise.
enum class Conversione
{
    marca,       ///< the already-held mark: held when the value is a number
    svuota,      ///< no column: the control is emptied
    tag,         ///< kept by the control, not shown
    testo,       ///< the text
    testoOVuoto, ///< the text, empty for null
    importo,     ///< an amount: two decimals behind the Italian comma
    importoOVuoto,
    quantita,     ///< a count, a weight or a volume: as many decimals as it has, no zeros behind them
    data,         ///< a day as "dd/mm/yyyy"
    dataOVuota,   ///< the same, empty for null
    dataSvuotata, ///< the same: the masked field is cleared first, and stays so when there is no date to give
                  ///< it
    anno,         ///< the year of a day
    posizione,    ///< the 1-based position in a list
};

struct PassoSpedizione
{
    const char16_t* colonna; ///< as the lookup names it; empty for Conversione::svuota
    const char* controllo;   ///< empty for Conversione::marca
    Conversione conversione;
};

using MappaSpedizione = std::vector<PassoSpedizione>;

/// The columns and controls of each working screen, in the order in which they are filled.
const MappaSpedizione& mappaRegistrazione();
const MappaSpedizione& mappaGestione();
const MappaSpedizione& mappaRiconsegna();

/// Where the columns of a mapping stand in the rows that a screen is filled from. A screen asks for the same
/// columns at each lookup: their names are looked up at the first, and again when others come.
class PostiSpedizione
{
public:
    explicit PostiSpedizione(const MappaSpedizione& mappa) : mMappa(mappa) {}

    const MappaSpedizione& mappa() const { return mMappa; }
    /// For each step the place of its column; -1 for one without a column, or whose column the row lacks.
    const std::vector<int>& in(const Recordset& riga);

private:
    bool valgono(const Recordset& riga) const;

    const MappaSpedizione& mMappa;
    std::vector<int> mPosti;
    int mColonne = -1;
};

/// Fills a screen from the current row. Errors are ignored step by step: a value that cannot be put into its
/// control leaves that control as it was.
void CaricaDatiSpedizione(const Recordset& riga, PostiSpedizione& posti, DestinazioneSpedizione& schermo);

} // namespace giacenza
