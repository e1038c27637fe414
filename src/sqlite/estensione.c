/* What SQLite lacks: year(), which the statements use of MariaDB, and who is at work, for the register of
   schema/registro-sqlite.sql. */

#include <sqlite3ext.h>
SQLITE_EXTENSION_INIT1

#include <pwd.h>
#include <stdbool.h>
#include <stddef.h>
#include <stdlib.h>
#include <unistd.h>

static int cifra(unsigned char c)
{
    return c >= '0' && c <= '9' ? c - '0' : -1;
}

/* The digits of a field of fixed length, or -1. */
static int campo(const unsigned char* testo, int lunghezza)
{
    int valore = 0;
    for (int i = 0; i < lunghezza; ++i) {
        const int c = cifra(testo[i]);
        if (c < 0)
            return -1;
        valore = valore * 10 + c;
    }
    return valore;
}

static int giorniDelMese(int anno, int mese)
{
    static const int giorni[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool bisestile = (anno % 4 == 0 && anno % 100 != 0) || anno % 400 == 0;
    return mese == 2 && bisestile ? 29 : giorni[mese - 1];
}

/* The year of "yyyy-mm-dd", with or without a time behind it, or -1 where there is no such day. */
static int annoDi(const unsigned char* testo, int lunghezza)
{
    if (lunghezza < 10 || testo[4] != '-' || testo[7] != '-')
        return -1;
    if (lunghezza > 10 && testo[10] != ' ' && testo[10] != 'T')
        return -1;
    const int anno = campo(testo, 4);
    const int mese = campo(testo + 5, 2);
    const int giorno = campo(testo + 8, 2);
    if (anno < 0 || mese < 1 || mese > 12 || giorno < 1 || giorno > giorniDelMese(anno, mese))
        return -1;
    return anno;
}

/* year(X): the year of a date as an integer; null for null and for what is no date. */
static void year(sqlite3_context* contesto, int quanti, sqlite3_value** valori)
{
    (void)quanti;
    if (sqlite3_value_type(valori[0]) != SQLITE_TEXT)
        return;
    const unsigned char* testo = sqlite3_value_text(valori[0]);
    const int anno = testo ? annoDi(testo, sqlite3_value_bytes(valori[0])) : -1;
    if (anno >= 0)
        sqlite3_result_int(contesto, anno);
}

/* printf() without an argument, null in every SQLite: here the user, as the program says it in GIACENZA_UTENTE,
   else the account of the system; null where there is none. So a trigger may ask for the user without a function
   that other programs lack. */
static void utente(sqlite3_context* contesto, int quanti, sqlite3_value** valori)
{
    (void)quanti;
    (void)valori;
    const char* detto = getenv("GIACENZA_UTENTE");
    if (detto && *detto) {
        sqlite3_result_text(contesto, detto, -1, SQLITE_TRANSIENT);
        return;
    }
    char memoria[4096];
    struct passwd conto;
    struct passwd* trovato = NULL;
    if (getpwuid_r(geteuid(), &conto, memoria, sizeof memoria, &trovato) == 0 && trovato)
        sqlite3_result_text(contesto, trovato->pw_name, -1, SQLITE_TRANSIENT);
}

/* The name that the database derives from a file called libgiacenza_sqlite.so. */
__attribute__((visibility("default"))) int sqlite3_giacenzasqlite_init(sqlite3* db, char** errore,
                                                                       const sqlite3_api_routines* funzioni);

int sqlite3_giacenzasqlite_init(sqlite3* db, char** errore, const sqlite3_api_routines* funzioni)
{
    (void)errore;
    SQLITE_EXTENSION_INIT2(funzioni);
    /* Deterministic, so that it may stand in an index; innocuous, so that a view or schema may use it. */
    const int caratteri = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    const int esito = sqlite3_create_function(db, "year", 1, caratteri, NULL, year, NULL, NULL);
    if (esito != SQLITE_OK)
        return esito;
    return sqlite3_create_function(db, "printf", 0, SQLITE_UTF8 | SQLITE_INNOCUOUS, NULL, utente, NULL, NULL);
}
