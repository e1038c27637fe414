#pragma once

#include <giacenza/LettoreIni.h>

#include <QStringList>

namespace giacenza {

/// The component's own settings reader: it reads the file anew at each call. The file is UTF-8, with or
/// without byte-order mark, or Windows-1252; a value keeps every character but the blanks around it; of a key
/// that stands twice the first counts. A file that is there and cannot be read, is none or is larger than
/// limiteImpostazioni raises an Errore that says so: it must not pass for one without the key.
class LettoreIniProprio : public LettoreIni
{
public:
    QString leggi(const QString& percorsoFile, const QString& sezione, const QString& chiave) override;
    /// The values of several keys of one section, of which the file is read once.
    static QStringList leggi(const QString& percorsoFile, const QString& sezione, const QStringList& chiavi);
    /// The same of what such a file holds, or is to hold.
    static QStringList daContenuto(const QByteArray& contenuto, const QString& sezione,
                                   const QStringList& chiavi);
};

} // namespace giacenza
