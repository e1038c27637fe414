/**
 * @file
 * What giacenza/giacenza.h speaks of: codes, dispatch ids, kinds, values. Included by it.
 */
#ifndef GIACENZA_GIACENZA_TIPI_H
#define GIACENZA_GIACENZA_TIPI_H

#include <stdint.h>

/** The binary interface that this header describes; to be compared with giacenza_abi(). */
#define GIACENZA_ABI 1

/** The class, as giacenza_crea_classe() takes it. */
#define GIACENZA_CLASSE "giacenza.cGiacenza"

/* What the class and its published types are known by; they never change. */
#define GIACENZA_UUID_CLASSE "b83c3226-1c9b-4820-a0fb-9bf880a7f6c3"      /**< the class */
#define GIACENZA_UUID_INTERFACCIA "1be49659-3503-4ac1-bfa3-5115650c9d8d" /**< its members */
#define GIACENZA_UUID_EVENTI "cc7e2d01-ef33-4096-9803-b79f8071a9a3"      /**< its event */
#define GIACENZA_UUID_TIPI "26e3b8ab-2aa5-486c-88b1-d3609b9c6439"        /**< the set of published types */

/** What a function returns. */
enum
{
    GIACENZA_BENE = 0, /**< done */
    /* The call could not be made. */
    GIACENZA_MEMBRO_IGNOTO = 1,     /**< no member has that name, id or place */
    GIACENZA_MODO_SBAGLIATO = 2,    /**< the member is not of that kind: a method read, a property called */
    GIACENZA_SOLO_SCRITTURA = 3,    /**< a write-only property was read */
    GIACENZA_NUMERO_ARGOMENTI = 4,  /**< too few or too many arguments */
    GIACENZA_TIPO_ARGOMENTO = 5,    /**< an argument is of another type; none is converted */
    GIACENZA_ALTRO_THREAD = 6,      /**< not the object's thread, or not the user interface's */
    GIACENZA_SENZA_INTERFACCIA = 7, /**< there is no QApplication, or no display to make one on */
    GIACENZA_OGGETTO_IGNOTO = 8,    /**< no such object: never made, or released already */
    GIACENZA_PUNTATORE_NULLO = 9,   /**< a pointer that must not be null is */
    GIACENZA_TESTO_NON_VALIDO = 10, /**< a text is not UTF-8, or a result is none that C can hold */
    GIACENZA_STRUTTURA = 11,        /**< the size in a structure is less than any that there was */
    GIACENZA_OCCUPATO = 12,         /**< not now: objects, or a call that is running, are in the way */
    /* The call failed. */
    GIACENZA_DATABASE = 20, /**< the database's failure: text of the driver, and SQLSTATE */
    GIACENZA_FALLITA = 21,  /**< another failure that the member tells */
    GIACENZA_MEMORIA = 22,  /**< no memory */
    GIACENZA_INATTESO = 23, /**< a failure that nobody foresaw */
    /* The object was not made from its class name. */
    GIACENZA_CLASSE_IGNOTA = 30, /**< the class is not registered */
    GIACENZA_DESCRITTORE = 31,   /**< its descriptor cannot be read, or is not in order */
    GIACENZA_LIBRERIA = 32,      /**< the library that it names is gone, or is not this component */
    GIACENZA_VERSIONE = 33       /**< the library is of another version than the descriptor or this library */
};

/* The dispatch ids. */
#define GIACENZA_ID_FINE UINT32_C(1)                                /**< the event */
#define GIACENZA_ID_TIPO_RESO UINT32_C(0x68030000)                  /**< write-only property */
#define GIACENZA_ID_PERCORSO_LOGO_INTESTAZIONE UINT32_C(0x68030001) /**< write-only property */
#define GIACENZA_ID_PERCORSO_FILE_INI UINT32_C(0x68030002)          /**< property */
#define GIACENZA_ID_PERCORSO_DATABASE UINT32_C(0x68030003)          /**< property */
#define GIACENZA_ID_NUOVA_GIACENZA UINT32_C(0x60030005)             /**< method, no argument */
#define GIACENZA_ID_NUOVA_GIACENZA_EXT UINT32_C(0x60030006)         /**< method, four texts */
#define GIACENZA_ID_MOSTRA_RICONSEGNA UINT32_C(0x60030008)          /**< method, no argument */
#define GIACENZA_ID_CONSULTA_GIACENZA UINT32_C(0x6003000B)          /**< method, no argument */
#define GIACENZA_ID_ESEGUI UINT32_C(0x6003000C) /**< method, a text and an optional value */

