#pragma once

#include "desk/dati/regole.h"

#include <Qt>

#include <vector>

namespace giacenza::desk {

/// A column of the list.
struct ColonnaCasi
{
    QString titolo;
    QString spiegazione; ///< what it holds, for whoever rests on its title
    QString misura;      ///< the widest text that it is to show whole
    Qt::Alignment allineamento = Qt::AlignLeft | Qt::AlignVCenter;
    QString (*testo)(const RigaCaso& riga) = nullptr;
    bool (*prima)(const RigaCaso& una, const RigaCaso& altra) = nullptr; ///< the ascending order
};

/// All of them, from left to right.
const std::vector<ColonnaCasi>& colonneCasi();

/// By position.
inline constexpr int colonnaStato = 0;
inline constexpr int colonnaFranchi = 8;
inline constexpr int colonnaEuro = 9;

/// Amounts, weights and counts for the operator, in Italian.
QString euro(qint64 centesimi);
QString chili(qint64 centesimi);
QString conteggio(qint64 numero);

} // namespace giacenza::desk
