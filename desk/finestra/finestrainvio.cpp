#include "desk/finestra/finestrainvio.h"

#include "base/orologio.h"
#include "database/valori.h"
#include "desk/finestra/aspettodesk.h"
#include "desk/finestra/sordoaicodici.h"
#include "desk/finestra/tabelladesk.h"
#include "widgets/annuncio.h"
#include "widgets/misuraricordata.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSet>
#include <QShortcut>
#include <QStandardItemModel>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza::desk {

namespace {

constexpr int colonnaEsito = 3;

QString avvisi(qint64 quanti, Lavoro lavoro)
{
    if (lavoro == Lavoro::ristampa)
        return quanti == 1 ? u"1 ristampa"_s : u"%1 ristampe"_s.arg(quanti);
    return quanti == 1 ? u"1 avviso"_s : u"%1 avvisi"_s.arg(quanti);
}

QString gia(const Caso& caso)
{
    if (caso.avvisi.isEmpty())
        return u"nessuno"_s;
    return caso.ultimoAvviso.isValid()
               ? u"%1, l'ultimo il %2"_s.arg(caso.avvisi, dataBreve(caso.ultimoAvviso))
               : caso.avvisi;
}

QStandardItem* cella(const QString& testo)
{
    auto* nuova = new QStandardItem(testo);
    nuova->setEditable(false);
    nuova->setToolTip(testo);
    return nuova;
}

} // namespace

FinestraInvio::FinestraInvio(Lavoro lavoro, std::vector<Caso> casi, const Accesso& accesso, QWidget* padre)
    : QDialog(padre), mLavoro(lavoro), mCasi(std::move(casi)), mEmittente(accesso), mTesto(new QLabel(this)),
      mTabella(new TabellaDesk(u"Casi e loro esito"_s, this)), mModello(new QStandardItemModel(this)),
      mRiga(new QLabel(this)), mBarra(new QProgressBar(this)), mEmetti(new QPushButton(this)),
      mChiudi(new QPushButton(u"Annulla"_s, this))
{
    setObjectName(u"frmInvio"_s);
    setWindowTitle(lavoro == Lavoro::avviso ? u"Avvisi di giacenza"_s : u"Ristampa degli avvisi"_s);
    vesti(this);
    componi();
    anteprima();
    new SordoAiCodici(this);
    connect(mTabella->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &FinestraInvio::diciRiga);
    connect(mModello, &QStandardItemModel::itemChanged, this, &FinestraInvio::diciRiga);
    diciRiga();
    connect(mEmetti, &QPushButton::clicked, this, &FinestraInvio::avvia);
    for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Enter})
        connect(new QShortcut(Qt::CTRL | tasto, this), &QShortcut::activated, mEmetti, &QPushButton::click);
    connect(mChiudi, &QPushButton::clicked, this, &FinestraInvio::reject);
}

void FinestraInvio::componi()
{
    mTesto->setObjectName(u"lblInvio"_s);
    mTesto->setWordWrap(true);
    mTabella->setObjectName(u"tabInvio"_s);
    mTabella->setSelectionMode(QAbstractItemView::SingleSelection);
    mTabella->setModel(mModello);
    mRiga->setObjectName(u"lblRiga"_s);
    mRiga->setTextFormat(Qt::PlainText);
    mRiga->setWordWrap(true);
    mRiga->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    mRiga->setFocusPolicy(Qt::StrongFocus);
    mBarra->setObjectName(u"barInvio"_s);
    mBarra->setAccessibleName(u"Avanzamento"_s);
    mBarra->hide();
    mEmetti->setObjectName(u"cmdEmetti"_s);
    mEmetti->setAutoDefault(false);
    mEmetti->setFocusPolicy(Qt::NoFocus); // a scan may hold blanks too
    mChiudi->setObjectName(u"cmdChiudi"_s);
    mChiudi->setAutoDefault(false);
    auto* sotto = new QHBoxLayout;
    sotto->addWidget(mBarra, 1);
    sotto->addStretch(1);
    sotto->addWidget(mEmetti);
    sotto->addWidget(mChiudi);
    auto* verticale = new QVBoxLayout(this);
    verticale->addWidget(mTesto);
    verticale->addWidget(mTabella, 1);
    verticale->addWidget(mRiga);
    verticale->addLayout(sotto);
    const int carattere = fontMetrics().averageCharWidth();
    constexpr int colonne = 115;
    constexpr int righe = 18;
    resize(carattere * colonne, fontMetrics().height() * righe);
    setMinimumSize(0, 0);
    ricordaMisura(*this, u"avvisi"_s);
}

