#include "desk/dati/ricerca.h"

#include "data/istruzionidesk.h"
#include "database/sql.h"
#include "desk/dati/tentativi.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza::desk {

using istruzioni::ColonnaTrovata;

namespace {

Trovata leggiTrovata(const Recordset& riga, const QString& come)
{
    const auto testo = [&](ColonnaTrovata colonna) {
        return riga.valore(static_cast<int>(colonna)).value_or(QString());
    };
    const auto data = [&](ColonnaTrovata colonna) { return leggiGiorno(testo(colonna)).value_or(QDate()); };
    Trovata t;
    t.ldv = {testo(ColonnaTrovata::lefili), testo(ColonnaTrovata::lenrlv),
             testo(ColonnaTrovata::leanlv).toInt()};
    t.dataLdv = data(ColonnaTrovata::ledtlv);
    t.cliente = testo(ColonnaTrovata::lecodi);
    t.ragioneSociale = testo(ColonnaTrovata::ragioneSociale);
    t.destinatario = testo(ColonnaTrovata::ledest);
    t.localita = testo(ColonnaTrovata::lelocd);
    t.riferimento = testo(ColonnaTrovata::lerife);
    t.riconsegna = !testo(ColonnaTrovata::lerico).isEmpty();
    if (const QString numero = testo(ColonnaTrovata::ginrgi); !numero.isEmpty())
        t.caso = ChiaveGiacenza{numero, testo(ColonnaTrovata::giangi).toInt()};
    t.dal = data(ColonnaTrovata::gidtgi);
    t.buonFine = data(ColonnaTrovata::gidtbf);
    t.sua = testo(ColonnaTrovata::sua) == u"1"_s;
    t.come = come;
    return t;
}

/// What makes two of them one: the case, or else the waybill.
QString chi(const Trovata& t)
{
    return t.caso ? u"g "_s + nomeGiacenza(*t.caso) : u"l "_s + nomeLdv(t.ldv);
}

int posto(const Trovata& t)
{
    if (!t.caso)
        return 1;
    return t.buonFine.isValid() ? 2 : 0;
}

QDate giorno(const Trovata& t)
{
    return t.caso ? t.dal : t.dataLdv;
}

void ordina(std::vector<Trovata>& trovate)
{
    std::stable_sort(trovate.begin(), trovate.end(), [](const Trovata& a, const Trovata& b) {
        return posto(a) != posto(b) ? posto(a) < posto(b) : giorno(a) > giorno(b);
    });
}

} // namespace

EsitoRicerca cerca(Connessione& connessione, const QString& digitato)
{
    EsitoRicerca esito;
    esito.cercato = ripulito(digitato);
    for (const Tentativo& tentativo : tentativi(esito.cercato)) {
        esito.provati << tentativo.parole;
        Recordset riga;
        riga.apri(connessione, sql::conTesti(tentativo.istruzione, tentativo.parametri),
                  Recordset::Cursore::soloAvanti);
        for (; !riga.eof() && !esito.altre; riga.successivo()) {
            Trovata trovata = leggiTrovata(riga, tentativo.parole);
            const auto stessa = [&](const Trovata& altra) { return chi(altra) == chi(trovata); };
            if (std::any_of(esito.trovate.begin(), esito.trovate.end(), stessa))
                continue;
            if (esito.trovate.size() == trovateMassime)
                esito.altre = true;
            else
                esito.trovate.push_back(std::move(trovata));
        }
        if (tentativo.basta && !esito.trovate.empty())
            break;
    }
    ordina(esito.trovate);
    return esito;
}

QString senzaEsito(const EsitoRicerca& esito)
{
    if (esito.provati.empty())
        return u"Nessuna corrispondenza: ciò che è scritto ha %1 caratteri, e nessun numero ne ha più di %2."_s
            .arg(QString::number(esito.cercato.size()), QString::number(riferimentoMassimo));
    return u"Nessuna corrispondenza per %1. Cercato come: %2."_s.arg(esito.cercato,
                                                                     esito.provati.join(u", "_s));
}

} // namespace giacenza::desk
