// The re-delivery screen and the waybill issuer on a disk that is full, or read-only.

#include "dintorni/pocospazio.h"
#include "emissione/emittente.h"
#include "redelivery/emissionediprova.h"

#include "base/parti.h"

#include <QLabel>

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;

namespace {

class DiscoRiconsegna : protected SulDisco, public EmissioneDiProva
{
protected:
    DiscoRiconsegna()
    {
        registraParte(QString::fromUtf16(classeEmittenteLdv),
                      [] { return std::make_unique<emissione::EmittenteDeposito>(); });
    }

    Impresa emissione()
    {
        return {.prepara =
                    [this] {
                        mBase.esegui(u"delete from letve00f where lerico='R' and LERFGI='50';"_s);
                        cerca(u"950"_s);
                        c("cmdRiconsegna")->setEnabled(true);
                    },
                .compi = [this] { emetti({.stampa = false}); },
                .righe =
                    [this] {
                        return mBase
                            .leggi(u"select count(*) from letve00f where lerico='R' and LERFGI='50'"_s)
                            .value();
                    },
                .stato = [this] { return stato()->text(); },
                .stati = {u"0"_s, u"1"_s},
                .vero =
                    [](const Esito& esito, const QString& frase) {
                        if (esito.completo)
                            return esito.stato.startsWith(u"Emessa la lettera di vettura "_s) &&
                                   esito.scatole.isEmpty();
                        if (esito.stato.startsWith(u"La giacenza non si controlla. "_s))
                            return esito.detto(frase);
                        return esito.stato.startsWith(u"Nessuna lettera di vettura è stata emessa."_s) &&
                               esito.scatole.size() == 1 && esito.detto(frase);
                    },
                .riprova =
                    [this](const Esito& esito) {
                        if (esito.stato.contains(u"uscire e riaprire"_s)) {
                            delete mSchermata;
                            cerca(u"950"_s);
                        }
                        emetti({.stampa = false});
                    }};
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, DiscoRiconsegna, testing::Values("sqlite"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(DiscoRiconsegna, PienoMentreSiEmette)
{
    provaOgniPagina(mDisco, mMessaggi, mBase, emissione());
}

TEST_P(DiscoRiconsegna, PienoMentreSiEmetteConIlGiornaleDiSqlite)
{
    scegliGiornale(mBase, u"delete"_s);
    provaOgniPagina(mDisco, mMessaggi, mBase, emissione());
}

TEST_P(DiscoRiconsegna, InSolaLetturaMentreSiEmette)
{
    provaSolaLettura(mDisco, mMessaggi, emissione(), [this] { mSchermata->rilasciaConnessione(); });
}

} // namespace
