#include "opzioni.h"

#include <QApplication>

#include <gmock/gmock.h>

int main(int argc, char* argv[])
{
    QApplication applicazione(argc, argv);
    QApplication::setApplicationDisplayName(QStringLiteral("Gestione Trasporti"));
    QApplication::setQuitOnLastWindowClosed(false);
    deposito::parlaItaliano(applicazione);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
