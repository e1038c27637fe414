#include "base/parti.h"

#include "base/moduliparti.h"

#include <mutex>
#include <optional>
#include <unordered_map>
#include <unordered_set>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

struct Registro
{
    std::mutex serratura;
    std::unordered_map<QString, FabbricaParte> fabbriche;
    std::unordered_set<QString> senzaModulo; ///< see ricerca()
};

Registro& registro()
{
    static Registro unico;
    return unico;
}

QString chiave(const QString& nomeClasse)
{
    return nomeClasse.toCaseFolded();
}

std::optional<FabbricaParte> fabbricaRegistrata(const QString& nomeClasse)
{
    Registro& tutte = registro();
    const std::lock_guard guardia(tutte.serratura);
    const auto trovata = tutte.fabbriche.find(chiave(nomeClasse));
    if (trovata == tutte.fabbriche.end())
        return {};
    return trovata->second;
}

QString motivoNonCreata(const QString& nomeClasse, const QStringList& cause)
{
    QString motivo = u"Impossibile creare la classe %1."_s.arg(nomeClasse);
    for (const QString& causa : cause)
        motivo += u'\n' + causa;
    return motivo;
}

ParteCreata dallaFabbrica(const QString& nomeClasse, const FabbricaParte& fabbrica)
{
    ParteProvata provata = provaACreare(fabbrica);
    if (provata.parte)
        return {std::move(provata.parte), {}};
    return {nullptr, motivoNonCreata(nomeClasse, {u"Registrata dal programma: %1."_s.arg(provata.causa)})};
}

/// One search through the plug-in files, as a text: the class and the folders.
QString ricerca(const QString& nomeClasse, const QStringList& cartelle)
{
    return chiave(nomeClasse) + u'\n' + cartelle.join(u'\n');
}

bool siSaCheManca(const QString& ricercaFatta)
{
    Registro& tutte = registro();
    const std::lock_guard guardia(tutte.serratura);
    return tutte.senzaModulo.contains(ricercaFatta);
}

void ricordaCheManca(const QString& ricercaFatta)
{
    Registro& tutte = registro();
    const std::lock_guard guardia(tutte.serratura);
    tutte.senzaModulo.insert(ricercaFatta);
}

/// Asks the plug-in files one by one; cause gets a line of each that should have served, or cannot be read.
std::unique_ptr<ParteEsterna> daiModuli(const QString& nomeClasse, const QStringList& cartelle,
                                        QStringList& cause)
{
    for (const QString& modulo : fileModuli(cartelle)) {
        ParteProvata provata = parteDalModulo(modulo, nomeClasse);
        if (provata.parte)
            return std::move(provata.parte);
        if (!provata.causa.isEmpty())
            cause.append(u"%1: %2."_s.arg(modulo, provata.causa));
    }
    return nullptr;
}

} // namespace

void registraParte(const QString& nomeClasse, FabbricaParte fabbrica)
{
    Registro& tutte = registro();
    const std::lock_guard guardia(tutte.serratura);
    if (fabbrica)
        tutte.fabbriche.insert_or_assign(chiave(nomeClasse), std::move(fabbrica));
    else
        tutte.fabbriche.erase(chiave(nomeClasse));
}

ParteCreata creaParte(const QString& nomeClasse)
{
    if (const std::optional<FabbricaParte> registrata = fabbricaRegistrata(nomeClasse))
        return dallaFabbrica(nomeClasse, *registrata);

    const QStringList cartelle = cartelleParti();
    QStringList cause;
    if (std::unique_ptr<ParteEsterna> parte = daiModuli(nomeClasse, cartelle, cause))
        return {std::move(parte), {}};
    cause.append(u"Cercata in: %1."_s.arg(cartelle.join(u", "_s)));
    return {nullptr, motivoNonCreata(nomeClasse, cause)};
}

std::unique_ptr<ParteEsterna> creaParteFacoltativa(const QString& nomeClasse)
{
    if (const std::optional<FabbricaParte> registrata = fabbricaRegistrata(nomeClasse))
        return dallaFabbrica(nomeClasse, *registrata).parte;

    const QStringList cartelle = cartelleParti();
    const QString questa = ricerca(nomeClasse, cartelle);
    if (siSaCheManca(questa))
        return nullptr;
    QStringList cause;
    std::unique_ptr<ParteEsterna> parte = daiModuli(nomeClasse, cartelle, cause);
    if (!parte && cause.isEmpty())
        ricordaCheManca(questa);
    return parte;
}

} // namespace giacenza
