#pragma once

#include "reports/engine/documentoreport.h"
#include "support/stampa.h"

#include <gtest/gtest.h>

/// Looking at the primitives of a page by the names of their controls.
namespace giacenza::report::prove {

template<class Genere>
std::vector<Genere> diGenere(const PaginaReport& pagina, const QString& controllo)
{
    std::vector<Genere> trovate;
    for (const Primitiva& primitiva : pagina) {
        const auto* giusta = std::get_if<Genere>(&primitiva);
        if (giusta && giusta->controllo == controllo)
            trovate.push_back(*giusta);
    }
    return trovate;
}

/// The lines of a control, joined by blanks; empty when nothing of it is there.
inline QString testo(const PaginaReport& pagina, const QString& controllo)
{
    QStringList righe;
    for (const TestoPagina& riga : diGenere<TestoPagina>(pagina, controllo))
        righe << riga.testo;
    return righe.join(u' ');
}

inline QString nomeDi(const Primitiva& primitiva)
{
    return std::visit([](const auto& p) { return p.controllo; }, primitiva);
}

/// What every letter owes its reader: nothing outside the margins, no text over another.
inline void aspettaOrdinata(const PaginaReport& pagina)
{
    const QRectF carta(19.9, 9.9, 170.2, 277.2);
    for (std::size_t i = 0; i < pagina.size(); ++i) {
        const QRectF area = areaDi(pagina[i]);
        EXPECT_TRUE(carta.contains(area.topLeft()) && carta.contains(area.bottomRight()))
            << nomeDi(pagina[i]).toStdString() << " esce dai margini";
        for (std::size_t j = i + 1; j < pagina.size(); ++j) {
            const bool cornici = std::holds_alternative<CornicePagina>(pagina[i]) ||
                                 std::holds_alternative<CornicePagina>(pagina[j]);
            EXPECT_FALSE(!cornici && area.adjusted(0, 0.05, 0, -0.05).intersects(areaDi(pagina[j])))
                << nomeDi(pagina[i]).toStdString() << " copre " << nomeDi(pagina[j]).toStdString();
        }
    }
}

} // namespace giacenza::report::prove
