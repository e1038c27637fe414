#include "data/avviso.h"

#include "database/recordset.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

struct StatoAvviso
{
    QString numero;
    QString data;
};

/// The count and the date of the last notice, empty for null; both empty when there is no such held shipment.
StatoAvviso LeggiDatiAvviso(const Accesso& accesso, const ChiaveCaso& chiave)
{
    const QString istruzione = std::visit([](const auto& c) { return istruzioni::statoAvviso(c); }, chiave);
    Connessione connessione;
    connessione.apri(accesso);
    Recordset stato;
    stato.apri(connessione, istruzione);
    if (stato.eof())
        return {};
    return {stato.valore(0).value_or(QString()), stato.valore(1).value_or(QString())};
}

QString istruzioneSuccessivo(const ChiaveCaso& chiave, qint16 numero, QDate oggi, const QString& descrizione)
{
    const auto* giacenza = std::get_if<ChiaveGiacenza>(&chiave);
    if (!giacenza)
        return istruzioni::avvisoSuccessivo(std::get<ChiaveSpedizione>(chiave), numero, oggi);
    try {
        return istruzioni::avvisoSuccessivo(*giacenza, numero, oggi,
                                            RaddoppiaApice(conRitorniACapo(descrizione)));
    } catch (const ErroreDatabase&) {
        // The key has already been in a statement: it is the description that would leave its place.
        throw ErroreConversione(
            u"La descrizione non si può scrivere: contiene più di un apostrofo. Lasciarne uno e ripetere."_s);
    }
}

} // namespace

std::optional<qint16> contaAvviso(Connessione& connessione, const Accesso& accesso, const ChiaveCaso& chiave,
                                  QDate oggi, const QString& descrizione)
{
    const StatoAvviso stato = LeggiDatiAvviso(accesso, chiave);
    if (stato.numero.isEmpty()) {
        connessione.esegui(
            std::visit([&](const auto& c) { return istruzioni::primoAvviso(c, oggi); }, chiave));
        return 1;
    }
    const auto ultimo = leggiGiorno(stato.data);
    if (!ultimo)
        throw ErroreConversione(u"La data dell'ultimo avviso non è una data: \"%1\""_s.arg(stato.data));
    if (*ultimo >= oggi)
        return std::nullopt;
    const int numero = intero16(stato.numero) + 1;
    if (numero > std::numeric_limits<qint16>::max())
        throw ErroreConversione(u"Il numero degli avvisi è troppo grande: %1"_s.arg(numero));
    connessione.esegui(istruzioneSuccessivo(chiave, static_cast<qint16>(numero), oggi, descrizione));
    return static_cast<qint16>(numero);
}

} // namespace giacenza
