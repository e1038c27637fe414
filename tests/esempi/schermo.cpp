#include "esempi/schermo.h"

#include <QElapsedTimer>

#include <functional>
#include <stdexcept>
#include <thread>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

namespace {

constexpr int attesa = 60'000; // milliseconds

/// Asks again until the answer is yes; throws, naming what did not happen.
void finoA(const char* cosa, const std::function<bool()>& vero)
{
    QElapsedTimer orologio;
    orologio.start();
    while (!vero()) {
        if (orologio.elapsed() > attesa)
            throw std::runtime_error(std::string("non è successo: ") + cosa);
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
}

/// What a program says first; throws when it says nothing.
QString primaRiga(QProcess& processo, const char* cosa)
{
    finoA(cosa, [&] {
        return processo.canReadLine() || (processo.waitForReadyRead(100) && processo.canReadLine());
    });
    return QString::fromLatin1(processo.readLine()).trimmed();
}

void ferma(QProcess& processo)
{
    processo.terminate();
    if (!processo.waitForFinished(attesa))
        processo.kill();
    processo.waitForFinished();
}

} // namespace

Schermo::Schermo()
{
    // Its number comes on standard output. Without -noreset it starts afresh when its last client leaves, and
    // one that comes in that moment is lost: xdotool before the window manager is enough.
    mXvfb.start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, u"1366x768x24"_s, u"-nolisten"_s,
                            u"tcp"_s, u"-noreset"_s});
    mNome = u':' + primaRiga(mXvfb, "lo schermo è pronto");
    mGestore.setProcessEnvironment(ambiente());
    // What is shown while openbox still starts may stay unseen. Its first command is run when it is ready.
    mGestore.start(u"openbox"_s, {u"--startup"_s, u"echo pronto"_s});
    primaRiga(mGestore, "openbox è pronto");
}

Schermo::~Schermo()
{
    ferma(mGestore);
    ferma(mXvfb);
}

QProcessEnvironment Schermo::ambiente() const
{
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    ambiente.remove(u"QT_QPA_PLATFORM"_s);
    ambiente.remove(u"WAYLAND_DISPLAY"_s);
    ambiente.insert(u"DISPLAY"_s, mNome);
    return ambiente;
}

void Schermo::premi(const QString& nome, const QString& tasti) const
{
    QString finestra;
    finoA("la finestra si apre", [&] {
        finestra = xdotool({u"search"_s, u"--onlyvisible"_s, u"--name"_s, u'^' + nome}).section(u'\n', 0, 0);
        return !finestra.isEmpty();
    });
    finoA("la finestra si attiva", [&] {
        xdotool({u"windowactivate"_s, finestra});
        return xdotool({u"getactivewindow"_s}) == finestra;
    });
    xdotool({u"key"_s, tasti});
}

QString Schermo::xdotool(const QStringList& argomenti) const
{
    QProcess processo;
    processo.setProcessEnvironment(ambiente());
    processo.start(u"xdotool"_s, argomenti);
    if (!processo.waitForFinished(attesa))
        throw std::runtime_error("xdotool non risponde");
    return QString::fromLatin1(processo.readAllStandardOutput()).trimmed();
}

} // namespace giacenza::prove
