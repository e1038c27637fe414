#pragma once

#include "database/recordset.h"

#include <QDateTime>

namespace giacenza::registro {

/// Where the desk knows an event from.
enum class Fonte
{
    registro, ///< the register: it says when and who
    nota,     ///< a clerk wrote it
    dedotto,  ///< the depot's tables show it: a day, and nobody's name
};

/// Something that happened to a case.
struct Evento
{
    Fonte fonte = Fonte::dedotto;
    QDateTime quando; ///< local time; midnight for what is known by its day
    QString chi;      ///< the session's user, or a note's author; empty for what was deduced
    QString fatto;    ///< the register's word for it: "registrata", "avvisata"…; "nota" for a note
    QString che;      ///< one line in Italian: "Avviso n. 2"
    QString testo;    ///< the rest, several lines; may be empty
    QString ldv;      ///< number of the waybill, where one is part of it
    QString valore;   ///< what the event set: number of the notice, day of the closure
};

/// A row of eventiRegistro(). Throws ErroreDatabase.
Evento eventoDelRegistro(const Recordset& riga);

/// A row of noteRegistro(). Throws ErroreDatabase.
Evento eventoDiNota(const Recordset& riga);

/// An instant as the register has it, in universal time, as local time; invalid for what is none.
QDateTime istanteLocale(const QString& istante);

/// "12/11/2026 10:31", and the day alone for what was deduced.
QString quandoEsteso(const Evento& evento);

} // namespace giacenza::registro
