/* A program in C, without Qt: the library itself, from the first call to the last. */

/* For RTLD_DEFAULT. */
#define _GNU_SOURCE

#include <giacenza/giacenza.h>

#include <dlfcn.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static int guasti = 0;

static void verifica(int vero, const char* cosa, int riga)
{
    if (vero)
        return;
    fprintf(stderr, "%d: non vero: %s\n  ultimo errore %d: %s\n", riga, cosa, giacenza_errore_codice(),
            giacenza_errore_testo());
    ++guasti;
}
#define VERIFICA(espressione) verifica((espressione) != 0, #espressione, __LINE__)

static void senti(giacenza_oggetto oggetto, void* utente)
{
    (void)oggetto;
    ++*(int*)utente;
}

/* Releases the object that tells it; the interface stays all the same until the callback has returned. */
static void senti_e_rilascia(giacenza_oggetto oggetto, void* utente)
{
    ++*(int*)utente;
    VERIFICA(giacenza_rilascia(oggetto) == GIACENZA_BENE);
    VERIFICA(giacenza_chiudi_interfaccia() == GIACENZA_OCCUPATO);
    VERIFICA(strcmp(giacenza_errore_testo(), "Una chiamata è in corso.") == 0);
    VERIFICA(giacenza_rilascia(oggetto) == GIACENZA_OGGETTO_IGNOTO);
}

static void prova_senza_interfaccia(void)
{
    giacenza_oggetto oggetto = 0;
    giacenza_valore valore = {GIACENZA_TESTO, 0, "DRIVER={Nessuno};Database=x"};
    VERIFICA(giacenza_elabora_eventi(0) == GIACENZA_SENZA_INTERFACCIA);
    VERIFICA(strcmp(giacenza_errore_testo(), "Manca l'interfaccia grafica (QApplication).") == 0);
    VERIFICA(giacenza_chiudi_interfaccia() == GIACENZA_BENE);
    VERIFICA(giacenza_crea(&oggetto) == GIACENZA_BENE);
    VERIFICA(giacenza_invoca(oggetto, GIACENZA_ID_PERCORSO_DATABASE, GIACENZA_SCRIVI, &valore, 1, NULL) ==
             GIACENZA_BENE);
    VERIFICA(giacenza_invoca(oggetto, GIACENZA_ID_NUOVA_GIACENZA, GIACENZA_METODO, NULL, 0, NULL) ==
             GIACENZA_SENZA_INTERFACCIA);
    VERIFICA(strcmp(giacenza_errore_testo(),
                    "Per aprire una schermata serve l'interfaccia grafica (QApplication).") == 0);
    VERIFICA(giacenza_rilascia(oggetto) == GIACENZA_BENE);

    /* No display is named. */
    unsetenv("DISPLAY");
    unsetenv("WAYLAND_DISPLAY");
    unsetenv("QT_QPA_PLATFORM");
    VERIFICA(giacenza_avvia_interfaccia("prova") == GIACENZA_SENZA_INTERFACCIA);
    VERIFICA(strcmp(giacenza_errore_testo(),
                    "Manca lo schermo: nessuna delle variabili DISPLAY, WAYLAND_DISPLAY e "
                    "QT_QPA_PLATFORM.") == 0);
    VERIFICA(giacenza_avvia_interfaccia("prov\xE0") == GIACENZA_TESTO_NON_VALIDO);
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
}

/* What the database refuses comes back with its code; no screen is open then, and nobody hears "fine". */
static void prova_archivio_che_manca(giacenza_oggetto oggetto, int* fini)
{
    VERIFICA(giacenza_invoca(oggetto, GIACENZA_ID_NUOVA_GIACENZA, GIACENZA_METODO, NULL, 0, NULL) ==
             GIACENZA_DATABASE);
    VERIFICA(strlen(giacenza_errore_sqlstate()) == 5);
    VERIFICA(giacenza_errore_testo()[0] != '\0');
    VERIFICA(giacenza_elabora_eventi(1) == GIACENZA_BENE);
    VERIFICA(*fini == 0);
}

