// A save whose confirmation is cut off on the wire: what is in the archive decides, not what was heard.

#include "data/archivio.h"
#include "data/salvataggio.h"
#include "data/verificasalvataggio.h"
#include "support/bancadati.h"
#include "support/spedizioni.h"
#include "support/stampa.h"
#include "support/tagliaconferma.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;

namespace {

class Conferma : public testing::Test
{
protected:
    Conferma() { riempiDeposito(mBase); }

    quint16 porta() const { return mBase.stringa().section(u"PORT="_s, 1).section(u';', 0, 0).toUShort(); }

    /// The save through the port that cuts; the number is taken on the server itself.
    QString salva(const TagliaConferma& taglio)
    {
        const QString attraverso =
            mBase.stringa().replace(u"PORT=%1"_s.arg(porta()), u"PORT=%1"_s.arg(taglio.porta()));
        Connessione schermo = mBase.connessione();
        return InserisciGiacenza(schermo, attraverso,
                                 {.filiale = u"MI"_s,
                                  .numeroLdv = u"4711"_s,
                                  .dataLdv = QDate(2026, 11, 12),
                                  .cliente = u"1001"_s,
                                  .giorniSosta = u"1"_s,
                                  .dataGiacenza = QDate(2026, 11, 20),
                                  .motivo = u"chiuso"_s});
    }

    QList<QStringList> archivio() const
    {
        return mBase.righe(u"select count(*), max(GINRGI), (select LERFGI from letve00f where lenrlv='4711') "
                           "from giace00f where GINRLV='4711'"_s);
    }

    BancaDati mBase{"mariadb"};
};

TEST_F(Conferma, RegistrataSenzaCheSiSentaEUnSuccesso)
{
    const TagliaConferma taglio(porta(), TagliaConferma::Quando::primaDellaRisposta, false);
    EXPECT_EQ(salva(taglio), u"42"_s);
    EXPECT_TRUE(taglio.tagliata());
    EXPECT_EQ(archivio(), (QList<QStringList>{{u"1"_s, u"42"_s, u"42"_s}}));
}

TEST_F(Conferma, MaiArrivataEUnGuastoENonLasciaNiente)
{
    const TagliaConferma taglio(porta(), TagliaConferma::Quando::primaDelServer, false);
    EXPECT_THROW(salva(taglio), ErroreDatabase);
    EXPECT_TRUE(taglio.tagliata());
    EXPECT_EQ(archivio(), (QList<QStringList>{{u"0"_s, u"NULL"_s, u"NULL"_s}}));
}

TEST_F(Conferma, SenzaPoterGuardareSiDiceCheNonSiSa)
{
    const TagliaConferma taglio(porta(), TagliaConferma::Quando::primaDellaRisposta, true);
    try {
        salva(taglio);
        ADD_FAILURE() << "nobody could know";
    } catch (const ErroreEsitoIgnoto& errore) {
        EXPECT_EQ(errore.testo(),
                  u"Non si sa se la giacenza 42/2026 è stata registrata: l'archivio non risponde più. Quando "
                  u"risponde, "
                  "richiamarla in gestione con il numero e la data; se non c'è, ripetere il salvataggio."_s);
    }
    EXPECT_EQ(archivio(), (QList<QStringList>{{u"1"_s, u"42"_s, u"42"_s}})) << "it was there";
}

class Verifica : public testing::TestWithParam<std::string>
{
protected:
    Verifica() { riempiDeposito(mBase); }
    ~Verifica() override { impostaTraccia({}); }

    BancaDati mBase{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Basi, Verifica, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(Verifica, AspettaChiTieneAncoraLaRigaDoveSiPuo)
{
    QString ultima;
    impostaTraccia([&ultima](EventoDati evento, const QString& testo) {
        if (evento == EventoDati::istruzione)
            ultima = testo;
    });
    EXPECT_FALSE(salvataggioRegistrato(mBase.accesso(), {u"99"_s, 2026}, {u"MI"_s, u"4711"_s, 2026}));
    EXPECT_EQ(ultima, u"select GINRGI from giace00f where GINRGI='99' and GIANGI=2026 and GINRLV='4711'"_s +
                          (GetParam() == "mariadb" ? u" lock in share mode;"_s : u";"_s));
}

} // namespace
