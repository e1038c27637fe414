// The settings file: as the component reads it, and as the host's form writes it.

#include "fuzz/fuzz.h"

#include "base/lettoreini.h"
#include "host/avvio/vociimpostazioni.h"

using namespace giacenza;
using namespace giacenza::fuzz;
using namespace Qt::StringLiterals;

int LLVMFuzzerTestOneInput(const std::uint8_t* byte, std::size_t quanti)
{
    static const FileDiProva file(u"g.ini"_s);
    Pezzi pezzi(byte, quanti);
    const QString nuovo = pezzi.testo();
    const auto quale = static_cast<std::size_t>(pezzi.numero());
    file.scrivi(pezzi.resto());
    LettoreIniProprio lettore;
    lettore.leggi(file.nome(), u"Bord"_s, u"CaptionLbl1"_s);
    lettore.leggi(file.nome(), nuovo, nuovo);

    const auto& voci = deposito::vociImpostazioni();
    std::vector<QString> valori = deposito::leggiImpostazioni(file.nome());
    vale(valori.size() == voci.size(), "one value for each entry");
    const std::vector<QString> letti = valori;
    valori[quale % voci.size()] = nuovo.simplified();
    if (!deposito::scriviImpostazioni(file.nome(), valori).isEmpty()) {
        vale(deposito::leggiImpostazioni(file.nome()) == letti, "what is refused changes nothing");
        return 0;
    }
    const std::vector<QString> riletti = deposito::leggiImpostazioni(file.nome());
    vale(riletti == valori, "what was written is read");
    return 0;
}
