#pragma once

#include <giacenza/Errore.h>

#include <QJsonObject>
#include <QStringList>

#include <optional>

namespace giacenza {

/// Why a class cannot be had from its descriptor, in Italian, with the file's name and what to do.
class ErroreDescrittore : public Errore
{
public:
    enum Motivo
    {
        malfatto,  ///< the descriptor cannot be read, or is not in order
        libreria,  ///< the library that it names is gone, cannot be loaded or is not this component
        versione,  ///< another version
        scrittura, ///< it could not be written or removed
    };

    ErroreDescrittore(Motivo motivo, const QString& testo) : Errore(testo), mMotivo(motivo) {}
    Motivo motivo() const noexcept { return mMotivo; }

private:
    Motivo mMotivo;
};

/// How a class is registered: a file of its own, JSON, in a data folder.
struct Descrittore
{
    QString file;          ///< where it stands
    QString classe;        ///< "giacenza.cGiacenza"
    QString libreria;      ///< absolute path of the library
    QString versione;      ///< of the library when it was registered, "1.2.3"
    QJsonObject contenuto; ///< all of it
};

/// How large a descriptor may be, in bytes.
inline constexpr qint64 limiteDescrittore = 100'000;

/// The user's folder of descriptors ($XDG_DATA_HOME or ~/.local/share), and the installation's: of the prefix
/// below which the library or the program that this code is in was installed, else the configured one.
/// Neither needs to exist. With the environment variable DESTDIR the installation's stands under that folder.
QString cartellaUtente();
QString cartellaSistema();

/// The folders in which a class is sought, in order: the user's, those of XDG_DATA_DIRS, the installation's.
QStringList cartelleDescrittori();

/// The file of a class in a folder; the class is named in any case. Throws ErroreDescrittore for a name that
/// no class can have.
QString fileDescrittore(const QString& cartella, const QString& classe);

/// Reads the descriptor of a class, nothing when the folder has none. Throws ErroreDescrittore for a file
/// that is not a descriptor of that class, for a link that leads nowhere, and for a file that somebody else
/// than this user and the administrator may write: it belongs to another user, or everybody may write it, or,
/// unless it is the administrator's, its group may. The folder that it stands in is not looked at.
std::optional<Descrittore> leggiDescrittore(const QString& cartella, const QString& classe);
/// The same in the first folder that has one.
std::optional<Descrittore> cercaDescrittore(const QStringList& cartelle, const QString& classe);

/// Writes what a library says of itself (giacenza_descrizione()) and its path as the descriptor of its class,
/// whole or not at all; makes the folder. Returns it. Throws ErroreDescrittore.
Descrittore scriviDescrittore(const QString& cartella, const QByteArray& descrizione,
                              const QString& libreria);

/// Whether two versions have the same major number. False when one is none ("1", "abc").
bool stessaMaggiore(const QString& una, const QString& altra);

} // namespace giacenza
