// One run: so many storage notices, one after another, from the database to the PDF in the archive. The
// screen that prints has a connection already, and so has this program.

#include "base/impostazioni.h"
#include "benchmarks/quadro/esito.h"
#include "database/connessione.h"
#include "reports/letters/fontedocumenti.h"
#include "stampa/modulodeposito.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

using namespace giacenza;

namespace {

/// As the screens do it: a module for each document.
void stampaAvviso(const QString& stringa, const QString& logo, int numero)
{
    stampa::ModuloDeposito modulo;
    collegaFonte(modulo, nullptr);
    modulo.setPercorsoDatabase(stringa);
    modulo.setPercorsoLogo(logo);
    modulo.setDidascalie({u"Trasporti del Ponte S.r.l."_s, u"Via dell'Industria 14 - 10148 Torino (TO)"_s,
                          u"Tel. 011 000000 - Fax 011 000001"_s, u"giacenze@trasportidelponte.example"_s});
    modulo.setStampa(true);
    modulo.setTipoDocumento(TipoDocumento::avviso);
    bool nonProdotto = false;
    modulo.stampaDocumento(u"%1_2015"_s.arg(numero), nonProdotto);
}

} // namespace

int main(int argc, char* argv[])
{
    const QApplication applicazione(argc, argv);
    const QStringList argomenti = QCoreApplication::arguments();
    const int quante = argomenti.value(1).toInt();
    const QString stringa = qEnvironmentVariable(banco::variabileConnessione);
    const QTemporaryDir cartella(argomenti.value(2) + u"/avvisi-XXXXXX"_s);
    impostazioni().percorsoFileIni = cartella.filePath(u"giacenza.ini"_s);
    try {
        Connessione schermata;
        schermata.apri(stringa);
        const banco::Cronometro cronometro;
        for (int numero = 1; numero <= quante; ++numero)
            stampaAvviso(stringa, argomenti.value(3), numero);
        const double millisecondi = cronometro.millisecondi();
        const QDir documenti(cartella.filePath(u"documenti"_s));
        return banco::stampaEsito(millisecondi, documenti.entryList({u"*.pdf"_s}).size(), quante);
    } catch (const std::exception& errore) {
        std::fprintf(stderr, "%s\n", errore.what());
        return EXIT_FAILURE;
    }
}
