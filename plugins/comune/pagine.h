#pragma once

#include <giacenza/Documento.h>

class QPagedPaintDevice;

namespace giacenza::comune {

/// Pages of a document, counted from 0; the last one is not among them.
struct Pagine
{
    int da;
    int a;
};

/// All pages of a document.
Pagine tutte(const Documento& documento);

/// Paints pages one after another, each on a page of its own, on a device that has the document's layout.
///
/// padre: over which the progress is shown, may be null. False when the operator gave the print up. Throws
/// Errore when the device takes no more.
bool dipingiPagine(Documento& documento, Pagine pagine, QPagedPaintDevice& dispositivo, QWidget* padre);

} // namespace giacenza::comune
