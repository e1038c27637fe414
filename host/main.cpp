#include "desk/dati/sfondo.h"
#include "desk/finestra/particomponente.h"
#include "finestra.h"
#include "guida.h"
#include "host/avvio/avvio.h"
#include "host/avvio/istanzaunica.h"
#include "registro.h"

#include <QApplication>
#include <QPointer>
#include <QSettings>

#include <chrono>
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

/// What the archive of this start is, as far as it is known before anything is asked; never the password.
QString archivioNoto(const deposito::Opzioni& opzioni)
{
    if (!opzioni.database.isEmpty() || !opzioni.guasto.isEmpty())
        return opzioni.database;
    QSettings impostazioni;
    const auto scelta = deposito::sceltaRicordata(impostazioni);
    return scelta ? deposito::stringaOdbc(*scelta, {}) : QString();
}

/// What the operator has before him: the desk, and over it, or alone before there is one, what is asked.
void vieniAvanti(deposito::Finestra* finestra)
{
    if (finestra)
        finestra->vieniAvanti();
    QWidget* domanda = QApplication::activeModalWidget();
    if (!domanda)
        return;
    domanda->setWindowState(domanda->windowState() & ~Qt::WindowMinimized);
    domanda->raise();
    domanda->activateWindow();
}

/// A server that says nothing holds a reading for as long as it likes, and the program with it.
void vaiSenzaChiNonFinisce(int codice)
{
    constexpr std::chrono::seconds pazienza(3);
    if (giacenza::desk::Sfondo::fermatiEntro(pazienza))
        return;
    QSettings().sync();
    std::_Exit(codice);
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
    const deposito::TastoGuida tastoGuida;

    deposito::Opzioni opzioni = deposito::leggiOpzioni(applicazione);
    // Where the archive's extension is, too.
    giacenza::desk::cercaPartiAccantoAlComponente();
    deposito::IstanzaUnica unica(opzioni.ini, archivioNoto(opzioni));
    QPointer<deposito::Finestra> aperta;
    QObject::connect(&unica, &deposito::IstanzaUnica::chiamata, &applicazione,
                     [&aperta] { vieniAvanti(aperta); });
    if (!opzioni.nuova) {
        if (unica.chiama())
            return 0;
        unica.ascolta();
    }
    if (!trovaArchivio(opzioni))
        return 0;
    if (unica.cambia(opzioni.database) && !opzioni.nuova && unica.chiama())
        return 0;
    // Also a window that was asked for beside another: on another archive it is the first.
    unica.ascolta();
    deposito::Finestra finestra(opzioni);
    aperta = &finestra;
    QObject::connect(&applicazione, &QCoreApplication::aboutToQuit, &unica, &deposito::IstanzaUnica::taci);
    finestra.show();
    const int codice = QApplication::exec();
    vaiSenzaChiNonFinisce(codice);
    return codice;
}
