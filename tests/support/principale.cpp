#include <gmock/gmock.h>

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

#include <clocale>
#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

QtMessageHandler predefinito = nullptr;

/// The platform without a display says of each window that it has no size hints; among hundreds of such lines
/// nobody would find the one that counts.
void senzaMisure(QtMsgType tipo, const QMessageLogContext& contesto, const QString& testo)
{
    if (testo != "This plugin does not support propagateSizeHints()"_L1)
        predefinito(tipo, contesto, testo);
}

} // namespace

int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    // ctest says so too; this is for a test that is run by hand where there is no display.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    predefinito = qInstallMessageHandler(senzaMisure);
    QApplication applicazione(argc, argv);
    // Qt makes C.UTF-8 of the C locale; a test that asks for one by name gets that one.
    if (const char* locale = std::getenv("LC_ALL"); locale && !std::setlocale(LC_ALL, locale)) {
        std::fprintf(stderr, "La locale %s non c'è.\n", locale);
        return 1;
    }
    // What a program remembers of its user stays within the test.
    const QTemporaryDir ricordi;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, ricordi.path());
    QApplication::setApplicationDisplayName(u"Deposito di prova"_s);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
