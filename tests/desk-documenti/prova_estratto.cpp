#include "depositodesk.h"

#include "desk/documenti/estratto.h"
#include "desk/documenti/foglioestratto.h"

using namespace giacenza;
using namespace giacenza::documenti;
using namespace giacenza::prove;
using testing::ElementsAre;

namespace {

class EstrattoCliente : public DepositoDesk
{
protected:
    Estratto leggi(const QString& cliente, QDate da = QDate(2026, 11, 1), QDate a = QDate(2026, 11, 30))
    {
        Connessione connessione = mBase.connessione();
        return leggiEstratto(connessione, {cliente, da, a, mOggi});
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, EstrattoCliente, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(EstrattoCliente, IClientiConCasiAperti)
{
    Connessione connessione = mBase.connessione();
    const auto clienti = clientiConAperte(connessione);
    ASSERT_EQ(clienti.size(), 2U);
    EXPECT_EQ(clienti[0].codice, u"1001"_s);
    EXPECT_EQ(clienti[0].ragioneSociale, u"Ferramenta Lombarda S.r.l."_s);
    EXPECT_EQ(clienti[0].aperte, 1);
    EXPECT_EQ(clienti[1].codice, u"1002"_s);
}

TEST_P(EstrattoCliente, CasiApertiEChiusiDelPeriodo)
{
    const Estratto estratto = leggi(u"1001"_s);
    ASSERT_EQ(estratto.casi.size(), 2U);
    EXPECT_EQ(estratto.alla, mOggi);
    EXPECT_EQ(estratto.aperti, 1);
    const CasoEstratto& aperto = estratto.casi[0];
    EXPECT_EQ(aperto.conto.dati.caso.numero, u"42"_s);
    EXPECT_EQ(statoInParole(aperto), u"aperta"_s);
    EXPECT_EQ(aperto.origine, Origine::calcolati);
    EXPECT_EQ(aperto.conto.giorni, 21);
    EXPECT_EQ(aperto.totale, u"29.00"_s);
    EXPECT_EQ(fattiInParole(aperto), u"01/11/2026 Messa in giacenza\n16/11/2026 Avviso n. 2\n"
                                     "19/11/2026 Emessa la lettera di vettura 4720/2026 MI"_s);
    const CasoEstratto& chiuso = estratto.casi[1];
    EXPECT_EQ(statoInParole(chiuso), u"chiusa il 18/11/2026, fattura n. 77"_s);
    EXPECT_EQ(chiuso.origine, Origine::scritti);
    EXPECT_EQ(chiuso.sosta, u"15.00"_s);
    EXPECT_EQ(chiuso.fisso, u"0.00"_s);
    EXPECT_EQ(estratto.totale, u"44.00"_s);
    EXPECT_EQ(nomeEstratto(estratto), u"Estratto giacenze 1001 2026-11-01 2026-11-30"_s);
}

TEST_P(EstrattoCliente, IlPeriodoScegliICasiEIlGiornoDelConto)
{
    // The 40 was closed on the 18th, the 42 began on the 1st.
    EXPECT_EQ(leggi(u"1001"_s, QDate(2026, 11, 19), QDate(2026, 11, 20)).casi.size(), 1U);
    EXPECT_EQ(leggi(u"1001"_s, QDate(2026, 11, 18), QDate(2026, 11, 18)).casi.size(), 2U);
    EXPECT_EQ(leggi(u"1001"_s, QDate(2026, 10, 1), QDate(2026, 10, 31)).casi.size(), 0U);
    const Estratto passato = leggi(u"1001"_s, QDate(2026, 11, 1), QDate(2026, 11, 5));
    ASSERT_EQ(passato.casi.size(), 1U);
    EXPECT_EQ(passato.alla, QDate(2026, 11, 5));
    EXPECT_EQ(passato.totale, u"5.00"_s);
    EXPECT_EQ(fattiInParole(passato.casi[0]), u"01/11/2026 Messa in giacenza"_s);
    EXPECT_THROW(leggi(u"1001"_s, mOggi, mOggi.addDays(-1)), Errore);
}

TEST_P(EstrattoCliente, ChiusaDopoIlPeriodoAllaFineEraAperta)
{
    const Estratto estratto = leggi(u"1001"_s, QDate(2026, 11, 1), QDate(2026, 11, 15));
    ASSERT_EQ(estratto.casi.size(), 2U);
    EXPECT_EQ(estratto.aperti, 2);
    const CasoEstratto& poiChiuso = estratto.casi[1];
    EXPECT_EQ(poiChiuso.conto.dati.caso.numero, u"40"_s);
    EXPECT_EQ(statoInParole(poiChiuso), u"aperta"_s) << "neither the closure nor its invoice were there yet";
    EXPECT_EQ(poiChiuso.origine, Origine::calcolati);
    EXPECT_EQ(poiChiuso.conto.giorni, 2);
    EXPECT_EQ(poiChiuso.totale, u"5.00"_s);
    EXPECT_EQ(estratto.totale, u"25.00"_s);
    EXPECT_EQ(statoInParole(leggi(u"1001"_s, QDate(2026, 11, 1), QDate(2026, 11, 18)).casi[1]),
              u"chiusa il 18/11/2026, fattura n. 77"_s);
}

TEST_P(EstrattoCliente, SenzaCondizioniGliImportiMancanoENonSonoZero)
{
    const Estratto estratto = leggi(u"1002"_s);
    ASSERT_EQ(estratto.casi.size(), 1U);
    EXPECT_EQ(estratto.senzaImporti, 1);
    EXPECT_EQ(estratto.casi[0].origine, Origine::mancanti);
    EXPECT_EQ(estratto.casi[0].totale, QString());
    EXPECT_EQ(estratto.totale, u"0.00"_s);
    EXPECT_EQ(documentoEstratto(estratto, carta())->pagine(), 1);
}

TEST_P(EstrattoCliente, LeNoteSonoDelDeposito)
{
    conRegistro();
    mBase.esegui(u"insert into registro_note (GINRGI,GIANGI,autore,testo) values ('42',2026,'Neri','x')"_s);
    const Estratto estratto = leggi(u"1001"_s);
    ASSERT_FALSE(estratto.casi.empty());
    for (const registro::Evento& evento : estratto.casi[0].fatti)
        EXPECT_NE(evento.che, u"Nota"_s);
}

TEST_P(EstrattoCliente, MilleCasiVannoSuPiuPagineConLeLoroTestate)
{
    QStringList righe;
    for (int i = 0; i < 300; ++i)
        righe << u"('MI','9%1',2026,1001,'9%1',2026,'2026-11-05','Motivo')"_s.arg(i);
    mBase.esegui(u"insert into giace00f (GIFILI,GINRLV,GIANLV,GICODI,GINRGI,GIANGI,GIDTGI,GIDES1) values "_s +
                 righe.join(u','));
    const auto documento = documentoEstratto(leggi(u"1001"_s), carta());
    EXPECT_GT(documento->pagine(), 8);
    for (int n = 0; n < documento->pagine(); ++n) {
        double fondo = 0;
        QStringList testi;
        for (const report::Primitiva& primitiva : documento->pagina(n)) {
            fondo = std::max(fondo, report::areaDi(primitiva).bottom());
            if (const auto* testo = std::get_if<report::TestoPagina>(&primitiva))
                testi << testo->testo;
        }
        EXPECT_LE(fondo, 297);
        EXPECT_TRUE(testi.contains(u"Giacenza"_s)) << n;
        EXPECT_TRUE(testi.contains(u"Pagina %1 di %2"_s.arg(n + 1).arg(documento->pagine()))) << n;
    }
}

} // namespace
