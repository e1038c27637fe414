#include "finestra.h"

#include "desk/finestra/finestradesk.h"
#include "desk/finestra/particomponente.h"
#include "host/avvio/spiegazioni.h"
#include "schede.h"
#include "ui_finestra.h"

#include <QAccessible>
#include <QApplication>
#include <QCloseEvent>
#include <QSettings>
#include <QTime>
#include <QWindow>

#include <algorithm>

using namespace Qt::StringLiterals;

// The resources of a static library are known to the program only when this was called. Outside every
// namespace, since the toolkit's macro declares a global function.
static void caricaRisorse()
{
    Q_INIT_RESOURCE(risorse);
}

namespace deposito {

using giacenza::cGiacenza;

namespace {

const QString voceGeometria = u"finestra/geometria"_s;

/// The masked date as typed; empty when nothing was typed.
QString dataTypata(const QLineEdit& campo)
{
    const QString scritta = campo.displayText();
    return scritta == u"__/__/____" ? QString() : scritta;
}

bool altreFinestreAperte(const QWidget* questa)
{
    const QWidgetList finestre = QApplication::topLevelWidgets();
    return std::any_of(finestre.begin(), finestre.end(), [questa](const QWidget* finestra) {
        return finestra != questa && finestra->isVisible() && finestra->windowType() != Qt::ToolTip &&
               finestra->windowType() != Qt::Popup;
    });
}

} // namespace

QIcon icona()
{
    caricaRisorse();
    QIcon icona;
    for (const int lato : {16, 32, 48, 128})
        icona.addFile(u":/deposito/icone/%1.png"_s.arg(lato));
    return icona;
}

Finestra::Finestra(const Opzioni& opzioni, QWidget* parent)
    : QMainWindow(parent), mUi(std::make_unique<Ui::finestraDeposito>()),
      mGiacenza(std::make_unique<cGiacenza>()),
      mAiuto(*this, opzioni, [this](const QString& testo) { mostraMessaggio(testo); })
{
    mUi->setupUi(this);
    mUi->fraMessaggio->hide();
    mUi->fraLdv->hide();

    mGiacenza->setPercorsoDatabase(opzioni.database);
    mGiacenza->setPercorsoFileIni(opzioni.ini);
    mGiacenza->setPercorsoLogoIntestazione(opzioni.logo);
    apparecchia(opzioni);
    collega();

    const QString archivio = nomeArchivio(opzioni.database);
    auto* nome =
        new QLabel(archivio.isEmpty() ? u"Nessun archivio"_s : u"Archivio: %1"_s.arg(archivio), this);
    nome->setObjectName(u"lblArchivio"_s);
    mUi->statusbar->addPermanentWidget(nome);
    mUi->statusbar->showMessage(u"Pronto."_s);
    if (!opzioni.guasto.isEmpty())
        mostraMessaggio(opzioni.guasto);
    else if (opzioni.database.isEmpty())
        mostraMessaggio(u"Non è stato indicato l'archivio su cui lavorare: avviare il programma "
                        "con --database e la stringa di connessione."_s);
}

Finestra::~Finestra()
{
    // The desk hears the component's screens go, and works with it to its last moment.
    delete mDesk;
}

void Finestra::apparecchia(const Opzioni& opzioni)
{
    giacenza::desk::cercaPartiAccantoAlComponente();
    mDesk = new giacenza::desk::FinestraDesk(
        *mGiacenza, {opzioni.database, opzioni.ini, opzioni.logo},
        [this](const QString& schermata, const std::function<void()>& apertura) {
            apri(schermata, apertura);
        },
        this);
    mDesk->riprendi(QSettings());
    mUi->verticale->addWidget(mDesk, 1);
    aggiungiSchede(*mDesk, opzioni, [this](const QString& testo) { mostraMessaggio(testo); });
    mDesk->azioni().riempiElenco(mUi->menuElenco);
    mDesk->azioni().riempiCaso(mUi->menuCaso);
    mAiuto.riempi(mUi->menuFile, mUi->menuAiuto);
    mDesk->setFocus();
    restoreGeometry(QSettings().value(voceGeometria).toByteArray());
}

void Finestra::collega()
{
    connect(mUi->azNuova, &QAction::triggered, this,
            [this] { apri(u"Nuova giacenza"_s, [this] { mGiacenza->NuovaGiacenza(); }); });
    connect(mUi->azGestione, &QAction::triggered, this,
            [this] { apri(u"Gestione giacenze"_s, [this] { mGiacenza->ConsultaGiacenza(); }); });
    connect(mUi->azNuovaLdv, &QAction::triggered, this, &Finestra::scriviLdv);
    connect(mDesk->azioni().elenco, &QAction::triggered, mUi->fraLdv, &QWidget::hide);
    connect(mUi->azRiconsegna, &QAction::triggered, this,
            [this] { apriRiconsegna(cGiacenza::ResoDestinatario, u"Riconsegna a destinatario"_s); });
    connect(mUi->azReso, &QAction::triggered, this,
            [this] { apriRiconsegna(cGiacenza::ResoMittente, u"Reso a mittente"_s); });
    connect(mUi->azEsci, &QAction::triggered, this, &QWidget::close);

    connect(mUi->cmdNuovaLdv, &QPushButton::clicked, this, &Finestra::apriPerLdv);
    for (const QLineEdit* campo : {mUi->txtLdv, mUi->txtDataLdv, mUi->txtFiliale, mUi->txtCliente})
        connect(campo, &QLineEdit::returnPressed, this, &Finestra::apriPerLdv);

    connect(mUi->cmdChiudiMessaggio, &QPushButton::clicked, this, &Finestra::nascondiMessaggio);
    connect(mGiacenza.get(), &cGiacenza::fine, this, &Finestra::schermataChiusa);
}

void Finestra::scriviLdv()
{
    // The second time it is what is written there that counts.
    if (mUi->fraLdv->isVisible())
        return apriPerLdv();
    mUi->fraLdv->show();
    mUi->txtLdv->setFocus(Qt::ShortcutFocusReason);
    mUi->txtLdv->selectAll();
}

void Finestra::apri(const QString& schermata, const std::function<void()>& apertura)
{
    nascondiMessaggio();
    // A screen that is given no focus must not open behind this window.
    sopraLeSchermate(false);
    try {
        apertura();
        mUi->statusbar->showMessage(u"%1: schermata aperta."_s.arg(schermata));
        return;
    } catch (const giacenza::ErroreDatabase& errore) {
        mostraMessaggio(spiega(errore));
    } catch (const std::exception& errore) {
        mostraMessaggio(u"La schermata non è stata aperta. %1"_s.arg(QString::fromUtf8(errore.what())));
    }
    sopraLeSchermate(isActiveWindow());
    mUi->statusbar->showMessage(u"%1: schermata non aperta."_s.arg(schermata));
}

void Finestra::apriPerLdv()
{
    const QString numero = mUi->txtLdv->text();
    const QString giorno = dataTypata(*mUi->txtDataLdv);
    const QString filiale = mUi->txtFiliale->text();
    const QString cliente = mUi->txtCliente->text();
    apri(u"Nuova giacenza per la LDV %1"_s.arg(numero),
         [&] { mGiacenza->NuovaGiacenzaEXT(numero, giorno, filiale, cliente); });
}

void Finestra::apriRiconsegna(cGiacenza::Reso tipo, const QString& schermata)
{
    apri(schermata, [this, tipo] {
        mGiacenza->setTipoReso(tipo);
        mGiacenza->MostraRiconsegna();
    });
}

void Finestra::schermataChiusa()
{
    if (mUscitaAnnunciata)
        nascondiMessaggio();
    mUi->statusbar->showMessage(
        u"Schermata chiusa alle %1."_s.arg(QTime::currentTime().toString(u"HH:mm:ss"_s)));
}

void Finestra::mostraMessaggio(const QString& testo)
{
    mUi->lblMessaggio->setText(testo);
    mUi->fraMessaggio->show();
    QAccessibleEvent annuncio(mUi->lblMessaggio, QAccessible::Alert);
    QAccessible::updateAccessibility(&annuncio);
}

void Finestra::nascondiMessaggio()
{
    mUi->fraMessaggio->hide();
    mUscitaAnnunciata = false;
}

void Finestra::sopraLeSchermate(bool sopra)
{
    // Through the native window: the widget's own call would hide it and show it again.
    if (QWindow* nativa = windowHandle())
        nativa->setFlag(Qt::WindowStaysOnTopHint, sopra);
}

void Finestra::vieniAvanti()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    // Not left to the activation, which a window manager may refuse to a window that was not worked in.
    sopraLeSchermate(true);
    raise();
    activateWindow();
}

bool Finestra::event(QEvent* evento)
{
    if (evento->type() == QEvent::WindowActivate) {
        sopraLeSchermate(true);
        raise();
    } else if (evento->type() == QEvent::WindowDeactivate) {
        sopraLeSchermate(false);
    }
    return QMainWindow::event(evento);
}

void Finestra::closeEvent(QCloseEvent* evento)
{
    if (!mUscitaAnnunciata && altreFinestreAperte(this)) {
        mostraMessaggio(u"Ci sono schermate ancora aperte: uscendo si perde ciò che non è salvato. "
                        "Per uscire lo stesso, chiudere di nuovo."_s);
        mUscitaAnnunciata = true;
        evento->ignore();
        vieniAvanti();
        return;
    }
    evento->accept();
    QSettings impostazioni;
    impostazioni.setValue(voceGeometria, saveGeometry());
    mDesk->ricorda(impostazioni);
    // The screens do not keep the program alive, nor do they end it: the host's window does.
    QCoreApplication::quit();
}

} // namespace deposito
