#include "desk/finestra/finestradesk.h"

#include "base/impostazioni.h"
#include "base/orologio.h"
#include "base/spiegazioni.h"
#include "data/archivio.h"
#include "desk/dati/impostazionidesk.h"
#include "desk/finestra/aspettodesk.h"
#include "desk/finestra/camposcansione.h"
#include "desk/finestra/colonnescelte.h"
#include "desk/finestra/modellocasi.h"
#include "desk/finestra/paginacaso.h"
#include "desk/finestra/paginaelenco.h"
#include "desk/finestra/paginarisultati.h"
#include "desk/finestra/tabellacasi.h"
#include "widgets/annuncio.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTime>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace giacenza::desk {

namespace {

constexpr int cinqueMinuti = 5 * 60 * 1000;

QString adesso()
{
    return QTime::currentTime().toString(u"HH:mm:ss"_s);
}

} // namespace

FinestraDesk::FinestraDesk(cGiacenza& componente, const Archivio& archivio, Apertura apertura, QWidget* padre)
    : QWidget(padre), mComponente(componente), mArchivioHost(archivio), mApertura(std::move(apertura)),
      mCampo(new CampoScansione(this)), mCerca(new QPushButton(u"&Cerca"_s, this)), mEsito(new QLabel(this)),
      mPagine(new QStackedWidget(this)), mElenco(new PaginaElenco(this)),
      mRisultati(new PaginaRisultati(this)), mCaso(new PaginaCaso(this)), mScadenzario(new Scadenzario(this)),
      mArchivio(new ArchivioDesk(this))
{
    setObjectName(u"desk"_s);
    impostazioni().percorsoDatabase = archivio.database;
    impostazioni().percorsoFileIni = archivio.ini;
    impostazioni().percorsoLogoIntestazione = archivio.logo;
    componi();
    collegaPagine();
    collegaLettura();
    collegaAzioni();
    setIntervallo(cinqueMinuti);
    // Once the window is there: it must not wait for the database.
    QMetaObject::invokeMethod(this, &FinestraDesk::aggiorna, Qt::QueuedConnection);
}

FinestraDesk::~FinestraDesk() = default;

void FinestraDesk::componi()
{
    vesti(this);
    mEsito->setObjectName(u"lblEsito"_s);
    mEsito->setWordWrap(true);
    mEsito->setTextFormat(Qt::PlainText);
    mEsito->hide();
    annunciaComparsa(mEsito);
    mCerca->setObjectName(u"cmdCerca"_s);
    mCerca->setAutoDefault(false);
    connect(mCerca, &QPushButton::clicked, this, [this] { cerca(mCampo->text()); });
    auto* sopra = new QHBoxLayout;
    sopra->addWidget(mCampo, 1);
    sopra->addWidget(mCerca);
    for (QWidget* pagina :
         {static_cast<QWidget*>(mElenco), static_cast<QWidget*>(mRisultati), static_cast<QWidget*>(mCaso)})
        mPagine->addWidget(pagina);
    auto* verticale = new QVBoxLayout(this);
    constexpr int margine = 10;
    verticale->setContentsMargins(margine, margine, margine, margine / 2);
    verticale->addLayout(sopra);
    verticale->addWidget(mEsito);
    verticale->addWidget(mPagine, 1);
    mElenco->tabella()->colonneScelte()->riempi(mAzioni.colonne);
    setFocusProxy(mCampo);
}

void FinestraDesk::collegaPagine()
{
    connect(mCampo, &CampoScansione::chiesto, this, &FinestraDesk::cerca);
    connect(mElenco, &PaginaElenco::filialeScelta, this, [this] {
        mPrimaLettura = true;
        mElenco->modello()->sostituisci({});
        aggiorna();
    });
    connect(mElenco, &PaginaElenco::preso, this,
            [this](const Caso& caso) { apriCaso(SchermataCaso::gestione, u"Gestione giacenze"_s, caso); });
    connect(mCaso, &PaginaCaso::preso, this,
            [this](const Caso& caso) { apriCaso(SchermataCaso::gestione, u"Gestione giacenze"_s, caso); });
    connect(mCaso, &PaginaCaso::documento, this, &FinestraDesk::apriDocumento);
    connect(mRisultati, &PaginaRisultati::scelta, this, &FinestraDesk::scelta);
    connect(mRisultati, &PaginaRisultati::indicata, this,
            [this](const ChiaveGiacenza& chiave) { mArchivio->leggiCaso(sguardo(), chiave); });
    mElenco->tabella()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(mElenco->tabella(), &QWidget::customContextMenuRequested, this, &FinestraDesk::menuCaso);
    connect(&mComponente, &cGiacenza::fine, this, &FinestraDesk::aggiorna);
}

void FinestraDesk::collegaLettura()
{
    connect(mScadenzario, &Scadenzario::arrivate, this, &FinestraDesk::letteAltre);
    connect(mScadenzario, &Scadenzario::finito, this, &FinestraDesk::letturaFinita);
    connect(mScadenzario, &Scadenzario::fallito, this, &FinestraDesk::letturaFallita);
    connect(mArchivio, &ArchivioDesk::filialiLette, this, &FinestraDesk::filialiLette);
    connect(mArchivio, &ArchivioDesk::filialiFallite, this, &FinestraDesk::filialiFallite);
    connect(mArchivio, &ArchivioDesk::trovato, this, &FinestraDesk::trovato);
    connect(mArchivio, &ArchivioDesk::letto, this, &FinestraDesk::letto);
    connect(mArchivio, &ArchivioDesk::casoLetto, mRisultati, &PaginaRisultati::setCaso);
    connect(mArchivio, &ArchivioDesk::sparito, this, [this](const QString& nome) {
        mRilettura = mCercando = false;
        dici(u"La giacenza %1 non c'è più."_s.arg(nome), true);
    });
    connect(mArchivio, &ArchivioDesk::fallito, this, [this](const QString& testo, const QString& dettaglio) {
        mRilettura = mCercando = false;
        dici(testo, true, dettaglio);
    });
    connect(&mTimer, &QTimer::timeout, this, &FinestraDesk::aggiorna);
}

