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

/// name, database, rows, ours, reference, ratio, spread, peak, goal; negative: to the left.
constexpr int larghezze[] = {-22, -8, 9, 10, 10, 7, 7, 8, -12};

double millesimi(double valore)
{
    return std::round(valore * 1000) / 1000;
}

QString cifra(double valore, int decimali)
{
    return QString::number(valore, 'f', decimali);
}

QString inColonna(const QStringList& celle)
{
    QString riga;
    for (qsizetype i = 0; i < celle.size(); ++i)
        riga += u"%1 "_s.arg(celle[i], larghezze[i]);
    return riga;
}

QJsonObject oggetto(const Misura& misura)
{
    const Confronto& confronto = misura.confronto;
    const QString obiettivo = testoObiettivo(confronto.obiettivo);
    const bool senza = obiettivo.isEmpty();
    return {{u"name"_s, confronto.nome},
            {u"database"_s, confronto.database},
            {u"rows"_s, confronto.righe},
            {u"runs"_s, misura.corse},
            {u"ours_ms"_s, millesimi(misura.nostroMs)},
            {u"reference_ms"_s, millesimi(misura.riferimentoMs)},
            {u"ratio"_s, millesimi(misura.rapporto)},
            {u"spread"_s, millesimi(misura.dispersione)},
            {u"peak_mb"_s, millesimi(misura.piccoMb)},
            {u"reference_peak_mb"_s, millesimi(misura.piccoRiferimentoMb)},
            {u"goal"_s, senza ? QJsonValue() : QJsonValue(obiettivo)},
            {u"met"_s, senza ? QJsonValue() : QJsonValue(misura.raggiunto())}};
}

} // namespace

QString testoObiettivo(const Obiettivo& obiettivo)
{
    QStringList parti;
    if (obiettivo.rapporto > 0)
        parti += u"%1x"_s.arg(obiettivo.rapporto);
    if (obiettivo.inPiu > 0)
        parti += u"+%1 ms"_s.arg(obiettivo.inPiu);
    if (obiettivo.picco > 0)
        parti += u"%1 MB"_s.arg(obiettivo.picco);
    if (obiettivo.piccoInPiu > 0)
        parti += u"+%1 MB"_s.arg(obiettivo.piccoInPiu);
    return parti.join(u' ');
}

QString testata()
{
    return inColonna({u"name"_s, u"database"_s, u"rows"_s, u"ours ms"_s, u"ref. ms"_s, u"ratio"_s,
                      u"spread"_s, u"peak MB"_s, u"goal"_s}) +
           u"met\n"_s;
}

QString riga(const Misura& misura)
{
    const Confronto& confronto = misura.confronto;
    const QString obiettivo = testoObiettivo(confronto.obiettivo);
    return inColonna({confronto.nome, confronto.database, QString::number(confronto.righe),
                      cifra(misura.nostroMs, 2), cifra(misura.riferimentoMs, 2), cifra(misura.rapporto, 3),
                      cifra(misura.dispersione, 2), cifra(misura.piccoMb, 1), obiettivo}) +
           (obiettivo.isEmpty()  ? u"   \n"_s
            : misura.raggiunto() ? u"yes\n"_s
                                 : u"NO \n"_s);
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
