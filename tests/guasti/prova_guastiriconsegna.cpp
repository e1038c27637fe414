// Each call of the re-delivery screen and of the issuer fails in turn.

#include "emissione/emittente.h"
#include "guasti/operazione.h"
#include "redelivery/emissionediprova.h"
#include "support/stampa.h"

#include "base/parti.h"

#include <QLabel>

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;

namespace {

class GuastiRiconsegna : public EmissioneDiProva
{
protected:
    GuastiRiconsegna()
    {
        registraParte(QString::fromUtf16(classeEmittenteLdv),
                      [] { return std::make_unique<emissione::EmittenteDeposito>(); });
    }

    void TearDown() override { delete mSchermata; }
    void prova(const Operazione& operazione) { mCavo.prova(GetParam(), mMessaggi, operazione); }

    void rimetti()
    {
        mBase.esegui(u"delete from letve00f where lerico='R' and LERFGI='50';"_s);
        cerca(u"950"_s);
        // After an issue it is for a screen that is opened anew, which takes longer than all the rest.
        c("cmdRiconsegna")->setEnabled(true);
    }

    /// The waybills issued of case 50, without their numbers, and without the freight terms: when these
    /// cannot be read the dialog says so in a line of its own, and stops nothing.
    QString emesse() const
    {
        const auto righe =
            mBase.righe(u"select lefili, lecodi, ledest, lerife, LEANGI, lenote from letve00f where "
                        "lerico='R' and LERFGI='50'"_s);
        QStringList testi;
        for (const QStringList& riga : righe)
            testi << riga.join(u'|');
        return testi.join(u'\n');
    }

    /// The last connection to a file of SQLite that closes has everything written to the disk: not ours.
    Connessione mTenuta = mBase.connessione();
    Cavo mCavo{mBase};
};

INSTANTIATE_TEST_SUITE_P(Basi, GuastiRiconsegna, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

bool vera(const Accaduto& a)
{
    if (a.detto(u"Non si sa se la lettera di vettura 9"_s) ||
        a.detto(u"Non si sa se la lettera di vettura 8"_s))
        return a.classe.guasto.cade;
    if (a.completo)
        return a.stato.startsWith(u"Emessa la lettera di vettura "_s) && a.scatole.isEmpty();
    if (a.stato.startsWith(u"La giacenza non si controlla. "_s))
        return a.dettoIlGuasto();
    const bool nonEmessa = a.stato.startsWith(u"Nessuna lettera di vettura è stata emessa."_s);
    if (!nonEmessa || a.scatole.size() != 1)
        return false;
    return a.detto(
               u"La lettera di vettura da cui partire non si è potuta leggere dall'archivio: nessuna lettera "
               "di vettura è stata emessa."_s) ||
           (a.detto(u"La nuova lettera di vettura non è stata emessa: il database non ha accettato "
                    "l'operazione.\n\n"_s) &&
            a.dettoIlGuasto() && a.stato.contains(a.classe.guasto.testo) &&
            !a.scatole.front().contains(a.classe.guasto.testo));
}

TEST_P(GuastiRiconsegna, OgniIstruzioneDellEmissione)
{
    prova({.prepara = [this] { rimetti(); },
           .compi = [this] { emetti({.stampa = false}); },
           .righe = [this] { return emesse(); },
           .stato = [this] { return stato()->text() + u'\n' + stato()->toolTip(); },
           .vero = vera,
           .riprova =
               [this](const Accaduto& a) {
                   if (a.passo > 0)
                       return;
                   // As the status line says.
                   delete mSchermata;
                   cerca(u"950"_s);
                   emetti({.stampa = false});
               }});
}

TEST_P(GuastiRiconsegna, OgniIstruzioneDellaRicerca)
{
    prova({.prepara =
               [this] {
                   delete mSchermata;
                   apri();
               },
           .compi = [this] { cerca(u"950"_s); },
           .righe = [] { return u"nessuna"_s; },
           .stato = [this] { return stato()->text(); },
           .vero = [](const Accaduto& a) { return a.completo || a.dettoIlGuasto(); },
           .mostrata = [this] { return mostrato("txtDestinatario") == u"Casalinghi Rossi"_s; }});
}

} // namespace
