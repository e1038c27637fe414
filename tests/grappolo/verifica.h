#pragma once

#include "grappolo/giornale.h"

#include <QHash>
#include <QMap>

namespace giacenza {
class Connessione;
}

namespace giacenza::prove {

struct RigaGiacenza
{
    QString filiale;
    QString ldv;
    QString annoLdv;
    QString numero;
    QString anno;
    QString avvisi;
    QString ultimoAvviso;
    QString chiusa;
};

struct RigaLdv
{
    QString filiale;
    QString numero;
    QString anno;
    QString riconsegna;
    QString giacenza;
    QString annoGiacenza;
};

/// What an archive holds of the cases, read on one connection.
struct Fotografia
{
    QList<RigaGiacenza> giacenze;
    QList<RigaLdv> ldv;
};

/// Throws ErroreDatabase.
Fotografia fotografa(Connessione& connessione);

/// What is wrong in an archive by itself, a sentence each: a number or a waybill held twice, a row without
/// its link.
QStringList difetti(const Fotografia& archivio);

/// What an archive has otherwise than the workstations were told, a sentence each: something acknowledged
/// that is not there exactly once, something that is there though it was told as not done, something refused
/// for a race.
QStringList smentite(const Fotografia& archivio, const QList<Voce>& voci);

/// The table of what was done, and how it ended: a line for each work, and the longest wait.
QString riassunto(const QList<Voce>& voci);

/// The kinds of failures, as they were told, with how often and the work; digits replaced, so that equal ones
/// meet.
QString guasti(const QList<Voce>& voci);

} // namespace giacenza::prove
