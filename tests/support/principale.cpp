#include <gmock/gmock.h>

#include <QApplication>

int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    QApplication applicazione(argc, argv);
    QApplication::setApplicationDisplayName(QStringLiteral("Deposito di prova"));
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
