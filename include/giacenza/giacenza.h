/**
 * @file
 * The component from C, and from every language that can call C. C99, whole in itself; no exception crosses
 * this border.
 *
 * A program makes an object, sets the paths, asks for a screen and is told by the event "fine" when the
 * operator has left it. The members are the eleven of the class giacenza::cGiacenza; they are found by name
 * or by listing them, and invoked by their dispatch id.
 *
 *     giacenza_oggetto oggetto;
 *     giacenza_avvia_interfaccia("programma");              // unless the program has a QApplication already
 *     giacenza_crea(&oggetto);
 *     giacenza_valore database = {GIACENZA_TESTO, 0, argv[1]}; // an ODBC connection string, below
 *     giacenza_invoca(oggetto, GIACENZA_ID_PERCORSO_DATABASE, GIACENZA_SCRIVI, &database, 1, NULL);
 *     giacenza_ascolta(oggetto, GIACENZA_ID_FINE, quando_finisce, NULL);
 *     giacenza_invoca(oggetto, GIACENZA_ID_NUOVA_GIACENZA, GIACENZA_METODO, NULL, 0, NULL);
 *     while (!finito && giacenza_elabora_eventi(100) == GIACENZA_BENE)
 *         ;                                                 // what else the program does
 *     giacenza_rilascia(oggetto);
 *     giacenza_chiudi_interfaccia();
 *
 * CONNECTION STRINGS are ODBC's and are kept as they are given. The integrator's guide tells what stands in
 * one of MariaDB. One of SQLite is whole like this, with the folder that
 * "pkg-config --variable=cartellaparti giacenza-c" names (an absolute path); without the extension the
 * screens cannot look anything up by reference:
 *
 *     DRIVER={SQLite3};Database=/dati/depo.db;StepAPI=1;Timeout=5000;FKSupport=1;LoadExt=…/libgiacenza_sqlite.so
 *
 * RESULTS. A function that can fail returns GIACENZA_BENE (0) or another of the codes of giacenza_tipi.h, and
 * keeps code, text and SQLSTATE as the last error of the calling thread. A failed call has done nothing.
 *
 * TEXTS are UTF-8 and end with a zero byte. The program's own are read during the call and never kept. Those
 * that the library returns as const char* are the library's: never freed by the program. Those in a
 * giacenza_valore that was filled as a result are the program's, which gives them back with
 * giacenza_libera().
 *
 * THREADS. The settings (the three paths and the kind of re-delivery) live once for each thread, and the
 * screens on the thread of the user interface, where the QApplication was made. An object is used on the
 * thread that made it. The functions on members and on the last error may be called on any.
 *
 * BINARY INTERFACE. giacenza_abi() is the number of this interface: within one number functions are added,
 * none changes or goes. giacenza_valore and giacenza_argomento keep their shape within it; giacenza_membro
 * may grow at its end, and carries its size for that.
 */
#ifndef GIACENZA_GIACENZA_H
#define GIACENZA_GIACENZA_H

#include <giacenza/giacenza_tipi.h>

/** @cond INTERNO What a declaration below begins and ends with. */
#if defined(__cplusplus)
#define GIACENZA_C extern "C" __attribute__((visibility("default")))
#define GIACENZA_SENZA_ECCEZIONI noexcept
#else
#define GIACENZA_C __attribute__((visibility("default")))
#define GIACENZA_SENZA_ECCEZIONI
#endif
/** @endcond */

/** The version of the library, "1.2.3". Never null; the library's. */
GIACENZA_C const char* giacenza_versione(void) GIACENZA_SENZA_ECCEZIONI;

/** The number of the library's binary interface: GIACENZA_ABI of the header that it was built with. */
GIACENZA_C uint32_t giacenza_abi(void) GIACENZA_SENZA_ECCEZIONI;

/**
 * All that the library publishes, as JSON: class, identifiers, version, members, the event, the enumeration.
 * It is what giacenza-registra keeps in the class's descriptor. Null when there is no memory for it; the
 * library's.
 */
