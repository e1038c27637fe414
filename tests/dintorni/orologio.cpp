// The machine's clock jumps, and goes over midnight and into another year, while a screen is open.

#include "dintorni/oradiprova.h"

#include "base/parti.h"
#include "emissione/emittente.h"
#include "management/gestionediprova.h"
#include "redelivery/emissionediprova.h"
#include "registration/registrazionediprova.h"

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;

namespace {

/// The fixture sets a day of its own; here the machine's counts.
template<class Prova>
class AOrologio : public Prova
{
protected:
    AOrologio()
    {
        segna(u"2026-12-31 23:50:00"_s);
        impostaOggi({});
    }

    QStringList righe(const QString& istruzione) const
    {
        QStringList testi;
        for (const QStringList& riga : this->mBase.righe(istruzione))
            testi << riga.join(u'|');
        return testi;
    }
    QString giacenza(const QString& ldv) const
    {
        return righe(
                   u"select GINRGI,GIANGI,GIDTGI,GIGGSO,GINRAV,GIDTAV from giace00f where GINRLV='%1'"_s.arg(
                       ldv))
            .join(u'\n');
    }
};

class OrologioRegistrazione : public AOrologio<RegistrazioneDiProva>
{
protected:
    void salva(const QString& ldv)
    {
        consegna(ldv);
        clicca("cmdSalva");
        EXPECT_EQ(mMessaggi.testi(), QStringList{u"Giacenza aggiunta in database."_s});
        mMessaggi.prendi();
    }
};
class OrologioGestione : public AOrologio<GestioneDiProva>
{};
class OrologioRiconsegna : public AOrologio<EmissioneDiProva>
{
protected:
    OrologioRiconsegna()
    {
        registraParte(QString::fromUtf16(classeEmittenteLdv),
                      [] { return std::make_unique<emissione::EmittenteDeposito>(); });
    }
    /// On a screen that is open: the button is on until it has issued.
    void emettiAncora()
    {
        mMessaggi.prendi();
        c("cmdRiconsegna")->setEnabled(true);
        emetti({.controllo = false, .stampa = false});
        EXPECT_EQ(mMessaggi.testi(), QStringList());
    }
    QStringList emesse() const
    {
        return righe(
            u"select lenrlv,leanlv,ledtlv from letve00f where lerico='R' and LERFGI='50' order by leanlv, lenrlv"_s);
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, OrologioRegistrazione, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);
INSTANTIATE_TEST_SUITE_P(Basi, OrologioGestione, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);
INSTANTIATE_TEST_SUITE_P(Basi, OrologioRiconsegna, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(OrologioRegistrazione, LAnnoNuovoConLaSchermataAperta)
{
    consegna(u"4711"_s);
    EXPECT_EQ(mostrato("txtDataGia"), u"31/12/2026"_s);
    segna(u"2027-01-01 00:10:00"_s);
    salva(u"4711"_s);
    // The held date is the one on the screen; its days, and the notice, are of the press.
    EXPECT_EQ(giacenza(u"4711"_s), u"42|2026|2026-12-31|1|1|2027-01-01"_s);
    salva(u"4712"_s);
    EXPECT_EQ(giacenza(u"4712"_s), u"43|2026|2026-12-31|1|1|2027-01-01"_s);
    mSchermata->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    mBase.esegui(u"update letve00f set lerico=null where lenrlv='4713';"_s);
    salva(u"4713"_s);
    EXPECT_EQ(giacenza(u"4713"_s), u"44|2027|2027-01-01|0|1|2027-01-01"_s);
}

TEST_P(OrologioRegistrazione, UnOrologioCheTornaIndietro)
{
    segna(u"2027-03-05 10:00:00"_s);
    salva(u"4711"_s);
    segna(u"2026-11-20 10:00:00"_s);
    // A notice of a day that is still to come is not counted again.
    clicca("cmdAvvisoGia");
    EXPECT_EQ(giacenza(u"4711"_s), u"42|2027|2027-03-05|0|1|2027-03-05"_s);
    EXPECT_TRUE(mostrato("lblStato").contains(u"stampato, non contato: oggi lo era già."_s));
    mSchermata->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    salva(u"4712"_s);
    EXPECT_EQ(giacenza(u"4712"_s), u"43|2026|2026-11-20|0|1|2026-11-20"_s) << "no number twice";
    // And forward again: what is due is due.
    segna(u"2027-03-06 10:00:00"_s);
    clicca("cmdAvvisoGia");
    EXPECT_EQ(giacenza(u"4712"_s), u"43|2026|2026-11-20|0|2|2027-03-06"_s);
}

TEST_P(OrologioRegistrazione, IlVentinoveFebbraio)
{
    segna(u"2028-02-28 23:59:00"_s);
    apri();
    segna(u"2028-02-29 00:01:00"_s);
    salva(u"4711"_s);
    EXPECT_EQ(giacenza(u"4711"_s), u"42|2028|2028-02-28|1|1|2028-02-29"_s);
    segna(u"2028-03-01 08:00:00"_s);
    clicca("cmdAvvisoGia");
    EXPECT_EQ(giacenza(u"4711"_s), u"42|2028|2028-02-28|1|2|2028-03-01"_s);
    scrivi("txtDataGia", u"29022028"_s);
    lascia("txtDataGia");
    EXPECT_EQ(mostrato("barGiorniSosta"), u"1"_s);
}

TEST_P(OrologioGestione, LaChiusuraDopoLaMezzanotteHaIGiorniCheSiVedono)
{
    mBase.esegui(u"update giace00f set GIDTGI='2026-12-20', GIDTAV='2026-12-22' where GINRGI='39';"_s);
    richiama(u"39"_s, u"20122026"_s);
    EXPECT_EQ(mostrato("barGiorniSosta"), u"11"_s);
    segna(u"2027-01-01 00:10:00"_s);
    clicca("cmdBuonFine");
    // What stood on the screen when the operator pressed, 11 days, is what is written and charged.
    EXPECT_EQ(caso(u"GIDTBF,GIGGSO,FissoGiacenza"_s, u"39"_s).section(u'|', 0, 1), u"2027-01-01|11"_s);
    EXPECT_EQ(mostrato("barGiorniSosta"), u"11"_s);
    EXPECT_EQ(mostrato("lblDataBuonFine"), u"01/01/2027"_s);
    // The first closure's day and days stay.
    segna(u"2027-02-01 10:00:00"_s);
    clicca("cmdBuonFine");
    EXPECT_EQ(caso(u"GIDTBF,GIGGSO"_s, u"39"_s), u"2027-01-01|11"_s);
}

TEST_P(OrologioGestione, LAvvisoDopoLaMezzanotteEDelGiornoNuovo)
{
    mBase.esegui(u"update giace00f set GIDTAV='2026-12-31' where GINRGI='39';"_s);
    richiamaAvvisato();
    segna(u"2027-01-01 00:10:00"_s);
    avvisa(u"Assente"_s);
    EXPECT_EQ(caso(u"GINRAV,GIDTAV,GIDES1"_s, u"39"_s), u"4|2027-01-01|Trasloco\r\n01/01/2027 - Assente"_s);
    mSchermata->activateWindow();
    segna(u"2026-12-30 10:00:00"_s);
    clicca("cmdRistampa");
    EXPECT_EQ(caso(u"GINRAV,GIDTAV"_s, u"39"_s), u"4|2027-01-01"_s);
}

TEST_P(OrologioRiconsegna, LaNuovaLetteraEDelGiornoEDellAnnoInCuiSiPreme)
{
    cerca(u"950"_s);
    segna(u"2027-01-01 00:00:01"_s);
    emettiAncora();
    EXPECT_THAT(emesse(), ElementsAre(u"1|2027|2027-01-01"_s));
    segna(u"2026-12-31 23:59:59"_s);
    emettiAncora();
    segna(u"2027-01-01 00:00:02"_s);
    emettiAncora();
    segna(u"2028-02-29 12:00:00"_s);
    emettiAncora();
    const QStringList tutte = emesse();
    ASSERT_EQ(tutte.size(), 4);
    EXPECT_TRUE(tutte.front().endsWith(u"|2026|2026-12-31"_s)) << tutte.front().toStdString();
    EXPECT_THAT(tutte.mid(1),
                ElementsAre(u"1|2027|2027-01-01"_s, u"2|2027|2027-01-01"_s, u"1|2028|2028-02-29"_s));
}

} // namespace
