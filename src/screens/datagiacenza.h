#pragma once

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
    };

    DataGiacenza(Schermata& schermata, const Controlli& controlli);

    /// Nothing when the field holds no date.
    std::optional<QDate> giorno() const;

    /// Writes the storage days into their bar: nothing when the field holds no date.
    void CalcolaGiorniSosta();

private:
    Seguito convalida();

    Schermata& mSchermata;
    Controlli mControlli;
};

} // namespace giacenza
