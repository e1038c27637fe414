// The connection string, up to the driver, which is not called.

#include "fuzz/fuzz.h"

#include "base/impostazioni.h"
#include "data/archivio.h"
#include "database/sessione.h"
#include "host/avvio/assistenza.h"

using namespace giacenza;
using namespace giacenza::fuzz;
using namespace Qt::StringLiterals;

namespace {

/// The password of a string that has one must not be seen.
void nasconde(const QString& prima, const QString& dopo)
{
    const QString parola = u"X7k9Segreta"_s;
    if (prima.contains(u'{') || prima.contains(u'}') || prima.contains(parola) || dopo.contains(parola))
        return;
    for (const QString& voce : {u"PWD"_s, u"pwd "_s, u"Password"_s}) {
        const QString detta = deposito::senzaParola(prima + u';' + voce + u'=' + parola + u';' + dopo);
        vale(!detta.contains(parola), "the password is not shown");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* byte, std::size_t quanti)
{
    Pezzi pezzi(byte, quanti);
    const QString stringa = pezzi.testo();
    const QString dopo = pezzi.testo();
    impostazioni().percorsoDatabase = stringa;
    try {
        vale(accessoHost().stringa == stringa, "the driver gets it as it is");
    } catch (const ErroreDatabase& errore) {
        vale(errore.sqlstate() == u"08001"_s, "only a file that is not there is refused");
    }
    const QString limitata = odbc::conLimiti(stringa, {});
    vale(limitata.contains(stringa), "the limits stand around it");
    const QString senza = deposito::senzaParola(stringa);
    vale(deposito::senzaParola(senza) == senza, "the password is taken out once");
    nasconde(stringa, dopo);
    return 0;
}
