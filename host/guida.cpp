#include "guida.h"

#include "base/messaggi.h"
#include "host/avvio/assistenza.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QKeyEvent>
#include <QUrl>
#include <QWidget>

#include <utility>

using namespace Qt::StringLiterals;

namespace deposito {

namespace {

const QString giornata = u"la-giornata"_s;

/// By the names of windows and pages.
constexpr std::pair<const char16_t*, const char16_t*> ancore[] = {
    {u"fraLdv", u"registrare-una-giacenza"},
    {u"finestraConto", u"il-conto-della-sosta"},
    {u"finestraEstratti", u"gli-estratti"},
    {u"finestraCaso", u"che-cosa-è-successo"},
    {u"frmArchivio", u"il-primo-avvio"},
    {u"frmImpostazioni", u"le-impostazioni"},
    {u"frmGiacenza", u"registrare-una-giacenza"},
    {u"frmGestGia", u"gestire-una-giacenza"},
    {u"frmRifiuto", u"avviso-ristampa-buon-fine"},
    {u"frmRiconsegna", u"riconsegnare-o-rendere-una-giacenza"},
    {u"frmRicercaGia", u"lelenco-delle-spedizioni"},
};

} // namespace

QString ancoraGuida(const QWidget* dove)
{
    for (; dove; dove = dove->parentWidget())
        for (const auto& [nome, ancora] : ancore)
            if (dove->objectName() == QStringView(nome))
                return QString::fromUtf16(ancora);
    return giornata;
}

QStringList ancoreGuida()
{
    QStringList tutte{giornata};
    for (const auto& voce : ancore)
        tutte << QString::fromUtf16(voce.second);
    return tutte;
}

QString apriGuida(const QString& ancora)
{
    const QString guida = fileGuida();
    if (guida.isEmpty())
        return u"La guida non è installata su questo computer."_s;
    QUrl pagina = QUrl::fromLocalFile(guida);
    pagina.setFragment(ancora);
    if (!QDesktopServices::openUrl(pagina))
        return u"La guida non si apre: manca un programma per leggerla. È in %1"_s.arg(guida);
    return {};
}

TastoGuida::TastoGuida()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool TastoGuida::eventFilter(QObject* oggetto, QEvent* evento)
{
    if (evento->type() != QEvent::KeyPress || !oggetto->isWidgetType())
        return false;
    const auto* tasto = static_cast<const QKeyEvent*>(evento);
    if (tasto->key() != Qt::Key_F1 || tasto->modifiers() != Qt::NoModifier)
        return false;
    auto* dove = qobject_cast<QWidget*>(oggetto);
    if (const QString guasto = apriGuida(ancoraGuida(dove)); !guasto.isEmpty())
        giacenza::mostraMessaggio(dove->window(), {guasto, giacenza::Stile::informazione, u"Guida"_s});
    return true;
}

} // namespace deposito
