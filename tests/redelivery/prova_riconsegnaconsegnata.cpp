#include "redelivery/schermatariconsegna.h"
#include "support/stampa.h"

#include <QCoreApplication>
#include <QLabel>

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

TEST_P(RiconsegnaConsegnata, lAltraFilialeConStessoNumeroEGiornoSiDiceENonSiEmette)
{
    mBase.esegui(u"insert into letve00f (lefili,lenrlv,leanlv,ledtlv,lecodi,lecdve,lelin1) "
                 "values ('BO','950',2026,'2026-11-12',1001,'V01','L05')"_s);
    mBase.esegui(u"insert into giace00f (GIFILI,GINRLV,GIANLV,GICODI,GINRGI,GIANGI,GIDTGI) values "
                 "('BO','950',2026,1001,'70',2026,'2026-11-13')"_s);
    apri();
    const auto mostraCaso = [&](const QString& filiale, const QString& giacenza) {
        mSchermata->setProperty("Filiale", filiale);
        mSchermata->setProperty("NumeroGiacenza", giacenza);
        consegna(u"950"_s, u"12/11/2026"_s, u"1001"_s);
    };
    // Which of the two the lookup finds is the database's business: the other one is asked for.
    consegna(u"950"_s, u"12/11/2026"_s, u"1001"_s);
    EXPECT_TRUE(bottoneAcceso()) << "who hands three values over means whichever is found";
    const QString trovata = mostrato("txtFiliale");
    const QString giacenza = mostrato("lblNrGia");
    mostraCaso(trovata == u"BO"_s ? u"MI"_s : u"BO"_s, trovata == u"BO"_s ? u"50"_s : u"70"_s);
    EXPECT_EQ(stato()->text(),
              u"È stata trovata un'altra LDV con lo stesso numero e giorno (filiale %1)."_s.arg(trovata));
    EXPECT_FALSE(bottoneAcceso());
    tasto("txtLDV", Qt::Key_F12);
    EXPECT_FALSE(bottoneAcceso()) << "sought once more it is no other";

    mostraCaso(trovata.toLower(), giacenza);
    EXPECT_EQ(stato()->text(), QString());
    EXPECT_TRUE(bottoneAcceso());
    mostraCaso(trovata, u"71"_s);
    EXPECT_EQ(stato()->text(), u"Questa LDV è nella giacenza %1, non nella 71."_s.arg(giacenza));
    EXPECT_FALSE(bottoneAcceso());
    consegna(u"4714"_s, u"12/11/2026"_s, u"1001"_s);
    EXPECT_TRUE(bottoneAcceso()) << "another waybill";
    EXPECT_EQ(mostrato("lblNrGia"), u"40"_s);
}

TEST_P(RiconsegnaConsegnata, dopoUnEmissioneIlBottoneRestaSpento)
{
    apri();
    mSchermata->setProperty("Filiale", u"XX"_s);
    consegna(u"951"_s, u"12/11/2026"_s, u"1001"_s);
    EXPECT_FALSE(bottoneAcceso());
    cerca(u"950"_s);
    EXPECT_TRUE(bottoneAcceso());
    emetti();
    EXPECT_FALSE(bottoneAcceso());
    mSchermata->setProperty("Filiale", u"XX"_s);
    consegna(u"951"_s, u"12/11/2026"_s, u"1001"_s);
    cerca(u"4714"_s);
    EXPECT_FALSE(bottoneAcceso());
}
