#include "reports/engine/definizione.h"

#include <giacenza/Errore.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza::report {

Controllo& Sezione::controllo(const QString& nomeControllo)
{
    const auto trovato = std::ranges::find_if(controlli, [&](const Controllo& c) {
        return c.nome.compare(nomeControllo, Qt::CaseInsensitive) == 0;
    });
    if (trovato == controlli.end())
        throw Errore(u"Nella sezione %1 non c'è il controllo %2."_s.arg(nome, nomeControllo));
    return *trovato;
}

Sezione& Definizione::sezione(const QString& nomeSezione)
{
    for (Sezione* candidata : {&intestazione, &dettaglio, &pie, &finestra}) {
        if (candidata->nome.compare(nomeSezione, Qt::CaseInsensitive) == 0)
            return *candidata;
    }
    throw Errore(u"Nel report %1 non c'è la sezione %2."_s.arg(nome, nomeSezione));
}

Controllo etichetta(const QString& nome, const QRectF& area, const QString& testo, Carattere carattere)
{
    Controllo controllo;
    controllo.nome = nome;
    controllo.area = area;
    controllo.testo = testo;
    controllo.carattere = carattere;
    return controllo;
}

Controllo campo(const QString& nome, const QRectF& area, const QString& colonna, Carattere carattere)
{
    Controllo controllo;
    controllo.nome = nome;
    controllo.genere = Genere::campo;
    controllo.area = area;
    controllo.colonna = colonna;
    controllo.carattere = carattere;
    return controllo;
}

Controllo cornice(const QString& nome, const QRectF& area, QColor coloreTratto, QColor fondo)
{
    Controllo controllo;
    controllo.nome = nome;
    controllo.genere = Genere::cornice;
    controllo.area = area;
    controllo.coloreTratto = coloreTratto;
    controllo.fondo = fondo;
    return controllo;
}

} // namespace giacenza::report
