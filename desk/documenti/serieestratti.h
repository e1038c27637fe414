#pragma once

#include "desk/documenti/salvati.h"

#include "database/connessione.h"

namespace giacenza::documenti {

/// What came of one customer's statement.
struct EsitoEstratto
{
    ClienteAperto cliente;
    QStringList file; ///< what was kept
    int casi = 0;
    QString guasto; ///< why it was not made, in Italian; empty: it was
};

/// The statements of several customers, one after another; who drives it may stop after each. A customer
/// whose statement fails does not keep the next from theirs.
class SerieEstratti
{
public:
    /// periodo: its customer is not looked at. Throws ErroreDatabase when the archive cannot be reached.
    SerieEstratti(const Accesso& accesso, std::vector<ClienteAperto> clienti,
                  const RichiestaEstratto& periodo, const Forme& forme, Carta carta, QString cartella);

    int totale() const { return static_cast<int>(mClienti.size()); }
    int fatti() const { return static_cast<int>(mEsiti.size()); }
    bool finita() const { return fatti() == totale(); }
    /// Who comes next; only while not finita().
    const ClienteAperto& prossimo() const { return mClienti.at(mEsiti.size()); }

    /// Makes the next one. Never throws what is one customer's own failure.
    void avanti();

    const std::vector<EsitoEstratto>& esiti() const { return mEsiti; }

private:
    Accesso mAccesso;
    Connessione mConnessione;
    std::vector<ClienteAperto> mClienti;
    RichiestaEstratto mPeriodo;
    Forme mForme;
    Carta mCarta;
    QString mCartella;
    std::vector<EsitoEstratto> mEsiti;
};

} // namespace giacenza::documenti
