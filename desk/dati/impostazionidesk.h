#pragma once

#include <QString>

#include <optional>

namespace giacenza::desk {

/// What the settings file says of the desk, section "Desk".
struct ImpostazioniDesk
{
    /// GiorniFerma: after so many days without an event a case stands still.
    int giorniFerma = 7;
    /// What the file says and cannot be used, in Italian; empty: all is well.
    QString guasto{};
};

/// The most days that GiorniFerma may say.
inline constexpr int giorniFermaMassimi = 3650;

/// GiorniFerma as it is written: digits alone, from 1 to giorniFermaMassimi; nothing for anything else.
std::optional<int> leggiGiorniFerma(const QString& scritto);

/// Reads them anew; what is missing or cannot be used has its default.
ImpostazioniDesk leggiImpostazioniDesk();

} // namespace giacenza::desk
