#pragma once

#include "database/valori.h"

#include <QDate>

#include <utility>
#include <vector>

namespace giacenza {
class Connessione;
}

namespace giacenza::report {

/// One row of a report: columns by name, without case; of two with one name the first wins.
class RigaReport
{
public:
    void aggiungi(const QString& colonna, const Valore& valore) { mValori.emplace_back(colonna, valore); }

    /// Nothing for null and for a column that the row does not have: a waybill may be missing.
    Valore valore(const QString& colonna) const;
    /// The same as text, empty for null.
    QString testo(const QString& colonna) const { return valore(colonna).value_or(QString()); }

private:
    std::vector<std::pair<QString, Valore>> mValori;
};

/// What a format sees: the field's value, the row, the database for what must be looked up, and the day on
/// which the report is made: it asks no clock.
struct Contesto
{
    Valore valore;
    const RigaReport& riga;
    Connessione& connessione;
    QDate oggi;
};

} // namespace giacenza::report
