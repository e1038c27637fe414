// Each call of the management screen's operations fails in turn.

#include "guasti/operazione.h"
#include "management/avvisodiprova.h"
#include "support/stampa.h"

#include <QTest>

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;

namespace {

class GuastiGestione : public AvvisoDiProva
{
protected:
    QString stato() const { return mostrato("lblStato"); }
    void TearDown() override { delete mSchermata; }
    void prova(const Operazione& operazione) { mCavo.prova(GetParam(), mMessaggi, operazione); }

    /// The case 39 as it was, on the screen.
    void rimetti()
    {
        mBase.esegui(u"update giace00f set GINRAV='3', GIDTAV='2026-11-20', GIDES1='Trasloco', GIDTBF=null, "
                     "GIGGSO=null, GIIMGI=null, FissoGiacenza=null where GINRGI='39';"_s);
        mStampe.clear();
        if (mSchermata)
            attiva();
        richiamaAvvisato();
    }

    void attiva()
    {
        mSchermata->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(mSchermata));
    }

    /// Of the case 39. prima: puts it where the closure begins.
    Operazione chiusura(std::function<void()> prima)
    {
        return {.prepara = std::move(prima),
                .compi = [this] { clicca("cmdBuonFine"); },
                .righe = [this] { return tutto(u"39"_s); },
                .stato = [this] { return stato(); },
                .vero =
                    [](const Accaduto& a) {
                        return a.completo
                                   ? a.stato.startsWith(
                                         u"Giacenza 39_2026 chiusa, documento di buon fine prodotto."_s) &&
                                         a.scatole.isEmpty()
                                   : a.dettoIlGuasto() && a.scatole.size() == 1;
                    }};
    }

    /// The last connection to a file of SQLite that closes has everything written to the disk: not ours.
    Connessione mTenuta = mBase.connessione();
    Cavo mCavo{mBase};
};

INSTANTIATE_TEST_SUITE_P(Basi, GuastiGestione, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(GuastiGestione, OgniIstruzioneDelRichiamo)
{
    prova({.prepara =
               [this] {
                   delete mSchermata;
                   apri();
               },
           .compi = [this] { richiamaAvvisato(); },
           .righe = [this] { return tutto(u"39"_s); },
           .stato = [this] { return stato(); },
           .vero = [](const Accaduto& a) { return a.completo || a.dettoIlGuasto(); },
           .mostrata =
               [this] {
                   return mostrato("txtRiferimento") == u"ORD-882"_s && mostrato("lblNrGia") == u"39"_s;
               }});
}

TEST_P(GuastiGestione, OgniIstruzioneDellAvvisoConDescrizione)
{
    prova({.prepara = [this] { rimetti(); },
           .compi =
               [this] {
                   attiva();
                   avvisa(u"Rifiuta"_s);
               },
           .righe = [this] { return tutto(u"39"_s); },
           .stato = [this] { return stato(); },
           .vero =
               [](const Accaduto& a) {
                   return a.completo
                              ? a.stato == u"Avviso di giacenza 39_2026 prodotto."_s && a.scatole.isEmpty()
                              : a.dettoIlGuasto() && a.scatole.size() == 1;
               }});
}

TEST_P(GuastiGestione, OgniIstruzioneDellaChiusura)
{
    prova(chiusura([this] { rimetti(); }));
}

TEST_P(GuastiGestione, OgniIstruzioneDellaChiusuraRipetuta)
{
    prova(chiusura([this] {
        rimetti();
        mBase.esegui(u"update giace00f set GIDTBF='2026-11-19' where GINRGI='39';"_s);
    }));
}

} // namespace
