#pragma once

#include <giacenza/Chiamata.h>
#include <giacenza/giacenza.h>

#include <span>

namespace giacenza {

/// One published member: a property once for each of its kinds, a method, the event.
struct Membro
{
    int posizione; ///< slot in its interface, from 1
    const char* nome;
    quint32 id; ///< dispatch id
    Modo modo;
    std::span<const giacenza_argomento> argomenti;
    int risultato; ///< GIACENZA_VUOTO and the like
    /// Calls it on arguments that have been checked; null for the event.
    QVariant (*chiama)(cGiacenza& oggetto, const QVariantList& argomenti);
};

/// What the class publishes, in the order of the slots, the event last: the one table from which late
/// binding, the C interface and the class's descriptor are made.
std::span<const Membro> membri();

/// One name of the enumeration "Reso".
struct Costante
{
    const char* nome;
    int valore;
};

std::span<const Costante> costantiReso();

/// The member of an id and a kind, which can be called with so many arguments. Throws ErroreChiamata.
const Membro& membroDaChiamare(quint32 id, Modo modo, qsizetype argomenti);

/// Throws ErroreChiamata for an id that no member has.
void controllaId(quint32 id);

/// How a member is named to who called it wrongly: "una proprietà", "un metodo", "un evento".
QString specie(const Membro& membro);

} // namespace giacenza
