#include "desk/avvisi/emittentecaso.h"

#include "base/orologio.h"
#include "base/spiegazioni.h"
#include "base/testoerrore.h"
#include "data/avviso.h"
#include "reports/letters/stampamodulo.h"

using namespace Qt::StringLiterals;

namespace giacenza::desk {

namespace {

const QString avvisataOggi = u"avvisata oggi"_s;

/// The connection is gone, or was not had, or waited for too long.
bool eDiConnessione(const ErroreDatabase& errore)
{
    return errore.sqlstate().startsWith(u"08"_s) || errore.sqlstate().startsWith(u"HYT"_s);
}

/// The failure at hand, in few words for the operator.
EsitoCaso rifiutato()
{
    try {
        throw;
    } catch (const ErroreDatabase& errore) {
        const QString motivo = inUnaRiga(spiega(errore));
        if (forseScritto(errore))
            return {
                Esito::ignoto, u"non si sa se l'avviso è contato: "_s + motivo, {}, eDiConnessione(errore)};
        return {Esito::rifiutato, motivo, {}, eDiConnessione(errore)};
    } catch (const Errore& errore) {
        return {Esito::rifiutato, inUnaRiga(spiega(errore))};
    } catch (...) {
        return {Esito::rifiutato, inUnaRiga(testoErrore())};
    }
}

} // namespace

std::optional<QString> lasciatoFuori(const Caso& caso, Lavoro lavoro, QDate oggi)
{
    if (lavoro == Lavoro::ristampa)
        return std::nullopt;
    if (!caso.avvisi.isEmpty() && caso.ultimoAvviso.isValid() && caso.ultimoAvviso >= oggi)
        return caso.ultimoAvviso == oggi ? avvisataOggi : u"l'ultimo avviso porta una data futura"_s;
    return std::nullopt;
}

Connessione& EmittenteCaso::connessione()
{
    if (mConnessione.aperta() && !mConnessione.viva())
        mConnessione.chiudi();
    mConnessione.apri(mAccesso);
    return mConnessione;
}

EsitoCaso EmittenteCaso::contaOra(const Caso& caso)
{
    const QDate giorno = oggi();
    if (const auto chiusa = LeggiDataBuonFine(mAccesso, caso.chiave))
        return {Esito::rifiutato, u"chiusa il %1"_s.arg(dataBreve(*chiusa))};
    Recordset ora;
    ora.apri(connessione(), istruzioni::statoAvviso(caso.chiave));
    if (ora.eof())
        return {Esito::rifiutato, u"la giacenza non c'è più"_s};
    Caso adesso = caso;
    adesso.avvisi = ora.valore(0).value_or(QString());
    adesso.ultimoAvviso = leggiGiorno(ora.valore(1).value_or(QString())).value_or(QDate());
    ora.chiudi();
    if (const auto perche = lasciatoFuori(adesso, Lavoro::avviso, giorno))
        return {Esito::lasciato, *perche};
    // Named by its waybill, so that the statement leaves the description alone.
    const auto numero = contaAvviso(connessione(), mAccesso, caso.ldv, giorno);
    if (!numero)
        return {Esito::lasciato, avvisataOggi};
    return {Esito::fatto, u"avviso n. %1"_s.arg(*numero)};
}

EsitoCaso EmittenteCaso::conta(const Caso& caso)
{
    try {
        return contaOra(caso);
    } catch (...) {
        return rifiutato();
    }
}

/// The module reads the archive by itself, and does not say when it cannot be reached.
EsitoCaso EmittenteCaso::raggiungi(const EsitoCaso& esito)
{
    try {
        connessione();
        return esito;
    } catch (...) {
        return rifiutato();
    }
}

EsitoCaso EmittenteCaso::svolgi(Lavoro lavoro, const Caso& caso, QWidget* padre)
{
    EsitoCaso esito{Esito::fatto, u"ristampato"_s};
    std::array<QString, 4> didascalie;
    try {
        didascalie = leggiDidascalie();
    } catch (...) {
        return rifiutato();
    }
    if (lavoro == Lavoro::avviso)
        esito = conta(caso);
    else
        esito = raggiungi(esito);
    if (esito.esito != Esito::fatto)
        return esito;
    const QString chiave = caso.chiave.numero + u'_' + QString::number(caso.chiave.anno);
    const EsitoStampa stampa = stampaConModulo(padre, TipoDocumento::avviso, chiave, didascalie);
    esito.file = stampa.file;
    if (stampa.prodotto)
        return esito;
    const QString motivo = inUnaRiga(stampa.motivo);
    if (lavoro == Lavoro::ristampa)
        return {Esito::rifiutato, motivo, stampa.file};
    return {Esito::incompleto, u"%1, non stampato: %2"_s.arg(esito.parole, motivo), stampa.file};
}

} // namespace giacenza::desk
