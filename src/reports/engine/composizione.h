#pragma once

#include "reports/engine/banda.h"
#include "reports/engine/riga.h"

namespace giacenza::report {

/// Turns rows into pages of a definition. Each row starts a new page: a row is a letter.
class Composizione
{
public:
    /// definizione: as it is to be printed, kept. titolo: the document's, for the footer. logo: may be null.
    /// oggi: the day on which the report is made, for the formats.
    Composizione(Definizione definizione, const QString& titolo, const QImage& logo, QDate oggi);

    /// Adds a row: on one page, with its reducible texts smaller if need be, else with all texts in their own
    /// size on as many pages as they take. Throws Errore when a field's format fails.
    void aggiungi(const RigaReport& riga, Connessione& connessione);

    /// The pages of what was added, at least one.
    std::vector<PaginaReport> pagine();

private:
    double inizioCorpo() const;
    double inizioPie() const;
    Banda pie(std::size_t pagina, std::size_t pagine);
    void aggiungiPezzo(PaginaReport& pagina, const Pezzo& pezzo) const;

    Definizione mDefinizione;
    QString mTitolo;
    QImage mLogo;
    QDate mOggi;
    Misuratore mMisuratore;
    Banda mIntestazione;
    std::vector<Banda> mBande;    ///< one for each row
    std::vector<Banda> mFinestre; ///< one for each row
};

} // namespace giacenza::report
