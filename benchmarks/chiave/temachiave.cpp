#include "benchmarks/chiave/casi.h"
#include "benchmarks/quadro/temi.h"

#include "database/sessione.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace giacenza;

namespace banco {

namespace {

const std::vector<qint64> misure{10'000, 1'000'000};

/// What is done by a key: the program of ours that does it, and on which cases.
struct Operazione
{
    QString nome;
    QString programma;
    Richieste (*casi)(const Deposito& deposito);
    double obiettivo;
};

std::vector<Operazione> operazioni()
{
    const QString dati = u"misura-dati"_s;
    const QString schermate = u"misura-schermate"_s;
    return {{u"lookup"_s, dati, casiDaRegistrare, 1.15},
            {u"save"_s, dati, casiDaRegistrare, 1.1},
            {u"notice"_s, schermate, casiAperti, 1.3},
            {u"closure"_s, schermate, casiAperti, 1.3},
            {u"issue"_s, schermate, casiAperti, 1.2}};
}

/// The plain program connects with the string that the component would give the driver.
Programma nudo(const QString& operazione, const Deposito& dove, const QStringList& richieste)
{
    return {u"riferimento-chiave"_s, {operazione}, odbc::conLimiti(dove.stringa, {}), richieste};
}

Tema tema(const Operazione& operazione)
{
    return {operazione.nome, [operazione](const Basi& basi, const Opzioni& opzioni) {
                std::vector<Confronto> confronti;
                for (const QString& tipo : opzioni.basi)
                    for (const qint64 righe : opzioni.misure(misure)) {
                        const Deposito dove = deposito(basi, tipo, righe);
                        const Richieste casi = operazione.casi(dove);
                        confronti.push_back(
                            {operazione.nome,
                             tipo,
                             righe,
                             {operazione.programma, {operazione.nome}, dove.stringa, casi.nostre},
                             nudo(operazione.nome, dove, casi.riferimento),
                             {.rapporto = operazione.obiettivo},
                             true});
                    }
                return confronti;
            }};
}

/// From the key to the painted screen, beside the same lookup of ours without a screen.
std::vector<Confronto> suSchermata(const Basi& basi, const Opzioni& opzioni)
{
    std::vector<Confronto> confronti;
    for (const QString& tipo : opzioni.basi)
        for (const qint64 righe : opzioni.misure(misure)) {
            const Deposito dove = deposito(basi, tipo, righe);
            const Richieste casi = casiDaRegistrare(dove);
            confronti.push_back({u"lookup_screen"_s,
                                 tipo,
                                 righe,
                                 {u"misura-schermate"_s, {u"lookup_screen"_s}, dove.stringa, casi.nostre},
                                 {u"misura-dati"_s, {u"lookup"_s}, dove.stringa, casi.riferimento},
                                 {.inPiu = 5},
                                 true});
        }
    return confronti;
}

/// The other end of the growth, beside the smallest depot.
std::vector<qint64> grandi(const QString& tipo, const Opzioni& opzioni)
{
    if (!opzioni.righe.empty())
        return opzioni.righe;
    if (opzioni.svelto)
        return {100'000};
    if (tipo == u"sqlite"_s)
        return {1'000'000, 10'000'000};
    return {1'000'000};
}

/// What works by key, and the desk's scan, which is measured beside a plain one with the desk.
std::vector<Operazione> cheCrescono()
{
    std::vector<Operazione> tutte = operazioni();
    tutte.push_back({u"scan"_s, u"misura-desk"_s, casiAperti, 0});
    return tutte;
}

std::vector<Confronto> crescita(const Basi& basi, const Opzioni& opzioni)
{
    std::vector<Confronto> confronti;
    for (const QString& tipo : opzioni.basi) {
        const Deposito piccolo = deposito(basi, tipo, misure.front());
        for (const qint64 righe : grandi(tipo, opzioni)) {
            const Deposito grande = deposito(basi, tipo, righe);
            for (const Operazione& operazione : cheCrescono())
                confronti.push_back({u"growth_"_s + operazione.nome,
                                     tipo,
                                     righe,
                                     {operazione.programma,
                                      {operazione.nome},
                                      grande.stringa,
                                      operazione.casi(grande).nostre},
                                     {operazione.programma,
                                      {operazione.nome},
                                      piccolo.stringa,
                                      operazione.casi(piccolo).riferimento},
                                     {.rapporto = 1.3}});
        }
    }
    return confronti;
}

} // namespace

std::vector<Tema> temiChiave()
{
    std::vector<Tema> temi;
    for (const Operazione& operazione : operazioni())
        temi.push_back(tema(operazione));
    temi.insert(temi.begin() + 1, {u"lookup_screen"_s, suSchermata});
    temi.push_back({u"growth"_s, crescita});
    return temi;
}

} // namespace banco
