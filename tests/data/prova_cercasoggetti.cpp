#include "data/cercasoggetti.h"
#include "database/comando.h"
#include "support/bancadati.h"
#include "support/cadute.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Soggetti : public testing::TestWithParam<std::string>
{
protected:
    void inserisci(int codice, const QString& nome, const QString& localita = {}, const QString& iva = {})
    {
        Connessione connessione = mBase.amministratore();
        const Valore valori[] = {QString::number(codice), nome, localita, u"BG"_s, iva};
        Comando(connessione, u"insert into clien (Codice, RagioneSociale, Localita, Provincia, PartitaIva) "
                             "values (?, ?, ?, ?, ?)"_s)
            .esegui(valori);
    }

    std::vector<QString> codici(CampoSoggetto campo, const QString& testo, bool interna = false)
    {
        mRicerca.cerca(mBase.stringa(), {u"Clien"_s, campo, interna, testo});
        std::vector<QString> trovati;
        for (const Soggetto& soggetto : mRicerca.leggi(1000))
            trovati.push_back(soggetto.codice);
        return trovati;
    }

    BancaDati mBase{GetParam()};
    CercaSoggetti mRicerca;
};

} // namespace

TEST_P(Soggetti, perCodiceInteroSoltanto)
{
    inserisci(1, u"Uno"_s);
    inserisci(12, u"Dodici"_s);
    EXPECT_THAT(codici(CampoSoggetto::codice, u"1"_s), ElementsAre(u"1"_s));
    EXPECT_THAT(codici(CampoSoggetto::codice, u" 12 "_s), ElementsAre(u"12"_s));
    EXPECT_THAT(codici(CampoSoggetto::codice, u"2"_s), IsEmpty());
    EXPECT_THAT(codici(CampoSoggetto::codice, u"1,5"_s), IsEmpty());
    EXPECT_THAT(codici(CampoSoggetto::codice, u"1.0"_s), IsEmpty());
    EXPECT_THAT(codici(CampoSoggetto::codice, u"1 or 1=1"_s), IsEmpty());
    EXPECT_THAT(codici(CampoSoggetto::codice, QString(400, u'9')), IsEmpty());
}

TEST_P(Soggetti, perPartitaIva)
{
    inserisci(1, u"Uno"_s, {}, u"01234567890"_s);
    inserisci(2, u"Due"_s, {}, u"11234567890"_s);
    EXPECT_THAT(codici(CampoSoggetto::partitaIva, u"01234567890"_s), ElementsAre(u"1"_s));
    EXPECT_THAT(codici(CampoSoggetto::partitaIva, u"0123456789"_s), IsEmpty());
}

TEST_P(Soggetti, perTestoInizialeOInternoInOrdineDiNome)
{
    inserisci(1, u"Rossi Zeno"_s, u"Bergamo"_s);
    inserisci(2, u"Fratelli Rossi"_s, u"Treviglio"_s);
    inserisci(3, u"ROSSI Anna"_s, u"Alzano"_s);
    EXPECT_THAT(codici(CampoSoggetto::ragioneSociale, u"rossi"_s), ElementsAre(u"3"_s, u"1"_s));
    EXPECT_THAT(codici(CampoSoggetto::ragioneSociale, u"rossi"_s, true), ElementsAre(u"2"_s, u"3"_s, u"1"_s));
    EXPECT_THAT(codici(CampoSoggetto::localita, u"ber"_s), ElementsAre(u"1"_s));
    EXPECT_THAT(codici(CampoSoggetto::localita, u"gl"_s, true), ElementsAre(u"2"_s));
    EXPECT_THAT(codici(CampoSoggetto::provincia, u"b"_s), ElementsAre(u"2"_s, u"3"_s, u"1"_s));
}

