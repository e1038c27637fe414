#pragma once

#include <giacenza/giacenza.h>

#include <QVariant>

namespace giacenza {

/// A text of the program's. Throws ErroreConfine when it is not UTF-8. nome: how the header calls it.
QString testoDato(const char* testo, const char* nome);

/// The arguments of a call as they are, none converted. Throws ErroreConfine.
QVariantList argomentiDati(const giacenza_valore* argomenti, int32_t numero);

/// Fills a result with what a member returned; a text becomes the program's, to be freed by liberaValore().
/// Throws ErroreConfine for a text that C cannot hold, std::bad_alloc without memory.
void riempi(giacenza_valore& risultato, const QVariant& valore);
/// The same with a copy of a text.
void riempi(giacenza_valore& risultato, const char* testo);

void liberaValore(giacenza_valore& valore) noexcept;

} // namespace giacenza