void FinestraDesk::setIntervallo(int millisecondi)
{
    mTimer.start(millisecondi);
}

std::optional<Accesso> FinestraDesk::accesso()
{
    if (mArchivioHost.database.isEmpty())
        return std::nullopt;
    try {
        return accessoHost();
    } catch (const ErroreDatabase& errore) {
        letturaFallita(spiega(errore), errore.testo());
        return std::nullopt;
    }
}

ArchivioDesk::Sguardo FinestraDesk::sguardo()
{
    ArchivioDesk::Sguardo s;
    s.accesso = accesso().value_or(Accesso(QString()));
    s.oggi = oggi();
    s.giorniFerma = leggiImpostazioniDesk().giorniFerma;
    try {
        s.cartelle = cartelleDocumenti();
    } catch (const Errore& errore) {
        dici(spiega(errore), true, errore.testo());
    }
    return s;
}

void FinestraDesk::aggiorna()
{
    const auto con = accesso();
    if (!con)
        return;
    const ImpostazioniDesk lette = leggiImpostazioniDesk();
    if (!lette.guasto.isEmpty())
        dici(lette.guasto, true);
    mLette.clear();
    mElenco->setLettura(u"lettura in corso…"_s);
    mScadenzario->leggi({*con, mElenco->filiale(), oggi(), lette.giorniFerma});
    mArchivio->leggiFiliali(*con);
    rileggi();
}

/// What stands on the screen besides the list; not in the place of what the operator has asked for.
void FinestraDesk::rileggi()
{
    const QWidget* pagina = mPagine->currentWidget();
    if (mCercando || (pagina == mCaso && !mCaso->catena()) || pagina == mElenco)
        return;
    mRilettura = true;
    if (pagina == mCaso)
        mArchivio->leggi(sguardo(), mCaso->catena()->riga.caso.chiave);
    else
        mArchivio->cerca(sguardo(), mRisultati->cercato());
}

void FinestraDesk::letteAltre(std::vector<RigaCaso>& righe)
{
    // A list that stands is replaced in one go: it must not shrink under the operator's eyes.
    if (mPrimaLettura)
        return mElenco->modello()->aggiungi(std::move(righe));
    std::move(righe.begin(), righe.end(), std::back_inserter(mLette));
}

void FinestraDesk::letturaFinita()
{
    if (!std::exchange(mPrimaLettura, false))
        mElenco->modello()->sostituisci(std::exchange(mLette, {}));
    mElenco->letta();
    mLettaAlle = adesso();
    mElenco->setLettura(u"letto alle %1"_s.arg(mLettaAlle));
    if (mEsito->text() == std::exchange(mGuastoElenco, {}))
        dici({});
    if (std::exchange(mFiltroRipreso, false))
        diciFiltroRipreso();
    if (mEsito->text().isEmpty() && !mGuastoFiliali.isEmpty())
        dici(mGuastoFiliali, true, mDettaglioFiliali);
}

void FinestraDesk::letturaFallita(const QString& testo, const QString& dettaglio)
{
    // What a first reading has brought is not the whole: the next one begins anew.
    if (mPrimaLettura)
        mElenco->modello()->sostituisci({});
    mElenco->setLettura(mPrimaLettura ? u"lettura non riuscita alle %1"_s.arg(adesso())
                                      : u"letto alle %1; alle %2 non riuscita"_s.arg(mLettaAlle, adesso()));
    mGuastoElenco = u"L'elenco non si legge. %1"_s.arg(testo);
    dici(mGuastoElenco, true, dettaglio);
}

void FinestraDesk::filialiLette(const std::vector<Filiale>& filiali)
{
    if (mEsito->text() == std::exchange(mGuastoFiliali, {}))
        dici({});
    mElenco->setFiliali(filiali);
}

void FinestraDesk::filialiFallite(const QString& testo, const QString& dettaglio)
{
    mGuastoFiliali = u"Le filiali non si leggono. %1"_s.arg(testo);
    mDettaglioFiliali = dettaglio;
    mElenco->diciGuastoFiliali(mGuastoFiliali, dettaglio);
    // The list that cannot be read, and what the operator waits for, go before.
    if (mGuastoElenco.isEmpty() && !mCercando)
        dici(mGuastoFiliali, true, dettaglio);
}

void FinestraDesk::dici(const QString& testo, bool allarme, const QString& dettaglio)
{
    mEsito->setText(testo);
    mEsito->setToolTip(dettaglio);
    tingi(mEsito, allarme ? coloreAllarme() : QColor());
    mEsito->setVisible(!testo.isEmpty());
    annuncia(mEsito);
}

void FinestraDesk::mostraElenco()
{
    mPagine->setCurrentWidget(mElenco);
    mElenco->tabella()->setFocus();
}

void FinestraDesk::indietro()
{
    dici({});
    if (mPagine->currentWidget() != mElenco)
        return mostraElenco();
    if (mElenco->filtro()->hasFocus())
        mElenco->filtro()->clear();
    else
        mCampo->clear();
}

void FinestraDesk::changeEvent(QEvent* evento)
{
    QWidget::changeEvent(evento);
    // Light or dark: colours that do not come from the palette follow it.
    if (evento->type() == QEvent::PaletteChange && mCaso->catena())
        mCaso->mostra(*mCaso->catena());
}

} // namespace giacenza::desk
