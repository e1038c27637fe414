// The sheet of every letter: letterhead and foot.
#include "reports/letters/blocchiinterni.h"

using namespace Qt::StringLiterals;

namespace giacenza::report::blocchi {

namespace {

void didascalie(Sezione& sezione)
{
    struct Riga
    {
        double y = 0;
        double altezza = 0;
        Carattere carattere;
    };
    const Riga righe[] = {{0, 6.2, {13, true, scuro}},
                          {7, 4.2, {8.5, false, grigioTesto}},
                          {11.2, 4.2, {8.5, false, grigioTesto}},
                          {15.4, 4.2, {8.5, false, grigioTesto}}};
    int numero = 0;
    for (const Riga& riga : righe) {
        Controllo& bord =
            metti(sezione, etichetta(u"lblBord%1"_s.arg(++numero), {88, riga.y, destra - 88, riga.altezza},
                                     {}, riga.carattere));
        bord.allineamento = Allineamento::destra;
        bord.altezza = Altezza::elastica;
        bord.riducibile = true;
    }
}

Sezione intestazione()
{
    Sezione sezione{u"Intestazione_pagina"_s, 26, {}};
    Controllo& logo = metti(sezione, etichetta(u"imgLogo"_s, {sinistra, 0, 62, 20}, {}));
    logo.genere = Genere::immagine;
    logo.altezza = Altezza::elastica;
    didascalie(sezione);
    metti(sezione, cornice(u"linIntestazione"_s, {sinistra, 23, larghezza, 0}, scuro)).tratto = 0.5;
    return sezione;
}

Sezione pie()
{
    Sezione sezione{u"Pie_pagina"_s, 9, {}};
    metti(sezione, cornice(u"linPie"_s, {sinistra, 2, larghezza, 0}, grigioFilo));
    metti(sezione, etichetta(u"lblDocumento"_s, {sinistra, 4, 110, 4}, u"{t}"_s, piccolo));
    Controllo& pagina =
        metti(sezione, etichetta(u"lblPagina"_s, {destra - 50, 4, 50, 4}, u"Pagina {n} di {m}"_s, piccolo));
    pagina.allineamento = Allineamento::destra;
    return sezione;
}

} // namespace

Definizione lettera(const QString& nome)
{
    Definizione definizione;
    definizione.nome = nome;
    definizione.margineAlto = 12;
    definizione.margineBasso = 10;
    definizione.intestazione = intestazione();
    definizione.dettaglio.nome = u"Dettaglio_Dettaglio"_s;
    definizione.pie = pie();
    return definizione;
}

void completaIntestazione(Sezione& intestazione, const std::array<QString, 4>& didascalie, bool conLogo)
{
    int numero = 0;
    for (const QString& didascalia : didascalie) {
        Controllo& bord = intestazione.controllo(u"lblBord%1"_s.arg(++numero));
        bord.testo = didascalia;
        if (conLogo)
            continue;
        bord.area.setLeft(sinistra);
        bord.allineamento = Allineamento::sinistra;
    }
}

void completaPie(Sezione& pie, const QStringList& righe)
{
    constexpr double altezza = 3.6;
    constexpr Carattere minuto{7.5, false, grigioTesto};
    int numero = 0;
    for (const QString& riga : righe) {
        Controllo& piede = metti(pie, etichetta(u"lblPiede%1"_s.arg(++numero),
                                                {sinistra, pie.altezza, larghezza, altezza}, riga, minuto));
        piede.allineamento = Allineamento::centro;
        piede.altezza = Altezza::cresce;
        piede.riducibile = true;
        pie.altezza += altezza;
    }
}

} // namespace giacenza::report::blocchi
