#include "schema/dati/riempimento.h"

#include "database/transazione.h"
#include "schema/dati/righe.h"
#include "schema/dati/scrittore.h"

namespace giacenza::dimostrazione {

namespace {

/// MariaDB confirms a transaction before each "create table" and cannot take one back: what was made for a
/// filling that then failed is taken away here.
class TabelleNuove
{
public:
    explicit TabelleNuove(Connessione& connessione) : mConnessione(connessione) {}
    TabelleNuove(const TabelleNuove&) = delete;
    TabelleNuove& operator=(const TabelleNuove&) = delete;
    ~TabelleNuove()
    {
        if (mDaTogliere)
            togliTabelle(mConnessione);
    }

    void crea()
    {
        mDaTogliere = mConnessione.dialetto() == Dialetto::mariadb;
        creaTabelle(mConnessione);
    }
    void conferma() { mDaTogliere = false; }

private:
    Connessione& mConnessione;
    bool mDaTogliere = false;
};

void scrivi(Connessione& connessione, const Tabella& tabella, const std::vector<Riga>& righe)
{
    Scrittore scrittore(connessione, tabella);
    for (const Riga& riga : righe)
        scrittore.aggiungi(riga);
    scrittore.finisci();
}

/// quante: rows of the table; riga: gives the row of a position.
template<class Fonte>
void scriviMolte(Connessione& connessione, const Tabella& tabella, qsizetype quante, Fonte riga,
                 const std::function<void(qsizetype)>& fatte)
{
    constexpr qsizetype ogniTanto = 5000;
    Scrittore scrittore(connessione, tabella);
    for (qsizetype i = 0; i < quante; ++i) {
        scrittore.aggiungi(riga(static_cast<int>(i)));
        if ((i + 1) % ogniTanto == 0)
            fatte(i + 1);
    }
    scrittore.finisci();
}

Riepilogo scriviTutto(Connessione& connessione, const Richiesta& richiesta, const Avanzamento& avanzamento)
{
    const std::vector<Cliente> elenco = clienti(richiesta.spedizioni);
    const Cronologia storia = cronologia(richiesta.spedizioni, richiesta.oggi, [&](int spedizione) {
        const auto& condizioni = mittenteDi(elenco, spedizione).condizioni;
        return condizioni ? std::optional(condizioni->franchi) : std::nullopt;
    });
    const Righe righe(storia, elenco);
    scrivi(connessione, tabellaFiliali(), righeFiliali());
    scrivi(connessione, tabellaZone(), righeZone());
    scrivi(connessione, tabellaPorto(), righePorto());
    scrivi(connessione, tabellaFornitori(), righeFornitori());
    scrivi(connessione, tabellaClienti(), righeClienti(elenco));
    scrivi(connessione, tabellaFatturazione(), righeFatturazione(elenco));
    scrivi(connessione, tabellaImpostazioni(), {righe.impostazioni()});
    const auto spedizioni = std::ssize(storia.spedizioni);
    const auto giacenze = std::ssize(storia.giacenze);
    qsizetype prima = 0;
    const auto avanza = [&](qsizetype fatte) {
        if (avanzamento)
            avanzamento(prima + fatte, spedizioni + giacenze);
    };
    scriviMolte(
        connessione, tabellaSpedizioni(), spedizioni, [&](int i) { return righe.spedizione(i); }, avanza);
    prima = spedizioni;
    scriviMolte(
        connessione, tabellaGiacenze(), giacenze, [&](int i) { return righe.giacenza(i); }, avanza);
    avanza(giacenze);
    return {spedizioni, giacenze, std::ssize(elenco)};
}

} // namespace

Riepilogo riempi(Connessione& connessione, const Richiesta& richiesta, const Avanzamento& avanzamento)
{
    // SQLite makes tables within the transaction, and indexes behind the rows.
    const bool creaDentro = richiesta.crea && connessione.dialetto() == Dialetto::sqlite;
    if (richiesta.crea)
        pretendiSenzaTabelle(connessione);
    else
        pretendiTabelleVuote(connessione);
    TabelleNuove tabelle(connessione);
    if (richiesta.crea && !creaDentro)
        tabelle.crea();
    Transazione transazione(connessione);
    if (creaDentro)
        tabelle.crea();
    const Riepilogo riepilogo = scriviTutto(connessione, richiesta, avanzamento);
    if (creaDentro)
        creaIndici(connessione);
    transazione.conferma();
    tabelle.conferma();
    aggiornaStatistiche(connessione);
    if (creaDentro)
        attivaGiornale(connessione);
    return riepilogo;
}

} // namespace giacenza::dimostrazione
