#pragma once

#include "reports/engine/definizione.h"

#include <array>

/// What the depot's letters have in common, so that they look alike. A block is added to a section from a
/// height in mm on; the result is the height at which it ends.
namespace giacenza::report::blocchi {

/// Left and right edge of what is printed.
inline constexpr double sinistra = 20;
inline constexpr double destra = 190;

inline constexpr QColor scuro(0x1f, 0x2d, 0x3d);

/// Paper, margins, letterhead (logo, four captions) and footer with the document's title and page numbers.
Definizione lettera(const QString& nome);

/// Writes the captions into the letterhead; without a logo they stand where it would.
void completaIntestazione(Sezione& intestazione, const std::array<QString, 4>& didascalie, bool conLogo);

/// The customer at the place of an envelope's window, and beside him who writes and when.
/// campoData: the column with the letter's date; where it has none, the day on which the letter is made.
double indirizzo(Sezione& sezione, double y, const QString& campoData);

/// The document's title with number and year of the held shipment, and the waybill's barcode.
double titolo(Sezione& sezione, double y, const QString& testo);

/// A heading with a rule beneath. con: the field without which it goes; empty: it always stays.
double capitolo(Sezione& sezione, double y, const QString& nome, const QString& testo,
                const QString& con = {});

/// A label and its field on one line, in the left half, in the right half or over the whole width.
enum class Posto
{
    sinistro,
    destro,
    intero
};
/// gruppo: see Controllo.
void voce(Sezione& sezione, double y, Posto posto, const QString& testo, Controllo campo, int gruppo = 0);
inline constexpr double passoVoce = 5.8;    ///< from one line of labels to the next
inline constexpr double dopoCapitolo = 3.6; ///< below the last line under a heading

/// A heading and beneath it a column's text over the whole width, as high as it needs; both go when there is
/// no text. Field and heading are called "txt" and "lbl" + nome.
double testoLibero(Sezione& sezione, double y, const QString& nome, const QString& intestazione,
                   const QString& colonna);

/// Waybill and recipient, goods.
double spedizione(Sezione& sezione, double y);
double merce(Sezione& sezione, double y);

} // namespace giacenza::report::blocchi
