#pragma once

#include "data/chiusura.h"

#include <QStringList>

#include <vector>

/// The charge sheet: what a case costs, day by day. Nothing here reads a database.
namespace giacenza::documenti {

/// A case as far as its charges go, as the database has it. Amounts in euro, exact decimals.
struct DatiConto
{
    ChiaveGiacenza caso;
    ChiaveSpedizione ldv; ///< the waybill that is held
    QString cliente = {}; ///< code
    QString ragioneSociale = {};
    QString destinatario = {};
    std::optional<QDate> dal = {};                  ///< put in storage
    std::optional<QDate> buonFine = {};             ///< closed; days count up to it
    std::optional<CondizioniSosta> condizioni = {}; ///< nothing: the customer has none
    Valore giorniScritti = {};                      ///< GIGGSO
    Valore sostaScritta = {};                       ///< GIIMGI
    Valore fissoScritto = {};                       ///< FissoGiacenza
    QString fattura = {};                           ///< GINRFA
    std::optional<QDate> dataFattura = {};
    QString precedente = {}; ///< the case that this one follows
    std::optional<QDate> dataPrecedente = {};
};

/// Why a day costs what it costs.
enum class GenereGiorno
{
    senzaAddebito, ///< a free day, or a tariff of nothing
    nelMinimo,     ///< the sum so far is the minimum
    aGiornata,     ///< the sum so far is days times tariff
};

/// "senza addebito", "nel minimo", "a giornata".
QString parole(GenereGiorno genere);

struct RigaConto
{
    QDate giorno;
    int giorni = 0; ///< of storage, that day included
    GenereGiorno genere = GenereGiorno::senzaAddebito;
    QString delGiorno; ///< what the day adds, two decimals and a point
    QString sosta;     ///< the sum up to the day, the same
};

/// As a closure writes them: two decimals and a point.
struct ImportiConto
{
    QString fisso;
    QString sosta;
    QString totale;
};

struct Conto
{
    DatiConto dati;
    QDate alla;     ///< the day asked for
    int giorni = 0; ///< of storage up to that day, or to the closure; negative before the case began
    std::vector<RigaConto> righe;
    std::optional<ImportiConto> importi; ///< nothing: they cannot be worked out, and mancante says why
    QString mancante;                    ///< for the operator; empty when importi is there
    QStringList avvertenze;              ///< for the operator, a sentence each
};

/// Works the charges out as the closure of a day would: each day is calcolaImporti()'s for the storage days
/// up to it.
Conto calcolaConto(const DatiConto& dati, QDate alla);

/// Rows of one kind and one charge for each day drawn together, so that a long storage stands on one page.
struct TrattoConto
{
    QDate da;
    QDate a;
    int giorni = 0;
    GenereGiorno genere = GenereGiorno::senzaAddebito;
    QString alGiorno; ///< what each day adds
    QString sosta;    ///< the sum up to the last of them
};
std::vector<TrattoConto> tratti(const std::vector<RigaConto>& righe);

/// The sum of the amounts that stand on the case; what is missing counts nothing. Nothing when neither is
/// there.
Valore totaleScritto(const DatiConto& dati);

/// An amount as the closure writes it: two decimals, halves away from zero. Throws ErroreConversione.
QString comeScritto(const QString& importo);

} // namespace giacenza::documenti
