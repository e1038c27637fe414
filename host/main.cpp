#include "finestra.h"
#include "host/avvio/avvio.h"
#include "host/avvio/istanzaunica.h"
#include "registro.h"

#include <QApplication>
#include <QSettings>

#include <cstdio>
#include <cstdlib>

namespace {

/// --help, --version and --prepara-registro: a text, also where there is no display, as on a server or in a
/// script.
[[noreturn]] void rispondiSenzaSchermo(int argc, char** argv)
{
    QCoreApplication applicazione(argc, argv);
    deposito::parlaItaliano(applicazione);
    const deposito::Opzioni opzioni = deposito::leggiOpzioni(applicazione);
    if (!opzioni.preparaRegistro)
        qFatal("the command line asked for a text and gave none");
    const deposito::EsitoRegistro esito = opzioni.guasto.isEmpty()
                                              ? deposito::preparaRegistroDi(opzioni.database)
                                              : deposito::EsitoRegistro{opzioni.guasto, false};
    std::fprintf(esito.pronto ? stdout : stderr, "%s\n", qUtf8Printable(esito.testo));
    std::exit(esito.pronto ? EXIT_SUCCESS : EXIT_FAILURE);
}

/// The archive of a start that names none; false when the operator gave up.
bool trovaArchivio(deposito::Opzioni& opzioni)
{
    if (!opzioni.database.isEmpty() || !opzioni.guasto.isEmpty())
        return true;
    QSettings impostazioni;
    deposito::PortachiaviDiSistema portachiavi;
    const auto scelto = deposito::Avvio(impostazioni, portachiavi).archivio(nullptr);
    opzioni.database = scelto.value_or(QString());
    return scelto.has_value();
}

} // namespace

int main(int argc, char* argv[])
{
    deposito::presentati();
    if (deposito::chiedeSoloTesto(argc, argv))
        rispondiSenzaSchermo(argc, argv);
    QApplication applicazione(argc, argv);
    QApplication::setWindowIcon(deposito::icona());
    QApplication::setQuitOnLastWindowClosed(false);
    deposito::parlaItaliano(applicazione);

    deposito::Opzioni opzioni = deposito::leggiOpzioni(applicazione);
    deposito::IstanzaUnica unica(opzioni.ini, opzioni.database);
    if (!opzioni.nuova) {
        if (unica.chiama())
            return 0;
        unica.ascolta();
    }
    if (!trovaArchivio(opzioni))
        return 0;
    deposito::Finestra finestra(opzioni);
    QObject::connect(&unica, &deposito::IstanzaUnica::chiamata, &finestra, &deposito::Finestra::vieniAvanti);
    finestra.show();
    return QApplication::exec();
}
