#pragma once

#include <giacenza/Errore.h>

#include <QDate>
#include <QString>

#include <compare>
#include <optional>

namespace giacenza {

/// A column's value as the database gives it: text (decimals and dates included, "yyyy-mm-dd"), or null.
using Valore = std::optional<QString>;

/// A text that is not what its place needs: a number, a date, a 16-bit integer.
class GIACENZA_EXPORT ErroreConversione : public Errore
{
public:
    using Errore::Errore;
};

/// True for what the clerk may type as a number: blanks around, one sign, digits with at most one comma or
/// point. No grouping, no exponent; the empty text is no number.
bool eNumero(const QString& testo);

/// True for one or more of the digits 0 to 9 and nothing else: what may stand bare in a statement as a code
/// or year.
bool soloCifre(const QString& testo);

/// The day of a text "dd/mm/yyyy" or "yyyy-mm-dd": a real day, four digits of year, never swapped; else
/// nothing.
std::optional<QDate> leggiData(const QString& testo);

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

/// An exact decimal text rounded to a number of places. valore: comma or point, no grouping; cifre: places;
/// the result has a point. Throws ErroreConversione when valore is no number.
enum class Arrotondamento
{
    lontanoDaZero,
    alPari
};
QString arrotonda(const QString& valore, int cifre, Arrotondamento modo);

/// Exact arithmetic on decimal texts, of any length; read as by arrotonda, the results have a point and keep
/// their last zeros ("1.50" + "1" gives "2.50"). Throw ErroreConversione when one of the two is no number.
QString somma(const QString& primo, const QString& secondo);
QString prodotto(const QString& primo, const QString& secondo);
std::strong_ordering confronta(const QString& primo, const QString& secondo);

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
