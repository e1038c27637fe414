#include "widgets/attesa.h"

#include <QCursor>
#include <QGuiApplication>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

const QString parole = u"Attendo l'archivio…"_s;

} // namespace

Attesa::Attesa(QLabel* riga)
    : mMostrata(qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr), mRiga(riga)
{
    if (mMostrata)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    if (!mRiga)
        return;
    mPrima = mRiga->text();
    mRiga->setText(parole);
    mRiga->repaint();
}

Attesa::~Attesa()
{
    if (mMostrata)
        QGuiApplication::restoreOverrideCursor();
    if (!mRiga)
        return;
    if (mRiga->text() == parole)
        mRiga->setText(mPrima);
    mRiga->repaint();
}

} // namespace giacenza
