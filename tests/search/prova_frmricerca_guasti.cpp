// The party search when the database does not answer.

#include "search/finestraricerca.h"

#include "data/archivio.h"
#include "support/cadute.h"

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;

namespace {

class RicercaGuasti : public FinestraRicercaPiena
{};

INSTANTIATE_TEST_SUITE_P(Basi, RicercaGuasti, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

class RicercaInterrotta : public FinestraRicercaPiena
{};

INSTANTIATE_TEST_SUITE_P(Basi, RicercaInterrotta, testing::Values("mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(RicercaGuasti, UnGuastoSiDiceInItalianoELeParoleDelDriverStannoSullElenco)
{
    const std::pair<QString, QString> guasti[] = {
        {u"08S01"_s, u"Il collegamento con il database non riesce o si è interrotto.\n\n"
                     "La connessione con l'archivio è caduta."_s},
        {u"42S02"_s, u"La ricerca nel database non è riuscita.\n\nNell'archivio manca una tabella."_s},
        {u"42000"_s, u"La ricerca nel database non è riuscita.\n\nL'archivio ha rifiutato l'operazione."_s},
    };
    for (const auto& [sqlstate, testo] : guasti) {
        const Traccia prima =
            impostaTraccia([stato = sqlstate](EventoDati evento, const QString& istruzione) {
                if (evento == EventoDati::istruzione && !istruzione.contains("@@"_L1))
                    throw ErroreDatabase(stato, 1, u"the driver's words"_s, istruzione);
            });
        cerca(u"alfa"_s);
        impostaTraccia(prima);
        EXPECT_THAT(mMessaggi.prendi(), ElementsAre(Messaggio{testo, Stile::critico, titoloApplicazione()}));
        EXPECT_EQ(mLista->toolTip(), u"the driver's words"_s);
    }
    cerca(u"alfa"_s);
    EXPECT_EQ(voci(), QStringList{u"Alfa Srl"_s});
    EXPECT_EQ(mLista->toolTip(), QString());
}

TEST_P(RicercaInterrotta, UnaSessioneMortaTraDueRicercheNonSiVede)
{
    cerca(u"alfa"_s);
    EXPECT_EQ(voci(), QStringList{u"Alfa Srl"_s});
    EXPECT_GT(interrompi(mBase), 0);
    cerca(u"beta"_s);
    EXPECT_EQ(voci(), QStringList{u"Beta"_s});
    EXPECT_TRUE(mMessaggi.testi().isEmpty());
}

} // namespace
