#pragma once

#include <giacenza/LettoreIni.h>

namespace giacenza {

/// The component's own settings reader: it reads the file anew at each call. The file is UTF-8, with or
/// without byte-order mark, or Windows-1252; a value keeps every character but the blanks around it; of a key
/// that stands twice the first counts. A file that cannot be read is as an absent one.
class LettoreIniProprio : public LettoreIni
{
public:
    QString leggi(const QString& percorsoFile, const QString& sezione, const QString& chiave) override;
};

} // namespace giacenza
