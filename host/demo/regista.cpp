#include "regista.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QTest>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int pazienza = 10'000;

} // namespace

Regista::Regista(const QString& cartella) : mCartella(cartella)
{
    mSguardo.setInterval(5);
    connect(&mSguardo, &QTimer::timeout, this, &Regista::guardaDialoghi);
}

void Regista::passo(const QString& testo)
{
    std::printf("%s\n", qUtf8Printable(testo));
    std::fflush(stdout);
}

void Regista::fotografa(QWidget* finestra, const QString& nome)
{
    ++mFoto;
    rifotografa(finestra, nome);
}

void Regista::rifotografa(QWidget* finestra, const QString& nome)
{
    QCoreApplication::processEvents();
    const QString file = u"%1-%2.png"_s.arg(mFoto, 2, 10, QChar(u'0')).arg(nome);
    verifica(finestra->grab().save(QDir(mCartella).filePath(file)),
             u"l'immagine %1 non è stata scritta"_s.arg(file));
}

QWidget* Regista::finestra(const QString& nome)
{
    QWidget* trovata = nullptr;
    attende(
        [&] {
            const auto finestre = QApplication::topLevelWidgets();
            for (QWidget* candidata : finestre)
                if (candidata->objectName() == nome && candidata->isVisible())
                    trovata = candidata;
            return trovata != nullptr;
        },
        u"la finestra %1 non si è aperta"_s.arg(nome));
    return trovata;
}

QWidget* Regista::controllo(QWidget* finestra, const QString& nome)
{
    auto* trovato = finestra->findChild<QWidget*>(nome);
    verifica(trovato, u"in %1 manca %2"_s.arg(finestra->objectName(), nome));
    return trovato;
}

QString Regista::testo(QWidget* finestra, const QString& nome)
{
    const QWidget* dove = controllo(finestra, nome);
    for (const char* proprieta : {"text", "plainText", "currentText"})
        if (const QVariant valore = dove->property(proprieta); valore.isValid())
            return valore.toString();
    throw Imprevisto(u"%1 non ha un testo"_s.arg(nome));
}

void Regista::scrive(QWidget* finestra, const QString& nome, const QString& testo)
{
    QWidget* dove = controllo(finestra, nome);
    dove->setFocus(Qt::OtherFocusReason);
    QTest::keyClick(dove, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(dove, testo);
    QCoreApplication::processEvents();
}

void Regista::preme(QWidget* destinatario, Qt::Key tasto, Qt::KeyboardModifiers modificatori)
{
    // Without a window manager nobody gives the window its focus back when a box over it has closed.
    destinatario->activateWindow();
    attende([&] { return destinatario->isActiveWindow(); },
            u"la finestra di %1 non è attiva"_s.arg(destinatario->objectName()));
    QTest::keyClick(destinatario, tasto, modificatori);
    QCoreApplication::processEvents();
}

void Regista::scorre(QWidget* elenco, const std::function<bool(const QModelIndex&)>& voluta)
{
    auto* vista = qobject_cast<QAbstractItemView*>(elenco);
    verifica(vista && vista->model(), u"non c'è un elenco"_s);
    // A list takes no row that only has the focus: the first arrow marks it.
    const auto scelta = [vista] { return vista->selectionModel()->isSelected(vista->currentIndex()); };
    for (int passi = 0; !scelta() || !voluta(vista->currentIndex()); ++passi) {
        verifica(passi < 2'000, u"la riga cercata non è nell'elenco"_s);
        preme(elenco, Qt::Key_Down);
    }
}

void Regista::clicca(QWidget* finestra, const QString& nome)
{
    QTest::mouseClick(controllo(finestra, nome), Qt::LeftButton);
    QCoreApplication::processEvents();
}

void Regista::rispondendo(const std::function<void()>& azione, std::deque<Risposta> risposte)
{
    mRisposte = std::move(risposte);
    mRisposto = nullptr;
    mSguardo.start();
    azione();
    // What an action starts may be queued behind it.
    if (mFallito.isEmpty() && !mRisposte.empty())
        attende([this] { return mRisposte.empty() || !mFallito.isEmpty(); },
                u"si attendeva ancora una finestra di dialogo"_s);
    attende([] { return !QApplication::activeModalWidget(); }, u"un dialogo è rimasto aperto"_s);
    mSguardo.stop();
    if (!mFallito.isEmpty())
        throw Imprevisto(std::exchange(mFallito, {}));
}

void Regista::guardaDialoghi()
{
    QWidget* dialogo = QApplication::activeModalWidget();
    if (!dialogo || !dialogo->isVisible())
        return;
    if (dialogo == mRisposto) {
        // An answer that did not close its dialog would keep the action waiting for ever.
        if (mDaQuando.hasExpired(pazienza)) {
            mFallito = u"la finestra %1 è rimasta aperta"_s.arg(dialogo->objectName());
            mRisposte.clear();
            dialogo->close();
        }
        return;
    }
    mRisposto = dialogo;
    mDaQuando.start();
    // Boxes follow one another at one address: a closed one is no longer the one that was answered. An older
    // one may be destroyed later, with its screen, while the next is open.
    connect(dialogo, &QObject::destroyed, this, [this, dialogo] {
        if (mRisposto == dialogo)
            mRisposto = nullptr;
    });
    if (mRisposte.empty()) {
        mFallito = u"si è aperta una finestra inattesa: %1 %2"_s.arg(dialogo->objectName(),
                                                                     dialogo->property("text").toString());
        dialogo->close();
        return;
    }
    const Risposta risposta = std::move(mRisposte.front());
    mRisposte.pop_front();
    try {
        risposta(dialogo);
    } catch (const Imprevisto& imprevisto) {
        mFallito = QString::fromUtf8(imprevisto.what());
        mRisposte.clear();
        dialogo->close();
    }
}

Regista::Risposta Regista::messaggio(const QString& testo, Qt::Key tasto)
{
    return [this, testo, tasto](QWidget* dialogo) {
        const QString mostrato = dialogo->property("text").toString();
        fotografa(dialogo, u"messaggio"_s);
        verifica(mostrato == testo, u"messaggio inatteso: \"%1\" al posto di \"%2\""_s.arg(mostrato, testo));
        passo(u"    messaggio: %1"_s.arg(mostrato));
        QTest::keyClick(dialogo, tasto);
    };
}

void Regista::verifica(bool fatto, const QString& altrimenti)
{
    if (!fatto)
        throw Imprevisto(altrimenti);
}

void Regista::attende(const std::function<bool()>& fatto, const QString& che)
{
    verifica(QTest::qWaitFor(fatto, pazienza), che);
}
