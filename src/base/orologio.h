#pragma once

#include <QDate>

#include <optional>

namespace giacenza {

/// Today, from the one clock of the component.
///
/// The environment variable GIACENZA_OGGI ("yyyy-mm-dd"), read at each call, stands for the machine's date:
/// it lets a host rehearse another day. impostaOggi(), for tests of this process, goes before both.
QDate oggi();
void impostaOggi(std::optional<QDate> giorno);

} // namespace giacenza
