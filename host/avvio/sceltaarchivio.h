#pragma once

#include <QString>

#include <optional>

class QSettings;

namespace deposito {

/// Where the archive is.
enum class TipoArchivio
{
    dimostrazione, ///< an embedded one with invented data, made on the first day
    file,          ///< an SQLite file
    server         ///< a MariaDB server
};

/// Where the parola d'ordine of a server stays from one start to the next.
enum class CustodiaParola
{
    nessuna,     ///< it is asked for each time
    portachiavi, ///< the system's key store
    inChiaro     ///< in the program's settings, readable by whoever uses this account
};

/// What the operator chose at the first start. The password is not part of it.
struct SceltaArchivio
{
    TipoArchivio tipo = TipoArchivio::dimostrazione;
    QString file;     ///< of SQLite, absolute
    QString server;   ///< host name or address
    int porta = 3306; ///< 1 to 65535
    QString base;     ///< database name
    QString utente{};
    bool tls = false; ///< the connection is encrypted, and refused when it is not
    QString
        certificato{}; ///< file of the authority that signed the server's certificate; empty: not verified
    CustodiaParola custodia = CustodiaParola::nessuna;

    bool operator==(const SceltaArchivio&) const = default;
};

/// Why a choice cannot be used as it stands, in Italian; empty when it can.
QString mancanza(const SceltaArchivio& scelta);

/// The ODBC connection string of a choice that lacks nothing. parola: of the server's user.
QString stringaOdbc(const SceltaArchivio& scelta, const QString& parola);

/// The name under which a key store keeps the password of a choice: one for each user of each base.
QString nomeParola(const SceltaArchivio& scelta);

/// The file of the embedded demonstration, in the user's data folder.
QString fileDimostrazione();

/// What was remembered, nothing when nothing was or when it cannot be used.
std::optional<SceltaArchivio> sceltaRicordata(QSettings& impostazioni);
void ricordaScelta(QSettings& impostazioni, const SceltaArchivio& scelta);

} // namespace deposito