void FinestraInvio::anteprima()
{
    mModello->setHorizontalHeaderLabels(
        {u"Giacenza"_s, u"A chi"_s, u"Avvisi già emessi"_s, u"Che cosa si fa"_s});
    QSet<QString> clienti;
    qint64 daFare = 0;
    for (const Caso& caso : mCasi) {
        const auto fuori = lasciatoFuori(caso, mLavoro, oggi());
        mFuori.push_back(fuori.has_value());
        if (!fuori) {
            ++daFare;
            clienti.insert(caso.cliente);
        }
        const QString che = fuori                         ? u"lasciata fuori: "_s + *fuori
                            : mLavoro == Lavoro::ristampa ? u"si ristampa"_s
                                                          : u"si conta e si stampa"_s;
        mModello->appendRow({cella(nomeGiacenza(caso.chiave)),
                             cella(caso.ragioneSociale.isEmpty() ? caso.cliente : caso.ragioneSociale),
                             cella(gia(caso)), cella(che)});
    }
    mTabella->setMisure(
        {u"99999/2026"_s, u"Carpenteria Leggera di Ponente S.p.A."_s, u"12, l'ultimo il 00/00/0000"_s});
    mTabella->setCurrentIndex(mModello->index(0, 0));
    const qint64 fuori = std::count(mFuori.begin(), mFuori.end(), true);
    QString testo = u"%1 a %2."_s.arg(
        avvisi(daFare, mLavoro), clienti.size() == 1 ? u"1 cliente"_s : u"%1 clienti"_s.arg(clienti.size()));
    if (mLavoro == Lavoro::avviso)
        testo += u" Le descrizioni restano come sono."_s;
    if (fuori > 0)
        testo += fuori == 1 ? u" Una giacenza già avvisata oggi resta fuori."_s
                            : u" %1 giacenze già avvisate oggi restano fuori."_s.arg(fuori);
    mTesto->setText(daFare == 0 ? u"Non c'è nessun avviso da emettere: oggi sono già stati emessi."_s
                                : testo);
    mEmetti->setText(mLavoro == Lavoro::avviso ? u"&Emetti (Ctrl+Invio)"_s : u"Ristam&pa (Ctrl+Invio)"_s);
    mEmetti->setEnabled(daFare > 0);
    mTabella->setFocus();
}

void FinestraInvio::avvia()
{
    if (std::exchange(mCominciato, true))
        return;
    mInCorso = true;
    mEmetti->hide();
    mChiudi->setText(u"&Interrompi"_s);
    mBarra->setRange(0, static_cast<int>(mCasi.size()));
    mBarra->show();
    mModello->setHeaderData(colonnaEsito, Qt::Horizontal, u"Esito"_s);
    QTimer::singleShot(0, this, &FinestraInvio::prossimo);
}

/// One case; the loop runs between one and the next, so that the window answers.
void FinestraInvio::prossimo()
{
    while (mProssimo < mCasi.size() && mFuori[mProssimo]) {
        ++mConti[static_cast<int>(Esito::lasciato)];
        ++mProssimo;
    }
    mBarra->setValue(static_cast<int>(mProssimo));
    if (mInterrotto || mSenzaArchivio || mProssimo == mCasi.size())
        return finito();
    const std::size_t questo = mProssimo++;
    const EsitoCaso esito = mEmittente.svolgi(mLavoro, mCasi[questo], this);
    ++mConti[static_cast<int>(esito.esito)];
    scriviEsito(questo, esito.parole, esito.esito);
    mSenzaArchivio = esito.senzaArchivio;
    QTimer::singleShot(0, this, &FinestraInvio::prossimo);
}

