#pragma once

#include <QDate>
#include <QFile>
#include <QList>
#include <QString>
#include <QStringList>

namespace giacenza::prove {

/// What a workstation does to a case, one for each press of a button; the notice that follows a save is one
/// of its own.
enum class Lavoro
{
    registra,
    avvisa,
    riconsegna,
    chiude,
};
QString nome(Lavoro lavoro);

/// What the screen said of it.
enum class Esito
{
    iniziato,  ///< the button is about to be pressed; stands alone where the workstation was killed meanwhile
    riuscito,  ///< done
    fallito,   ///< not done
    rifiutato, ///< not done, since a rule forbids it: the waybill is held already, the case is closed
    ignoto,    ///< nobody knows
};
QString nome(Esito esito);

/// One line of a workstation's journal.
struct Voce
{
    int postazione = 0;
    int passo =
        0; ///< of the workstation, from 1; the line of the beginning and that of the end have the same
    Lavoro lavoro = Lavoro::registra;
    Esito esito = Esito::iniziato;
    qint64 millisecondi = 0; ///< from the press until the operator can go on
    QString orario;          ///< of the press
    QString ldv;             ///< number of the waybill, all of branch MI and of one year
    QString giacenza;        ///< number of the held shipment; empty where the screen named none
    QDate giorno;            ///< on which it was done, as the program sees it
    QString nuovaLdv;        ///< number of the waybill that was issued
    bool contato = false;    ///< the notice was counted, not only printed
    QStringList messaggi;    ///< boxes that were shown
    QString stato;           ///< the status line afterwards, and what its tool tip adds
};

/// Whether a race with another workstation was told as a failure: a deadlock, a certification, a taken
/// number, a lock.
bool perGara(const Voce& voce);

/// What a workstation was told, line by line, on the disk before it does anything else.
class Giornale
{
public:
    /// Throws std::runtime_error when the file cannot be written; so does scrivi().
    explicit Giornale(const QString& percorso);
    void scrivi(const Voce& voce);

private:
    QFile mFile;
};

/// The lines of a journal; a last one that was cut off is left out. Throws std::runtime_error.
QList<Voce> leggiGiornale(const QString& percorso);

} // namespace giacenza::prove
