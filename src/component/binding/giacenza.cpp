// The functions of giacenza/giacenza.h; each is a line or two behind the border.

#include <giacenza/giacenza.h>

#include "component/binding/confine.h"
#include "component/binding/creaclasse.h"
#include "component/binding/descrizione.h"
#include "component/binding/interfaccia.h"
#include "component/binding/membri.h"
#include "component/binding/oggetti.h"
#include "component/binding/valori.h"

using namespace Qt::StringLiterals;
using namespace giacenza;

namespace {

void descrivi(int32_t indice, giacenza_membro& membro)
{
    // The one shape that there is so far; a later library also fills the shorter ones of before. A program
    // made for a later one is told how much of its own was filled.
    if (membro.dimensione < sizeof(giacenza_membro))
        throw ErroreConfine(GIACENZA_STRUTTURA,
                            u"La dimensione di giacenza_membro è sconosciuta: %1."_s.arg(membro.dimensione));
    if (indice < 0 || indice >= giacenza_numero_membri())
        throw ErroreConfine(GIACENZA_MEMBRO_IGNOTO,
                            u"La classe non ha un membro con l'indice %1."_s.arg(indice));
    const Membro& riga = membri()[static_cast<std::size_t>(indice)];
    membro.dimensione = sizeof(giacenza_membro);
    membro.id = riga.id;
    membro.posizione = riga.posizione;
    membro.modo = static_cast<int32_t>(riga.modo);
    membro.nome = riga.nome;
    membro.risultato = riga.risultato;
    membro.numero_argomenti = static_cast<int32_t>(riga.argomenti.size());
    membro.argomenti = riga.argomenti.empty() ? nullptr : riga.argomenti.data();
}

} // namespace

const char* giacenza_versione() noexcept
{
    return GIACENZA_VERSIONE_LIBRERIA;
}

uint32_t giacenza_abi() noexcept
{
    return GIACENZA_ABI;
}

const char* giacenza_descrizione() noexcept
{
    try {
        static const auto* const testo = new QByteArray(descrizione());
        return testo->constData();
    } catch (...) {
        return nullptr;
    }
}

int32_t giacenza_errore_codice() noexcept
{
    return ultimoCodice();
}

const char* giacenza_errore_testo() noexcept
{
    return ultimoTesto();
}

const char* giacenza_errore_sqlstate() noexcept
{
    return ultimoSqlstate();
}

int32_t giacenza_errore_nativo() noexcept
{
    return ultimoNativo();
}

int32_t giacenza_avvia_interfaccia(const char* programma) noexcept
{
    return alConfine([&] { avviaInterfaccia(programma ? testoDato(programma, "programma") : QString()); });
}

int32_t giacenza_elabora_eventi(int32_t millisecondi) noexcept
{
    return alConfine([&] { elaboraEventi(millisecondi); });
}

int32_t giacenza_chiudi_interfaccia() noexcept
{
    return alConfine([] { chiudiInterfaccia(); });
}

int32_t giacenza_crea(giacenza_oggetto* nuovo) noexcept
{
    return alConfine([&] {
        dato(nuovo, "oggetto") = 0;
        *nuovo = annota(nuovoOggetto());
    });
}

int32_t giacenza_crea_classe(const char* classe, giacenza_oggetto* nuovo) noexcept
{
    return alConfine([&] {
        dato(nuovo, "oggetto") = 0;
        *nuovo = annota(oggettoDellaClasse(testoDato(classe, "classe")));
    });
}

int32_t giacenza_rilascia(giacenza_oggetto numero) noexcept
{
    return alConfine([&] { rilascia(numero); });
}

int32_t giacenza_ascolta(giacenza_oggetto numero, uint32_t evento, giacenza_ascoltatore funzione,
                         void* utente) noexcept
{
    return alConfine([&] {
        const auto chi = oggetto(numero);
        chi->ascolta(evento);
        chi->setAscoltatore(funzione, utente);
    });
}

int32_t giacenza_numero_membri() noexcept
{
    return static_cast<int32_t>(membri().size());
}

int32_t giacenza_descrivi_membro(int32_t indice, giacenza_membro* membro) noexcept
{
    return alConfine([&] { descrivi(indice, dato(membro, "membro")); });
}

int32_t giacenza_trova_membro(const char* nome, uint32_t* id) noexcept
{
    return alConfine([&] {
        dato(id, "id") = 0;
        *id = idMembro(testoDato(nome, "nome"));
    });
}

int32_t giacenza_invoca(giacenza_oggetto numero, uint32_t id, int32_t modo, const giacenza_valore* argomenti,
                        int32_t quanti, giacenza_valore* risultato) noexcept
{
    return alConfine([&] {
        const InCorso questa;
        giacenza_valore mio = {GIACENZA_VUOTO, 0, nullptr};
        if (risultato)
            *risultato = mio;
        // The reference keeps the object until the call has ended, should it be released meanwhile.
        const auto chi = oggetto(numero);
        chi->invoca(id, modo, argomenti, quanti, mio);
        if (risultato)
            *risultato = mio;
        else
            liberaValore(mio);
    });
}

void giacenza_libera(giacenza_valore* valore) noexcept
{
    if (valore)
        liberaValore(*valore);
}
