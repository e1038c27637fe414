#pragma once

#include "component/descriptor/descrittore.h"

#include <giacenza/giacenza.h>

namespace giacenza {

/// A library of this component, loaded, by the functions of its C interface that are used on it. It stays
/// loaded.
class Libreria
{
public:
    /// percorso: absolute; or a name alone, which the dynamic linker seeks. Throws ErroreDescrittore
    /// (libreria) when it is not there, cannot be loaded or is not this component.
    explicit Libreria(const QString& percorso);

    /// Where it lies, absolute.
    QString percorso() const { return mPercorso; }
    QString versione() const { return QString::fromUtf8(mVersione()); }

    /// Throws ErroreDescrittore (versione) when it is of another major version than the descriptor.
    void controllaVersione(const Descrittore& descrittore) const;
    /// The same when it is of another major version or of another binary interface than who is to use it.
    void controllaUso(const QString& versioneDiChiUsa) const;

    const char* (*descrizione)() noexcept = nullptr;
    const char* (*errore_testo)() noexcept = nullptr;
    const char* (*errore_sqlstate)() noexcept = nullptr;
    int32_t (*errore_nativo)() noexcept = nullptr;
    int32_t (*crea)(giacenza_oggetto*) noexcept = nullptr;
    int32_t (*rilascia)(giacenza_oggetto) noexcept = nullptr;
    int32_t (*ascolta)(giacenza_oggetto, uint32_t, giacenza_ascoltatore, void*) noexcept = nullptr;
    int32_t (*invoca)(giacenza_oggetto, uint32_t, int32_t, const giacenza_valore*, int32_t,
                      giacenza_valore*) noexcept = nullptr;
    void (*libera)(giacenza_valore*) noexcept = nullptr;

private:
    template<class Funzione>
    void trova(Funzione& funzione, const char* nome);

    void* mAperta = nullptr;
    QString mPercorso;
    const char* (*mVersione)() noexcept = nullptr;
    uint32_t (*mAbi)() noexcept = nullptr;
};

/// Throws ErroreDescrittore when the file of a descriptor's library is not there.
void controllaFile(const Descrittore& descrittore);

} // namespace giacenza
