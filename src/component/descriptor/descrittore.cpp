#include "component/descriptor/descrittore.h"

#include "base/filelimitato.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QSaveFile>
#include <QStandardPaths>
#include <QVersionNumber>

#include <dlfcn.h>
#include <link.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

const QString sottocartella = u"/giacenza/classi"_s;

[[noreturn]] void rifiuta(const QString& file, const QString& motivo)
{
    throw ErroreDescrittore(ErroreDescrittore::malfatto,
                            u"Il descrittore \"%1\" non è in ordine: %2. Registrare di nuovo la classe con "
                            "giacenza-registra."_s.arg(file, motivo));
}

/// Whoever writes a descriptor says which code a program loads.
void controllaPadrone(const QString& file, const struct stat& stato)
{
    if ((stato.st_mode & S_IWOTH) != 0)
        rifiuta(file, u"chiunque può scriverlo"_s);
    if (stato.st_uid != 0 && stato.st_uid != ::geteuid())
        rifiuta(file, u"è di un altro utente"_s);
    // The administrator says who is in the groups of the files that are root's.
    if (stato.st_uid != 0 && (stato.st_mode & S_IWGRP) != 0)
        rifiuta(file, u"il suo gruppo può scriverlo"_s);
}

QString testo(const QJsonObject& oggetto, const QString& chiave, const QString& file)
{
    const QJsonValue valore = oggetto.value(chiave);
    if (!valore.isString() || valore.toString().isEmpty() || valore.toString().contains(QChar(u'\0')))
        rifiuta(file, u"manca \"%1\""_s.arg(chiave));
    return valore.toString();
}

QJsonObject oggetto(const QByteArray& byte, const QString& file)
{
    QJsonParseError errore;
    const QJsonDocument documento = QJsonDocument::fromJson(byte, &errore);
    if (!documento.isObject())
        rifiuta(file, errore.error == QJsonParseError::NoError
                          ? u"non è un oggetto JSON"_s
                          : u"non è JSON (byte %1)"_s.arg(errore.offset));
    return documento.object();
}

QVersionNumber numeroVersione(const QString& versione)
{
    static const QRegularExpression forma(u"^[0-9]{1,5}\\.[0-9]{1,5}\\.[0-9]{1,5}\\z"_s);
    return forma.match(versione).hasMatch() ? QVersionNumber::fromString(versione) : QVersionNumber();
}

Descrittore letto(const QByteArray& byte, const QString& file, const QString& classe)
{
    Descrittore descrittore{
        .file = file, .classe = {}, .libreria = {}, .versione = {}, .contenuto = oggetto(byte, file)};
    descrittore.classe = testo(descrittore.contenuto, u"classe"_s, file);
    descrittore.libreria = testo(descrittore.contenuto, u"libreria"_s, file);
    descrittore.versione = testo(descrittore.contenuto, u"versione"_s, file);
    if (descrittore.classe.compare(classe, Qt::CaseInsensitive) != 0)
        rifiuta(file, u"è della classe \"%1\""_s.arg(descrittore.classe));
    if (!QDir::isAbsolutePath(descrittore.libreria))
        rifiuta(file, u"il percorso della libreria non è assoluto"_s);
    if (numeroVersione(descrittore.versione).isNull())
        rifiuta(file, u"la versione \"%1\" non è una versione"_s.arg(descrittore.versione));
    return descrittore;
}

std::optional<QByteArray> byteDelDescrittore(const QString& file)
{
    try {
        return leggiFileLimitato(file, limiteDescrittore,
                                 [&](const struct stat& aperto) { controllaPadrone(file, aperto); });
    } catch (const ErroreDescrittore&) {
        throw;
    } catch (const Errore& errore) {
        throw ErroreDescrittore(ErroreDescrittore::malfatto, errore.testo());
    }
}

[[noreturn]] void nonScritto(const QString& file, const QString& motivo)
{
    throw ErroreDescrittore(ErroreDescrittore::scrittura,
                            u"Il descrittore \"%1\" non è stato scritto: %2."_s.arg(file, motivo));
}

