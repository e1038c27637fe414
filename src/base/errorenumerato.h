#pragma once

#include <giacenza/Errore.h>

namespace giacenza {

/// An error raised on purpose, told apart by its number: 512 for a goods type that cannot be added, 513 and
/// up for those of the searches.
class GIACENZA_EXPORT ErroreNumerato : public Errore
{
public:
    ErroreNumerato(int numero, const QString& testo) : Errore(testo), mNumero(numero) {}

    int numero() const noexcept { return mNumero; }

private:
    int mNumero;
};

} // namespace giacenza