static void prova_apertura(giacenza_oggetto oggetto, const char* database, int* fini)
{
    giacenza_valore valore = {GIACENZA_TESTO, 0, NULL};
    int volte = 0;
    valore.testo = database;
    VERIFICA(giacenza_invoca(oggetto, GIACENZA_ID_PERCORSO_DATABASE, GIACENZA_SCRIVI, &valore, 1, NULL) ==
             GIACENZA_BENE);
    VERIFICA(giacenza_invoca(oggetto, GIACENZA_ID_NUOVA_GIACENZA, GIACENZA_METODO, NULL, 0, NULL) ==
             GIACENZA_BENE);
    for (volte = 0; volte < 20; ++volte)
        VERIFICA(giacenza_elabora_eventi(10) == GIACENZA_BENE);
    VERIFICA(*fini == 0);
    VERIFICA(giacenza_chiudi_interfaccia() == GIACENZA_OCCUPATO);
    VERIFICA(strcmp(giacenza_errore_testo(), "Un oggetto non è stato rilasciato.") == 0);
}

/* The operator closes the screen; a program in C has no other way to do it than Qt's own, which is loaded. */
static void prova_chiusura(const char* database)
{
    void (*chiudi_tutto)(void) = NULL;
    void* const indirizzo = dlsym(RTLD_DEFAULT, "_ZN12QApplication15closeAllWindowsEv");
    giacenza_oggetto oggetto = 0;
    int fini = 0;
    VERIFICA(indirizzo != NULL);
    VERIFICA(giacenza_crea(&oggetto) == GIACENZA_BENE);
    prova_apertura(oggetto, database, &fini);
    VERIFICA(giacenza_ascolta(oggetto, GIACENZA_ID_FINE, senti_e_rilascia, &fini) == GIACENZA_BENE);
    memcpy(&chiudi_tutto, &indirizzo, sizeof chiudi_tutto);
    if (chiudi_tutto)
        chiudi_tutto();
    VERIFICA(fini == 1);
    VERIFICA(giacenza_rilascia(oggetto) == GIACENZA_OGGETTO_IGNOTO);
    VERIFICA(giacenza_elabora_eventi(1) == GIACENZA_BENE);
    VERIFICA(fini == 1);
}

int main(int argc, char** argv)
{
    giacenza_oggetto oggetto = 0;
    giacenza_valore valore = {GIACENZA_TESTO, 0, "DRIVER={Nessuno};Database=x"};
    int fini = 0;
    if (argc != 2)
        return 2;
    VERIFICA(giacenza_abi() == GIACENZA_ABI);
    VERIFICA(giacenza_errore_codice() == GIACENZA_BENE);
    prova_senza_interfaccia();
    VERIFICA(giacenza_avvia_interfaccia("prova") == GIACENZA_BENE);
    VERIFICA(giacenza_avvia_interfaccia("prova") == GIACENZA_BENE);
    VERIFICA(giacenza_crea(&oggetto) == GIACENZA_BENE);
    VERIFICA(giacenza_ascolta(oggetto, GIACENZA_ID_FINE, senti, &fini) == GIACENZA_BENE);
    VERIFICA(giacenza_invoca(oggetto, GIACENZA_ID_PERCORSO_DATABASE, GIACENZA_SCRIVI, &valore, 1, NULL) ==
             GIACENZA_BENE);
    prova_archivio_che_manca(oggetto, &fini);
    prova_apertura(oggetto, argv[1], &fini);
    VERIFICA(giacenza_rilascia(oggetto) == GIACENZA_BENE);
    VERIFICA(fini == 0);
    VERIFICA(giacenza_elabora_eventi(1) == GIACENZA_BENE);
    prova_chiusura(argv[1]);
    VERIFICA(giacenza_chiudi_interfaccia() == GIACENZA_BENE);
    VERIFICA(giacenza_elabora_eventi(0) == GIACENZA_SENZA_INTERFACCIA);
    /* And once more from the beginning. */
    VERIFICA(giacenza_avvia_interfaccia(NULL) == GIACENZA_BENE);
    VERIFICA(giacenza_elabora_eventi(0) == GIACENZA_BENE);
    VERIFICA(giacenza_chiudi_interfaccia() == GIACENZA_BENE);
    if (guasti == 0)
        puts("Tutto come atteso.");
    return guasti == 0 ? 0 : 1;
}