/// The file of the library or of the program that this code is in; empty when it is not known.
QString questoFile()
{
    Dl_info dove = {};
    void* mappa = nullptr;
    if (::dladdr1(reinterpret_cast<const void*>(&cartelleDescrittori), &dove, &mappa, RTLD_DL_LINKMAP) == 0)
        return {};
    // The linker knows a program by no name of its own.
    const QString nome = QFile::decodeName(static_cast<const link_map*>(mappa)->l_name);
    return QFileInfo(nome.isEmpty() ? u"/proc/self/exe"_s : nome).canonicalFilePath();
}

/// The data folder of the installation that this code lies in.
QString datiInstallati()
{
    const QString cartella = QFileInfo(questoFile()).path();
    for (const char* dove : {GIACENZA_DOVE_LIBRERIE, GIACENZA_DOVE_PROGRAMMI}) {
        const QString coda = u'/' + QString::fromUtf8(dove);
        if (cartella.endsWith(coda))
            return cartella.chopped(coda.size()) + QStringLiteral("/" GIACENZA_DOVE_DATI);
    }
    return QStringLiteral(GIACENZA_CARTELLA_DATI);
}

} // namespace

QString cartellaUtente()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + sottocartella;
}

QString cartellaSistema()
{
    return qEnvironmentVariable("DESTDIR") + datiInstallati() + sottocartella;
}

QStringList cartelleDescrittori()
{
    QStringList cartelle;
    for (const QString& dati : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
        cartelle << dati + sottocartella;
    cartelle << datiInstallati() + sottocartella;
    cartelle.removeDuplicates();
    return cartelle;
}

QString fileDescrittore(const QString& cartella, const QString& classe)
{
    // A name becomes a file's: nothing that leads elsewhere.
    static const QRegularExpression forma(
        u"^[A-Za-z][A-Za-z0-9_]{0,60}(\\.[A-Za-z][A-Za-z0-9_]{0,60})*\\z"_s);
    if (classe.size() > 120 || !forma.match(classe).hasMatch())
        throw ErroreDescrittore(ErroreDescrittore::malfatto,
                                u"\"%1\" non è il nome di una classe."_s.arg(classe.left(120)));
    return cartella + u'/' + classe.toLower() + u".json"_s;
}

std::optional<Descrittore> leggiDescrittore(const QString& cartella, const QString& classe)
{
    const QString file = fileDescrittore(cartella, classe);
    const std::optional<QByteArray> byte = byteDelDescrittore(file);
    if (byte)
        return letto(*byte, file, classe);
    if (QFileInfo(file).isSymLink())
        rifiuta(file, u"è un collegamento a un file che non c'è"_s);
    return {};
}

std::optional<Descrittore> cercaDescrittore(const QStringList& cartelle, const QString& classe)
{
    for (const QString& cartella : cartelle)
        if (auto descrittore = leggiDescrittore(cartella, classe))
            return descrittore;
    return {};
}

Descrittore scriviDescrittore(const QString& cartella, const QByteArray& descrizione, const QString& libreria)
{
    QJsonObject contenuto = QJsonDocument::fromJson(descrizione).object();
    contenuto.insert(u"libreria"_s, libreria);
    const QByteArray byte = QJsonDocument(contenuto).toJson();
    const QString classe = contenuto.value(u"classe"_s).toString();
    const QString percorso = fileDescrittore(cartella, classe);
    // What would be refused when read is not written.
    Descrittore descrittore = letto(byte, percorso, classe);
    if (!QDir().mkpath(cartella))
        nonScritto(percorso, u"la cartella non si crea"_s);
    QSaveFile file(percorso);
    if (!file.open(QIODevice::WriteOnly) || file.write(byte) != byte.size() ||
        !file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadGroup |
                             QFileDevice::ReadOther) ||
        !file.flush() || !file.commit()) // commit() overlooks what fails when the buffer is emptied
        nonScritto(percorso, file.errorString());
    return descrittore;
}

bool stessaMaggiore(const QString& una, const QString& altra)
{
    const QVersionNumber prima = numeroVersione(una);
    const QVersionNumber seconda = numeroVersione(altra);
    return !prima.isNull() && !seconda.isNull() && prima.majorVersion() == seconda.majorVersion();
}

} // namespace giacenza
