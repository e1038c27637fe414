#pragma once

#include <giacenza/cGiacenza.h>

#include <QVariant>

namespace giacenza {

/// How a member is invoked.
enum class Modo : int
{
    leggi = 1,  ///< get: a property is read
    scrivi = 2, ///< let: a property is written
    metodo = 3, ///< a method is called
    evento = 4, ///< listened to, never invoked
};

/// A call that could not be made: what failed was the way of calling, nothing was done. A failure of the call
/// itself is the member's own exception (giacenza::ErroreDatabase from an opening method).
class GIACENZA_EXPORT ErroreChiamata : public Errore
{
public:
    enum Codice : int
    {
        membroIgnoto = 1,     ///< no member has that name or id
        modoSbagliato = 2,    ///< the member is not of that kind: a method read, a property called
        soloScrittura = 3,    ///< a write-only property was read
        numeroArgomenti = 4,  ///< too few or too many arguments
        tipoArgomento = 5,    ///< an argument is of another type; none is converted
        altroThread = 6,      ///< not the object's thread, or not the user interface's
        senzaInterfaccia = 7, ///< a screen was asked for and the process has no QApplication
    };

    ErroreChiamata(Codice codice, const QString& testo) : Errore(testo), mCodice(codice) {}

    Codice codice() const noexcept { return mCodice; }

private:
    Codice mCodice;
};

/// The dispatch id of a member, which both kinds of a property share.
///
/// nome: compared without case ("percorsodatabase"); the event is found too.
/// Throws ErroreChiamata (membroIgnoto).
GIACENZA_EXPORT quint32 idMembro(const QString& nome);

/// Invokes a member by its dispatch id.
///
/// oggetto: used from the thread that made it. id: a number of cGiacenza::IdMembro.
/// argomenti: exactly the member's, in order, of exactly its types: a text is a QString, the kind of
/// re-delivery an int of any value or a cGiacenza::Reso; the optional argument of Esegui may be left out, and
/// may be anything. Arguments by reference come back as they went: no member writes into one.
///
/// Returns a property's value, what a method returns, or an invalid variant.
/// Throws ErroreChiamata when the call cannot be made, and what the member throws, unchanged.
GIACENZA_EXPORT QVariant chiama(cGiacenza& oggetto, quint32 id, Modo modo,
                                const QVariantList& argomenti = {});

/// The same by name, in any case.
GIACENZA_EXPORT QVariant chiama(cGiacenza& oggetto, const QString& nome, Modo modo,
                                const QVariantList& argomenti = {});

} // namespace giacenza