void FinestraInvio::scriviEsito(std::size_t quale, const QString& parole, Esito esito)
{
    const auto segno = [esito] {
        switch (esito) {
        case Esito::fatto:
            return u"✓ "_s;
        case Esito::lasciato:
            return u"– lasciata fuori: "_s;
        case Esito::rifiutato:
            return u"✗ rifiutata: "_s;
        case Esito::incompleto:
        case Esito::ignoto:
            break;
        }
        return u"⚠ "_s;
    };
    QStandardItem* dove = mModello->item(static_cast<int>(quale), colonnaEsito);
    dove->setText(segno() + parole);
    dove->setToolTip(dove->text());
    if (esito != Esito::fatto && esito != Esito::lasciato) {
        dove->setForeground(coloreAllarme());
        if (mPrimoGuasto < 0)
            mPrimoGuasto = dove->row();
    }
    mTabella->scrollTo(dove->index());
}

/// The current row's outcome whole: a column is too narrow for a reason.
void FinestraInvio::diciRiga()
{
    const int riga = mTabella->currentIndex().row();
    if (riga < 0)
        return;
    const QString nome = mModello->item(riga, 0)->text();
    const QString esito = mModello->item(riga, colonnaEsito)->text();
    mRiga->setText(u"%1: %2"_s.arg(nome, esito));
    mRiga->setAccessibleName(u"Giacenza %1: %2"_s.arg(nome, esito));
}

QString FinestraInvio::riepilogo() const
{
    const auto quanti = [this](Esito esito) { return mConti[static_cast<int>(esito)]; };
    QStringList parti{mLavoro == Lavoro::avviso ? avvisi(quanti(Esito::fatto), mLavoro) + u" prodotti"_s
                                                : avvisi(quanti(Esito::fatto), mLavoro)};
    if (quanti(Esito::fatto) == 1 && mLavoro == Lavoro::avviso)
        parti[0] = u"1 avviso prodotto"_s;
    const auto aggiungi = [&parti](int numero, const QString& uno, const QString& piu) {
        if (numero > 0)
            parti << (numero == 1 ? uno : piu.arg(numero));
    };
    aggiungi(quanti(Esito::lasciato), u"1 lasciato fuori"_s, u"%1 lasciati fuori"_s);
    aggiungi(quanti(Esito::rifiutato), u"1 rifiutato"_s, u"%1 rifiutati"_s);
    aggiungi(quanti(Esito::incompleto), u"1 contato e non stampato: ristamparlo con Ctrl+P"_s,
             u"%1 contati e non stampati: ristamparli con Ctrl+P"_s);
    aggiungi(quanti(Esito::ignoto),
             u"1 non si sa se contato: ripeterlo non lo conta due volte; se resta fuori perché avvisato oggi "
             "ristamparlo con Ctrl+P"_s,
             u"%1 non si sa se contati: ripeterli non li conta due volte; quelli lasciati fuori perché "
             "avvisati oggi ristamparli con Ctrl+P"_s);
    const int mancano = mSenzaArchivio || mInterrotto ? static_cast<int>(mCasi.size() - mProssimo) : 0;
    const QString perche = mSenzaArchivio ? u": l'archivio non risponde"_s : u": interrotto"_s;
    aggiungi(mancano, u"1 non cominciato"_s + perche, u"%1 non cominciati"_s + perche);
    return parti.join(u", "_s) + u'.';
}

void FinestraInvio::finito()
{
    for (std::size_t i = mProssimo; i < mCasi.size(); ++i)
        if (!mFuori[i])
            mModello->item(static_cast<int>(i), colonnaEsito)->setText(u"non cominciata"_s);
    mInCorso = false;
    if (mPrimoGuasto >= 0)
        mTabella->setCurrentIndex(mModello->index(mPrimoGuasto, 0));
    mBarra->hide();
    mTesto->setText(riepilogo());
    annuncia(mTesto);
    mChiudi->setText(u"&Chiudi"_s);
    mChiudi->setEnabled(true);
    mTabella->setFocus();
}

void FinestraInvio::reject()
{
    if (!mInCorso)
        return QDialog::reject();
    mInterrotto = true;
    mChiudi->setEnabled(false);
    mChiudi->setText(u"Interrompo…"_s);
}

} // namespace giacenza::desk
