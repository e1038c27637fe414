#include "screens/disposizione.h"

#include "screens/aspetto.h"
#include "screens/misure.h"
#include "widgets/annuncio.h"
#include "widgets/areaforma.h"
#include "widgets/senzaspazi.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScreen>

#include <utility>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

/// What the window system adds around a window, where it cannot tell yet.
constexpr QSize bordiFinestra{4, 32};

/// The numbers that an operator types, or pastes from elsewhere.
constexpr const char* numeriDigitati[] = {"txtCodiceCli", "txtLDV", "txtRiferimento", "txtNGiace",
                                          "txtGiaOld"};

} // namespace

Disposizione::Disposizione(QWidget* schermata) : QObject(schermata), mSchermata(schermata)
{
    if (auto* area = schermata->findChild<AreaForma*>()) {
        area->setColonne(schermata->findChild<QBoxLayout*>(u"layFrame2"_s));
        static const QRegularExpression righe(u"^riga"_s);
        area->setRigheDivisibili(schermata->findChildren<QBoxLayout*>(righe));
    }
    for (const char* nome : numeriDigitati)
        if (auto* campo = schermata->findChild<QLineEdit*>(QLatin1String(nome)))
            togliSpaziUscendo(campo);
    const auto elenchi = schermata->findChildren<QComboBox*>();
    for (const QComboBox* elenco : elenchi)
        if (elenco->isEditable())
            elenco->lineEdit()->setAccessibleName(elenco->accessibleName());
    for (const char* nome : {"lblGiaInGiacenza", "lblClienteLdv"})
        if (auto* insegna = schermata->findChild<QLabel*>(QLatin1String(nome)))
            annunciaComparsa(insegna);
    misuraCampi(schermata);
    schermata->installEventFilter(this);
}

bool Disposizione::eventFilter(QObject*, QEvent* evento)
{
    switch (evento->type()) {
    case QEvent::ApplicationFontChange:
        mCarattereCambiato = true;
        [[fallthrough]];
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::PaletteChange:
    case QEvent::ApplicationPaletteChange:
        // The form's controls hear of it after the form.
        if (!std::exchange(mDaAdattare, true))
            QMetaObject::invokeMethod(this, &Disposizione::adatta, Qt::QueuedConnection);
        break;
    case QEvent::Show:
        if (!evento->spontaneous() && !mMostrata) {
            mMostrata = true;
            misuraCampi(mSchermata);
            adattaFinestra();
        }
        break;
    default:
        break;
    }
    return false;
}

void Disposizione::adatta()
{
    mDaAdattare = false;
    // The application's palette: that of the screen is what its style sheet has made of it.
    const QString aspetto = aspettoSchermata();
    // Controls that a style sheet has polished keep the font of then.
    if (std::exchange(mCarattereCambiato, false))
        mSchermata->setStyleSheet({});
    if (mSchermata->styleSheet() != aspetto)
        mSchermata->setStyleSheet(aspetto);
    misuraCampi(mSchermata);
}

void Disposizione::adattaFinestra()
{
    const QScreen* schermo = mSchermata->screen();
    const QSize massima = schermo->availableSize() - bordiFinestra;
    mSchermata->resize(mSchermata->size().expandedTo(mSchermata->sizeHint()).boundedTo(massima));
}

} // namespace giacenza
