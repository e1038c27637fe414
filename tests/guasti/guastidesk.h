#pragma once

#include "desk/deskdiprova.h"
#include "guasti/operazione.h"

namespace giacenza::prove {

/// The desk, all of whose ways to the archive may fail; without boxes.
class DeskConGuasti : public DeskDiProva
{
protected:
    DeskConGuasti() { mStringa = mCavo.stringa(); }

    void prova(const Operazione& operazione) { mCavo.prova(GetParam(), mMessaggi, operazione); }

    RegistroMessaggi mMessaggi;
    /// The last connection to a file of SQLite that closes has everything written to the disk: not ours.
    Connessione mTenuta = mBase.connessione();
    Cavo mCavo{mBase};
};

} // namespace giacenza::prove
