// One run: a statement until so many of its rows are in the model of the search, which lists it as the dialog
// does in the mode of the third argument. The screen that opens the search has a connection already, and so
// has this program.

#include "benchmarks/quadro/esito.h"
#include "search/modelloricerca.h"

#include <QCoreApplication>

int main(int argc, char* argv[])
{
    const QCoreApplication applicazione(argc, argv);
    const QStringList argomenti = QCoreApplication::arguments();
    const QString stringa = qEnvironmentVariable(banco::variabileConnessione);
    const long attese = argomenti.value(2).toLong();
    const auto modo = static_cast<giacenza::ModoRicerca>(argomenti.value(3).toInt());
    try {
        giacenza::Connessione schermata;
        schermata.apri(stringa);
        giacenza::ModelloRicerca modello;
        const banco::Cronometro cronometro;
        modello.apri(stringa, argomenti.value(1), inOrdine(modo) ? postiScelta(modo) : std::nullopt);
        while (modello.rowCount() < attese && modello.canFetchMore({}))
            modello.fetchMore({});
        const double millisecondi = cronometro.millisecondi();
        return banco::stampaEsito(millisecondi, modello.rowCount(), attese);
    } catch (const std::exception& errore) {
        std::fprintf(stderr, "%s\n", errore.what());
        return EXIT_FAILURE;
    }
}
