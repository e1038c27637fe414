#pragma once

#include <giacenza/Documento.h>

namespace giacenza {

/// Hands the component's own documents to a print module that wants them; other modules are left alone.
/// Call it right after making the module.
///
/// padre: the window over which questions of a long print and the module's dialogs open; may be null.
void collegaFonte(ModuloStampa& modulo, QWidget* padre);

/// The file that the module connected last has left; empty when it said of none.
QString documentoArchiviato();

} // namespace giacenza
