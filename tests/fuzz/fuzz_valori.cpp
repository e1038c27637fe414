// Dates, numbers, codes and what goes into statements.

#include "fuzz/fuzz.h"

#include "data/codiceldv.h"
#include "database/sql.h"

using namespace giacenza;
using namespace giacenza::fuzz;
using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype lunghi = 200;

void date(const QString& testo)
{
    const auto giorno = leggiData(testo);
    if (!giorno)
        return;
    vale(giorno->isValid(), "a date that is read is a day");
    vale(leggiData(dataBreve(*giorno)) == giorno, "dd/mm/yyyy is read back");
    vale(leggiData(dataSql(*giorno)) == giorno, "yyyy-mm-dd is read back");
    vale(sql::data(*giorno) == dataSql(*giorno), "it is what goes into a statement");
}

void unNumero(const QString& testo, int cifre)
{
    const bool numero = eNumero(testo);
    try {
        const QString letto = Decimale(testo).testo();
        vale(numero, "only a number makes a decimal");
        vale(eNumero(letto) && confronta(letto, testo) == 0, "a decimal keeps its value");
        const QString tondo = arrotonda(testo, cifre % 10, Arrotondamento::alPari);
        vale(arrotonda(tondo, cifre % 10, Arrotondamento::lontanoDaZero) == tondo, "round stays round");
        QString mostrato = testo;
        vale(confronta(FormattaNumero(mostrato), mostrato) == 0, "what is shown is what is written");
        valuta(testo);
    } catch (const ErroreConversione&) {
        vale(!numero, "a number makes a decimal");
    }
    try {
        intero16(testo);
    } catch (const ErroreConversione&) {
        return;
    }
    vale(numero, "only a number makes an integer");
}

void dueNumeri(const QString& uno, const QString& altro)
{
    if (!eNumero(uno) || !eNumero(altro))
        return;
    vale(somma(uno, altro) == somma(altro, uno), "a sum has no order");
    vale(prodotto(uno, altro) == prodotto(altro, uno), "a product has no order");
    vale(confronta(uno, altro) == (0 <=> confronta(altro, uno)), "one order alone");
    const QString opposto = prodotto(altro, u"-1"_s);
    vale(confronta(somma(somma(uno, altro), opposto), uno) == 0, "what is added can be taken away");
}

void inIstruzione(const QString& testo)
{
    using Funzione = QString (*)(const QString&);
    for (const Funzione funzione : {Funzione(sql::testo), Funzione(sql::cifre), Funzione(sql::numero)}) {
        try {
            vale(funzione(testo) == testo, "it goes in unchanged");
        } catch (const ErroreDatabase&) {
            continue;
        }
        QString senza = testo;
        vale(!senza.remove(u"''"_s).contains(u'\''), "nothing leaves its place");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* byte, std::size_t quanti)
{
    Pezzi pezzi(byte, quanti);
    const int cifre = pezzi.numero();
    const QString uno = pezzi.testo().left(lunghi);
    const QString altro = pezzi.testo().left(lunghi);
    date(uno);
    unNumero(uno, cifre);
    dueNumeri(uno, altro);
    inIstruzione(uno);
    vale(conRitorniACapo(conRitorniACapo(uno)) == conRitorniACapo(uno), "line ends are made once");
    RaddoppiaApice(uno);
    leggiCodiceLdv(uno);
    const QString codice = codiceLdv(uno, altro, u"2026"_s);
    if (codice.isEmpty())
        return 0;
    const auto letta = leggiCodiceLdv(codice);
    vale(letta && letta->filiale == uno && letta->numero == altro && letta->anno == 2026,
         "a barcode names its waybill");
    return 0;
}
