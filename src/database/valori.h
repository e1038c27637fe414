#pragma once

#include "database/decimali.h"

#include <giacenza/Errore.h>

#include <QDate>
#include <QString>

#include <optional>

namespace giacenza {

/// A column's value as the database gives it: text (decimals and dates included, "yyyy-mm-dd"), or null.
using Valore = std::optional<QString>;

/// True for one or more of the digits 0 to 9 and nothing else: what may stand bare in a statement as a code
/// or year.
bool soloCifre(const QString& testo);

/// The day of a text "dd/mm/yyyy" or "yyyy-mm-dd": a real day, four digits of year, never swapped; else
/// nothing.
std::optional<QDate> leggiData(const QString& testo);

/// The day of a column's value; a host may keep days with a time of day, which follows the ten characters of
/// the day.
std::optional<QDate> leggiGiorno(const QString& valore);

inline bool eData(const QString& testo)
{
    return leggiData(testo).has_value();
}

/// "dd/mm/yyyy", as typed and shown; empty for an invalid date.
QString dataBreve(QDate data);

/// "yyyy-mm-dd", as written to SQL; empty for an invalid date.
QString dataSql(QDate data);

/// A text as a 16-bit integer: halves round to even; throws ErroreConversione when it is no number or too
/// large.
qint16 intero16(const QString& testo);

/// A value for SQL with two decimals and a point, halves away from zero: "3,5" gives "3.50".
///
/// valore: comma or point read, no grouping; overwritten with the same text with the Italian comma ("3,50").
/// Throws ErroreConversione when valore is no number.
QString FormattaNumero(QString& valore);

/// Doubles the first apostrophe of a text, and only the first.
QString RaddoppiaApice(const QString& testo);

/// A text of several lines as the database keeps it: every line end, LF or CR LF, becomes CR LF.
QString conRitorniACapo(const QString& testo);

/// An exact decimal text as Italian currency, whatever the locale of the process: "1234.5" gives "1.234,50
/// €". Halves to even. Throws ErroreConversione when valore is no number.
QString valuta(const QString& valore);

} // namespace giacenza
