// One run: a statement until its first page is in the model of the search. The screen that opens the search
// has a connection already, and so has this program.

#include "benchmarks/quadro/esito.h"
#include "search/modelloricerca.h"

#include <QCoreApplication>

int main(int argc, char* argv[])
{
    const QCoreApplication applicazione(argc, argv);
    const QStringList argomenti = QCoreApplication::arguments();
    const QString stringa = qEnvironmentVariable(banco::variabileConnessione);
    try {
        giacenza::Connessione schermata;
        schermata.apri(stringa);
        giacenza::ModelloRicerca modello;
        const banco::Cronometro cronometro;
        modello.apri(stringa, argomenti.value(1));
        const double millisecondi = cronometro.millisecondi();
        return banco::stampaEsito(millisecondi, modello.rowCount(), argomenti.value(2).toLong());
    } catch (const std::exception& errore) {
        std::fprintf(stderr, "%s\n", errore.what());
        return EXIT_FAILURE;
    }
}
