// The letterhead logo.

#include "fuzz/fuzz.h"

#include "reports/engine/logo.h"

#include <giacenza/Errore.h>

using namespace giacenza;
using namespace giacenza::fuzz;
using namespace Qt::StringLiterals;

int LLVMFuzzerTestOneInput(const std::uint8_t* byte, std::size_t quanti)
{
    static const FileDiProva file(u"logo.gif"_s);
    file.scrivi(Pezzi(byte, quanti).resto());
    try {
        const QImage logo = report::leggiLogo(file.nome());
        vale(logo.isNull() || (logo.width() <= 1400 && logo.height() <= 1400), "no larger than paper needs");
        vale(logo.isNull() || !logo.hasAlphaChannel(), "opaque");
    } catch (const Errore&) {
        return 0;
    }
    return 0;
}
