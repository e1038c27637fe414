#pragma once

#include "screens/avvertenza.h"
#include "screens/schermata.h"

#include <QDate>

#include <optional>

namespace giacenza {

class CampoData;

/// The date on which the goods were put in storage, and the storage days that follow from it.
class DataGiacenza
{
public:
    struct Controlli
    {
        CampoData* data;
        QLabel* dataBuonFine;
        QLabel* giorniSosta;
        QLabel* avvertenza; ///< null on a screen that gives no hint about the date
    };

    DataGiacenza(Schermata& schermata, const Controlli& controlli);

    /// Nothing when the field holds no date.
    std::optional<QDate> giorno() const;

    /// Writes the storage days into their bar: nothing when the field holds no date.
    void CalcolaGiorniSosta();

    /// Whether the field holds no date though something stands in it; the message was then shown.
    bool rifiutata();

    /// Today in the place of a date that is a left-over of another held shipment.
    void sostituisciAvanzo();

private:
    Seguito convalida();
    void avverti();

    Schermata& mSchermata;
    Controlli mControlli;
    Avvertenza mAvvertenza;
};

} // namespace giacenza
