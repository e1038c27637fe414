#include "management/richiamodiprova.h"
#include "support/stampa.h"

#include <QCheckBox>
#include <QCoreApplication>

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class RichiamoConsegnato : public RichiamoDiProva
{
protected:
    /// What the host hands over, and the screen's own answer.
    void consegna(const QString& numero, const QString& data)
    {
        mSchermata->setProperty("DataGiacenza", data);
        mSchermata->setProperty("NumeroGiacenza", numero);
        QCoreApplication::processEvents();
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, RichiamoConsegnato, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

} // namespace

TEST_P(RichiamoConsegnato, mostraIlCasoComeDigitato)
{
    apri();
    const QStringList digitate = istruzioni([&] { richiamaAvvisato(); });
    EXPECT_EQ(mostrato("lblNrGia"), u"39"_s);
    apri();
    EXPECT_EQ(istruzioni([&] { consegna(u"39"_s, u"05/11/2026"_s); }), digitate);
    EXPECT_EQ(mostrato("lblNrGia"), u"39"_s);
    EXPECT_EQ(mostrato("txtLDV"), u"4712"_s);
    EXPECT_THAT(istruzioni([] { QCoreApplication::processEvents(); }), IsEmpty()) << "looked up once";
}

TEST_P(RichiamoConsegnato, prendeIlPostoDelCasoDiPrima)
{
    apri();
    consegna(u"39"_s, u"05/11/2026"_s);
    qobject_cast<QCheckBox*>(c("chkRicerca"))->click();
    consegna(u"40"_s, u"13/11/2026"_s);
    EXPECT_EQ(mostrato("lblNrGia"), u"40"_s);
    EXPECT_EQ(mostrato("txtNGiace"), u"40"_s);
    EXPECT_EQ(mostrato("txtDataGiace"), u"13/11/2026"_s);
    EXPECT_FALSE(qobject_cast<QCheckBox*>(c("chkRicerca"))->isChecked());
    EXPECT_EQ(qobject_cast<QCheckBox*>(c("chkRicerca"))->text(), u"Ric. per n. giacenza"_s);
    EXPECT_TRUE(c("txtNGiace")->isEnabled());
    EXPECT_FALSE(c("txtCodiceCli")->isEnabled());
}

TEST_P(RichiamoConsegnato, senzaNumeroODataNonCerca)
{
    apri();
    EXPECT_THAT(istruzioni([&] {
                    consegna({}, u"05/11/2026"_s);
                    consegna(u"39"_s, u"31/02/2026"_s);
                }),
                IsEmpty());
    EXPECT_EQ(mostrato("lblNrGia"), QString());
}

TEST_P(RichiamoConsegnato, unCasoCheNonSiRichiamaSiDiceComeAMano)
{
    apri();
    consegna(u"99"_s, u"05/11/2026"_s);
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(deiTrasporti(u"Giacenza: 99 del 05/11/2026 non trovata."_s)));
}
