#pragma once

#include <giacenza/Documento.h>

class QPrinter;

namespace giacenza::stampa {

/// Prints a document on the system's default printer. False when the operator gave the print up. Throws
/// Errore when there is no printer, or when it takes no pages.
bool stampaSuCarta(Documento& documento, QWidget* padre);

/// The same on a given printer.
bool stampaSu(QPrinter& stampante, Documento& documento, QWidget* padre);

} // namespace giacenza::stampa
