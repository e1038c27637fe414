#pragma once

#include "benchmarks/quadro/misura.h"

#include <QStringList>

#include <vector>

using namespace Qt::StringLiterals;

namespace banco {

/// What was asked for on the command line.
struct Opzioni
{
    QStringList nomi;          ///< empty: all
    std::vector<qint64> righe; ///< empty: as each topic says
    Corse corse{9, 100};
    bool svelto = false; ///< small databases, few pairs
    QString cartella;    ///< where databases are kept
    QString mariadb;     ///< connection string of an administrator, without a DATABASE
    QString relazione;   ///< the file to write
    QString precedente;  ///< the report of an earlier run to compare with; empty: none
    std::vector<QString> basi{u"sqlite"_s, u"mariadb"_s};

    /// The sizes to measure at. tutte: the topic's own.
    std::vector<qint64> misure(const std::vector<qint64>& tutte) const;
};

/// Throws giacenza::Errore, with a text in English, for what is not understood.
Opzioni leggiOpzioni(const QStringList& argomenti);

} // namespace banco
