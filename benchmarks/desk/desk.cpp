// One run: what the desk does until its operator sees it. The first argument says what:
//   rows N        the open cases, until N of them are in the list, by the desk's own thread and connection
//   filter TEXT N the list is there already: until the N that pass are in it
//   scan TEXT N   a number, on the connection that the desk keeps, until what it led to is known; not the
//                 first of the day
//   scan          stays, and scans the waybill of each request; see residente.h

#include "benchmarks/quadro/esito.h"
#include "benchmarks/quadro/residente.h"
#include "desk/dati/ricerca.h"
#include "desk/dati/scadenzario.h"
#include "desk/finestra/modellocasi.h"

#include <QCoreApplication>
#include <QEventLoop>

using namespace giacenza;
using namespace giacenza::desk;

namespace {

constexpr int setteGiorni = 7;

RichiestaElenco richiesta()
{
    return {Accesso(qEnvironmentVariable(banco::variabileConnessione)), {}, QDate(2026, 11, 20), setteGiorni};
}

/// Reads until so many rows are in the model, -1: all.
void leggi(Scadenzario& scadenzario, ModelloCasi& modello, long quante)
{
    QEventLoop attesa;
    QObject::connect(&scadenzario, &Scadenzario::arrivate, &attesa, [&](std::vector<RigaCaso>& righe) {
        modello.aggiungi(std::move(righe));
        if (quante >= 0 && modello.rowCount() >= quante)
            attesa.quit();
    });
    QObject::connect(&scadenzario, &Scadenzario::finito, &attesa, &QEventLoop::quit);
    QObject::connect(&scadenzario, &Scadenzario::fallito, &attesa, [&](const QString& testo) {
        std::fprintf(stderr, "%s\n", qPrintable(testo));
        attesa.quit();
    });
    scadenzario.leggi(richiesta());
    attesa.exec();
}

int righe(long attese)
{
    // The driver is loaded already, as in the plain program.
    Connessione schermata;
    schermata.apri(richiesta().accesso);
    // So is the desk, with its thread: this is what F5 takes.
    ModelloCasi modello;
    Scadenzario scadenzario;
    const banco::Cronometro cronometro;
    double millisecondi = 0;
    QObject::connect(&modello, &QAbstractItemModel::modelReset, [&] {
        if (millisecondi == 0 && modello.rowCount() >= attese)
            millisecondi = cronometro.millisecondi();
    });
    leggi(scadenzario, modello, attese);
    return banco::stampaEsito(millisecondi, std::min<long>(modello.rowCount(), attese), attese);
}

int filtro(const QString& testo, long attese)
{
    ModelloCasi modello;
    Scadenzario scadenzario;
    leggi(scadenzario, modello, -1);
    const banco::Cronometro cronometro;
    modello.setFiltro(testo);
    const double millisecondi = cronometro.millisecondi();
    return banco::stampaEsito(millisecondi, modello.rowCount(), attese);
}

int scansione(const QString& testo, long attese)
{
    Connessione connessione;
    connessione.apri(richiesta().accesso);
    cerca(connessione, testo);
    const banco::Cronometro cronometro;
    const EsitoRicerca esito = cerca(connessione, testo);
    const double millisecondi = cronometro.millisecondi();
    return banco::stampaEsito(millisecondi, static_cast<long>(esito.trovate.size()), attese);
}

int scansioni()
{
    Connessione connessione;
    connessione.apri(richiesta().accesso);
    using Parti = std::vector<std::string>;
    const auto esegui = [&](const Parti& parti) {
        const QString numero = QString::fromStdString(parti[0] + '-' + parti[1] + '-' + parti[2]);
        const banco::Cronometro cronometro;
        const EsitoRicerca esito = cerca(connessione, numero);
        const double millisecondi = cronometro.millisecondi();
        if (esito.trovate.empty())
            throw std::runtime_error("nothing was found for " + numero.toStdString());
        return millisecondi;
    };
    // A scan writes nothing, and no plain program stands beside it here.
    const auto nulla = [](const Parti&) {};
    return banco::servi(nulla, esegui, nulla, [](const Parti&) { return Parti(); });
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication applicazione(argc, argv);
    const QStringList argomenti = QCoreApplication::arguments();
    const QString che = argomenti.value(1);
    try {
        if (che == u"rows")
            return righe(argomenti.value(2).toLong());
        if (che == u"filter")
            return filtro(argomenti.value(2), argomenti.value(3).toLong());
        if (argomenti.size() == 2 && che == u"scan")
            return scansioni();
        return scansione(argomenti.value(2), argomenti.value(3).toLong());
    } catch (const std::exception& errore) {
        std::fprintf(stderr, "%s\n", errore.what());
        return EXIT_FAILURE;
    }
}
