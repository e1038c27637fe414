#pragma once

#include "base/orologio.h"

#include <QDateTime>
#include <QFile>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

inline void scriviOrologio(const QString& testo)
{
    QFile file(qEnvironmentVariable("FAKETIME_TIMESTAMP_FILE"));
    if (!file.open(QIODevice::WriteOnly) || file.write(testo.toLatin1() + '\n') < 0)
        throw std::runtime_error("the clock cannot be set: the test runs by ctest, with libfaketime");
}

/// The clock of the machine, for this process alone: everything that asks for the time is given another, but
/// for the clock that only runs on, which no user can set.
///
/// ora: "yyyy-MM-dd HH:mm:ss", at which the clock stands from now on. Throws where the program does not run
/// with the library that gives it.
inline void segna(const QString& ora)
{
    scriviOrologio(ora);
    if (QDateTime::currentDateTime().toString(u"yyyy-MM-dd HH:mm:ss"_s) != ora)
        throw std::runtime_error("the clock does not stand where it was set: libfaketime is not at work");
}

/// The clock runs, so many seconds before the machine's, or behind it.
inline void sposta(int secondi)
{
    scriviOrologio(QString::number(secondi).prepend(secondi < 0 ? u""_s : u"+"_s));
}

} // namespace giacenza::prove
