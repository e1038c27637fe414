#pragma once

#include <giacenza/Documento.h>

namespace giacenza::stampa {

/// Shows a document in a window, modal over padre, from which it can be printed; returns when it is closed.
/// padre: may be null, and may be destroyed meanwhile.
void mostraAnteprima(Documento& documento, QWidget* padre);

} // namespace giacenza::stampa
