#pragma once

#include "desk/documenti/carta.h"
#include "reports/engine/banda.h"
#include "reports/engine/documentoreport.h"

#include <QDate>

#include <memory>
#include <utility>

namespace giacenza::documenti {

/// A column of a table: its heading, its width in mm of the 170 that a page has, where its texts stand.
struct Colonna
{
    QString titolo;
    double larghezza = 0;
    report::Allineamento allineamento = report::Allineamento::sinistra;
};

/// How a row of a table is set.
enum class Riga
{
    normale,
    forte, ///< bold: a sum
};

/// A document that grows from top to bottom: titles, lines of label and value, paragraphs, tables. Pages
/// break between lines; a table's heading is repeated on each page that the table reaches. In the depot's
/// letterhead.
class Foglio
{
public:
    /// titolo: the document's, for the foot and the file. Throws Errore for a logo that is refused.
    Foglio(const Carta& carta, const QString& titolo);

    void titolo(const QString& testo, const QString& sotto);
    void capitolo(const QString& testo);
    /// Label and value, two pairs a line; a pair with an empty value is left out.
    void voci(const std::vector<std::pair<QString, QString>>& coppie);
    /// A text of any length over the whole width.
    void paragrafo(const QString& testo);
    /// The same between rules, in bold: what must not be overlooked.
    void avvertenza(const QString& testo);

    /// Starts a table; rows follow.
    void tabella(const std::vector<Colonna>& colonne);
    /// As many cells as columns; a long one takes several lines.
    void riga(const QStringList& celle, Riga come = Riga::normale);
    void spazio(double mm);
    void nuovaPagina();

    /// The pages of what was added, at least one.
    std::vector<report::PaginaReport> pagine();
    /// The same as a document, which paints without asking anybody.
    std::unique_ptr<report::DocumentoReport> documento();

private:
    struct Elemento
    {
        report::Banda banda;
        bool conSeguente = false; ///< no page ends below it
        bool iniziaPagina = false;
        int tabella = -1; ///< whose heading stands above it, on each page
    };

    void aggiungi(const report::Sezione& sezione, bool conSeguente);
    std::vector<std::vector<std::size_t>> dividi() const;
    double inizioCorpo() const;
    double altezzaCorpo() const;
    const report::Banda* intestazioneDi(std::size_t elemento, std::size_t primoDellaPagina) const;
    report::Banda pie(std::size_t pagina, std::size_t pagine);

    QString mTitolo;
    QImage mLogo;
    report::Definizione mDefinizione;
    report::Misuratore mMisuratore;
    report::Banda mTesta;
    std::vector<Colonna> mColonne;            ///< of the table that is being written
    std::vector<report::Banda> mIntestazioni; ///< of each table
    std::vector<Elemento> mElementi;
};

/// A document as PDF, whole in memory; nothing is asked and nothing shown. Throws Errore.
QByteArray inPdf(Documento& documento);

} // namespace giacenza::documenti
