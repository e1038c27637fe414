// One run: a host that does nothing but open the registration screen.

#include "benchmarks/avvio/dipinta.h"

#include <giacenza/cGiacenza.h>

#include <QApplication>

int main(int argc, char* argv[])
{
    QApplication applicazione(argc, argv);
    banco::Dipinta dipinta;
    try {
        giacenza::cGiacenza giacenze;
        giacenze.setPercorsoDatabase(qEnvironmentVariable(banco::variabileConnessione));
        giacenze.NuovaGiacenza();
        return QApplication::exec();
    } catch (const std::exception& errore) {
        std::fprintf(stderr, "%s\n", errore.what());
        return EXIT_FAILURE;
    }
}
