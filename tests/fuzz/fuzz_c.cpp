// The C interface with any values, without a display: no screen opens.

#include "fuzz/fuzz.h"

#include <giacenza/giacenza.h>

#include <vector>

using namespace giacenza::fuzz;

namespace {

constexpr int chiamateMassime = 32;

uint32_t membro(Pezzi& pezzi)
{
    const int scelto = pezzi.numero();
    giacenza_membro descritto = {};
    descritto.dimensione = sizeof descritto;
    if (scelto < 200 &&
        giacenza_descrivi_membro(scelto % giacenza_numero_membri(), &descritto) == GIACENZA_BENE)
        return descritto.id;
    return static_cast<uint32_t>(scelto) * 0x01010101U;
}

void invoca(Pezzi& pezzi, giacenza_oggetto oggetto)
{
    const uint32_t id = membro(pezzi);
    const int modo = pezzi.numero() % 8 - 1;
    const int numero = pezzi.numero() % 7;
    std::vector<QByteArray> testi;
    testi.reserve(8);
    std::vector<giacenza_valore> argomenti;
    for (int i = 0; i < numero; ++i) {
        const int tipo = pezzi.numero() % 8 - 1;
        const int intero = pezzi.numero() * 0x00800001;
        testi.push_back(pezzi.riga());
        // A text must not be null: that is the caller's to keep, and told when he does not.
        const bool nullo = tipo == GIACENZA_TESTO && intero == 0;
        argomenti.push_back({tipo, intero, nullo ? nullptr : testi.back().constData()});
    }
    giacenza_valore risultato = {};
    const int esito = giacenza_invoca(oggetto, id, modo, argomenti.data(), numero, &risultato);
    vale(esito == giacenza_errore_codice(), "the last error is the call's");
    vale((esito == GIACENZA_BENE) == (*giacenza_errore_testo() == '\0'), "a failure has a text");
    vale(esito == GIACENZA_BENE || risultato.tipo == GIACENZA_VUOTO, "a failure gives nothing");
    vale(risultato.tipo != GIACENZA_TESTO || risultato.testo, "a text is there");
    giacenza_libera(&risultato);
    giacenza_libera(&risultato);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* byte, std::size_t quanti)
{
    Pezzi pezzi(byte, quanti);
    giacenza_oggetto oggetto = 0;
    vale(giacenza_crea(&oggetto) == GIACENZA_BENE, "an object is made");
    for (int i = 0; i < chiamateMassime && !pezzi.finiti(); ++i) {
        switch (pezzi.numero() % 8) {
        case 0: {
            uint32_t id = 0;
            const QByteArray nome = pezzi.riga();
            const int esito = giacenza_trova_membro(nome.constData(), &id);
            vale((esito == GIACENZA_BENE) == (id != 0), "a name that is found has an id");
            break;
        }
        case 1: {
            giacenza_membro descritto = {};
            descritto.dimensione = static_cast<uint32_t>(pezzi.numero());
            giacenza_descrivi_membro(pezzi.numero() - 128, &descritto);
            break;
        }
        case 2:
            giacenza_ascolta(oggetto, membro(pezzi), nullptr, nullptr);
            break;
        case 3:
            giacenza_rilascia(oggetto + static_cast<giacenza_oggetto>(pezzi.numero()));
            break;
        default:
            invoca(pezzi, oggetto);
        }
    }
    const int esito = giacenza_rilascia(oggetto);
    vale(esito == GIACENZA_BENE || esito == GIACENZA_OGGETTO_IGNOTO, "it is released, or was");
    vale(giacenza_rilascia(oggetto) == GIACENZA_OGGETTO_IGNOTO, "once");
    return 0;
}
