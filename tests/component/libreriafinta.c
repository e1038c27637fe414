/* A library that says of itself what the component says, with another version or another binary interface; or
   does not say all of it. */

#include <giacenza/giacenza.h>

#define FUORI __attribute__((visibility("default")))

FUORI const char* giacenza_versione(void)
{
    return FINTA_VERSIONE;
}

FUORI uint32_t giacenza_abi(void)
{
    return FINTA_ABI;
}

FUORI const char* giacenza_descrizione(void)
{
    return "{\"classe\":\"giacenza.cGiacenza\",\"versione\":\"" FINTA_VERSIONE "\",\"abi\":1}";
}

#ifdef FINTA_INTERA
FUORI const char* giacenza_errore_testo(void)
{
    return "";
}

FUORI const char* giacenza_errore_sqlstate(void)
{
    return "";
}

FUORI int32_t giacenza_errore_nativo(void)
{
    return 0;
}

FUORI int32_t giacenza_crea(giacenza_oggetto* oggetto)
{
    *oggetto = 1;
    return GIACENZA_BENE;
}

FUORI int32_t giacenza_rilascia(giacenza_oggetto oggetto)
{
    (void)oggetto;
    return GIACENZA_BENE;
}

FUORI int32_t giacenza_ascolta(giacenza_oggetto oggetto, uint32_t evento, giacenza_ascoltatore funzione,
                               void* utente)
{
    (void)oggetto, (void)evento, (void)funzione, (void)utente;
    return GIACENZA_BENE;
}

FUORI int32_t giacenza_invoca(giacenza_oggetto oggetto, uint32_t id, int32_t modo,
                              const giacenza_valore* argomenti, int32_t numero, giacenza_valore* risultato)
{
    (void)oggetto, (void)id, (void)modo, (void)argomenti, (void)numero, (void)risultato;
    return GIACENZA_BENE;
}

FUORI void giacenza_libera(giacenza_valore* valore)
{
    (void)valore;
}
#endif
