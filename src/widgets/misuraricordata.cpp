#include "widgets/misuraricordata.h"

#include <QDialog>
#include <QEvent>
#include <QScreen>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

/// What a window manager puts around a dialog, about.
constexpr QSize cornice(16, 40);

QSize postoPer(const QDialog& finestra)
{
    const QWidget* doveSta = finestra.parentWidget() ? finestra.parentWidget() : &finestra;
    return doveSta->screen()->availableSize() - cornice;
}

/// Belongs to the dialog.
class Ricordo : public QObject
{
public:
    Ricordo(QDialog& finestra, QString voce) : QObject(&finestra), mFinestra(finestra), mVoce(std::move(voce))
    {
        finestra.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override
    {
        if (evento->type() == QEvent::Show && !evento->spontaneous())
            mAllInizio = mFinestra.size();
        // A dialog that gave way to a small screen is not to stay small on a larger one.
        if (evento->type() == QEvent::Hide && !evento->spontaneous() && mFinestra.size() != mAllInizio)
            QSettings().setValue(mVoce, mFinestra.size());
        return QObject::eventFilter(oggetto, evento);
    }

private:
    QDialog& mFinestra;
    QString mVoce;
    QSize mAllInizio;
};

} // namespace

void ricordaMisura(QDialog& finestra, const QString& nome)
{
    const QString voce = u"misure/"_s + nome;
    const QSize ricordata = QSettings().value(voce).toSize();
    finestra.resize((ricordata.isEmpty() ? finestra.size() : ricordata).boundedTo(postoPer(finestra)));
    new Ricordo(finestra, voce);
}

} // namespace giacenza
