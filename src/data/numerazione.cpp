#include "data/numerazione.h"

#include "data/istruzioni.h"
#include "database/recordset.h"

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

/// A whole number, with decimals only if all are zero: drivers give a decimal column as "41.0".
QString numeroDopo(const Valore& ultimo)
{
    const QString istruzione = istruzioni::ultimoNumGiacenza();
    if (!ultimo) {
        throw ErroreDatabase(u"22002"_s, 0, u"Il contatore delle giacenze è nullo."_s, istruzione);
    }
    const QString testo = eNumero(*ultimo) ? arrotonda(*ultimo, 0, Arrotondamento::alPari) : QString();
    if (testo.isEmpty() || confronta(testo, *ultimo) != 0) {
        throw ErroreDatabase(u"22018"_s, 0,
                             u"Il contatore delle giacenze non è un numero intero: \"%1\"."_s.arg(*ultimo),
                             istruzione);
    }
    const QString prossimo = somma(testo, u"1"_s);
    bool entra = false;
    prossimo.toLongLong(&entra);
    if (!entra) {
        throw ErroreDatabase(u"22003"_s, 0,
                             u"Il contatore delle giacenze è troppo grande: \"%1\"."_s.arg(*ultimo),
                             istruzione);
    }
    return prossimo;
}

} // namespace

QString ProssimoNumGiacenza(Connessione& connessione)
{
    Recordset contatore;
    contatore.apri(connessione, istruzioni::ultimoNumGiacenza());
    const QString numero = numeroDopo(contatore.valore(0));
    connessione.esegui(istruzioni::aggiornaUltimoNumGiacenza(numero));
    contatore.chiudi();
    return numero;
}

} // namespace giacenza
