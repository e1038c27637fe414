#pragma once

#include <QString>

namespace giacenza {

/// The QApplication of a program that has none of its own; the functions of giacenza.h tell the rest.
void avviaInterfaccia(const QString& programma);
void elaboraEventi(int millisecondi);
void chiudiInterfaccia();

} // namespace giacenza
