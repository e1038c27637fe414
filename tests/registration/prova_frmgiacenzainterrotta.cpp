#include "registration/registrazionediprova.h"

#include "data/archivio.h"
#include "support/cadute.h"
#include "support/stampa.h"

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// The server itself ends the connections of the workstation.
class RegistrazioneInterrotta : public RegistrazioneDiProva
{};

INSTANTIATE_TEST_SUITE_P(Basi, RegistrazioneInterrotta, testing::Values("mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(RegistrazioneInterrotta, AMetaDiUnSalvataggioNonLasciaNienteEPoiSiSalva)
{
    consegna(u"4711"_s);
    bool interrotta = false;
    impostaTraccia([&](EventoDati evento, const QString& istruzione) {
        if (evento != EventoDati::istruzione || interrotta || !istruzione.startsWith("update letve00f"_L1))
            return;
        interrotta = true;
        EXPECT_GT(interrompi(mBase), 0);
    });
    clicca("cmdSalva");
    guarisce();
    EXPECT_TRUE(interrotta);
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Impossibile aggiungere la nuova giacenza."_s));
    mMessaggi.prendi();
    EXPECT_EQ(mBase.leggi(u"select count(*) from giace00f where GINRLV='4711'"_s), u"0"_s);
    EXPECT_EQ(mBase.righe(u"select LERFGI,LEDTCO from letve00f where lenrlv='4711'"_s),
              (QList<QStringList>{{u"NULL"_s, u"2026-11-14"_s}}));
    EXPECT_EQ(mBase.leggi(u"select UltimoNumGiacenza from ekelvorqzt_tabge00f"_s), u"42"_s)
        << "the number that was taken is a gap";
    EXPECT_THAT(mStampe, IsEmpty());

    // The screen's own connection was ended too: it is replaced without a word.
    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Giacenza aggiunta in database."_s));
    EXPECT_EQ(mostrato("lblNrGia"), u"43"_s);
}

} // namespace
