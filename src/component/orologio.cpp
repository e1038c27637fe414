#include "component/orologio.h"

#include <QString>

namespace giacenza {

namespace {

std::optional<QDate> giornoImposto;

} // namespace

QDate oggi()
{
    if (giornoImposto)
        return *giornoImposto;
    const QDate provato =
        QDate::fromString(qEnvironmentVariable("GIACENZA_OGGI"), QStringLiteral("yyyy-MM-dd"));
    return provato.isValid() ? provato : QDate::currentDate();
}

void impostaOggi(std::optional<QDate> giorno)
{
    giornoImposto = giorno;
}

} // namespace giacenza
