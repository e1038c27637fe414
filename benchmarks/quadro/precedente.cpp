#include "benchmarks/quadro/precedente.h"

#include <giacenza/Errore.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace banco {

namespace {

double caso(double dispersione, int corse)
{
    return 2 * dispersione / std::sqrt(static_cast<double>(corse));
}

bool piuLenta(const Precedente& prima, const Misura& ora)
{
    constexpr double decimo = 0.1;
    const double margine =
        std::max({decimo, caso(prima.dispersione, prima.corse), caso(ora.dispersione, ora.corse)});
    return ora.rapporto > prima.rapporto * (1 + margine);
}

} // namespace

std::vector<Precedente> leggiPrecedenti(const QString& percorso)
{
    QFile file(percorso);
    if (!file.open(QIODevice::ReadOnly))
        throw giacenza::Errore(u"%1: %2"_s.arg(percorso, file.errorString()));
    QJsonParseError errore;
    const QJsonDocument documento = QJsonDocument::fromJson(file.readAll(), &errore);
    if (!documento.isArray())
        throw giacenza::Errore(u"%1 is no report: %2"_s.arg(percorso, errore.errorString()));
    std::vector<Precedente> precedenti;
    const QJsonArray elenco = documento.array();
    for (const QJsonValue& valore : elenco) {
        const QJsonObject oggetto = valore.toObject();
        if (!oggetto.value("ratio"_L1).isDouble() || oggetto.value("runs"_L1).toInt() < 1)
            throw giacenza::Errore(u"%1 is no report: a row without \"ratio\" or \"runs\"."_s.arg(percorso));
        precedenti.push_back({oggetto.value("name"_L1).toString(), oggetto.value("database"_L1).toString(),
                              oggetto.value("rows"_L1).toInteger(), oggetto.value("runs"_L1).toInt(),
                              oggetto.value("ratio"_L1).toDouble(), oggetto.value("spread"_L1).toDouble()});
    }
    return precedenti;
}

QStringList rallentate(const std::vector<Precedente>& precedenti, const std::vector<Misura>& misure)
{
    QStringList righe;
    for (const Misura& ora : misure) {
        const Confronto& questo = ora.confronto;
        const auto prima = std::find_if(precedenti.begin(), precedenti.end(), [&](const Precedente& p) {
            return p.nome == questo.nome && p.database == questo.database && p.righe == questo.righe;
        });
        if (prima != precedenti.end() && piuLenta(*prima, ora))
            righe += u"Slower: %1, %2, %3 rows: %4 times the reference, before %5"_s.arg(
                questo.nome, questo.database, QString::number(questo.righe),
                QString::number(ora.rapporto, 'f', 2), QString::number(prima->rapporto, 'f', 2));
    }
    return righe;
}

} // namespace banco
