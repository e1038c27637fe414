#include "reports/engine/banda.h"

#include "reports/engine/codiceabarre.h"
#include "reports/engine/disposizione.h"

#include <algorithm>
#include <cmath>

namespace giacenza::report {

namespace {

/// A control's content, measured but not placed.
struct Contenuto
{
    QString testo;
    Carattere carattere;
    std::vector<RigaTesto> righe;
    double altezza = 0;
    bool mostrato = false;
};

bool conRighe(const Controllo& controllo)
{
    return controllo.genere == Genere::etichetta || controllo.genere == Genere::campo;
}

/// Keeps the lines that fit and ends the last of them in dots if any was dropped.
void taglia(Contenuto& contenuto, const Controllo& controllo, Misuratore& misuratore)
{
    const double altezzaRiga = misuratore.altezzaRiga(contenuto.carattere);
    const double stanno = std::floor(controllo.area.height() / altezzaRiga + 0.05);
    const auto quante = static_cast<std::size_t>(std::max(1.0, stanno));
    if (contenuto.righe.size() <= quante)
        return;
    const QString ultima = contenuto.righe[quante - 1].testo;
    contenuto.righe.resize(quante);
    contenuto.righe.back() = misuratore.accorciata(ultima, contenuto.carattere, controllo.area.width());
}

void misuraTesto(Contenuto& contenuto, const Controllo& controllo, Misuratore& misuratore)
{
    contenuto.righe = misuratore.righe(contenuto.testo, contenuto.carattere, controllo.area.width());
    if (controllo.altezza == Altezza::fissa)
        taglia(contenuto, controllo, misuratore);
    else if (controllo.altezza == Altezza::elastica && contenuto.righe.empty())
        contenuto.altezza = 0;
    else
        contenuto.altezza = std::max(contenuto.altezza, static_cast<double>(contenuto.righe.size()) *
                                                            misuratore.altezzaRiga(contenuto.carattere));
}

Contenuto misura(const Controllo& controllo, const QString& testo, const QImage& logo, Misuratore& misuratore,
                 double riduzione)
{
    Contenuto contenuto{testo, controllo.carattere, {}, controllo.area.height(), controllo.visibile};
    if (controllo.riducibile)
        contenuto.carattere.punti *= riduzione;
    if (!controllo.visibile)
        return contenuto;
    if (conRighe(controllo))
        misuraTesto(contenuto, controllo, misuratore);
    else if (controllo.genere == Genere::immagine && controllo.altezza == Altezza::elastica && logo.isNull())
        contenuto.altezza = 0;
    return contenuto;
}

void aggiungiTesto(Banda& banda, const Controllo& controllo, const Contenuto& contenuto, const QRectF& area,
                   Misuratore& misuratore)
{
    const double altezzaRiga = misuratore.altezzaRiga(contenuto.carattere);
    double y = area.y();
    for (const RigaTesto& riga : contenuto.righe) {
        double x = area.x();
        if (controllo.allineamento == Allineamento::destra)
            x = area.right() - riga.larghezza;
        else if (controllo.allineamento == Allineamento::centro)
            x += (area.width() - riga.larghezza) / 2;
        if (!riga.testo.isEmpty()) {
            banda.primitive.emplace_back(TestoPagina{controllo.nome, riga.testo, contenuto.carattere,
                                                     QRectF(x, y, riga.larghezza, altezzaRiga),
                                                     y + misuratore.ascendente(contenuto.carattere)});
        }
        y += altezzaRiga;
    }
}

void aggiungiImmagine(Banda& banda, const Controllo& controllo, const QRectF& area, const QImage& immagine)
{
    if (immagine.isNull())
        return;
    const QSizeF misura = QSizeF(immagine.size()).scaled(area.size(), Qt::KeepAspectRatio);
    banda.primitive.emplace_back(ImmaginePagina{controllo.nome, QRectF(area.topLeft(), misura), immagine});
}

void aggiungi(Banda& banda, const Controllo& controllo, const Contenuto& contenuto, const QRectF& area,
              const QImage& logo, Misuratore& misuratore)
{
    switch (controllo.genere) {
    case Genere::etichetta:
    case Genere::campo:
        aggiungiTesto(banda, controllo, contenuto, area, misuratore);
        break;
    case Genere::cornice:
        banda.primitive.emplace_back(
            CornicePagina{controllo.nome, area, controllo.tratto, controllo.coloreTratto, controllo.fondo});
        break;
    case Genere::immagine:
        aggiungiImmagine(banda, controllo, area, logo);
        break;
    case Genere::barre:
        if (const auto codice = code128(contenuto.testo, area, controllo.allineamento))
            banda.primitive.emplace_back(BarrePagina{controllo.nome, codice->area, codice->barre});
        break;
    }
}

/// The place of the first field with text that a control depends on, else of the first one; the number of
/// controls when it depends on none. A field that was hidden counts as one with text: nothing moves for it.
std::size_t campoDi(const Controllo& controllo, const Sezione& sezione,
                    const std::vector<Contenuto>& contenuti)
{
    std::size_t primo = sezione.controlli.size();
    for (const QString& nome : controllo.con) {
        const auto dove = std::ranges::find(sezione.controlli, nome, &Controllo::nome);
        const auto campo = static_cast<std::size_t>(dove - sezione.controlli.begin());
        if (campo < contenuti.size() && (!contenuti[campo].mostrato || !contenuti[campo].righe.empty()))
            return campo;
        primo = std::min(primo, campo);
    }
    return primo;
}

/// Takes away what has no sense without fields that turned out empty.
void togliSoli(const Sezione& sezione, std::vector<Contenuto>& contenuti)
{
    for (std::size_t i = 0; i < contenuti.size(); ++i) {
        const std::size_t campo = campoDi(sezione.controlli[i], sezione, contenuti);
        if (campo < contenuti.size() && contenuti[campo].mostrato && contenuti[campo].righe.empty()) {
            contenuti[i].altezza = 0;
            contenuti[i].mostrato = false;
        }
    }
}

/// What a page break may not part: heading and first line of its text, frames of one piece, and all that is
/// not a frame.
std::vector<Unito> unitiDi(const Banda& banda, const Sezione& sezione,
                           const std::vector<Contenuto>& contenuti, const std::vector<QRectF>& aree,
                           Misuratore& misuratore)
{
    std::vector<Unito> uniti;
    for (std::size_t i = 0; i < aree.size(); ++i) {
        const Controllo& controllo = sezione.controlli[i];
        const std::size_t campo = campoDi(controllo, sezione, contenuti);
        if (campo < aree.size() && contenuti[i].mostrato) {
            const double riga = misuratore.altezzaRiga(contenuti[campo].carattere);
            uniti.push_back({aree[i].top(), aree[campo].top() + riga});
        }
        if (controllo.genere == Genere::cornice && controllo.altezza == Altezza::fissa)
            uniti.push_back({aree[i].top(), aree[i].bottom()});
    }
    for (const Primitiva& primitiva : banda.primitive) {
        const QRectF area = areaDi(primitiva);
        if (!std::holds_alternative<CornicePagina>(primitiva))
            uniti.push_back({area.top(), area.bottom()});
    }
    return uniti;
}

} // namespace

TestiSezione testiDi(const Sezione& sezione, const std::function<QString(const Controllo&)>& testo)
{
    TestiSezione testi;
    testi.reserve(sezione.controlli.size());
    for (const Controllo& controllo : sezione.controlli) {
        const bool serve = controllo.visibile && (conRighe(controllo) || controllo.genere == Genere::barre);
        testi.push_back(serve ? testo(controllo) : QString());
    }
    return testi;
}

Banda componiBanda(const Sezione& sezione, const TestiSezione& testi, const QImage& logo,
                   Misuratore& misuratore, double riduzione)
{
    std::vector<Contenuto> contenuti;
    contenuti.reserve(sezione.controlli.size());
    for (std::size_t i = 0; i < sezione.controlli.size(); ++i)
        contenuti.push_back(misura(sezione.controlli[i], testi.at(i), logo, misuratore, riduzione));
    togliSoli(sezione, contenuti);
    std::vector<double> altezze;
    altezze.reserve(contenuti.size());
    for (const Contenuto& contenuto : contenuti)
        altezze.push_back(contenuto.altezza);
    const std::vector<QRectF> aree = disponi(sezione.controlli, altezze);

    Banda banda;
    double primaFondo = 0;
    double fondo = 0;
    for (std::size_t i = 0; i < aree.size(); ++i) {
        const Controllo& controllo = sezione.controlli[i];
        primaFondo = std::max(primaFondo, controllo.area.bottom());
        fondo = std::max(fondo, aree[i].bottom());
        if (contenuti[i].mostrato)
            aggiungi(banda, controllo, contenuti[i], aree[i], logo, misuratore);
    }
    banda.uniti = unitiDi(banda, sezione, contenuti, aree, misuratore);
    banda.altezza = sezione.altezza + fondo - primaFondo;
    return banda;
}

Banda componiEntro(Sezione sezione, const TestiSezione& testi, const QImage& logo, Misuratore& misuratore,
                   const Limite& limite)
{
    constexpr double passo = 0.05;
    double riduzione = 1;
    Banda banda = componiBanda(sezione, testi, logo, misuratore);
    while (banda.altezza > limite.altezza && riduzione - passo > limite.riduzione - passo / 2) {
        riduzione -= passo;
        banda = componiBanda(sezione, testi, logo, misuratore, riduzione);
    }
    if (banda.altezza <= limite.altezza)
        return banda;
    for (Controllo& controllo : sezione.controlli) {
        if (conRighe(controllo))
            controllo.altezza = Altezza::fissa;
    }
    return componiBanda(sezione, testi, logo, misuratore, riduzione);
}

} // namespace giacenza::report
