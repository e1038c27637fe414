#include "emissione/emittente.h"

#include "support/bancadati.h"
#include "support/ldvdiprova.h"
#include "support/spedizioni.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

#include <QTemporaryDir>

using namespace giacenza;
using namespace giacenza::prove;
using namespace giacenza::emissione;
using namespace Qt::StringLiterals;

namespace {

/// The issuer linked into the test, so that the test can break what it works on.
class Emittente : public testing::TestWithParam<std::string>
{
protected:
    Emittente()
    {
        riempiDeposito(mBase);
        mConnessione = mBase.connessione();
    }

    BancaDati mBase{GetParam()};
    Connessione mConnessione;
};

INSTANTIATE_TEST_SUITE_P(Basi, Emittente, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(Emittente, CioCheSiRompeDopoLEmissioneDiceIlNumero)
{
    // Not one of the component's own errors, and after the commit: the waybill is there all the same.
    const QTemporaryDir cartella;
    EmittenteDeposito emittente([](EventoDati evento, const QString& testo) {
        if (evento == EventoDati::istruzione && testo.startsWith(u"SELECT letve00f.*"_s))
            throw std::runtime_error("memoria finita");
    });
    QStringList racconti;
    Contesto contesto = contestoDiProva();
    contesto.numeroGiacenza.clear();
    contesto.racconta = [&](const Racconto& racconto) { racconti << racconto.testo; };
    emittente.setContesto(contesto);
    emittente.setPercorsoDatabase(mBase.stringa());
    emittente.setCartellaStampa(cartella.path());
    emittente.setStampa(true);
    emittente.setDefinitiva(true);
    EXPECT_EQ(emittente.emetti(LdvDiProva(mConnessione, u"4711"_s)),
              u"Emessa la lettera di vettura 4716/2026, non stampata."_s);
    EXPECT_EQ(racconti, QStringList{u"La lettera di vettura 4716/2026 è stata emessa, ma non è stata "
                                    "stampata.\n\nmemoria finita"_s});
    EXPECT_EQ(mBase.leggi(u"select count(*) from letve00f where ledtlv='2026-11-21'"_s), u"1"_s);
}

} // namespace
