#include "redelivery/schermatariconsegna.h"
#include "support/stampa.h"

#include <QCoreApplication>

using namespace giacenza;
using namespace giacenza::prove;
using testing::Contains;
using testing::IsEmpty;

namespace {

class RiconsegnaConsegnata : public SchermataRiconsegnaDiProva
{
protected:
    /// What the host hands over, and the screen's own answer.
    void consegna(const QString& numero, const QString& data, const QString& cliente)
    {
        mSchermata->setProperty("NLettVett", numero);
        mSchermata->setProperty("DataLdv", data);
        mSchermata->setProperty("CodiceCliente", cliente);
        QCoreApplication::processEvents();
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, RiconsegnaConsegnata, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

} // namespace

TEST_P(RiconsegnaConsegnata, mostraLaGiacenzaDellaLettera)
{
    apri();
    EXPECT_THAT(istruzioni([&] { consegna(u"4714"_s, u"12/11/2026"_s, u"1001"_s); }),
                Contains(lookup.arg(u"4714"_s, u"2026-11-12"_s)).Times(1));
    EXPECT_EQ(mostrato("txtCodiceCli"), u"1001"_s);
    EXPECT_EQ(mostrato("barCliente"), u"Ferramenta Lombarda S.r.l."_s);
    EXPECT_EQ(mostrato("lblNrGia"), u"40"_s);
    consegna(u"950"_s, u"12/11/2026"_s, u"1001"_s);
    EXPECT_EQ(mostrato("lblNrGia"), u"50"_s) << "another one in its place";
}

TEST_P(RiconsegnaConsegnata, seMancaQualcosaNonCerca)
{
    apri();
    EXPECT_THAT(istruzioni([&] {
                    consegna({}, u"12/11/2026"_s, u"1001"_s);
                    consegna(u"4714"_s, u"12/11"_s, u"1001"_s);
                    consegna(u"4714"_s, u"12/11/2026"_s, {});
                }),
                IsEmpty());
}
