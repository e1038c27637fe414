#pragma once

#include <giacenza/Errore.h>

namespace giacenza {

/// Nobody can say whether what was being written is in the archive; the text says so, and how to see it.
class ErroreEsitoIgnoto : public Errore
{
public:
    using Errore::Errore;
};

} // namespace giacenza
