#pragma once

#include <giacenza/Errore.h>

#include <QString>

#include <compare>

namespace giacenza {

/// A text that is not what its place needs: a number, a date, a 16-bit integer.
class GIACENZA_EXPORT ErroreConversione : public Errore
{
public:
    using Errore::Errore;
};

/// True for what the clerk may type as a number: blanks around, one sign, digits with at most one comma or
/// point. No grouping, no exponent; the empty text is no number.
bool eNumero(const QString& testo);

/// An exact decimal: an amount on its way between what was typed or read and what is written.
class Decimale
{
public:
    /// testo: comma or point, no grouping. Throws ErroreConversione when it is no number.
    explicit Decimale(const QString& testo);

    /// With a point; as many decimals as it was made with.
    const QString& testo() const noexcept { return mTesto; }

private:
    QString mTesto;
};

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

} // namespace giacenza
