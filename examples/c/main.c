/*
 * A host in C that knows nothing of Qt: it opens the registration screen in an event loop of its own, and
 * ends when the operator has left it.
 *
 *     PARTI=$(pkg-config --variable=cartellaparti giacenza-c)
 *     DATABASE="DRIVER={SQLite3};Database=depo.db;StepAPI=1;Timeout=5000;FKSupport=1;LoadExt=$PARTI/libgiacenza_sqlite.so"
 *     ospite-c "$DATABASE" giacenza.ini logo.gif
 *
 * Prints "fine" when the screen was left. Codes: 0 the screen was left, 1 something failed, 2 wrong command
 * line.
 */
#include <giacenza/giacenza.h>

#include <stdio.h>

static void quando_finisce(giacenza_oggetto oggetto, void* utente)
{
    int* const fini = utente;
    (void)oggetto;
    ++*fini;
    puts("fine");
}

/* Tells what failed last on this thread. Returns 0. */
static int lamenta(const char* cosa)
{
    fprintf(stderr, "%s: %s", cosa, giacenza_errore_testo());
    if (giacenza_errore_codice() == GIACENZA_DATABASE)
        fprintf(stderr, " [%s]", giacenza_errore_sqlstate());
    fputc('\n', stderr);
    return 0;
}

static int scrivi(giacenza_oggetto oggetto, uint32_t id, const char* testo)
{
    const giacenza_valore valore = {GIACENZA_TESTO, 0, testo};
    return giacenza_invoca(oggetto, id, GIACENZA_SCRIVI, &valore, 1, NULL) == GIACENZA_BENE ||
           lamenta("Un percorso non è stato preso");
}

static int apri(giacenza_oggetto oggetto, char** percorsi, int* fini)
{
    if (!scrivi(oggetto, GIACENZA_ID_PERCORSO_DATABASE, percorsi[0]) ||
        !scrivi(oggetto, GIACENZA_ID_PERCORSO_FILE_INI, percorsi[1]) ||
        !scrivi(oggetto, GIACENZA_ID_PERCORSO_LOGO_INTESTAZIONE, percorsi[2]))
        return 0;
    if (giacenza_ascolta(oggetto, GIACENZA_ID_FINE, quando_finisce, fini) != GIACENZA_BENE)
        return lamenta("La fine non si ascolta");
    return giacenza_invoca(oggetto, GIACENZA_ID_NUOVA_GIACENZA, GIACENZA_METODO, NULL, 0, NULL) ==
               GIACENZA_BENE ||
           lamenta("La schermata non è stata aperta");
}

/* The program's own loop: it could do other things in it, ten times a second at least. */
static int gira(const int* fini)
{
    while (*fini == 0)
        if (giacenza_elabora_eventi(100) != GIACENZA_BENE)
            return lamenta("Gli eventi non si elaborano");
    return 1;
}

int main(int argc, char** argv)
{
    giacenza_oggetto oggetto = 0;
    int fini = 0;
    int riuscita = 0;
    if (argc != 4) {
        fputs("Uso: ospite-c STRINGA-DI-CONNESSIONE FILE-INI LOGO\n", stderr);
        return 2;
    }
    if (giacenza_abi() != GIACENZA_ABI) {
        fputs("La libreria ha un'altra interfaccia binaria.\n", stderr);
        return 1;
    }
    if (giacenza_avvia_interfaccia("ospite-c") != GIACENZA_BENE || giacenza_crea(&oggetto) != GIACENZA_BENE) {
        lamenta("Il componente non parte");
        return 1;
    }
    riuscita = apri(oggetto, argv + 1, &fini) && gira(&fini);
    giacenza_rilascia(oggetto);
    giacenza_chiudi_interfaccia();
    return riuscita ? 0 : 1;
}
