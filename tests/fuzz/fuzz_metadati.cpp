// The metadata of a plug-in file. Its class is none that is asked for: what is not ours is never loaded.

#include "fuzz/fuzz.h"

#include "base/moduliparti.h"

using namespace giacenza;
using namespace giacenza::fuzz;
using namespace Qt::StringLiterals;

int LLVMFuzzerTestOneInput(const std::uint8_t* byte, std::size_t quanti)
{
    static const FileDiProva file(u"modulo.so"_s);
    file.scrivi(Pezzi(byte, quanti).resto());
    const ParteProvata provata = parteDalModulo(file.nome(), u"Nessuna.cClasseCheCiSia"_s);
    vale(!provata.parte, "no part comes of it");
    return 0;
}
