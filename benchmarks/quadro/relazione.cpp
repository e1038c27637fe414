#include "benchmarks/quadro/relazione.h"

#include <giacenza/Errore.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include <cmath>

using namespace Qt::StringLiterals;

namespace banco {

namespace {

const QString modello = u"%1 %2 %3 %4 %5 %6 %7 %8 %9\n"_s;
constexpr int larghezzaNome = -22;

double millesimi(double valore)
{
    return std::round(valore * 1000) / 1000;
}

QString cifra(double valore, int decimali, int larghezza)
{
    return u"%1"_s.arg(valore, larghezza, 'f', decimali);
}

QJsonObject oggetto(const Misura& misura)
{
    const Confronto& confronto = misura.confronto;
    return {{u"name"_s, confronto.nome},
            {u"database"_s, confronto.database},
            {u"rows"_s, confronto.righe},
            {u"runs"_s, misura.corse},
            {u"ours_ms"_s, millesimi(misura.nostroMs)},
            {u"reference_ms"_s, millesimi(misura.riferimentoMs)},
            {u"ratio"_s, millesimi(misura.rapporto)},
            {u"goal"_s, confronto.obiettivo > 0 ? QJsonValue(confronto.obiettivo) : QJsonValue()},
            {u"peak_mb"_s, millesimi(misura.piccoMb)},
            {u"reference_peak_mb"_s, millesimi(misura.piccoRiferimentoMb)}};
}

} // namespace

QString testata()
{
    return modello.arg(u"name"_s, larghezzaNome)
        .arg(u"database"_s, -8)
        .arg(u"rows"_s, 9)
        .arg(u"ours ms"_s, 10)
        .arg(u"ref. ms"_s, 10)
        .arg(u"ratio"_s, 6)
        .arg(u"goal"_s, 6)
        .arg(u"peak MB"_s, 8)
        .arg(u"ref. MB"_s, 8);
}

QString riga(const Misura& misura)
{
    const Confronto& confronto = misura.confronto;
    const bool obiettivo = confronto.obiettivo > 0;
    return modello.arg(confronto.nome, larghezzaNome)
        .arg(confronto.database, -8)
        .arg(confronto.righe, 9)
        .arg(cifra(misura.nostroMs, 2, 10), cifra(misura.riferimentoMs, 2, 10), cifra(misura.rapporto, 2, 6),
             obiettivo ? cifra(confronto.obiettivo, 2, 6) : QString(6, u' '), cifra(misura.piccoMb, 1, 8),
             cifra(misura.piccoRiferimentoMb, 1, 8));
}

void scriviRelazione(const QString& percorso, const std::vector<Misura>& misure)
{
    QJsonArray elenco;
    for (const Misura& misura : misure)
        elenco.append(oggetto(misura));
    QSaveFile file(percorso);
    const QByteArray testo = QJsonDocument(elenco).toJson();
    if (!file.open(QIODevice::WriteOnly) || file.write(testo) != testo.size() || !file.commit())
        throw giacenza::Errore(u"%1: %2"_s.arg(percorso, file.errorString()));
}

} // namespace banco
