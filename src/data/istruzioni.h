#pragma once

#include "database/decimali.h"

#include <QDate>
#include <QString>

#include <variant>

namespace giacenza {

/// How the registration screen names a held shipment: by the waybill that is held.
struct ChiaveSpedizione
{
    QString filiale;
    QString numero;
    int anno = 0; ///< of the waybill
};

/// How the management screen names a held shipment: by its own number.
struct ChiaveGiacenza
{
    QString numero;
    int anno = 0; ///< of the held shipment
};

/// By what a screen names the held shipment that it shows.
using ChiaveCaso = std::variant<ChiaveSpedizione, ChiaveGiacenza>;

} // namespace giacenza

/// Every SQL text of the component, one function each, named after what it finds or changes.
///
/// The texts are fixed to the letter, blanks and case included: depots have databases, grants and logs that
/// know them. Values are pasted in through sql::, so each function throws ErroreDatabase (42000) for a value
/// that would leave its place.
namespace giacenza::istruzioni {

/// The kind of join to branch, line and carrier. esterna finds a waybill whose codes have no row there (the
/// names are then null), interna does not; esternaMinuscola is esterna as the lookup without a branch spells
/// it.
enum class Giunzione
{
    esterna,
    esternaMinuscola,
    interna
};

/// A waybill with its held shipment and the names vettore, filiale, linea. numero: of the waybill; data: its
/// date.
QString spedizionePerNumeroDataFiliale(const QString& numero, QDate data, const QString& filiale);
QString spedizionePerNumeroData(const QString& numero, QDate data, Giunzione giunzione);
/// By the sender's reference and its date.
QString spedizionePerRiferimento(const QString& riferimento, QDate data, const QString& filiale);
/// By the number and date of its held shipment; inner joins.
QString spedizionePerGiacenza(const QString& numero, QDate data);
/// The waybill's row alone.
QString spedizioneIntera(const ChiaveSpedizione& chiave);

/// RagioneSociale of a customer; codice: digits only.
QString clientePerCodice(const QString& codice);
/// codice and descrizione of all branches.
QString elencoFiliali();
QString descrizioneFiliale(const QString& codice);
QString filialeIntera(const QString& codice);
/// The freight terms, in the order of their number.
QString elencoPorto();

/// What decides whether a waybill may be held: Lerico, lerfgi, leangi.
QString ammissione(const QString& numero, QDate data);
/// Links a waybill to a held shipment and takes its delivery date away.
QString collegaGiacenza(const ChiaveGiacenza& nuova, const QString& numeroLdv, int annoLdv);

/// The counter of held shipments.
QString ultimoNumGiacenza();
/// numero: a whole number.
QString aggiornaUltimoNumGiacenza(const QString& numero);

/// GINRAV, GIDTAV and, by held shipment, GIDES1.
QString statoAvviso(const ChiaveGiacenza& chiave);
QString statoAvviso(const ChiaveSpedizione& chiave);
/// Counts the first notice.
QString primoAvviso(const ChiaveGiacenza& chiave, QDate oggi);
QString primoAvviso(const ChiaveSpedizione& chiave, QDate oggi);
/// Counts a later notice. n: the new count; descrizione: replaces GIDES1, as RaddoppiaApice gives it.
QString avvisoSuccessivo(const ChiaveGiacenza& chiave, qint16 n, QDate oggi, const QString& descrizione);
QString avvisoSuccessivo(const ChiaveSpedizione& chiave, qint16 n, QDate oggi);
/// The instructions printed on the notice.
QString istruzioniAvviso();

/// GIDTBF, the closure date.
QString dataBuonFine(const ChiaveGiacenza& chiave);
QString dataBuonFine(const ChiaveSpedizione& chiave);
/// Closes a held shipment. giorni: days of storage, a number as the screen shows it.
QString chiusura(const ChiaveGiacenza& chiave, QDate oggi, const QString& giorni);
/// Closes it again: the closure date stays.
QString chiusuraRipetuta(const ChiaveGiacenza& chiave, const QString& giorni);

/// The billing terms of the customer of a waybill, found by its year or by its date.
QString condizioniFatturazione(const QString& numero, int anno);
QString condizioniFatturazione(const QString& numero, QDate data);
/// Writes fixed fee and storage amount, with two decimals whatever they come with (FormattaNumero); throws
/// ErroreConversione when one is no number.
QString salvaCosti(const ChiaveSpedizione& chiave, const Decimale& fisso, const Decimale& importo);

/// The waybills linked to a held shipment, with it.
QString riconsegne(const ChiaveGiacenza& chiave);

} // namespace giacenza::istruzioni
