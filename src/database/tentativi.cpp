#include "database/tentativi.h"

#include <QRandomGenerator>
#include <QThread>

using namespace Qt::StringLiterals;

namespace giacenza {

bool perConcorrenza(const ErroreDatabase& errore)
{
    constexpr int stalloMariadb = 1213;
    return errore.sqlstate() == u"40001"_s || errore.codiceNativo() == stalloMariadb;
}

bool perDoppione(const ErroreDatabase& errore)
{
    constexpr int vincoloSqlite = 19; // its driver gives no SQLSTATE for it
    return errore.sqlstate() == u"23000"_s || errore.codiceNativo() == vincoloSqlite;
}

bool perAttesaVana(const ErroreDatabase& errore)
{
    return errore.codiceNativo() == codiceAttesaVana && errore.sqlstate() == u"40001"_s;
}

void pausaDopo(int tentativo, const ErroreDatabase& errore)
{
    if (perAttesaVana(errore)) {
        constexpr unsigned long pausaPerIlGruppo = 250;
        QThread::msleep(pausaPerIlGruppo);
        return;
    }
    constexpr int passo = 10;
    const auto massimo = static_cast<quint32>(passo * tentativo * tentativo);
    QThread::msleep(QRandomGenerator::global()->bounded(1U, massimo + 1));
}

} // namespace giacenza
