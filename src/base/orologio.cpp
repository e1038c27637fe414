#include "base/orologio.h"

#include <QString>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

std::optional<QDate> giornoImposto;

} // namespace

QDate oggi()
{
    if (giornoImposto)
        return *giornoImposto;
    const QDate provato = QDate::fromString(qEnvironmentVariable("GIACENZA_OGGI"), u"yyyy-MM-dd"_s);
    return provato.isValid() ? provato : QDate::currentDate();
}

void impostaOggi(std::optional<QDate> giorno)
{
    giornoImposto = giorno;
}

} // namespace giacenza
