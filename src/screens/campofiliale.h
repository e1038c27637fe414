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
    /// avvertenza: where it says that the code is no branch's; null on a screen that does not.
    CampoFiliale(Schermata& schermata, QLineEdit* codice, QLabel* barra, QLabel* avvertenza);

    /// Reads the branches for the hint, once, when the screen is loaded; nothing where no hint is given.
    void leggiFiliali();

    /// Shows the name of the code that a row has filled in.
    void leggiNome();

private:
    void cerca();
    void avverti();

    Schermata& mSchermata;
    QLineEdit* mCodice;
    QLabel* mBarra;
    bool mConAvvertenza;
    Avvertenza mAvvertenza;
    Filiali mFiliali;
};

} // namespace giacenza
