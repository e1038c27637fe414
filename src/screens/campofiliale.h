#pragma once

#include "screens/schermata.h"

class QLineEdit;

namespace giacenza {

/// The branch that holds the goods: its code, with the list of branches, and its name.
class CampoFiliale
{
public:
    CampoFiliale(Schermata& schermata, QLineEdit* codice, QLabel* barra);

    /// Shows the name of the code that a row has filled in.
    void leggiNome();

private:
    void cerca();

    Schermata& mSchermata;
    QLineEdit* mCodice;
    QLabel* mBarra;
};

} // namespace giacenza
