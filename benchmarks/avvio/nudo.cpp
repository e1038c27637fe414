// One run: the form of the registration screen, with the toolkit's own controls, no database and nothing
// behind it.

#include "benchmarks/avvio/dipinta.h"
#include "ui_frmGiacenza.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    QApplication applicazione(argc, argv);
    banco::Dipinta dipinta;
    QWidget finestra;
    Ui::frmGiacenza forma;
    forma.setupUi(&finestra);
    finestra.show();
    return QApplication::exec();
}
