// A host in C++: it opens the registration screen in Qt's event loop and ends when the operator has left it.
//
//     PARTI=$(pkg-config --variable=cartellaparti giacenza-c)
//     DATABASE="DRIVER={SQLite3};Database=depo.db;StepAPI=1;Timeout=5000;FKSupport=1;LoadExt=$PARTI/libgiacenza_sqlite.so"
//     ospite-cpp "$DATABASE" giacenza.ini logo.gif
//
// Prints "fine" when the screen was left. Codes: 0 the screen was left, 1 something failed, 2 wrong command
// line.

#include <giacenza/cGiacenza.h>

#include <QApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    QApplication applicazione(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QStringList argomenti = QApplication::arguments();
    if (argomenti.size() != 4) {
        std::fputs("Uso: ospite-cpp STRINGA-DI-CONNESSIONE FILE-INI LOGO\n", stderr);
        return 2;
    }

    giacenza::cGiacenza giacenze;
    giacenze.setPercorsoDatabase(argomenti[1]);
    giacenze.setPercorsoFileIni(argomenti[2]);
    giacenze.setPercorsoLogoIntestazione(argomenti[3]);
    QObject::connect(&giacenze, &giacenza::cGiacenza::fine, &giacenze, [] {
        std::puts("fine");
        QApplication::exit(0);
    });
    try {
        giacenze.NuovaGiacenza();
    } catch (const giacenza::ErroreDatabase& errore) {
        std::fprintf(stderr, "La schermata non è stata aperta: %s [%s]\n", errore.what(),
                     qUtf8Printable(errore.sqlstate()));
        return 1;
    } catch (const giacenza::Errore& errore) {
        std::fprintf(stderr, "La schermata non è stata aperta: %s\n", errore.what());
        return 1;
    }
    return QApplication::exec();
}
