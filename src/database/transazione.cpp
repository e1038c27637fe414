#include "database/transazione.h"

#include "database/collegamento.h"

namespace giacenza {

Transazione::Transazione(Connessione& connessione) : mCollegamento(connessione.collegamento())
{
    mCollegamento->inizia();
}

Transazione::~Transazione()
{
    if (!mConfermata)
        mCollegamento->annulla();
}

void Transazione::conferma()
{
    mCollegamento->conferma();
    mConfermata = true;
}

} // namespace giacenza
