#pragma once

#include "grappolo/verifica.h"

#include <QProcess>
#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <vector>

namespace giacenza::prove {

/// What happens to the archive while the workstations work: at a second, something.
struct Accaduto
{
    double secondo = 0;
    QString che; ///< as it is told
    std::function<void()> fa;
};

/// How many workstations for how many seconds: GIACENZA_POSTAZIONI and GIACENZA_SECONDI of the environment,
/// or else 5 and 15.
int postazioniProva();
int secondiProva();

/// A program of tools/, as far as its end; throws std::runtime_error when it fails.
void attrezzo(const QString& programma, const QStringList& argomenti);

class BancaDati;

/// Fills the archive with the depot and the waybills that the workstations register.
void riempiTurno(const BancaDati& base, int postazioni);

/// All workstations at work, each a process.
class Turno
{
public:
    /// stringa: the connection string of the workstations' user.
    Turno(const QString& stringa, int postazioni, int secondi);
    ~Turno();

    /// Until all have finished. One workstation is killed halfway and begins anew. Throws std::runtime_error
    /// when one ends otherwise than it should.
    void lavora(std::vector<Accaduto> accadimenti);

    /// What all were told.
    QList<Voce> voci() const;

private:
    void avvia(int postazione, int secondi, int primaLdv);
    void spegni(int postazione);

    QTemporaryDir mCartella;
    QString mStringa;
    int mPostazioni;
    int mSecondi;
    std::vector<std::unique_ptr<QProcess>> mProcessi;
    QStringList mGiornali;
};

} // namespace giacenza::prove
