#pragma once

#include <QDialog>
#include <QPointer>

#include <memory>
#include <type_traits>

namespace giacenza {

/// Shows a dialog modal and gives what is read of it once it has closed; a value-initialised result when it
/// went together with its parent, which may be destroyed while the dialog is open.
///
///     auto dialogo = std::make_unique<frmCalendario>(finestra);
///     dialogo->setDataAttuale(giorno);
///     const auto scelto = eseguiModale(std::move(dialogo), [](const frmCalendario& d) { return
///     d.DataAttuale(); });
template<class Dialogo, class Leggi>
auto eseguiModale(std::unique_ptr<Dialogo> dialogo, Leggi leggi) -> std::invoke_result_t<Leggi, Dialogo&>
{
    const QPointer<Dialogo> aperto = dialogo.release();
    aperto->exec();
    if (!aperto)
        return {};
    const std::unique_ptr<Dialogo> nostro(aperto);
    return leggi(*nostro);
}

} // namespace giacenza
