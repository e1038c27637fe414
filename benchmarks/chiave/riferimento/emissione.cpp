// The issue of a waybill, as the re-delivery screen and its issuer do it.

#include "benchmarks/chiave/giorno.h"
#include "benchmarks/chiave/riferimento/operazioni.h"
#include "benchmarks/quadro/residente.h"

#include <stdexcept>

namespace nudo {

namespace {

/// A waybill's columns, from 1; names only of those that are copied.
enum Colonna
{
    nota = 24,
    giacenza = 27,
    annoGiacenza = 28,
    ultima = 29,
    chiusura = 42, // behind the waybill's, in the join
};

struct Copiata
{
    int colonna;
    const char* nome;
};

constexpr Copiata prima[] = {{5, "lecodi"},  {6, "lecmpe"},  {13, "lecdve"}, {14, "lelin1"}, {15, "lenatu"},
                             {16, "lerife"}, {17, "lerifd"}, {19, "lecoll"}, {20, "lepeso"}, {21, "levolu"},
                             {25, "levame"}, {27, "LERFGI"}, {28, "LEANGI"}, {7, "ledest"},  {8, "leindd"},
                             {9, "lecapd"},  {10, "lelocd"}, {11, "leprod"}};
constexpr Copiata dopo[] = {{22, "lecnss"}, {23, "leanpc"}};

/// An insert that grows.
class Inserimento
{
public:
    void metti(const char* nome, const std::string& valore)
    {
        mNomi += (mNomi.empty() ? "" : ", ") + std::string(nome);
        mSegni += mSegni.empty() ? "?" : ", ?";
        mValori.push_back(valore);
    }
    void copia(const Copiata& copiata, const Riga& originale)
    {
        if (const Valore& valore = originale[static_cast<std::size_t>(copiata.colonna - 1)])
            metti(copiata.nome, *valore);
    }
    void esegui(Base& base) const
    {
        base.inserisci("insert into letve00f (" + mNomi + ") values (" + mSegni + ")", mValori);
    }

private:
    std::string mNomi;
    std::string mSegni;
    std::vector<std::string> mValori;
};

void conta(Base& base, const Parti& parti)
{
    const auto righe = base.leggi(
        testo("SELECT letve00f.*, giace00f.* from letve00f INNER JOIN giace00f ON lerfgi=ginrgi and "
              "leangi=giangi WHERE ginrgi='%s' and giangi=%s;",
              parti[5].c_str(), parti[6].c_str()),
        {chiusura});
    if (righe.size() != 1 || righe[0][0])
        throw std::runtime_error("the held shipment " + parti[5] + " cannot be issued");
}

std::string numeroNuovo(Base& base, bool conColonna)
{
    const char* domanda =
        !mariadb()   ? "select coalesce(max(cast(lenrlv as unsigned)),0) from letve00f where leanlv=? and "
                       "lenrlv not glob '*[^0-9]*' and length(lenrlv) between 1 and 18"
        : conColonna ? "select coalesce(max(lenrlv_numero),0) from letve00f where leanlv=?"
                     : "select coalesce(max(cast(lenrlv as unsigned)),0) from letve00f where leanlv=? and "
                       "lenrlv regexp '^[0-9]{1,18}$'";
    const auto massimo = base.leggi(domanda, {1}, {std::to_string(banco::annoMisure)});
    return std::to_string(std::atoll(massimo[0][0].value_or("0").c_str()) + 1);
}

void aggiungi(Base& base, const Riga& originale, const std::string& numero, const Parti& parti)
{
    base.descrivi("select * from letve00f");
    const auto valore = [&](int colonna) {
        return originale[static_cast<std::size_t>(colonna - 1)].value_or("");
    };
    Inserimento nuova;
    nuova.metti("lefili", parti[0]);
    nuova.metti("lenrlv", numero);
    nuova.metti("leanlv", std::to_string(banco::annoMisure));
    nuova.metti("ledtlv", banco::giornoMisure);
    for (const Copiata& copiata : prima)
        nuova.copia(copiata, originale);
    nuova.metti("lerico", "R");
    nuova.metti("leport", "1");
    for (const Copiata& copiata : dopo)
        nuova.copia(copiata, originale);
    std::string note = "Riconsegna a Destinatario, giacenza " + valore(giacenza) + "/" +
                       valore(annoGiacenza) + ", LDV originale " + parti[1];
    if (!valore(nota).empty())
        note += "\r\n" + valore(nota);
    nuova.metti("lenote", note);
    nuova.esegui(base);
}

/// On a connection of its own.
void emetti(const Riga& originale, const Parti& parti)
{
    Base base;
    base.apri();
    const bool conColonna =
        mariadb() &&
        !base.leggi("select 1 from information_schema.columns where table_schema=database() and "
                    "table_name='letve00f' and column_name='lenrlv_numero' and is_generated='ALWAYS'",
                    {1})
             .empty();
    base.inizia();
    base.esegui("update ekelvorqzt_tabge00f set UltimoNumGiacenza=UltimoNumGiacenza");
    conta(base, parti);
    aggiungi(base, originale, numeroNuovo(base, conColonna), parti);
    base.conferma();
    base.chiudi();
}

} // namespace

double emissione(Base& schermo, const Parti& parti)
{
    std::vector<int> tutte;
    for (int colonna = 1; colonna <= ultima; ++colonna)
        tutte.push_back(colonna);
    const banco::Cronometro primaDelPorto;
    const auto originale =
        schermo.leggi(testo("select * from letve00f where Lefili='%s' and Lenrlv='%s' and Leanlv='%s';",
                            parti[0].c_str(), parti[1].c_str(), parti[2].c_str()),
                      tutte);
    double millisecondi = primaDelPorto.millisecondi();
    Base porto;
    porto.apri();
    porto.leggi("select * from porto order by idPorto", {1, 2});
    porto.chiudi();
    banco::raffredda(); // as ours, behind its dialog
    const banco::Cronometro dopoIlPorto;
    conta(schermo, parti);
    emetti(originale.at(0), parti);
    schermo.chiudi();
    millisecondi += dopoIlPorto.millisecondi();
    return millisecondi;
}

} // namespace nudo
