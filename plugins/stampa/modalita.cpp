#include "stampa/modalita.h"

using namespace Qt::StringLiterals;

namespace giacenza::stampa {

std::optional<Modalita> leggiModalita(const QString& testo)
{
    const QString nome = testo.trimmed().toLower();
    if (nome.isEmpty() || nome == u"pdf"_s)
        return Modalita::pdf;
    if (nome == u"anteprima"_s)
        return Modalita::anteprima;
    if (nome == u"stampante"_s)
        return Modalita::stampante;
    return std::nullopt;
}

} // namespace giacenza::stampa
