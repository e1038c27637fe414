/*
 * A host in C that is not linked to the component: it loads the library when it runs, and lists what it
 * publishes. Needs no display.
 *
 *     ospite-tardi [LIBRARY]          without a name: libgiacenza.so.0, as the dynamic linker finds it
 *
 * Codes: 0 listed, 1 the library is not there or not the component.
 */
#include <giacenza/giacenza.h>

#include <dlfcn.h>
#include <stdio.h>
#include <string.h>

/* ISO C has no conversion from an object's address to a function's. Returns 0 when the library has no such
 * function. */
static int trova(void* libreria, const char* nome, void* funzione)
{
    void* const indirizzo = dlsym(libreria, nome);
    memcpy(funzione, &indirizzo, sizeof indirizzo);
    if (!indirizzo)
        fprintf(stderr, "Manca la funzione %s\n", nome);
    return indirizzo != NULL;
}

int main(int argc, char** argv)
{
    static const char* const modi[] = {"", "leggi", "scrivi", "metodo", "evento"};
    const char* (*versione)(void) = NULL;
    uint32_t (*abi)(void) = NULL;
    int32_t (*numero)(void) = NULL;
    int32_t (*descrivi)(int32_t, giacenza_membro*) = NULL;
    int32_t indice = 0;
    void* const libreria = dlopen(argc > 1 ? argv[1] : "libgiacenza.so.0", RTLD_NOW);
    if (!libreria) {
        fprintf(stderr, "%s\n", dlerror());
        return 1;
    }
    if (!trova(libreria, "giacenza_versione", &versione) || !trova(libreria, "giacenza_abi", &abi) ||
        !trova(libreria, "giacenza_numero_membri", &numero) ||
        !trova(libreria, "giacenza_descrivi_membro", &descrivi))
        return 1;
    if (abi() != GIACENZA_ABI) {
        fputs("La libreria ha un'altra interfaccia binaria.\n", stderr);
        return 1;
    }
    printf("versione %s\n", versione());
    for (indice = 0; indice < numero(); ++indice) {
        giacenza_membro membro;
        membro.dimensione = sizeof membro;
        if (descrivi(indice, &membro) != GIACENZA_BENE)
            return 1;
        printf("0x%08x %s %s, %d argomenti\n", (unsigned)membro.id, modi[membro.modo], membro.nome,
               (int)membro.numero_argomenti);
    }
    return 0;
}
