#include "reports/letters/rptavviso.h"
#include "reports/letters/rptbuonfine.h"

#include "support/registromessaggi.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

using namespace giacenza;
using namespace Qt::StringLiterals;

namespace {

/// Both reports answer alike.
template<class R>
class Notifiche : public testing::Test
{
protected:
    bool passa(int secondi)
    {
        bool annulla = false;
        mReport.ProcessingTimeout(secondi, annulla);
        return annulla;
    }

    Messaggio domanda(int secondi) const
    {
        return {u"Sono trascorsi circa %1 secondi dall'inizio dell'operazione di stampa\r"
                "Annullare l'operazione?"_s.arg(secondi),
                Stile::domandaAvviso, u"Deposito di prova"_s};
    }

    prove::RegistroMessaggi mRegistro;
    R mReport;
};

using Entrambi = testing::Types<RptAvviso, RptBuonFine>;
TYPED_TEST_SUITE(Notifiche, Entrambi);

TYPED_TEST(Notifiche, chiedeOgniVentiSecondi)
{
    this->mRegistro.rispondi(Risposta::no);
    this->mRegistro.rispondi(Risposta::no);
    for (int secondi = 0; secondi <= 45; ++secondi)
        EXPECT_FALSE(this->passa(secondi)) << secondi;
    EXPECT_THAT(this->mRegistro.messaggi(), testing::ElementsAre(this->domanda(20), this->domanda(40)));
}

TYPED_TEST(Notifiche, laDomandaNonArrivaPrimaDeiVenti)
{
    EXPECT_FALSE(this->passa(19));
    EXPECT_THAT(this->mRegistro.messaggi(), testing::IsEmpty());
}

TYPED_TEST(Notifiche, siAnnulla)
{
    this->mRegistro.rispondi(Risposta::si);
    EXPECT_TRUE(this->passa(27));
    EXPECT_THAT(this->mRegistro.messaggi(), testing::ElementsAre(this->domanda(27)));
}

TYPED_TEST(Notifiche, unaNuovaStampaRicominciaDaZero)
{
    this->mRegistro.rispondi(Risposta::no);
    this->passa(50);
    EXPECT_FALSE(this->passa(3));
    EXPECT_FALSE(this->passa(19));
    EXPECT_EQ(this->mRegistro.prendi().size(), 1U);
    this->mRegistro.rispondi(Risposta::no);
    this->passa(20);
    EXPECT_THAT(this->mRegistro.messaggi(), testing::ElementsAre(this->domanda(20)));
}

TYPED_TEST(Notifiche, laNotificaCheAzzeraNonChiede)
{
    this->mRegistro.rispondi(Risposta::no);
    this->passa(100);
    EXPECT_FALSE(this->passa(60));
    EXPECT_EQ(this->mRegistro.messaggi().size(), 1U);
}

TYPED_TEST(Notifiche, erroriIgnorati)
{
    for (const int codice : {0, 1, 2}) {
        bool mostra = true;
        this->mReport.Error(codice, mostra);
        EXPECT_FALSE(mostra);
    }
    EXPECT_THAT(this->mRegistro.messaggi(), testing::IsEmpty());
}

TYPED_TEST(Notifiche, erroriMostrati)
{
    this->mReport.setDescrizioneErrore(u"Il database non risponde."_s);
    bool mostra = true;
    this->mReport.Error(3, mostra);
    this->mReport.Error(-1, mostra);
    EXPECT_THAT(
        this->mRegistro.messaggi(),
        testing::ElementsAre(
            Messaggio{u"Error #3\rIl database non risponde."_s, Stile::critico, u"Deposito di prova"_s},
            Messaggio{u"Error #-1\rIl database non risponde."_s, Stile::critico, u"Deposito di prova"_s}));
}

} // namespace
