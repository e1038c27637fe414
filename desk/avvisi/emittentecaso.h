#pragma once

#include "desk/dati/caso.h"

class QWidget;

namespace giacenza::desk {

/// What is to be done with cases.
enum class Lavoro
{
    avviso,   ///< count a notice and print it
    ristampa, ///< print the notice again
};

enum class Esito
{
    fatto,
    lasciato,   ///< nothing was to be done: noticed today already
    rifiutato,  ///< nothing was done
    incompleto, ///< the notice counts, and was not printed
    ignoto,     ///< nobody knows whether the notice counts; it was not printed
};

struct EsitoCaso
{
    Esito esito = Esito::rifiutato;
    QString parole;             ///< what was done, or why not
    QString file{};             ///< the document, absolute; empty where the module does not say
    bool senzaArchivio = false; ///< the archive does not answer: the next case would fare no better
};

/// Whether a case is left out of the notices of a day, as far as the list knows: nothing, or why.
std::optional<QString> lasciatoFuori(const Caso& caso, Lavoro lavoro, QDate oggi);

/// Issues the notices of cases, one by one, as the screens do, but leaves the description as it is. Before
/// each it looks at the case as it now stands: one that was closed, or noticed today, is left alone, so that
/// repeating does nothing twice.
class EmittenteCaso
{
public:
    explicit EmittenteCaso(Accesso accesso) : mAccesso(std::move(accesso)) {}

    /// padre: over which the print module's dialogs open, may be null. Never throws.
    EsitoCaso svolgi(Lavoro lavoro, const Caso& caso, QWidget* padre);

private:
    EsitoCaso conta(const Caso& caso);
    EsitoCaso contaOra(const Caso& caso);
    EsitoCaso raggiungi(const EsitoCaso& esito);
    Connessione& connessione();

    Accesso mAccesso;
    Connessione mConnessione;
};

} // namespace giacenza::desk
