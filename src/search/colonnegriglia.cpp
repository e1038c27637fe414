#include "search/colonnegriglia.h"

#include "search/modelloricerca.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QSettings>
#include <QTableView>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza {

ColonneGriglia::ColonneGriglia(QTableView* griglia, const ModelloRicerca* modello)
    : mGriglia(griglia), mModello(modello)
{
    QHeaderView* testata = griglia->horizontalHeader();
    testata->setSectionsMovable(true);
    // Measuring every row that was read would take longer than reading it.
    testata->setResizeContentsPrecision(0);
}

QString ColonneGriglia::chiave() const
{
    return u"frmRicercaGia/%1/colonne%2"_s.arg(static_cast<int>(mModo)).arg(mModello->columnCount());
}

void ColonneGriglia::disponi(ModoRicerca modo)
{
    if (mModello->columnCount() == 0)
        return;
    QHeaderView* testata = mGriglia->horizontalHeader();
    const bool vuota = mModello->rowCount() == 0;
    if (mDisposte.isEmpty()) {
        mModo = modo;
        mDaMisurare = !testata->restoreState(QSettings().value(chiave()).toByteArray());
    } else if (vuota || !mDaMisurare || testata->saveState() != mDisposte) {
        return;
    }
    if (mDaMisurare)
        misura();
    mDaMisurare = mDaMisurare && vuota;
    for (int colonna = 0; colonna < mModello->columnCount(); ++colonna)
        mGriglia->setColumnHidden(colonna, nascosta(modo, mModello->nomeColonna(colonna)));
    mDisposte = testata->saveState();
}

/// The recipient, the only long text, takes the room that is left.
void ColonneGriglia::misura() const
{
    constexpr int larghezzaMassima = 420;
    QHeaderView* testata = mGriglia->horizontalHeader();
    mGriglia->resizeColumnsToContents();
    // The bar that more rows than fit will bring is not there yet.
    const QWidget* vista = mGriglia->viewport();
    const bool scorre = mModello->rowCount() * mGriglia->rowHeight(0) > vista->height();
    int avanzo = vista->width() - (scorre ? mGriglia->verticalScrollBar()->sizeHint().width() : 0);
    int lunga = -1;
    for (int colonna = 0; colonna < testata->count(); ++colonna) {
        testata->resizeSection(colonna, std::min(testata->sectionSize(colonna), larghezzaMassima));
        const QString& nome = mModello->nomeColonna(colonna);
        if (nascosta(mModo, nome))
            continue;
        avanzo -= testata->sectionSize(colonna);
        if (nome.compare(u"Destinatario"_s, Qt::CaseInsensitive) == 0)
            lunga = colonna;
    }
    if (lunga >= 0 && avanzo > 0)
        testata->resizeSection(lunga, testata->sectionSize(lunga) + avanzo);
}

void ColonneGriglia::ricorda()
{
    const QByteArray adesso = mGriglia->horizontalHeader()->saveState();
    if (!mDisposte.isEmpty() && adesso != mDisposte)
        QSettings().setValue(chiave(), adesso);
    mDisposte.clear();
    mDaMisurare = false;
}

} // namespace giacenza
