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

void pausaDopo(int tentativo)
{
    constexpr int passo = 10;
    QThread::msleep(QRandomGenerator::global()->bounded(1U, static_cast<quint32>(passo * tentativo) + 1));
}

} // namespace giacenza
