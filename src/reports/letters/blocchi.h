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

/// The area that two standards of letters with the address at the right have in common: French (field 100 mm
/// wide and 45 high, 10 from the right edge and 35 from the top) and Swiss (90 by 45, 8 and 45). Whatever of
/// a letter stands in either of the two fields is the address.
inline constexpr QRectF finestraBusta(112, 45, 88, 35);

/// Adds lines to the footer, which grows by them: what the law wants of a letter of a company.
void completaPie(Sezione& pie, const QStringList& righe);

/// Writes the captions into the letterhead; without a logo they stand where it would.
void completaIntestazione(Sezione& intestazione, const std::array<QString, 4>& didascalie, bool conLogo);

/// The customer in the envelope's window, and left of it the letter's date, the customer's code and the
/// waybill's barcode. The detail then starts at a fixed height. Returns the height in the detail below both.
/// campoData: the column with the letter's date; where it has none, the day on which the letter is
/// made.
double indirizzo(Definizione& lettera, const QString& campoData);

/// The document's title with number and year of the held shipment.
double titolo(Sezione& sezione, double y, const QString& testo);

/// The columns that name a waybill.
struct ColonneLdv
{
    QString filiale;
    QString numero;
    QString anno;
};
/// A waybill's barcode (see codiceLdv()) and beneath it its number, "LDV 4711"; 16 mm high. area: its upper
/// left corner and its width count.
void barreLdv(Sezione& sezione, const QRectF& area, const ColonneLdv& colonne, Allineamento allineamento);

/// A heading with a rule beneath. con: the fields without which it goes; none: it always stays.
double capitolo(Sezione& sezione, double y, const QString& nome, const QString& testo,
                const QStringList& con = {});

/// A label and its field on one line, in the left half, in the right half or over the whole width.
enum class Posto
{
    sinistro,
    destro,
    intero
};
/// Without a value there is no label, and no line where all its values are empty. gruppo: see Controllo.
void voce(Sezione& sezione, double y, Posto posto, const QString& testo, Controllo campo, int gruppo = 0);
/// The same for amounts and quantities: at the right edge of a narrow column, so that they stand one under
/// the other as they are written.
void voceNumero(Sezione& sezione, double y, Posto posto, const QString& testo, Controllo campo);

/// The lines of an address in one half, the first one in bold, closed up where one is empty; above them a
/// label that goes with them, "lbl" + the rest of the first field's name, unless its text is empty.
double luogo(Sezione& sezione, double y, Posto posto, const QString& testo, std::vector<Controllo> righe);

inline constexpr double passoVoce = 5.8;    ///< from one line of labels to the next
inline constexpr double dopoCapitolo = 3.0; ///< below the last line under a heading

/// A heading and beneath it a column's text over the whole width, as high as it needs; both go when there is
/// no text. Field and heading are called "txt" and "lbl" + nome.
double testoLibero(Sezione& sezione, double y, const QString& nome, const QString& intestazione,
                   const QString& colonna);

/// Waybill and recipient, goods.
double spedizione(Sezione& sezione, double y);
double merce(Sezione& sezione, double y);

} // namespace giacenza::report::blocchi
