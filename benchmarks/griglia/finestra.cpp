// One run: the search from its opening until its first page is painted. The statement is made by the dialog;
// the first argument only says which one is expected.

#include "base/impostazioni.h"
#include "base/messaggi.h"
#include "benchmarks/quadro/esito.h"
#include "search/frmRicercaGia.h"
#include "search/modelloricerca.h"

#include <QApplication>

using namespace Qt::StringLiterals;

int main(int argc, char* argv[])
{
    const QApplication applicazione(argc, argv);
    const QStringList argomenti = QApplication::arguments();
    giacenza::impostazioni().percorsoDatabase = qEnvironmentVariable(banco::variabileConnessione);
    giacenza::impostaPortaMessaggi([](QWidget*, const giacenza::Messaggio& messaggio) {
        std::fprintf(stderr, "%s\n", qPrintable(messaggio.testo));
        return giacenza::Risposta::ok;
    });
    giacenza::Connessione schermata;
    schermata.apri(giacenza::impostazioni().percorsoDatabase);
    giacenza::frmRicercaGia dialogo;
    dialogo.setTipoRicerca(giacenza::ModoRicerca::letteraVettura);
    dialogo.setCodiceCliente(u"1001"_s);
    dialogo.setFiliale(u"MI"_s);
    const banco::Cronometro cronometro;
    dialogo.show();
    QApplication::processEvents();
    const double millisecondi = cronometro.millisecondi();
    const auto* modello = dialogo.findChild<giacenza::ModelloRicerca*>();
    if (modello->istruzione() != argomenti.value(1)) {
        std::fputs("the dialog ran another statement\n", stderr);
        return EXIT_FAILURE;
    }
    return banco::stampaEsito(millisecondi, modello->rowCount(), argomenti.value(2).toLong());
}
