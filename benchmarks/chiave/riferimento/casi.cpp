// Lookup, save, storage notice and closure.

#include "benchmarks/chiave/giorno.h"
#include "benchmarks/chiave/riferimento/operazioni.h"
#include "benchmarks/quadro/esito.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace nudo {

namespace {

/// The columns that the registration screen shows, from 1.
const std::vector<int> mostrate{1,  2,  4,  7,  8,  9,  10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22,
                                23, 24, 25, 31, 34, 35, 37, 40, 41, 42, 43, 45, 46, 47, 48, 49, 50, 51, 52};

double euro(const Valore& valore)
{
    return std::atof(valore.value_or("0").c_str());
}

} // namespace

double ricerca(Base& schermo, const Parti& parti)
{
    const banco::Cronometro cronometro;
    const std::vector<Riga> righe = schermo.leggi(
        testo(
            "SELECT letve00f.*, giace00f.*, forni.RagioneSociale as Vettore, filiali.Descrizione as filiale, "
            "codicizona.Descrizione as linea from (((letve00f LEFT JOIN giace00f on lefili=gifili and "
            "lenrlv=ginrlv and leanlv=gianlv) LEFT JOIN filiali ON lefili=filiali.codice) LEFT JOIN "
            "codicizona on lelin1=codicizona.Codice) LEFT join forni ON forni.Codice=lecdve WHERE "
            "lenrlv='%s' and ledtlv='%s' and lefili='%s';",
            parti[1].c_str(), parti[3].c_str(), parti[0].c_str()),
        mostrate);
    const double millisecondi = cronometro.millisecondi();
    if (righe.empty())
        throw std::runtime_error("the waybill " + parti[1] + " was not found");
    return millisecondi;
}

double salvataggio(Base& schermo, const Parti& parti)
{
    const banco::Cronometro cronometro;
    schermo.leggi(testo("select Lerico, lerfgi, leangi from letve00f where lenrlv='%s' and ledtlv='%s';",
                        parti[1].c_str(), parti[3].c_str()),
                  {1, 2, 3});
    Base nuova;
    nuova.apri();
    nuova.inizia();
    nuova.descrivi("select * from giace00f");
    const auto contatore = schermo.leggi("select UltimoNumGiacenza from ekelvorqzt_tabge00f;", {1});
    const std::string numero = std::to_string(std::atoll(contatore[0][0].value_or("0").c_str()) + 1);
    schermo.esegui(testo("update ekelvorqzt_tabge00f set UltimoNumGiacenza=%s;", numero.c_str()));
    const std::string anno = parti[7].substr(0, 4);
    const std::string breve = parti[7].substr(8) + "/" + parti[7].substr(5, 2) + "/" + anno;
    nuova.inserisci("insert into giace00f (GIFILI, GINRLV, GIANLV, GICODI, GIFIGI, GIGGSO, GIDES1, GIANGI, "
                    "GIDTGI, GINRGI) values (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
                    {parti[0], parti[1], parti[2], parti[4], parti[0], "0",
                     breve + " - Destinatario assente al secondo passaggio", anno, parti[7], numero});
    nuova.esegui(testo("update letve00f set LERFGI='%s', LEANGI='%s', LEDTCO=null where lenrlv='%s' and "
                       "leanlv='%s';",
                       numero.c_str(), anno.c_str(), parti[1].c_str(), parti[2].c_str()));
    nuova.conferma();
    nuova.chiudi();
    return cronometro.millisecondi();
}

double avviso(Base& schermo, const Parti& parti)
{
    const banco::Cronometro cronometro;
    Base nuova;
    nuova.apri();
    const auto stato = nuova.leggi(
        testo("select GINRAV, GIDTAV from giace00f where gifili='%s' and ginrlv='%s' and gianlv='%s';",
              parti[0].c_str(), parti[1].c_str(), parti[2].c_str()),
        {1, 2});
    nuova.chiudi();
    const int numero = std::atoi(stato[0][0].value_or("0").c_str()) + 1;
    schermo.esegui(
        testo("UPDATE giace00f SET GINRAV='%d', GIDTAV='%s' WHERE GIFILI='%s' AND GINRLV='%s' AND GIANLV=%s;",
              numero, banco::giornoMisure, parti[0].c_str(), parti[1].c_str(), parti[2].c_str()));
    return cronometro.millisecondi();
}

double chiusura(Base& schermo, const Parti& parti)
{
    const banco::Cronometro cronometro;
    Base nuova;
    nuova.apri();
    nuova.leggi(testo("select GIDTBF from giace00f WHERE GINRGI='%s' AND GIANGI=%s;", parti[5].c_str(),
                      parti[6].c_str()),
                {1});
    nuova.chiudi();
    schermo.esegui(testo("UPDATE giace00f SET GIDTBF='%s', GIGGSO=%s WHERE GINRGI='%s' AND GIANGI=%s;",
                         banco::giornoMisure, parti[8].c_str(), parti[5].c_str(), parti[6].c_str()));
    const auto condizioni = schermo.leggi(
        testo("SELECT tabfatturazione.* from (tabfatturazione inner JOIN letve00f  on facodi=lecodi and "
              "facmpe=lecmpe) where falcod='C' and lenrlv='%s' and leanlv='%s';",
              parti[1].c_str(), parti[2].c_str()),
        {5, 6, 7, 8});
    const Riga& c = condizioni.at(0);
    const double daPagare = std::atof(parti[8].c_str()) - euro(c[1]);
    constexpr double centesimi = 100;
    const double sosta =
        daPagare > 0 ? std::max(std::round(euro(c[2]) * daPagare * centesimi) / centesimi, euro(c[3])) : 0;
    schermo.esegui(testo("update Giace00f set  FissoGiacenza=%.2f, GIIMGI=%.2f where GIFILI='%s' and "
                         "GINRLV='%s' and gianlv=%s;",
                         euro(c[0]), sosta, parti[0].c_str(), parti[1].c_str(), parti[2].c_str()));
    schermo.chiudi();
    return cronometro.millisecondi();
}

} // namespace nudo
