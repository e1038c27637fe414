// The file of goods types.

#include "fuzz/fuzz.h"

#include "base/errorenumerato.h"
#include "base/listbox.h"

using namespace giacenza;
using namespace giacenza::fuzz;
using namespace Qt::StringLiterals;

int LLVMFuzzerTestOneInput(const std::uint8_t* byte, std::size_t quanti)
{
    static const FileDiProva file(u"lista.txt"_s);
    Pezzi pezzi(byte, quanti);
    const QString nuova = pezzi.testo();
    file.scrivi(pezzi.resto());
    try {
        const auto prima = leggiElenco(file.nome());
        vale(prima.has_value(), "the file is there");
        aggiungiAllElenco(file.nome(), nuova);
        const auto dopo = leggiElenco(file.nome());
        vale(dopo->contains(nuova), "what was added is there");
        vale(dopo->size() > prima->size() || prima->isEmpty(), "it was added");
        for (const QString& riga : *prima)
            vale(dopo->contains(riga), "nothing was lost");
    } catch (const Errore&) {
        return 0;
    }
    return 0;
}
