#pragma once

#include <giacenza/ParteEsterna.h>

namespace giacenza {

/// The settings-file reader, class name "LettoreIni.cLettore". The component has one of its own, which serves
/// where a host registers no other.
class GIACENZA_EXPORT LettoreIni : public ParteEsterna
{
public:
    /// The value of a key as text, empty when the file, the section or the key is absent.
    ///
    /// percorsoFile: as the host gave it; both "\" and "/" separate folders.
    /// sezione, chiave: compared without case.
    virtual QString leggi(const QString& percorsoFile, const QString& sezione, const QString& chiave) = 0;
};

/// The class name under which a reader is asked for.
inline constexpr char16_t classeLettoreIni[] = u"LettoreIni.cLettore";

} // namespace giacenza
