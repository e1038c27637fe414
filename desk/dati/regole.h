#pragma once

#include "desk/dati/caso.h"

#include <QHash>

namespace giacenza::desk {

/// What is to be done about a case: the first that fits.
enum class Stato
{
    daAvvisare, ///< nobody was told yet
    inAddebito, ///< a day is charged already
    inScadenza, ///< no more than two free days are left
    ferma,      ///< nothing happened for so many days as the settings say
    inAttesa,
};

/// The state as an operator reads it: "da avvisare", "in addebito", "in scadenza", "ferma", "in attesa".
QString parole(Stato stato);

/// How many free days left make a case one that runs out.
inline constexpr int franchiInScadenza = 2;

/// What follows from a case on one day.
struct Valutazione
{
    Stato stato = Stato::inAttesa;
    std::optional<int> giorni;  ///< of storage; nothing without a held date
    std::optional<int> franchi; ///< free days left; negative: so many days are charged; nothing: unknown
    std::optional<qint64>
        centesimi; ///< fixed fee and storage, as a closure of that day would write them; nothing: unknown
    QString fisso; ///< the two parts, with two decimals and a point
    QString sosta;
    QString senzaImporto; ///< why centesimi is nothing, in few words
};

/// What the terms gave for so many days: many cases share them, and exact arithmetic takes its time.
using ImportiNoti = QHash<QString, Valutazione>;

/// giorniFerma: after so many days without an event a case stands still; 1 or more. The charges are
/// calcolaImporti()'s with the terms of the waybill's customer, the amounts those that are written at the
/// closure.
Valutazione valutazioneDi(const Caso& caso, QDate oggi, int giorniFerma, ImportiNoti* noti = nullptr);

/// The last day on which something happened: held, told, a waybill linked. Days ahead count for nothing.
QDate ultimoEvento(const Caso& caso, QDate oggi);

/// A case with what follows from it, and what the filter looks at.
struct RigaCaso
{
    Caso caso;
    Valutazione valutazione;
    qint64 centesimiKg = 0; ///< its weight in hundredths of a kilogram; 0: unknown
    QString cercabile;      ///< number, waybill, names and reference, folded; a line each
};

/// noti: amounts of the same terms and days that were worked out already; may be null. Of one thread.
RigaCaso rigaDi(Caso caso, QDate oggi, int giorniFerma, ImportiNoti* noti = nullptr);

/// What the filter's words are: folded, all of which must be found.
QStringList paroleFiltro(const QString& filtro);
bool passa(const RigaCaso& riga, const QStringList& parole);

/// What stands under the list.
struct Totali
{
    int casi = 0;
    qint64 colli = 0;
    qint64 centesimiKg = 0; ///< hundredths of a kilogram
    qint64 centesimi = 0;   ///< of a euro
    int senzaImporto = 0;   ///< cases whose euro are unknown, and not among the others
};

void aggiungi(Totali& totali, const RigaCaso& riga);

/// A decimal with two places as hundredths: "12.5" gives 1250; nothing when it is no number, or too large.
std::optional<qint64> inCentesimi(const QString& decimale);
/// Hundredths as an exact decimal with two places: 1250 gives "12.50".
QString daCentesimi(qint64 centesimi);

} // namespace giacenza::desk
