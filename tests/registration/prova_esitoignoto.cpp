// A save of which nobody can say whether it is in the archive: the confirmation is cut off on the wire.

#include "base/impostazioni.h"
#include "registration/registrazionediprova.h"
#include "support/stampa.h"
#include "support/tagliaconferma.h"

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class EsitoIgnoto : public RegistrazioneDiProva
{
protected:
    /// Lets what connects from now on pass through the port that cuts.
    void attraverso(const TagliaConferma& taglio) const
    {
        impostazioni().percorsoDatabase =
            mBase.stringa().replace(u"PORT=%1"_s.arg(porta()), u"PORT=%1"_s.arg(taglio.porta()));
    }
    quint16 porta() const { return mBase.stringa().section(u"PORT="_s, 1).section(u';', 0, 0).toUShort(); }
};

INSTANTIATE_TEST_SUITE_P(Basi, EsitoIgnoto, testing::Values("mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(EsitoIgnoto, SeNessunoPuoGuardareLoDiceLaRigaSottoIlMessaggio)
{
    consegna(u"4711"_s);
    const TagliaConferma taglio(porta(), TagliaConferma::Quando::primaDellaRisposta, true);
    attraverso(taglio);
    clicca("cmdSalva");
    EXPECT_TRUE(taglio.tagliata());
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Impossibile aggiungere la nuova giacenza."_s));
    EXPECT_EQ(
        mostrato("lblStato"),
        u"Non si sa se la giacenza 42/2026 è stata registrata: l'archivio non risponde più. Quando "
        "risponde, richiamarla in gestione con il numero e la data; se non c'è, ripetere il salvataggio."_s);
    EXPECT_EQ(mostrato("lblNrGia"), QString());
    EXPECT_THAT(mStampe, IsEmpty());
}

TEST_P(EsitoIgnoto, SeSiPuoGuardareEUnSalvataggioRiuscito)
{
    consegna(u"4711"_s);
    const TagliaConferma taglio(porta(), TagliaConferma::Quando::primaDellaRisposta, false);
    attraverso(taglio);
    clicca("cmdSalva");
    EXPECT_TRUE(taglio.tagliata());
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Giacenza aggiunta in database."_s));
    EXPECT_EQ(mostrato("lblNrGia"), u"42"_s);
    EXPECT_EQ(mostrato("lblStato"), u"Avviso di giacenza 42_2026 prodotto."_s);
}

} // namespace
