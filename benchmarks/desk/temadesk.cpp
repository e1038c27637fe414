#include "benchmarks/quadro/temi.h"

#include "data/istruzionidesk.h"
#include "database/transazione.h"
#include "database/valori.h"

using namespace Qt::StringLiterals;
using namespace giacenza;

namespace banco {

namespace {

constexpr int unaApertaOgni = 50;
constexpr int clienti = 1000;
constexpr int primoCliente = 1001;
constexpr int primeRighe = 64;

/// The waybills that are held, and their cases: one in fifty is open.
void riempiBlocco(Connessione& connessione, qint64 da, qint64 fino)
{
    constexpr int giorniAnno = 365;
    const QDate primo(2025, 1, 1);
    QStringList lettere;
    QStringList giacenze;
    for (qint64 numero = da; numero < fino; ++numero) {
        const QString n = QString::number(numero);
        const QString data = dataSql(primo.addDays(numero % giorniAnno));
        const QString cliente = QString::number(primoCliente + numero % clienti);
        lettere +=
            u"('MI','%1',2025,'%2',%3,'A','Ferramenta delle Rose %1','Milano','MI','ORD-%1',3,45.50,'%1',2025)"_s
                .arg(n, data, cliente);
        const bool aperta = numero % unaApertaOgni == 0;
        giacenze += u"('MI','%1',2025,%3,'MI','%1',2025,'%2','1','%2','%2 - Destinatario assente',%4)"_s.arg(
            n, data, cliente, aperta ? u"null"_s : u"'%1'"_s.arg(data));
    }
    connessione.esegui(
        u"insert into letve00f (lefili, lenrlv, leanlv, ledtlv, lecodi, lecmpe, ledest, lelocd, "
        "leprod, lerife, lecoll, lepeso, LERFGI, LEANGI) values "_s +
        lettere.join(u','));
    connessione.esegui(
        u"insert into giace00f (GIFILI, GINRLV, GIANLV, GICODI, GIFIGI, GINRGI, GIANGI, GIDTGI, "
        "GINRAV, GIDTAV, GIDES1, GIDTBF) values "_s +
        giacenze.join(u','));
}

void riempi(Connessione& connessione, qint64 righe)
{
    constexpr qint64 blocco = 1000;
    Transazione transazione(connessione);
    for (int i = 0; i < clienti; ++i) {
        const QString codice = QString::number(primoCliente + i);
        connessione.esegui(
            u"insert into clien (Codice, RagioneSociale) values (%1, 'Cliente %1')"_s.arg(codice));
        connessione.esegui(
            u"insert into tabfatturazione (FALCOD, FACODI, FACMPE, FADFGI, FAFRGI, FATGIG, FAMIGI) "
            "values ('C', %1, 'A', 2.5, 5, 1.5, 15)"_s.arg(codice));
    }
    for (qint64 da = 1; da <= righe; da += blocco)
        riempiBlocco(connessione, da, std::min(da + blocco, righe + 1));
    transazione.conferma();
}

/// The statement with its values in their places, as a plain program sends it.
QString conValori(QString istruzione, const QStringList& valori)
{
    for (const QString& valore : valori)
        istruzione.replace(istruzione.indexOf(u'?'), 1, u"'%1'"_s.arg(valore));
    return istruzione;
}

/// What is measured on one database: our arguments, and the plain program's statement with the rows that it
/// reads.
struct Voce
{
    QString nome;
    QStringList nostri;
    QString istruzione;
    qint64 lette;
    Obiettivo obiettivo = {};
    bool aperta = false; ///< neither connects within the time
};

std::vector<Voce> voci(qint64 righe)
{
    constexpr Obiettivo obiettivo{.rapporto = 1.3};
    const qint64 aperte = righe / unaApertaOgni;
    const QString una = QString::number(aperte / 2 * unaApertaOgni);
    const QString tutte = istruzioni::casiAperti();
    const QString filtrate =
        QString(tutte).replace(u"GIDTBF is null"_s, u"GIDTBF is null and ledest like '%Rose %1'"_s.arg(una));
    const QString scansione = conValori(istruzioni::ldvPerChiave(), {u"MI"_s, una, u"2025"_s});
    const qint64 prime = std::min<qint64>(primeRighe, aperte);
    return {
        // What the operator waits for, beside the whole of the bare statement; then beside as many of its
        // rows.
        {u"desk"_s, {u"rows"_s, QString::number(prime)}, tutte, aperte, obiettivo},
        {u"desk_first_rows"_s, {u"rows"_s, QString::number(prime)}, tutte, prime},
        {u"desk_all"_s, {u"rows"_s, QString::number(aperte)}, tutte, aperte},
        {u"desk_filter"_s, {u"filter"_s, u"ord-%1"_s.arg(una), u"1"_s}, filtrate, 1, obiettivo},
        {u"desk_scan"_s, {u"scan"_s, u"MI-%1-2025"_s.arg(una), u"1"_s}, scansione, 1, obiettivo, true},
    };
}

Confronto confronto(const Voce& voce, const QString& tipo, const QString& stringa, qint64 righe)
{
    QStringList riferimento{voce.istruzione, QString::number(voce.lette), u"0"_s};
    if (voce.aperta)
        riferimento << u"open"_s;
    return {voce.nome,
            tipo,
            righe,
            {u"misura-desk"_s, voce.nostri, stringa},
            {u"riferimento-griglia"_s, riferimento, stringa},
            voce.obiettivo};
}

std::vector<Confronto> confronti(const Basi& basi, const Opzioni& opzioni)
{
    std::vector<Confronto> elenco;
    for (const QString& tipo : opzioni.basi)
        for (const qint64 righe : opzioni.misure({opzioni.svelto ? 100'000 : 1'000'000})) {
            const QString stringa = basi.stringa(tipo, u"desk_%1"_s.arg(righe),
                                                 [righe](Connessione& nuova) { riempi(nuova, righe); });
            for (const Voce& voce : voci(righe))
                elenco.push_back(confronto(voce, tipo, stringa, righe));
        }
    return elenco;
}

} // namespace

std::vector<Tema> temiDesk()
{
    return {{u"desk"_s, confronti}};
}

} // namespace banco
