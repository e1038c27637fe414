#include "desk/finestra/colonnecasi.h"

#include "database/valori.h"

#include <QLocale>

#include <limits>

using namespace Qt::StringLiterals;

namespace giacenza::desk {

namespace {

using R = const RigaCaso&;

constexpr Qt::Alignment aDestra = Qt::AlignRight | Qt::AlignVCenter;
constexpr Qt::Alignment aSinistra = Qt::AlignLeft | Qt::AlignVCenter;

bool testoPrima(const QString& uno, const QString& altro)
{
    return QString::compare(uno, altro, Qt::CaseInsensitive) < 0;
}

/// Numbers by their value, and before what is none.
bool numeroPrima(const QString& uno, const QString& altro)
{
    bool primo = false;
    bool secondo = false;
    const qlonglong a = uno.toLongLong(&primo);
    const qlonglong b = altro.toLongLong(&secondo);
    if (primo && secondo)
        return a < b;
    return primo != secondo ? primo : testoPrima(uno, altro);
}

/// What is unknown comes last.
template<class Numero>
bool notoPrima(const std::optional<Numero>& uno, const std::optional<Numero>& altro)
{
    constexpr Numero ultimo = std::numeric_limits<Numero>::max();
    return uno.value_or(ultimo) < altro.value_or(ultimo);
}

template<class Numero>
QString scritto(const std::optional<Numero>& numero)
{
    return numero ? QString::number(*numero) : QString();
}

QString cliente(R riga)
{
    return riga.caso.ragioneSociale.isEmpty() ? riga.caso.cliente : riga.caso.ragioneSociale;
}

QString luogo(R riga)
{
    return (riga.caso.localita + u' ' + riga.caso.provincia).trimmed();
}

QString avvisi(R riga)
{
    const Caso& caso = riga.caso;
    if (caso.avvisi.isEmpty() || !caso.ultimoAvviso.isValid())
        return caso.avvisi;
    return u"%1 · %2"_s.arg(caso.avvisi, dataBreve(caso.ultimoAvviso));
}

QString importo(R riga)
{
    const Valutazione& v = riga.valutazione;
    return v.centesimi ? euro(*v.centesimi) : v.senzaImporto;
}

bool giacenzaPrima(R a, R b)
{
    const ChiaveGiacenza& una = a.caso.chiave;
    const ChiaveGiacenza& altra = b.caso.chiave;
    return una.anno != altra.anno ? una.anno < altra.anno : numeroPrima(una.numero, altra.numero);
}

bool ldvPrima(R a, R b)
{
    const ChiaveSpedizione& una = a.caso.ldv;
    const ChiaveSpedizione& altra = b.caso.ldv;
    return una.anno != altra.anno ? una.anno < altra.anno : numeroPrima(una.numero, altra.numero);
}

std::vector<ColonnaCasi> colonneDiChi()
{
    return {
        {u"Stato"_s, u"Che cosa c'è da fare"_s, u"da avvisare m"_s /* it is bold */, aSinistra,
         [](R r) { return parole(r.valutazione.stato); },
         [](R a, R b) { return a.valutazione.stato < b.valutazione.stato; }},
        {u"Giacenza"_s, u"Numero e anno della giacenza"_s, u"99999/2026"_s, aSinistra,
         [](R r) { return nomeGiacenza(r.caso.chiave); }, giacenzaPrima},
        {u"LDV"_s, u"Numero, anno e filiale della lettera di vettura"_s, u"99999/2026 MI"_s, aSinistra,
         [](R r) { return nomeLdv(r.caso.ldv); }, ldvPrima},
        {u"Cliente"_s, u"Chi ha spedito"_s, u"Ferramenta Lomb"_s, aSinistra, cliente,
         [](R a, R b) { return testoPrima(cliente(a), cliente(b)); }},
        {u"Destinatario"_s, u"A chi era diretta"_s, u"Utensileria del La"_s, aSinistra,
         [](R r) { return r.caso.destinatario; },
         [](R a, R b) { return testoPrima(a.caso.destinatario, b.caso.destinatario); }},
        {u"Località"_s, u"Località e provincia del destinatario"_s, u"Sesto S. G. MI"_s, aSinistra, luogo,
         [](R a, R b) { return testoPrima(luogo(a), luogo(b)); }},
    };
}

std::vector<ColonnaCasi> colonneDiQuanto()
{
    return {
        {u"Dal"_s, u"In giacenza dal giorno"_s, u"00/00/0000"_s, aSinistra,
         [](R r) { return dataBreve(r.caso.dal); }, [](R a, R b) { return a.caso.dal < b.caso.dal; }},
        {u"Giorni"_s, u"Giorni di sosta fino a oggi"_s, u"Giorni"_s, aDestra,
         [](R r) { return scritto(r.valutazione.giorni); },
         [](R a, R b) { return notoPrima(a.valutazione.giorni, b.valutazione.giorni); }},
        {u"Franchi"_s, u"Giorni franchi che restano; sotto zero, quelli già in addebito"_s, u"Franchi"_s,
         aDestra, [](R r) { return scritto(r.valutazione.franchi); },
         [](R a, R b) { return notoPrima(a.valutazione.franchi, b.valutazione.franchi); }},
        {u"Euro oggi"_s, u"Quanto costerebbe chiudendo oggi: quota fissa e sosta"_s, u"senza condizioni"_s,
         aDestra, importo,
         [](R a, R b) { return notoPrima(a.valutazione.centesimi, b.valutazione.centesimi); }},
        {u"Avvisi"_s, u"Quanti avvisi, e il giorno dell'ultimo"_s, u"2 · 00/00/0000"_s, aSinistra, avvisi,
         [](R a, R b) {
             return a.caso.avvisi != b.caso.avvisi ? numeroPrima(a.caso.avvisi, b.caso.avvisi)
                                                   : a.caso.ultimoAvviso < b.caso.ultimoAvviso;
         }},
        {u"Ricons."_s, u"Riconsegne e resi già partiti"_s, u"Ricons."_s, aDestra,
         [](R r) { return r.caso.riconsegne == 0 ? QString() : QString::number(r.caso.riconsegne); },
         [](R a, R b) { return a.caso.riconsegne < b.caso.riconsegne; }},
        {u"Motivo"_s, u"Perché non è stata consegnata"_s, u"12/11/2026 - Chiuso per ferie"_s, aSinistra,
         [](R r) { return inUnaRiga(r.caso.motivo); },
         [](R a, R b) { return testoPrima(a.caso.motivo, b.caso.motivo); }},
        {u"Riferimento"_s, u"Riferimento del cliente"_s, u"ORD-0000000"_s, aSinistra,
         [](R r) { return r.caso.riferimento; },
         [](R a, R b) { return testoPrima(a.caso.riferimento, b.caso.riferimento); }},
    };
}

} // namespace

const std::vector<ColonnaCasi>& colonneCasi()
{
    static const std::vector<ColonnaCasi> tutte = [] {
        std::vector<ColonnaCasi> colonne = colonneDiChi();
        for (ColonnaCasi& colonna : colonneDiQuanto())
            colonne.push_back(std::move(colonna));
        return colonne;
    }();
    return tutte;
}

QString euro(qint64 centesimi)
{
    return valuta(daCentesimi(centesimi));
}

QString chili(qint64 centesimi)
{
    QString testo = conteggio(centesimi / 100);
    if (const auto resto = centesimi % 100)
        testo += u",%1"_s.arg(resto, 2, 10, QChar(u'0'));
    return testo + u" kg"_s;
}

QString conteggio(qint64 numero)
{
    return QLocale(QLocale::Italian, QLocale::Italy).toString(numero);
}

} // namespace giacenza::desk
