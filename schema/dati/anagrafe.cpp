#include "schema/dati/anagrafe.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza::dimostrazione {

namespace {

Condizioni nuoveCondizioni(int cliente)
{
    Caso caso(Caso::condizioni, cliente);
    Condizioni condizioni;
    condizioni.fisso = caso.tra(0, 20) * 5000;
    condizioni.franchi = caso.tra(2, 10);
    // A third of the contracts charge fractions of a cent for each day.
    condizioni.giornaliero = caso.percento(33) ? caso.tra(300, 2500) * 10 : caso.tra(1, 12) * 2500;
    condizioni.minimo = caso.tra(2, 30) * 5000;
    return condizioni;
}

QString sedeSociale(const Comune& comune, Caso& caso)
{
    return comune.cap == comuneFiliale(comune.filiale).cap ? indirizzo(caso)
                                                           : indirizzo(caso) + u" - zona ind."_s;
}

} // namespace

Costi costi(const Condizioni& condizioni, int giorni)
{
    constexpr qint64 perCentesimo = 100;
    Costi costi;
    costi.fisso = condizioni.fisso / perCentesimo;
    const int daAddebitare = giorni - condizioni.franchi;
    if (daAddebitare <= 0)
        return costi;
    const qint64 esatto = condizioni.giornaliero * daAddebitare;
    const qint64 resto = esatto % perCentesimo;
    costi.importo = esatto / perCentesimo;
    if (resto > perCentesimo / 2 || (resto == perCentesimo / 2 && costi.importo % 2 != 0))
        ++costi.importo;
    costi.importo = std::max(costi.importo, condizioni.minimo / perCentesimo);
    return costi;
}

std::vector<Cliente> clienti(int spedizioni)
{
    constexpr int primoCodice = 1001;
    const int quanti = std::clamp(spedizioni / 30, 40, massimoMittenti);
    std::vector<Cliente> elenco;
    elenco.reserve(static_cast<std::size_t>(quanti));
    for (int i = 0; i < quanti; ++i) {
        Caso caso(Caso::cliente, i);
        Cliente cliente;
        cliente.codice = primoCodice + i;
        cliente.ragione = ragioneMittente(i, caso);
        cliente.comune = &caso.uno(comuni());
        cliente.filiale = cliente.comune->filiale;
        cliente.indirizzo = sedeSociale(*cliente.comune, caso);
        cliente.iva = partitaIva(100'000 + i * 617, 1 + i % 100);
        cliente.mpe = QString::number(caso.tra(1, 3));
        if (!caso.percento(4))
            cliente.condizioni = nuoveCondizioni(i);
        elenco.push_back(cliente);
    }
    return elenco;
}

QString codiceFiliale(int filiale)
{
    return u"%1"_s.arg(filiale + 1, 2, 10, QChar(u'0'));
}

QString codiceZona(int filiale, bool citta)
{
    return codiceFiliale(filiale) + (citta ? u'C' : u'P');
}

QString codiceVettore(int filiale, bool secondo)
{
    return QString::number(100 + 2 * filiale + (secondo ? 1 : 0));
}

std::vector<Riga> righeFiliali()
{
    std::vector<Riga> righe;
    for (int i = 0; i < numeroFiliali; ++i) {
        const Comune& comune = comuneFiliale(i);
        Caso caso(Caso::fornitore, 1000 + i);
        righe.push_back({codiceFiliale(i), frase({u"Filiale di", comune.nome}), indirizzo(caso),
                         comune.nome.toString(), comune.provincia.toString()});
    }
    return righe;
}

std::vector<Riga> righeZone()
{
    std::vector<Riga> righe;
    for (int i = 0; i < numeroFiliali; ++i) {
        const Comune& comune = comuneFiliale(i);
        righe.push_back({codiceZona(i, true), frase({comune.nome, u"città"})});
        righe.push_back({codiceZona(i, false), frase({comune.nome, u"e dintorni"})});
    }
    return righe;
}

std::vector<Riga> righePorto()
{
    return {{u"1"_s, u"Franco"_s},
            {u"2"_s, u"Assegnato"_s},
            {u"3"_s, u"Reso al mittente"_s},
            {u"4"_s, u"Franco con addebito"_s}};
}

std::vector<Riga> righeFornitori()
{
    std::vector<Riga> righe;
    for (int i = 0; i < numeroVettori; ++i) {
        Caso caso(Caso::fornitore, i);
        const Comune& comune = comuneFiliale(i / 2);
        righe.push_back({codiceVettore(i / 2, i % 2 != 0), ragioneVettore(i), indirizzo(caso),
                         comune.nome.toString(), comune.provincia.toString(),
                         partitaIva(5'000'000 + i * 911, 1 + i)});
    }
    return righe;
}

std::vector<Riga> righeClienti(const std::vector<Cliente>& clienti)
{
    std::vector<Riga> righe;
    righe.reserve(clienti.size());
    for (const Cliente& c : clienti) {
        righe.push_back({QString::number(c.codice), c.ragione, c.indirizzo, c.comune->nome.toString(),
                         c.comune->provincia.toString(), c.comune->cap.toString(), c.iva});
    }
    return righe;
}

std::vector<Riga> righeFatturazione(const std::vector<Cliente>& clienti)
{
    std::vector<Riga> righe;
    for (const Cliente& c : clienti) {
        if (!c.condizioni)
            continue;
        righe.push_back({u"C"_s, QString::number(c.codice), c.mpe, u"22"_s,
                         testoDecimale(c.condizioni->fisso, 4), QString::number(c.condizioni->franchi),
                         testoDecimale(c.condizioni->giornaliero, 4),
                         testoDecimale(c.condizioni->minimo, 4)});
    }
    return righe;
}

} // namespace giacenza::dimostrazione
