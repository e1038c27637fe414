#include "component/binding/interfaccia.h"

#include "component/binding/confine.h"
#include "component/binding/oggetti.h"

#include <QApplication>
#include <QEventLoop>
#include <QLibraryInfo>
#include <QLocale>
#include <QThread>
#include <QTimer>
#include <QTranslator>

#include <memory>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

/// The application and what it holds on to as long as it lives.
struct Nostra
{
    QByteArray programma;
    int argc = 1;
    char* argv[2] = {nullptr, nullptr};
    std::unique_ptr<QApplication> applicazione;
};

Nostra& nostra()
{
    // Never destroyed by itself: at the end of a process its turn would come too late.
    static auto* const unica = new Nostra;
    return *unica;
}

[[noreturn]] void rifiutaSenza(const QString& testo)
{
    throw ErroreConfine(GIACENZA_SENZA_INTERFACCIA, testo);
}

/// The QApplication that there is, on this thread; null when there is none. Throws ErroreConfine.
QApplication* questa()
{
    QCoreApplication* const applicazione = QCoreApplication::instance();
    if (!applicazione)
        return nullptr;
    auto* const conFinestre = qobject_cast<QApplication*>(applicazione);
    if (!conFinestre)
        rifiutaSenza(u"Il programma ha già un'applicazione Qt che non apre finestre."_s);
    if (conFinestre->thread() != QThread::currentThread())
        throw ErroreConfine(GIACENZA_ALTRO_THREAD, u"L'interfaccia grafica è di un altro thread."_s);
    return conFinestre;
}

void controllaSchermo()
{
    for (const char* variabile : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
        if (!qEnvironmentVariableIsEmpty(variabile))
            return;
    rifiutaSenza(u"Manca lo schermo: nessuna delle variabili DISPLAY, WAYLAND_DISPLAY e QT_QPA_PLATFORM."_s);
}

void parlaItaliano(QApplication& applicazione)
{
    const QLocale italiano(QLocale::Italian, QLocale::Italy);
    QLocale::setDefault(italiano);
    auto* traduzioni = new QTranslator(&applicazione);
    if (traduzioni->load(italiano, u"qtbase"_s, u"_"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(traduzioni);
}

} // namespace

void avviaInterfaccia(const QString& programma)
{
    if (questa())
        return;
    controllaSchermo();
    Nostra& mia = nostra();
    mia.programma = programma.isEmpty() ? "giacenza"_ba : programma.toUtf8();
    mia.argv[0] = mia.programma.data();
    mia.argc = 1;
    mia.applicazione = std::make_unique<QApplication>(mia.argc, mia.argv);
    // The program goes on after its last screen: when it ends is its own business.
    QApplication::setQuitOnLastWindowClosed(false);
    parlaItaliano(*mia.applicazione);
}

void elaboraEventi(int millisecondi)
{
    if (!questa())
        rifiutaSenza(u"Manca l'interfaccia grafica (QApplication)."_s);
    const InCorso adesso;
    QEventLoop giro;
    if (!giro.processEvents() && millisecondi > 0) {
        QTimer sveglia;
        sveglia.setSingleShot(true);
        sveglia.start(millisecondi);
        giro.processEvents(QEventLoop::WaitForMoreEvents);
    }
    // Without a loop that runs, nobody else takes away what has asked to go. Inside a callback it may be the
    // screen that is closing: the outermost call does it.
    if (QThread::currentThread()->loopLevel() == 0 && InCorso::quante() == 1)
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void chiudiInterfaccia()
{
    Nostra& mia = nostra();
    if (!mia.applicazione || questa() != mia.applicazione.get())
        return;
    if (ceNeSono())
        throw ErroreConfine(GIACENZA_OCCUPATO, u"Un oggetto non è stato rilasciato."_s);
    if (InCorso::qualcuna() || QThread::currentThread()->loopLevel() > 0)
        throw ErroreConfine(GIACENZA_OCCUPATO, u"Una chiamata è in corso."_s);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    mia.applicazione.reset();
}

} // namespace giacenza