TEST_P(Soggetti, iCaratteriSpecialiStannoPerSeStessi)
{
    inserisci(1, u"Sconto 50% Srl"_s);
    inserisci(2, u"Sconto 500 Srl"_s);
    inserisci(3, u"Nome_Basso"_s);
    inserisci(4, u"NomeXBasso"_s);
    inserisci(5, u"Barra\\Inversa"_s);
    inserisci(6, u"Barra!Esclamativa"_s);
    inserisci(7, u"D'Alì \"L'Oro\""_s);
    inserisci(8, u"Pizza 🍕 Express"_s);
    const auto interna = [this](const QString& testo) {
        return codici(CampoSoggetto::ragioneSociale, testo, true);
    };
    EXPECT_THAT(interna(u"50% "_s), ElementsAre(u"1"_s));
    EXPECT_THAT(interna(u"%"_s), ElementsAre(u"1"_s));
    EXPECT_THAT(interna(u"e_B"_s), ElementsAre(u"3"_s));
    EXPECT_THAT(interna(u"\\"_s), ElementsAre(u"5"_s));
    EXPECT_THAT(interna(u"a\\I"_s), ElementsAre(u"5"_s));
    EXPECT_THAT(interna(u"!"_s), ElementsAre(u"6"_s));
    EXPECT_THAT(interna(u"D'Alì \"L'O"_s), ElementsAre(u"7"_s));
    EXPECT_THAT(interna(u"' or '1'='1"_s), IsEmpty());
    EXPECT_THAT(interna(u"🍕"_s), ElementsAre(u"8"_s));
    EXPECT_THAT(interna(QString(10000, u'x')), IsEmpty());
    EXPECT_THAT(interna(u"🍕"_s.repeated(5000)), IsEmpty());
    EXPECT_THAT(interna(QString(10000, u'%')), IsEmpty());
}

TEST_P(Soggetti, siLeggonoQuantiSeNeChiedono)
{
    for (int codice = 1; codice <= 7; ++codice)
        inserisci(codice, u"Nome %1"_s.arg(codice));
    EXPECT_TRUE(mRicerca.finita());
    mRicerca.cerca(mBase.stringa(), {u"Clien"_s, CampoSoggetto::ragioneSociale, false, u"nome"_s});
    EXPECT_FALSE(mRicerca.finita());
    const std::vector<Soggetto> primi = mRicerca.leggi(5);
    ASSERT_EQ(primi.size(), 5U);
    EXPECT_EQ(primi[4].codice, u"5"_s);
    EXPECT_EQ(primi[4].ragioneSociale, u"Nome 5"_s);
    EXPECT_EQ(primi[4].localita, QString());
    EXPECT_EQ(primi[4].provincia, u"BG"_s);
    EXPECT_FALSE(mRicerca.finita());
    EXPECT_EQ(mRicerca.leggi(5).size(), 2U);
    EXPECT_TRUE(mRicerca.finita());
    EXPECT_THAT(mRicerca.leggi(5), IsEmpty());
}

TEST_P(Soggetti, unaTabellaCheNonCESiDichiaraELaRicercaRestaUsabile)
{
    inserisci(1, u"Uno"_s);
    EXPECT_THROW(mRicerca.cerca(mBase.stringa(), {u"nessuna"_s, CampoSoggetto::codice, false, u"1"_s}),
                 ErroreDatabase);
    EXPECT_TRUE(mRicerca.finita());
    EXPECT_THROW(mRicerca.cerca(mBase.stringa(), {u"a b"_s, CampoSoggetto::codice, false, u"1"_s}), Errore);
    EXPECT_THAT(codici(CampoSoggetto::codice, u"1"_s), ElementsAre(u"1"_s));
    mRicerca.chiudi();
    EXPECT_TRUE(mRicerca.finita());
    EXPECT_THAT(codici(CampoSoggetto::codice, u"1"_s), ElementsAre(u"1"_s));
}

TEST_P(Soggetti, laConnessioneServeFincheEViva)
{
    inserisci(1, u"Uno"_s);
    int aperture = 0;
    const Accesso accesso{mBase.stringa(), [&aperture](EventoDati evento, const QString&) {
                              aperture += evento == EventoDati::apertura ? 1 : 0;
                          }};
    const auto trovati = [&] {
        mRicerca.cerca(accesso, {u"Clien"_s, CampoSoggetto::codice, false, u"1"_s});
        return mRicerca.leggi(2).size();
    };
    EXPECT_EQ(trovati(), 1U);
    EXPECT_EQ(trovati(), 1U);
    EXPECT_EQ(aperture, 1);
    if (GetParam() == "sqlite")
        return;
    EXPECT_EQ(interrompi(mBase), 1);
    EXPECT_EQ(trovati(), 1U);
    EXPECT_EQ(aperture, 2);
}

INSTANTIATE_TEST_SUITE_P(Basi, Soggetti, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);
