#pragma once

#include <QStringList>

#include <map>

namespace giacenza {
class Connessione;
}

namespace giacenza::prove {

/// A row by its columns in lower case; a decimal without idle zeros, null as "NULL".
using Riga = std::map<QString, QString>;
/// The rows of a table by their key.
using Tabella = std::map<QString, Riga>;

/// All rows of a table; the values of the key's columns are joined by "/". Throws ErroreDatabase.
Tabella leggiTabella(Connessione& connessione, const QString& nome, const QStringList& chiave);

/// Fails, naming quando, unless a table holds the expected rows and no other.
void confronta(const Tabella& trovata, const Tabella& attesa, const char* quando);

} // namespace giacenza::prove
