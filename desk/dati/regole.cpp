#include "desk/dati/regole.h"

#include "data/sosta.h"
#include "database/valori.h"

#include <QStringList>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace giacenza::desk {

namespace {

/// As the closure writes it.
QString scritto(const Decimale& importo)
{
    QString testo = importo.testo();
    return FormattaNumero(testo);
}

void valutaImporti(const CondizioniSosta& condizioni, Valutazione& v)
{
    // The closure counts them in 16 bits.
    if (*v.giorni > std::numeric_limits<qint16>::max() || *v.giorni < std::numeric_limits<qint16>::min()) {
        v.senzaImporto = u"troppi giorni"_s;
        return;
    }
    const QString giorni = QString::number(*v.giorni);
    try {
        v.franchi = -giorniAddebitati(condizioni, giorni);
        const ImportiGiacenza importi = calcolaImporti(condizioni, giorni);
        v.fisso = scritto(importi.fisso);
        v.sosta = scritto(importi.sosta);
        v.centesimi = inCentesimi(somma(v.fisso, v.sosta));
        if (!v.centesimi)
            v.senzaImporto = u"importo fuori misura"_s;
    } catch (const ErroreConversione&) {
        v.senzaImporto = u"condizioni incomplete"_s;
    }
}

/// The same, looked up first among those that were worked out.
Valutazione giaNoti(ImportiNoti& noti, const CondizioniSosta& c, const Valutazione& v)
{
    QString chiave = QString::number(*v.giorni);
    for (const Valore& valore : {c.fisso, c.giorniFranchi, c.alGiorno, c.minimo})
        chiave += u'|' + valore.value_or(QString());
    const auto nota = noti.constFind(chiave);
    if (nota != noti.constEnd())
        return *nota;
    Valutazione nuova = v;
    valutaImporti(c, nuova);
    return *noti.insert(chiave, nuova);
}

Stato primoStato(const Caso& caso, const Valutazione& v, QDate oggi, int giorniFerma)
{
    if (caso.avvisi.isEmpty())
        return Stato::daAvvisare;
    if (v.franchi && *v.franchi < 0)
        return Stato::inAddebito;
    if (v.franchi && *v.franchi <= franchiInScadenza)
        return Stato::inScadenza;
    const QDate ultimo = ultimoEvento(caso, oggi);
    if (ultimo.isValid() && ultimo.daysTo(oggi) >= giorniFerma)
        return Stato::ferma;
    return Stato::inAttesa;
}

} // namespace

QString parole(Stato stato)
{
    switch (stato) {
    case Stato::daAvvisare:
        return u"da avvisare"_s;
    case Stato::inAddebito:
        return u"in addebito"_s;
    case Stato::inScadenza:
        return u"in scadenza"_s;
    case Stato::ferma:
        return u"ferma"_s;
    case Stato::inAttesa:
        break;
    }
    return u"in attesa"_s;
}

QDate ultimoEvento(const Caso& caso, QDate oggi)
{
    QDate ultimo;
    for (const QDate giorno : {caso.dal, caso.ultimoAvviso, caso.ultimaLegata})
        if (giorno.isValid() && giorno <= oggi && (!ultimo.isValid() || giorno > ultimo))
            ultimo = giorno;
    return ultimo;
}

Valutazione valutazioneDi(const Caso& caso, QDate oggi, int giorniFerma, ImportiNoti* noti)
{
    Valutazione v;
    if (caso.dal.isValid())
        v.giorni = giorniSosta(caso.dal, std::nullopt, oggi);
    if (!v.giorni)
        v.senzaImporto = u"manca la data"_s;
    else if (!caso.condizioni)
        v.senzaImporto = u"senza condizioni"_s;
    else if (!noti)
        valutaImporti(*caso.condizioni, v);
    else
        v = giaNoti(*noti, *caso.condizioni, v);
    v.stato = primoStato(caso, v, oggi, giorniFerma);
    return v;
}

RigaCaso rigaDi(Caso caso, QDate oggi, int giorniFerma, ImportiNoti* noti)
{
    RigaCaso riga;
    riga.caso = std::move(caso);
    riga.valutazione = valutazioneDi(riga.caso, oggi, giorniFerma, noti);
    const Caso& c = riga.caso;
    riga.centesimiKg = inCentesimi(c.peso).value_or(0);
    riga.cercabile = QStringList{nomeGiacenza(c.chiave), nomeLdv(c.ldv), c.cliente,
                                 c.ragioneSociale,       c.destinatario, c.riferimento}
                         .join(u'\n')
                         .toCaseFolded();
    return riga;
}

QStringList paroleFiltro(const QString& filtro)
{
    return filtro.toCaseFolded().split(u' ', Qt::SkipEmptyParts);
}

bool passa(const RigaCaso& riga, const QStringList& parole)
{
    return std::all_of(parole.begin(), parole.end(),
                       [&](const QString& parola) { return riga.cercabile.contains(parola); });
}

void aggiungi(Totali& totali, const RigaCaso& riga)
{
    ++totali.casi;
    totali.colli += riga.caso.colli;
    totali.centesimiKg += riga.centesimiKg;
    if (riga.valutazione.centesimi)
        totali.centesimi += *riga.valutazione.centesimi;
    else
        ++totali.senzaImporto;
}

std::optional<qint64> inCentesimi(const QString& decimale)
{
    if (!eNumero(decimale))
        return std::nullopt;
    bool intero = false;
    const qint64 centesimi =
        arrotonda(decimale, 2, Arrotondamento::lontanoDaZero).remove(u'.').toLongLong(&intero);
    return intero ? std::optional(centesimi) : std::nullopt;
}

QString daCentesimi(qint64 centesimi)
{
    const QString cifre = QString::number(std::abs(centesimi)).rightJustified(3, u'0');
    return (centesimi < 0 ? u"-"_s : QString()) + cifre.chopped(2) + u'.' + cifre.right(2);
}

} // namespace giacenza::desk
