#include "grappolo/detto.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

namespace {

Voce voceDi(Lavoro lavoro, const Detto& detto, Esito esito)
{
    Voce voce;
    voce.lavoro = lavoro;
    voce.esito = esito;
    voce.giacenza = detto.giacenza;
    voce.messaggi = detto.messaggi;
    voce.stato = detto.stato;
    return voce;
}

bool nonSiSa(const Detto& detto)
{
    return (detto.stato + detto.messaggi.join(u' ')).contains("Non si sa"_L1);
}

Voce avviso(const Detto& detto)
{
    const bool prodotto = detto.stato.contains("Avviso di giacenza %1_2026 prodotto"_L1.arg(detto.giacenza));
    const bool giaContato = detto.stato.contains("oggi lo era già"_L1);
    Voce voce = voceDi(Lavoro::avvisa, detto,
                       prodotto || giaContato ? Esito::riuscito
                       : nonSiSa(detto)       ? Esito::ignoto
                                              : Esito::fallito);
    voce.contato = prodotto;
    return voce;
}

QList<Voce> registrazione(const Detto& detto)
{
    if (detto.messaggi.contains(u"Giacenza aggiunta in database."_s))
        return {voceDi(Lavoro::registra, detto, Esito::riuscito), avviso(detto)};
    if (detto.messaggi.contains(u"Giacenza esistente impossibile inserirla in database."_s))
        return {voceDi(Lavoro::registra, detto, Esito::rifiutato)};
    return {voceDi(Lavoro::registra, detto, nonSiSa(detto) ? Esito::ignoto : Esito::fallito)};
}

Voce emissione(const Detto& detto)
{
    static const QRegularExpression emessa(u"^Emessa la lettera di vettura (\\d+)/2026"_s);
    const auto trovata = emessa.match(detto.stato);
    if (!trovata.hasMatch())
        return voceDi(Lavoro::riconsegna, detto, nonSiSa(detto) ? Esito::ignoto : Esito::fallito);
    Voce voce = voceDi(Lavoro::riconsegna, detto, Esito::riuscito);
    voce.nuovaLdv = trovata.captured(1);
    return voce;
}

Voce chiusura(const Detto& detto)
{
    if (detto.stato.startsWith(u"Giacenza %1_2026 chiusa"_s.arg(detto.giacenza)))
        return voceDi(Lavoro::chiude, detto, Esito::riuscito);
    return voceDi(Lavoro::chiude, detto, nonSiSa(detto) ? Esito::ignoto : Esito::fallito);
}

} // namespace

QList<Voce> capisci(Lavoro lavoro, const Detto& detto)
{
    // What the status line says of an earlier press is not this one's.
    if (!detto.premuto)
        return {voceDi(lavoro, detto, Esito::fallito)};
    switch (lavoro) {
    case Lavoro::registra:
        return registrazione(detto);
    case Lavoro::avvisa:
        return {avviso(detto)};
    case Lavoro::riconsegna:
        return {emissione(detto)};
    case Lavoro::chiude:
        return {chiusura(detto)};
    }
    return {};
}

} // namespace giacenza::prove
