#include "benchmarks/chiave/casi.h"
#include "benchmarks/quadro/temi.h"

using namespace Qt::StringLiterals;

namespace banco {

namespace {

std::vector<Confronto> avvio(const Basi& basi, const Opzioni& opzioni)
{
    constexpr qint64 righe = 10'000;
    std::vector<Confronto> confronti;
    for (const QString& tipo : opzioni.basi) {
        const QString stringa = deposito(basi, tipo, righe).stringa;
        confronti.push_back({u"start"_s,
                             tipo,
                             righe,
                             {u"misura-avvio"_s, {}, stringa},
                             {u"riferimento-avvio"_s, {}, stringa},
                             {.rapporto = 1.2}});
    }
    return confronti;
}

} // namespace

std::vector<Tema> temiAvvio()
{
    return {{u"start"_s, avvio}};
}

} // namespace banco