GIACENZA_C const char* giacenza_descrizione(void) GIACENZA_SENZA_ECCEZIONI;

/* ---- The last error of the calling thread: of its last call of a function that can fail. ---- */

/** What that call returned; GIACENZA_BENE before the first. */
GIACENZA_C int32_t giacenza_errore_codice(void) GIACENZA_SENZA_ECCEZIONI;

/**
 * What to show for it, in Italian; of GIACENZA_DATABASE the driver's own text, of GIACENZA_FALLITA the
 * member's. Empty after a success, never null. The library's, until the thread's next call of a function that
 * can fail.
 */
GIACENZA_C const char* giacenza_errore_testo(void) GIACENZA_SENZA_ECCEZIONI;

/** Its SQLSTATE, five characters, of GIACENZA_DATABASE; else empty. Never null; the library's, as long as the
 * text. */
GIACENZA_C const char* giacenza_errore_sqlstate(void) GIACENZA_SENZA_ECCEZIONI;

/** The database's own number for it, 0 when it gave none. */
GIACENZA_C int32_t giacenza_errore_nativo(void) GIACENZA_SENZA_ECCEZIONI;

/* ---- The user interface, for a program that has no QApplication. ---- */

/**
 * Makes the QApplication that screens need, on the calling thread, which becomes the user interface's:
 * usually the first of the process. It sets the process's locale from the environment and speaks Italian.
 * Where there is one already on this thread, nothing is done.
 *
 * programma: the program's name, for the window manager; null or empty: "giacenza".
 *
 * GIACENZA_SENZA_INTERFACCIA: no display is named by the environment (DISPLAY, WAYLAND_DISPLAY or
 * QT_QPA_PLATFORM), or the process has a QCoreApplication that shows no windows. GIACENZA_ALTRO_THREAD:
 * another thread has made it. A display that is named and does not answer ends the process, with a line on
 * standard error.
 */
GIACENZA_C int32_t giacenza_avvia_interfaccia(const char* programma) GIACENZA_SENZA_ECCEZIONI;

/**
 * Handles what has come for the screens: keys, painting, timers, "fine". When nothing is there it waits for
 * the first thing, and returns after that. To be called again and again while a screen is open, on the thread
 * of the user interface.
 *
 * millisecondi: how long it may wait; 0 or less: not at all. Handling may take longer, as long as a dialog is
 * open.
 *
 * On Debian Qt runs on GLib's main context: a program that runs the default context by itself
 * (g_main_loop_run) needs no call of this; nor does one that runs QApplication::exec().
 *
 * GIACENZA_SENZA_INTERFACCIA: there is no QApplication. GIACENZA_ALTRO_THREAD: not the user interface's
 * thread.
 */
GIACENZA_C int32_t giacenza_elabora_eventi(int32_t millisecondi) GIACENZA_SENZA_ECCEZIONI;

/**
 * Destroys the QApplication that giacenza_avvia_interfaccia() made, the last thing before a program ends; of
 * any other, and when there is none, nothing is done.
 *
 * GIACENZA_OCCUPATO: an object has not been released, or the event loop is running (a callback called this).
 * GIACENZA_ALTRO_THREAD: not the user interface's thread.
 */
GIACENZA_C int32_t giacenza_chiudi_interfaccia(void) GIACENZA_SENZA_ECCEZIONI;

/* ---- Objects. ---- */

/**
 * Makes an object of the class. It needs no QApplication until a screen is opened.
 *
 * oggetto: receives it; 0 when the call fails. The program releases it with giacenza_rilascia(); what it does
 * not release stays until the process ends.
 */
GIACENZA_C int32_t giacenza_crea(giacenza_oggetto* oggetto) GIACENZA_SENZA_ECCEZIONI;

/**
 * The same for a class that giacenza-registra has registered: its descriptor is sought in the user's data
 * folder, then in the system's, and the object is made by the library that it names. Where that is another
 * file than this library it is loaded, stays loaded, and its object is used by the functions of this one like
 * any other.
 *
 * classe: GIACENZA_CLASSE, in any case. oggetto: as above.
 *
 * GIACENZA_CLASSE_IGNOTA, GIACENZA_DESCRITTORE, GIACENZA_LIBRERIA, GIACENZA_VERSIONE (another major version):
 * the text names the file and says what to do.
 */
