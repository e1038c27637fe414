#pragma once

class QSettings;

namespace giacenza::desk {

class PaginaElenco;

/// Writes down how the user left the list: its columns, its order, its branch and its filter.
void scriviMemoria(QSettings& impostazioni, const PaginaElenco& elenco);

/// Leaves the list so again. What the settings do not hold, or hold damaged, stays as it is.
void leggiMemoria(const QSettings& impostazioni, PaginaElenco& elenco);

} // namespace giacenza::desk
