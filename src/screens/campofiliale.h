#pragma once

#include "screens/avvertenza.h"
#include "screens/filiali.h"
#include "screens/schermata.h"

class QLineEdit;

namespace giacenza {

/// The branch that holds the goods: its code, with the list of branches, and its name.
class CampoFiliale
{
public:
    struct Controlli
    {
        QLineEdit* codice;
        QLabel* barra;
        QLabel* avvertenza; ///< where it says that the code is no branch's; null on a screen that does not
    };

    /// senzaRiquadri: a list of branches that cannot be read is told in the status line and not in a box.
    CampoFiliale(Schermata& schermata, const Controlli& controlli, bool senzaRiquadri);

    /// Reads the branches for the hint, once, when the screen is loaded; nothing where no hint is given.
    void leggiFiliali();

    /// Shows the name of the code that a row has filled in, none where it names none or the name cannot be
    /// read. Gives why it could not.
    std::optional<ErroreDatabase> leggiNome();

private:
    void cerca();
    void avverti();

    Schermata& mSchermata;
    bool mSenzaRiquadri;
    QLineEdit* mCodice;
    QLabel* mBarra;
    bool mConAvvertenza;
    Avvertenza mAvvertenza;
    Filiali mFiliali;
};

} // namespace giacenza