GIACENZA_C int32_t giacenza_crea_classe(const char* classe,
                                        giacenza_oggetto* oggetto) GIACENZA_SENZA_ECCEZIONI;

/**
 * Releases an object: every screen that is loaded on its thread is closed, without "fine" for it. The number
 * is never good again. May be called inside a callback; inside a call of the same object it takes effect when
 * that ends.
 *
 * GIACENZA_OGGETTO_IGNOTO: released before, or never made; nothing is done. GIACENZA_ALTRO_THREAD: not its
 * thread.
 */
GIACENZA_C int32_t giacenza_rilascia(giacenza_oggetto oggetto) GIACENZA_SENZA_ECCEZIONI;

/**
 * Says who is told of an event of the object, in place of who was before.
 *
 * evento: GIACENZA_ID_FINE. funzione: null: nobody. utente: handed on to it, never looked at.
 *
 * GIACENZA_MEMBRO_IGNOTO: no member has that id. GIACENZA_MODO_SBAGLIATO: it is none that is listened to.
 */
GIACENZA_C int32_t giacenza_ascolta(giacenza_oggetto oggetto, uint32_t evento, giacenza_ascoltatore funzione,
                                    void* utente) GIACENZA_SENZA_ECCEZIONI;

/* ---- Members. ---- */

/** How many are published: properties once for each kind, methods, and the event. */
GIACENZA_C int32_t giacenza_numero_membri(void) GIACENZA_SENZA_ECCEZIONI;

/**
 * Describes one of them.
 *
 * indice: from 0, in the order of the slots, the event last. membro: receives it; its size must be set
 * before.
 *
 * GIACENZA_MEMBRO_IGNOTO: no such index. GIACENZA_STRUTTURA: the size is less than that of any structure that
 * there was; of a larger one, of a later header, what this library knows is filled, and its size says so.
 */
GIACENZA_C int32_t giacenza_descrivi_membro(int32_t indice, giacenza_membro* membro) GIACENZA_SENZA_ECCEZIONI;

/**
 * Finds the dispatch id of a name, which the two kinds of a property share.
 *
 * nome: in any case. id: receives it; 0 when the call fails.
 *
 * GIACENZA_MEMBRO_IGNOTO: no member has that name.
 */
GIACENZA_C int32_t giacenza_trova_membro(const char* nome, uint32_t* id) GIACENZA_SENZA_ECCEZIONI;

/**
 * Invokes a member.
 *
 * id: its dispatch id. modo: GIACENZA_LEGGI, GIACENZA_SCRIVI or GIACENZA_METODO. argomenti: in order, exactly
 * of the member's types, may be null when there are none; those by reference come back unchanged. numero: how
 * many. risultato: receives what the member returns, GIACENZA_VUOTO when it returns nothing or fails; may be
 * null. What it held before is not freed. The program gives it back with giacenza_libera().
 *
 * GIACENZA_MEMBRO_IGNOTO to GIACENZA_SENZA_INTERFACCIA: the call could not be made. GIACENZA_DATABASE,
 * GIACENZA_FALLITA: it failed by itself, with a text that is passed on unchanged. An opening method that
 * fails shows no screen.
 */
GIACENZA_C int32_t giacenza_invoca(giacenza_oggetto oggetto, uint32_t id, int32_t modo,
                                   const giacenza_valore* argomenti, int32_t numero,
                                   giacenza_valore* risultato) GIACENZA_SENZA_ECCEZIONI;

/** Frees the text of a result and makes it GIACENZA_VUOTO, so that twice does no harm. valore: may be null.
 */
GIACENZA_C void giacenza_libera(giacenza_valore* valore) GIACENZA_SENZA_ECCEZIONI;

#undef GIACENZA_SENZA_ECCEZIONI
#undef GIACENZA_C

#endif /* GIACENZA_GIACENZA_H */
