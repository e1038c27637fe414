#pragma once

#include <QColor>
#include <QPageSize>
#include <QRectF>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

/// What a report looks like before it has data: sections that hold named controls. All positions and sizes
/// are in millimetres; a control's are measured from its section's upper left corner, which starts at the
/// paper's left edge.
namespace giacenza::report {

struct Contesto;

inline constexpr QColor nero(0, 0, 0);

/// Size in points, weight and colour; the family is the same everywhere.
struct Carattere
{
    double punti = 10;
    bool grassetto = false;
    QColor colore = nero;

    bool operator==(const Carattere&) const = default;
};

enum class Genere
{
    etichetta, ///< a fixed text
    campo,     ///< a column's value, through its format
    cornice,   ///< a frame or filled area around what it holds; a height of 0 makes it a rule
    immagine,  ///< the logo
    barre,     ///< a column's value as Code 128; 5 mm at both sides must stay white
};

enum class Allineamento
{
    sinistra,
    centro,
    destra
};

/// What a text does that does not fill its field, or does not fit. A frame always follows what it holds:
/// fissa keeps it whole on one page, else it may be cut where its page ends.
enum class Altezza
{
    fissa,    ///< cut, with dots at the end of the last line that fits
    cresce,   ///< the field grows downwards, what stands below moves
    elastica, ///< grows, and takes no room at all when it is empty: what stands below moves up
};

/// What a field shows for its column's value; throws giacenza::Errore.
using Formato = std::function<QString(const Contesto& contesto)>;

struct Controllo
{
    QString nome;
    Genere genere = Genere::etichetta;
    QRectF area;
    QString testo;   ///< of a label; in the footer "{n}", "{m}" and "{t}" are page, pages, document's title
    QString colonna; ///< of a field or barcode
    Carattere carattere;
    Allineamento allineamento = Allineamento::sinistra;
    Altezza altezza = Altezza::fissa;
    double tratto = 0.2;        ///< of a frame, its line's width
    QColor coloreTratto = nero; ///< of a frame, invalid: no line
    QColor fondo;               ///< of a frame, invalid: no filling
    Formato formato;            ///< none: the value's text, empty for null

    /// The fields without which the control has no sense, in the same section: where all are empty, this one
    /// is neither shown nor takes room; else no page break comes between it and the first line of the first
    /// of them that is not.
    QStringList con;

    /// The text may be set smaller where this keeps a row on one page.
    bool riducibile = false;

    /// Controls of two groups stand beside each other, and the growth of one moves nothing in the other;
    /// those of group 0 belong to all.
    int gruppo = 0;

    /// A hidden control leaves its place empty: nothing moves for it, in either direction.
    bool visibile = true;
};

struct Sezione
{
    QString nome;
    double altezza = 0;
    std::vector<Controllo> controlli;

    /// By name, without case; throws Errore when there is none.
    Controllo& controllo(const QString& nomeControllo);
};

/// Header and footer stand on every page, the detail once for each row between them. The footer keeps its
/// height: what does not fit is set smaller, and cut if even that is too high.
struct Definizione
{
    QString nome;
    QPageSize carta = QPageSize(QPageSize::A4);
    double margineAlto = 0;
    double margineBasso = 0;
    Sezione intestazione;
    Sezione dettaglio;
    Sezione pie;

    /// Where the detail starts at the earliest, from the paper's top; a header that would reach beyond is set
    /// smaller, and cut if even that is too high. 0: right below the header, whose height is free.
    double inizioDettaglio = 0;

    /// What a row shows at one place of its first page, whatever its other texts do: the address behind an
    /// envelope's window. Set smaller, and cut if even that is too high, until it fits between the two
    /// heights, from the paper's top.
    Sezione finestra;
    double inizioFinestra = 0;
    double fineFinestra = 0;

    /// By name, without case; throws Errore when there is none.
    Sezione& sezione(const QString& nomeSezione);

    QSizeF cartaMm() const { return carta.size(QPageSize::Millimeter); }
};

/// Building blocks of a definition.
Controllo etichetta(const QString& nome, const QRectF& area, const QString& testo, Carattere carattere = {});
Controllo campo(const QString& nome, const QRectF& area, const QString& colonna, Carattere carattere = {});
Controllo cornice(const QString& nome, const QRectF& area, QColor coloreTratto, QColor fondo = {});

} // namespace giacenza::report
