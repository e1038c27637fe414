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
    qint64 lette;
    double obiettivo = 0;
};

std::vector<Voce> voci(qint64 righe)
{
    constexpr double obiettivo = 1.3;
    constexpr auto perNumero = ModoRicerca::letteraVettura;
    constexpr auto perRiferimento = ModoRicerca::riferimento;
    return {
        {u"grid"_s, u"misura-griglia"_s, perNumero, righePagina, obiettivo},
        {u"grid-by-reference"_s, u"misura-griglia"_s, perRiferimento, righePagina, obiettivo},
        // The whole dialog, until it is painted: what the operator waits for.
        {u"grid-dialog"_s, u"misura-finestra"_s, perNumero, righePagina},
        {u"grid-second-page"_s, u"misura-griglia"_s, perNumero, 2 * righePagina},
        // Scrolled down to the last row.
        {u"grid-all"_s, u"misura-griglia"_s, perNumero, righe},
    };
}

} // namespace

std::vector<Confronto> temaGriglia(const Basi& basi, const Opzioni& opzioni)
{
    const std::vector<qint64> tutte{10'000, 1'000'000};
    std::vector<Confronto> confronti;
    for (const QString& tipo : opzioni.basi) {
        for (const qint64 righe : opzioni.righe.empty() ? tutte : opzioni.righe) {
            const QString stringa = basi.stringa(tipo, u"griglia_%1"_s.arg(righe),
                                                 [righe](Connessione& nuova) { riempi(nuova, righe); });
            for (const Voce& voce : voci(righe)) {
                const qint64 limite = tipo == u"mariadb"_s && voce.lette == righePagina ? righePagina + 1 : 0;
                const QStringList argomenti{istruzione(voce.modo), QString::number(voce.lette)};
                confronti.push_back(
                    {voce.nome,
                     tipo,
                     righe,
                     stringa,
                     {voce.programma, argomenti + QStringList{QString::number(static_cast<int>(voce.modo))}},
                     {u"riferimento-griglia"_s, argomenti + QStringList{QString::number(limite)}},
                     voce.obiettivo});
            }
        }
    }
    return confronti;
}

} // namespace banco
