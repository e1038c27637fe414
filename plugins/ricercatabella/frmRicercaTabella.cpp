#include "frmRicercaTabella.h"

#include "righetabella.h"
#include "ui_frmRicercaTabella.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QSortFilterProxyModel>

using namespace Qt::StringLiterals;

frmRicercaTabella::frmRicercaTabella(std::unique_ptr<RigheTabella> righe, const QString& titolo,
                                     QWidget* parent)
    : QDialog(parent), mUi(std::make_unique<Ui::frmRicercaTabella>()), mRighe(std::move(righe)),
      mFiltrate(new QSortFilterProxyModel(this))
{
    mUi->setupUi(this);
    setWindowTitle(titolo);
    mFiltrate->setSourceModel(mRighe.get());
    mFiltrate->setFilterKeyColumn(-1);
    mFiltrate->setFilterCaseSensitivity(Qt::CaseInsensitive);
    mUi->griglia->setModel(mFiltrate);
    mUi->griglia->resizeColumnsToContents();
    collega();
    segnaPrima();
    aggiornaStato();
}

// The view is a child and goes after the rows would: it must not look at them any more.
frmRicercaTabella::~frmRicercaTabella()
{
    mUi->griglia->setModel(nullptr);
}

void frmRicercaTabella::collega()
{
    connect(mUi->txtFiltro, &QLineEdit::textChanged, this, &frmRicercaTabella::filtra);
    connect(mUi->cmdSeleziona, &QPushButton::clicked, this, &frmRicercaTabella::prendi);
    connect(mUi->cmdAnnulla, &QPushButton::clicked, this, &QDialog::reject);
    connect(mUi->griglia, &QTableView::doubleClicked, this, &frmRicercaTabella::prendi);
    connect(mRighe.get(), &RigheTabella::interrotta, this, [this](const QString& motivo) {
        mInterruzione = motivo;
        aggiornaStato();
    });
    mUi->txtFiltro->installEventFilter(this);
    mUi->griglia->installEventFilter(this);
}

void frmRicercaTabella::filtra(const QString& testo)
{
    if (!testo.isEmpty()) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        mRighe->leggiTutto();
        QGuiApplication::restoreOverrideCursor();
    }
    mFiltrate->setFilterFixedString(testo);
    segnaPrima();
    aggiornaStato();
}

void frmRicercaTabella::segnaPrima()
{
    mUi->griglia->setCurrentIndex(mFiltrate->index(0, 0));
}

void frmRicercaTabella::aggiornaStato()
{
    const bool vuota = mFiltrate->rowCount() == 0;
    mUi->cmdSeleziona->setEnabled(!vuota);
    mUi->lblStato->setToolTip(mInterruzione);
    if (!mInterruzione.isEmpty())
        mUi->lblStato->setText(u"La lettura si è interrotta: restano le righe già lette."_s);
    else if (vuota)
        mUi->lblStato->setText(mUi->txtFiltro->text().isEmpty()
                                   ? u"L'elenco è vuoto."_s
                                   : u"Nessuna riga contiene il testo scritto."_s);
    else
        mUi->lblStato->clear();
}

void frmRicercaTabella::prendi()
{
    const QModelIndex corrente = mUi->griglia->currentIndex();
    if (!corrente.isValid())
        return;
    mScelta = mRighe->valori(mFiltrate->mapToSource(corrente).row());
    accept();
}

/// The keys go where they act, wherever the focus is: arrows move in the list, letters narrow it.
bool frmRicercaTabella::eventFilter(QObject* oggetto, QEvent* evento)
{
    if (evento->type() != QEvent::KeyPress)
        return QDialog::eventFilter(oggetto, evento);
    auto* tasto = static_cast<QKeyEvent*>(evento);
    switch (tasto->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        prendi();
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        if (oggetto == mUi->griglia)
            break;
        QCoreApplication::sendEvent(mUi->griglia, evento);
        return true;
    default:
        if (oggetto != mUi->griglia || tasto->text().isEmpty() || !tasto->text().at(0).isPrint() ||
            (tasto->modifiers() & (Qt::ControlModifier | Qt::AltModifier)))
            break;
        mUi->txtFiltro->setFocus();
        mUi->txtFiltro->end(false);
        QCoreApplication::sendEvent(mUi->txtFiltro, evento);
        return true;
    }
    return QDialog::eventFilter(oggetto, evento);
}
