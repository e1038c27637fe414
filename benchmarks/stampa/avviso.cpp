// One run: so many storage notices, one after another, from the database to the PDF in the archive. The
// screen that prints has a connection already, and so has this program.

#include "benchmarks/quadro/esito.h"
#include "component/impostazioni.h"
#include "data/connessione.h"
#include "reports/fontedocumenti.h"
#include "stampa/modulodeposito.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

using namespace giacenza;

namespace {

/// As the screens do it: a module for each document.
void stampaAvviso(const QString& stringa, const QString& logo, int numero)
{
    stampa::ModuloDeposito modulo;
    collegaFonte(modulo, nullptr);
    modulo.setPercorsoDatabase(stringa);
    modulo.setPercorsoLogo(logo);
    modulo.setDidascalie({QStringLiteral("Trasporti del Ponte S.r.l."),
                          QStringLiteral("Via dell'Industria 14 - 10148 Torino (TO)"),
                          QStringLiteral("Tel. 011 000000 - Fax 011 000001"),
                          QStringLiteral("giacenze@trasportidelponte.example")});
    modulo.setStampa(true);
    modulo.setTipoDocumento(TipoDocumento::avviso);
    bool nonProdotto = false;
    modulo.stampaDocumento(QStringLiteral("%1_2015").arg(numero), nonProdotto);
}

} // namespace

int main(int argc, char* argv[])
{
    const QApplication applicazione(argc, argv);
    const QStringList argomenti = QCoreApplication::arguments();
    const int quante = argomenti.value(1).toInt();
    const QString stringa = qEnvironmentVariable(banco::variabileConnessione);
    const QTemporaryDir cartella(argomenti.value(2) + QStringLiteral("/avvisi-XXXXXX"));
    impostazioni().percorsoFileIni = cartella.filePath(QStringLiteral("giacenza.ini"));
    try {
        Connessione schermata;
        schermata.apri(stringa);
        const banco::Cronometro cronometro;
        for (int numero = 1; numero <= quante; ++numero)
            stampaAvviso(stringa, argomenti.value(3), numero);
        const double millisecondi = cronometro.millisecondi();
        const QDir documenti(cartella.filePath(QStringLiteral("documenti")));
        return banco::stampaEsito(millisecondi, documenti.entryList({QStringLiteral("*.pdf")}).size(),
                                  quante);
    } catch (const std::exception& errore) {
        std::fprintf(stderr, "%s\n", errore.what());
        return EXIT_FAILURE;
    }
}
