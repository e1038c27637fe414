// What could not be read beside a lookup that succeeds: the status line says it, behind what it says itself.

#include "registration/registrazionediprova.h"

#include "support/stampa.h"

#include <QTest>

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Letture : public RegistrazioneDiProva
{};

INSTANTIATE_TEST_SUITE_P(Basi, Letture, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(Letture, IlNomeDellaFiliale)
{
    fallisce(u"select descrizione from filiali where codice='BO';"_s);
    consegna(u"4714"_s);
    guarisce();
    EXPECT_THAT(mMessaggi.prendi(), IsEmpty());
    EXPECT_EQ(mostrato("lblNrGia"), u"40"_s);
    EXPECT_EQ(mostrato("barFilialeGia"), QString());
    EXPECT_EQ(mostrato("lblStato"),
              u"Il nome della filiale non si legge. L'archivio ha rifiutato l'operazione."_s);
    EXPECT_EQ(c("lblStato")->toolTip(), u"Il nome della filiale non si legge. guasto di prova"_s);
    consegna(u"4714"_s);
    EXPECT_EQ(mostrato("barFilialeGia"), u"Bologna"_s);
    EXPECT_EQ(mostrato("lblStato"), QString());
}

TEST_P(Letture, IlClienteConsegnato)
{
    consegna(u"4711"_s);
    EXPECT_EQ(mostrato("barCliente"), u"Ferramenta Lombarda S.r.l."_s);
    fallisce(u"select RagioneSociale"_s);
    consegna(u"4714"_s);
    guarisce();
    EXPECT_THAT(mMessaggi.prendi(), IsEmpty());
    EXPECT_EQ(mostrato("lblNrGia"), u"40"_s) << "the lookup goes on";
    EXPECT_EQ(mostrato("barCliente"), QString()) << "no other customer's name";
    EXPECT_EQ(mostrato("lblStato"), u"Il cliente non si legge. L'archivio ha rifiutato l'operazione."_s);
}

TEST_P(Letture, IlNomeDelClienteNonRestaAccantoAUnAltroCodice)
{
    apri();
    giacenza::scrivi(c("barCliente"), u"Oleificio del Garda"_s);
    c("txtCodiceCli")->setFocus();
    QTest::keyClicks(c("txtCodiceCli"), u"1"_s);
    EXPECT_EQ(mostrato("barCliente"), QString());
}

TEST_P(Letture, InvioNellaDataSenzaClienteChiedeIlClienteUnaVolta)
{
    for (const char* campo : {"txtDataLdv", "txtDataRif"})
        for (const Qt::Key tastoRicerca : {Qt::Key_Return, Qt::Key_F9}) {
            apri();
            c(campo)->setFocus();
            QTest::keyClicks(c(campo), u"12112026"_s);
            EXPECT_THAT(istruzioni([&] {
                            tasto(campo, tastoRicerca);
                            QCoreApplication::processEvents();
                        }),
                        IsEmpty());
            EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Selezionare il codice cliente."_s)) << campo;
            mMessaggi.prendi();
            EXPECT_TRUE(c("txtCodiceCli")->hasFocus());
            delete mSchermata;
        }
}

} // namespace