/** The kind of a member, and how it is invoked. */
enum
{
    GIACENZA_LEGGI = 1,  /**< a property is read */
    GIACENZA_SCRIVI = 2, /**< a property is written */
    GIACENZA_METODO = 3, /**< a method is called */
    GIACENZA_EVENTO = 4  /**< an event: listened to, never invoked */
};

/** The type of a value. A value of the program is of one of the first four. */
enum
{
    GIACENZA_VUOTO = 0,    /**< nothing */
    GIACENZA_TESTO = 1,    /**< text */
    GIACENZA_INTERO = 2,   /**< a 32-bit integer */
    GIACENZA_LOGICO = 3,   /**< 0 or 1; every other number counts as 1 */
    GIACENZA_VARIANTE = 4, /**< of an argument or result: any of the above */
    GIACENZA_RESO = 5      /**< of an argument: a 32-bit integer, of those below or any other */
};

/** The kinds of movement of TipoReso, the enumeration "Reso". */
enum
{
    GIACENZA_RESO_DESTINATARIO = 1, /**< re-delivery to the recipient */
    GIACENZA_RESO_MITTENTE = 2      /**< return to the sender */
};

/** What is said of an argument, added up. */
enum
{
    GIACENZA_PER_RIFERIMENTO = 1, /**< by reference: it comes back unchanged */
    GIACENZA_FACOLTATIVO = 2      /**< may be left out */
};

/** An object of the class. A number, never used twice: one that was released is known as such. 0 is none. */
typedef uint64_t giacenza_oggetto;

/** A value: an argument or a result. */
typedef struct giacenza_valore
{
    int32_t tipo;      /**< GIACENZA_VUOTO, _TESTO, _INTERO or _LOGICO */
    int32_t intero;    /**< of _INTERO and _LOGICO */
    const char* testo; /**< of _TESTO, never null there */
} giacenza_valore;

/** What is published of an argument. */
typedef struct giacenza_argomento
{
    const char* nome; /**< the library's */
    int32_t tipo;     /**< GIACENZA_TESTO, _VARIANTE or _RESO */
    int32_t segni;    /**< GIACENZA_PER_RIFERIMENTO, GIACENZA_FACOLTATIVO, both or 0 */
} giacenza_argomento;

/** What is published of a member. */
typedef struct giacenza_membro
{
    /** Set by the program before each call: sizeof(giacenza_membro). Comes back as what was filled, which is
     * less where the library is older than the program's header. */
    uint32_t dimensione;
    uint32_t id;                         /**< dispatch id */
    int32_t posizione;                   /**< slot in its interface, from 1: members 1 to 11, the event 1 */
    int32_t modo;                        /**< GIACENZA_LEGGI, _SCRIVI, _METODO or _EVENTO */
    const char* nome;                    /**< the library's */
    int32_t risultato;                   /**< the type of what it returns; GIACENZA_VUOTO: nothing */
    int32_t numero_argomenti;            /**< optional ones counted */
    const giacenza_argomento* argomenti; /**< as many; the library's; null when there are none */
} giacenza_membro;

/**
 * What is called when the operator has left a screen that the object had opened, on the thread of the user
 * interface. It may do anything with the object: open another screen, stop listening, release it. It must not
 * let an exception or a longjmp out: an exception ends the process.
 *
 * oggetto: who raises the event. utente: what was given with the function.
 */
typedef void (*giacenza_ascoltatore)(giacenza_oggetto oggetto, void* utente);

#endif /* GIACENZA_GIACENZA_TIPI_H */
