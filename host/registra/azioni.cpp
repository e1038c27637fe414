#include "azioni.h"

#include "component/descriptor/libreria.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <optional>

using namespace Qt::StringLiterals;
using giacenza::Descrittore;
using giacenza::ErroreDescrittore;
using giacenza::Libreria;

namespace registra {

namespace {

const QString classe = QStringLiteral(GIACENZA_CLASSE);

/// The folder to write to or to remove from.
QString cartella(Chi chi)
{
    return chi == Chi::sistema ? giacenza::cartellaSistema() : giacenza::cartellaUtente();
}

/// Where the descriptor that is meant is sought: when nobody is named, where a program would.
QStringList cartelle(Chi chi)
{
    return chi == Chi::nonDetto ? giacenza::cartelleDescrittori() : QStringList(cartella(chi));
}

Codice nonRegistrata(const QStringList& cercata)
{
    lamenta(u"La classe \"%1\" non è registrata. Cercata in: %2."_s.arg(classe, cercata.join(u", "_s)));
    return Codice::nonRegistrata;
}

Codice scrivi(const Richiesta& richiesta)
{
    const QString quale = richiesta.libreria.isEmpty() ? QStringLiteral(REGISTRA_LIBRERIA)
                                                       : QFileInfo(richiesta.libreria).absoluteFilePath();
    const Libreria libreria(quale);
    // In a package that is being made, the library is registered where it will lie.
    QString percorso = libreria.percorso();
    const QString radice = qEnvironmentVariable("DESTDIR");
    if (!radice.isEmpty() && percorso.startsWith(QDir::cleanPath(radice) + u'/'))
        percorso.remove(0, QDir::cleanPath(radice).size());
    const Descrittore scritto =
        giacenza::scriviDescrittore(cartella(richiesta.chi), libreria.descrizione(), percorso);
    dice(u"Registrata la classe \"%1\", versione %2.\nLibreria: %3\nDescrittore: %4"_s.arg(
        scritto.classe, scritto.versione, scritto.libreria, scritto.file));
    return Codice::fatto;
}

QString scritto(const QJsonObject& membro)
{
    QStringList argomenti;
    for (const QJsonValue& valore : membro.value(u"argomenti"_s).toArray())
        argomenti << valore.toObject().value(u"nome"_s).toString();
    return u"  %1  %2 %3(%4)"_s.arg(membro.value(u"id"_s).toString(),
                                    membro.value(u"modo"_s).toString().leftJustified(6),
                                    membro.value(u"nome"_s).toString(), argomenti.join(u", "_s));
}

Codice mostra(const Descrittore& descrittore)
{
    const QJsonObject& tutto = descrittore.contenuto;
    dice(u"Classe: %1\nIdentificativo: %2\nVersione: %3\nLibreria: %4\nDescrittore: %5\nMembri:"_s.arg(
        descrittore.classe, tutto.value(u"idClasse"_s).toString(), descrittore.versione, descrittore.libreria,
        descrittore.file));
    for (const QJsonValue& membro : tutto.value(u"membri"_s).toArray())
        dice(scritto(membro.toObject()));
    return Codice::fatto;
}

Codice verifica(const Descrittore& descrittore)
{
    giacenza::controllaFile(descrittore);
    const Libreria libreria(descrittore.libreria);
    libreria.controllaVersione(descrittore);
    QJsonObject detto = QJsonDocument::fromJson(libreria.descrizione()).object();
    detto.insert(u"libreria"_s, descrittore.libreria);
    if (detto != descrittore.contenuto) {
        const QString versioni =
            descrittore.versione == libreria.versione()
                ? u" (stessa versione, altro contenuto)"_s
                : u" (versioni %1 e %2)"_s.arg(descrittore.versione, libreria.versione());
        lamenta(u"Il descrittore \"%1\" non dice ciò che dice la libreria \"%2\"%3. Registrare di nuovo la "
                "classe con giacenza-registra."_s.arg(descrittore.file, descrittore.libreria, versioni));
        return Codice::altraVersione;
    }
    dice(u"In ordine: classe \"%1\", versione %2, libreria %3."_s.arg(
        descrittore.classe, descrittore.versione, descrittore.libreria));
    return Codice::fatto;
}

/// Whatever stands in its place: one that is not in order too.
Codice togli(Chi chi)
{
    const QString file = giacenza::fileDescrittore(cartella(chi), classe);
    const QFileInfo cosa(file);
    if (!cosa.exists() && !cosa.isSymLink())
        return nonRegistrata({cartella(chi)});
    QFile descrittore(file);
    if (!descrittore.remove())
        throw ErroreDescrittore(
            ErroreDescrittore::scrittura,
            u"Il descrittore \"%1\" non è stato tolto: %2."_s.arg(file, descrittore.errorString()));
    dice(u"Tolta la registrazione della classe \"%1\": %2"_s.arg(classe, file));
    return Codice::fatto;
}

} // namespace

Codice esegui(const Richiesta& richiesta)
{
    if (richiesta.azione == Azione::scrivi)
        return scrivi(richiesta);
    if (richiesta.azione == Azione::togli)
        return togli(richiesta.chi);
    const QStringList dove = cartelle(richiesta.chi);
    const auto descrittore = giacenza::cercaDescrittore(dove, classe);
    if (!descrittore)
        return nonRegistrata(dove);
    return richiesta.azione == Azione::mostra ? mostra(*descrittore) : verifica(*descrittore);
}

} // namespace registra
