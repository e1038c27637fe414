#pragma once

#include "component/binding/oggetti.h"

#include <QString>

namespace giacenza {

/// An object of a class that is registered, made by the library that its descriptor names. Throws
/// ErroreConfine.
std::unique_ptr<Oggetto> oggettoDellaClasse(const QString& classe);

} // namespace giacenza
