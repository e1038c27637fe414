#include "benchmarks/quadro/temi.h"

#include "data/istruzioniricerca.h"
#include "database/transazione.h"
#include "database/valori.h"

using namespace Qt::StringLiterals;
using namespace giacenza;

namespace banco {

namespace {

/// A page of the search.
constexpr int righePagina = 256;

/// One customer's waybills of one branch, one in ten of them held.
void riempi(Connessione& connessione, qint64 righe)
{
    constexpr qint64 blocco = 1000;
    constexpr int giorniAnno = 365;
    const QDate primo(2025, 1, 1);
    Transazione transazione(connessione);
    for (qint64 da = 1; da <= righe; da += blocco) {
        QStringList lettere;
        QStringList giacenze;
        for (qint64 numero = da; numero < std::min(da + blocco, righe + 1); ++numero) {
            const QString data = dataSql(primo.addDays(numero % giorniAnno));
            lettere += u"('MI','%1',2025,'%2',1001,'Ferramenta delle Rose %1','ORD-%1','%2','%3')"_s.arg(
                QString::number(numero), data, numero % 3 == 0 ? u"1"_s : u"0"_s);
            if (numero % 10 == 0)
                giacenze += u"('MI','%1',2025,1001,'%1',2025,'%2')"_s.arg(QString::number(numero), data);
        }
        connessione.esegui(u"insert into letve00f (lefili, lenrlv, leanlv, ledtlv, lecodi, ledest, lerife, "
                           "lerifd, leflbc) values "_s +
                           lettere.join(u','));
        if (!giacenze.isEmpty())
            connessione.esegui(u"insert into giace00f (GIFILI, GINRLV, GIANLV, GICODI, GINRGI, GIANGI, "
                               "GIDTGI) values "_s +
                               giacenze.join(u','));
    }
    transazione.conferma();
}

QString istruzione(ModoRicerca modo)
{
    DatiRicerca dati;
    dati.cliente = u"1001"_s;
    dati.filiale = u"MI"_s;
    return istruzioni::ricercaApertura(modo, dati);
}

/// What is measured on one database. Where the list asks MariaDB for one page, so does the plain program.
struct Voce
{
    QString nome;
    QString programma;
    ModoRicerca modo;
    bool tutto; ///< scrolled down to the last row
    qint64 pagine;
    Obiettivo obiettivo = {};
};

Confronto confronto(const Voce& voce, const QString& tipo, const QString& stringa, qint64 righe)
{
    const qint64 lette = voce.tutto ? righe : std::min(righe, voce.pagine * righePagina);
    const qint64 limite = tipo == u"mariadb"_s && lette == righePagina ? righePagina + 1 : 0;
    const QStringList argomenti{istruzione(voce.modo), QString::number(lette)};
    return {voce.nome,
            tipo,
            righe,
            {voce.programma, argomenti + QStringList{QString::number(static_cast<int>(voce.modo))}, stringa},
            {u"riferimento-griglia"_s, argomenti + QStringList{QString::number(limite)}, stringa},
            voce.obiettivo};
}

std::vector<Confronto> confronti(const std::vector<Voce>& voci, const Basi& basi, const Opzioni& opzioni)
{
    std::vector<Confronto> elenco;
    for (const QString& tipo : opzioni.basi)
        for (const qint64 righe : opzioni.misure({10'000, 1'000'000})) {
            const QString stringa = basi.stringa(tipo, u"griglia_%1"_s.arg(righe),
                                                 [righe](Connessione& nuova) { riempi(nuova, righe); });
            for (const Voce& voce : voci)
                elenco.push_back(confronto(voce, tipo, stringa, righe));
        }
    return elenco;
}

} // namespace

std::vector<Tema> temiGriglia()
{
    const auto tema = [](const QString& nome, const std::vector<Voce>& voci) {
        return Tema{nome, [voci](const Basi& basi, const Opzioni& opzioni) {
                        return confronti(voci, basi, opzioni);
                    }};
    };
    constexpr auto perNumero = ModoRicerca::letteraVettura;
    constexpr auto perRiferimento = ModoRicerca::riferimento;
    constexpr Obiettivo primaPagina{.rapporto = 1.2, .picco = 40};
    constexpr Obiettivo tutte{.rapporto = 1.3};
    const QString modello = u"misura-griglia"_s;
    return {
        tema(u"grid"_s, {{u"grid"_s, modello, perNumero, false, 1, primaPagina},
                         {u"grid_by_reference"_s, modello, perRiferimento, false, 1, primaPagina},
                         // The whole dialog, until it is painted: what the operator waits for.
                         {u"grid_dialog"_s, u"misura-finestra"_s, perNumero, false, 1},
                         {u"grid_second_page"_s, modello, perNumero, false, 2}}),
        tema(u"grid_all"_s, {{u"grid_all"_s, modello, perNumero, true, 0, tutte}}),
    };
}

} // namespace banco
