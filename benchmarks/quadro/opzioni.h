#pragma once

#include <QStringList>

#include <vector>

using namespace Qt::StringLiterals;

namespace banco {

/// What was asked for on the command line.
struct Opzioni
{
    QStringList temi;          ///< empty: all
    std::vector<qint64> righe; ///< empty: as each topic says
    int corse = 9;             ///< for each figure
    QString cartella;          ///< where databases are kept
    QString mariadb;           ///< connection string of an administrator, without a DATABASE
    QString relazione;         ///< the file to write
    std::vector<QString> basi{u"sqlite"_s, u"mariadb"_s};
};

/// Throws giacenza::Errore, with a text in English, for what is not understood.
Opzioni leggiOpzioni(const QStringList& argomenti);

} // namespace banco
