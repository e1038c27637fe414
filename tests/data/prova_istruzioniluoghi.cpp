#include "data/istruzioni.h"
#include "data/istruzioniricerca.h"

#include "support/stampa.h"

#include <giacenza/Errore.h>

#include <gmock/gmock.h>

#include <functional>

using namespace giacenza;
using namespace Qt::StringLiterals;

// Every place of every statement that takes what somebody typed: nothing that is put there gets out of it.

namespace {

const QDate giorno(2024, 3, 5);

struct Luogo
{
    const char* nome;
    std::function<QString(const QString&)> istruzione;
};

void PrintTo(const Luogo& luogo, std::ostream* uscita)
{
    *uscita << luogo.nome;
}

std::string nomeDi(const testing::TestParamInfo<Luogo>& caso)
{
    return caso.param.nome;
}

/// A statement of the shipment search with the value in one of its fields.
std::function<QString(const QString&)> ricerca(QString (*istruzione)(ModoRicerca, const DatiRicerca&),
                                               ModoRicerca modo, QString DatiRicerca::*campo,
                                               const QString& annoOData = {})
{
    return [=](const QString& valore) {
        DatiRicerca dati;
        dati.cliente = u"1001"_s;
        dati.annoGiacenza = u"2024"_s;
        dati.valore = u"55"_s;
        dati.annoCorrente = 2025;
        dati.annoOData = annoOData;
        dati.*campo = valore;
        return istruzione(modo, dati);
    };
}

namespace luoghi {

using namespace istruzioni;
using V = const QString&;
using M = ModoRicerca;
using D = DatiRicerca;

const std::vector<Luogo> diTesto = {
    {"NumeroDataFiliale_numero", [](V v) { return spedizionePerNumeroDataFiliale(v, giorno, u"MI"_s); }},
    {"NumeroDataFiliale_filiale", [](V v) { return spedizionePerNumeroDataFiliale(u"1"_s, giorno, v); }},
    {"NumeroData_esterna", [](V v) { return spedizionePerNumeroData(v, giorno, Giunzione::esterna); }},
    {"NumeroData_minuscola",
     [](V v) { return spedizionePerNumeroData(v, giorno, Giunzione::esternaMinuscola); }},
    {"NumeroData_interna", [](V v) { return spedizionePerNumeroData(v, giorno, Giunzione::interna); }},
    {"Riferimento_riferimento", [](V v) { return spedizionePerRiferimento(v, giorno, u"MI"_s); }},
    {"Riferimento_filiale", [](V v) { return spedizionePerRiferimento(u"R"_s, giorno, v); }},
    {"Giacenza_numero", [](V v) { return spedizionePerGiacenza(v, giorno); }},
    {"Intera_filiale",
     [](V v) {
         return spedizioneIntera({v, u"1"_s, 2024});
     }},
    {"Intera_numero",
     [](V v) {
         return spedizioneIntera({u"MI"_s, v, 2024});
     }},
    {"DescrizioneFiliale", [](V v) { return descrizioneFiliale(v); }},
    {"FilialeIntera", [](V v) { return filialeIntera(v); }},
    {"Ammissione", [](V v) { return ammissione(v, giorno); }},
    {"Collega_giacenza",
     [](V v) {
         return collegaGiacenza({v, 2024}, u"1"_s, 2024);
     }},
    {"Collega_lettera",
     [](V v) {
         return collegaGiacenza({u"42"_s, 2024}, v, 2024);
     }},
    {"StatoAvviso_giacenza",
     [](V v) {
         return statoAvviso(ChiaveGiacenza{v, 2024});
     }},
    {"StatoAvviso_filiale",
     [](V v) {
         return statoAvviso(ChiaveSpedizione{v, u"1"_s, 2024});
     }},
    {"StatoAvviso_numero",
     [](V v) {
         return statoAvviso(ChiaveSpedizione{u"MI"_s, v, 2024});
     }},
    {"PrimoAvviso_giacenza",
     [](V v) {
         return primoAvviso(ChiaveGiacenza{v, 2024}, giorno);
     }},
    {"PrimoAvviso_filiale",
     [](V v) {
         return primoAvviso(ChiaveSpedizione{v, u"1"_s, 2024}, giorno);
     }},
    {"PrimoAvviso_numero",
     [](V v) {
         return primoAvviso(ChiaveSpedizione{u"MI"_s, v, 2024}, giorno);
     }},
    {"Successivo_giacenza",
     [](V v) {
         return avvisoSuccessivo({v, 2024}, 2, giorno, u"x"_s);
     }},
    {"Successivo_descrizione",
     [](V v) {
         return avvisoSuccessivo({u"42"_s, 2024}, 2, giorno, v);
     }},
    {"Successivo_filiale",
     [](V v) {
         return avvisoSuccessivo({v, u"1"_s, 2024}, 2, giorno);
     }},
    {"Successivo_numero",
     [](V v) {
         return avvisoSuccessivo({u"MI"_s, v, 2024}, 2, giorno);
     }},
    {"DataBuonFine_giacenza",
     [](V v) {
         return dataBuonFine(ChiaveGiacenza{v, 2024});
     }},
    {"DataBuonFine_filiale",
     [](V v) {
         return dataBuonFine(ChiaveSpedizione{v, u"1"_s, 2024});
     }},
    {"DataBuonFine_numero",
     [](V v) {
         return dataBuonFine(ChiaveSpedizione{u"MI"_s, v, 2024});
     }},
    {"Chiusura",
     [](V v) {
         return chiusura({v, 2024}, giorno, u"3"_s);
     }},
    {"ChiusuraRipetuta",
     [](V v) {
         return chiusuraRipetuta({v, 2024}, u"3"_s);
     }},
    {"Condizioni_anno", [](V v) { return condizioniFatturazione(v, 2024); }},
    {"Condizioni_data", [](V v) { return condizioniFatturazione(v, giorno); }},
    {"SalvaCosti_filiale",
     [](V v) {
         return salvaCosti({v, u"1"_s, 2024}, Decimale(u"1"_s), Decimale(u"2"_s));
     }},
    {"SalvaCosti_numero",
     [](V v) {
         return salvaCosti({u"MI"_s, v, 2024}, Decimale(u"1"_s), Decimale(u"2"_s));
     }},
    {"Riconsegne",
     [](V v) {
         return riconsegne({v, 2024});
     }},
    {"Apertura1_riferimento", ricerca(ricercaApertura, M::riferimento, &D::riferimento)},
    {"Apertura1_filiale", ricerca(ricercaApertura, M::riferimento, &D::filiale)},
    {"Apertura1Anno_riferimento", ricerca(ricercaApertura, M::riferimento, &D::riferimento, u"2024"_s)},
    {"Apertura1Anno_filiale", ricerca(ricercaApertura, M::riferimento, &D::filiale, u"2024"_s)},
    {"Apertura7_numero", ricerca(ricercaApertura, M::letteraVettura, &D::numero)},
    {"Apertura7_filiale", ricerca(ricercaApertura, M::letteraVettura, &D::filiale)},
    {"Apertura7Anno_numero", ricerca(ricercaApertura, M::letteraVettura, &D::numero, u"2024"_s)},
    {"Apertura7Anno_filiale", ricerca(ricercaApertura, M::letteraVettura, &D::filiale, u"2024"_s)},
    {"Apertura10_giacenza", ricerca(ricercaApertura, M::riconsegne, &D::giacenza)},
    {"Apertura11_cliente", ricerca(ricercaApertura, M::giacenze, &D::cliente)},
    {"Visualizza1_valore", ricerca(ricercaVisualizza, M::riferimento, &D::valore)},
    {"Visualizza1_filiale", ricerca(ricercaVisualizza, M::riferimento, &D::filiale)},
    {"Visualizza7_filiale", ricerca(ricercaVisualizza, M::letteraVettura, &D::filiale)},
    {"Visualizza7_anno", ricerca(ricercaVisualizza, M::letteraVettura, &D::annoOData)},
    {"Visualizza7Anno_filiale", ricerca(ricercaVisualizza, M::letteraVettura, &D::filiale, u"2024"_s)},
    {"Visualizza11_cliente", ricerca(ricercaVisualizza, M::giacenze, &D::cliente, u"05/03/2024"_s)},
};

} // namespace luoghi

class LuogoDiTesto : public testing::TestWithParam<Luogo>
{};

TEST_P(LuogoDiTesto, ilValorePassaImmutatoFraApostrofi)
{
    const QString conSegno = GetParam().istruzione(u"<qui>"_s);
    ASSERT_EQ(conSegno.count(u"'<qui>'"_s), 1);
    for (const QString& valore :
         {u"l''atrio"_s, u"''''"_s, u"100%"_s, u"%1 %2 %3 %L1"_s, u"a; drop table giace00f;"_s, u"x -- y"_s,
          u"/* x */ # y"_s, u"\\"_s, u"?"_s, u"riga\r\nriga"_s, u"àè€😀"_s, QString(10000, u'x')}) {
        EXPECT_EQ(GetParam().istruzione(valore), QString(conSegno).replace(u"<qui>"_s, valore));
    }
}

TEST_P(LuogoDiTesto, unApostrofoSoloNonPassa)
{
    for (const QString& valore : {u"'"_s, u"l'atrio"_s, u"x' or '1'='1"_s, u"'''"_s, QString(QChar(u'\0'))}) {
        EXPECT_THROW(GetParam().istruzione(valore), ErroreDatabase);
    }
}

INSTANTIATE_TEST_SUITE_P(Tutti, LuogoDiTesto, testing::ValuesIn(luoghi::diTesto), nomeDi);

std::vector<Luogo> luoghiDiCifre()
{
    using namespace istruzioni;
    using M = ModoRicerca;
    using D = DatiRicerca;
    return {
        {"Cliente", [](const QString& v) { return clientePerCodice(v); }},
        {"Apertura1_cliente", ricerca(ricercaApertura, M::riferimento, &D::cliente)},
        {"Apertura1Anno_cliente", ricerca(ricercaApertura, M::riferimento, &D::cliente, u"2024"_s)},
        {"Apertura7_cliente", ricerca(ricercaApertura, M::letteraVettura, &D::cliente)},
        {"Apertura7Anno_cliente", ricerca(ricercaApertura, M::letteraVettura, &D::cliente, u"2024"_s)},
        {"Apertura10_anno", ricerca(ricercaApertura, M::riconsegne, &D::annoGiacenza)},
        {"Visualizza1_cliente", ricerca(ricercaVisualizza, M::riferimento, &D::cliente)},
        {"Visualizza7_cliente", ricerca(ricercaVisualizza, M::letteraVettura, &D::cliente)},
        {"Visualizza7_valore", ricerca(ricercaVisualizza, M::letteraVettura, &D::valore)},
        {"Visualizza7Anno_cliente", ricerca(ricercaVisualizza, M::letteraVettura, &D::cliente, u"2024"_s)},
        {"Visualizza7Anno_valore", ricerca(ricercaVisualizza, M::letteraVettura, &D::valore, u"2024"_s)},
    };
}

class LuogoDiCifre : public testing::TestWithParam<Luogo>
{};

TEST_P(LuogoDiCifre, soloCifre)
{
    const QString conCifre = GetParam().istruzione(u"77777"_s);
    ASSERT_EQ(conCifre.count(u"=77777"_s), 1);
    EXPECT_EQ(GetParam().istruzione(u"00123"_s), QString(conCifre).replace(u"77777"_s, u"00123"_s));
    for (const QString& valore : {QString(), u" "_s, u"abc"_s, u"-1"_s, u"1.5"_s, u"1,5"_s, u"1 or 1=1"_s,
                                  u"1;"_s, u"1--"_s, u"''"_s}) {
        EXPECT_THROW(GetParam().istruzione(valore), ErroreDatabase) << testing::PrintToString(valore);
    }
}

INSTANTIATE_TEST_SUITE_P(Tutti, LuogoDiCifre, testing::ValuesIn(luoghiDiCifre()), nomeDi);

TEST(LuogoDiAnno, unNumeroCheNonECifreNonPassa)
{
    DatiRicerca dati;
    dati.cliente = u"1001"_s;
    for (const QString& anno : {u"-2024"_s, u"20,5"_s, u" 2024"_s}) {
        dati.annoOData = anno;
        EXPECT_THROW(istruzioni::ricercaApertura(ModoRicerca::riferimento, dati), ErroreDatabase);
        EXPECT_THROW(istruzioni::ricercaApertura(ModoRicerca::letteraVettura, dati), ErroreDatabase);
    }
}

TEST(LuogoDiNumero, ilContatore)
{
    for (const QString& numero : {QString(), u"x"_s, u"1 where 1=0"_s, u"1,5"_s}) {
        EXPECT_THROW(istruzioni::aggiornaUltimoNumGiacenza(numero), ErroreDatabase);
    }
}

TEST(LuogoDiData, unaDataNonValidaNonPassa)
{
    using namespace istruzioni;
    const ChiaveGiacenza giacenza42{u"42"_s, 2024};
    const ChiaveSpedizione lettera{u"MI"_s, u"1"_s, 2024};
    const QDate nessuna;
    EXPECT_THROW(spedizionePerNumeroDataFiliale(u"1"_s, nessuna, u"MI"_s), ErroreDatabase);
    EXPECT_THROW(spedizionePerNumeroData(u"1"_s, nessuna, Giunzione::interna), ErroreDatabase);
    EXPECT_THROW(spedizionePerRiferimento(u"1"_s, nessuna, u"MI"_s), ErroreDatabase);
    EXPECT_THROW(spedizionePerGiacenza(u"1"_s, nessuna), ErroreDatabase);
    EXPECT_THROW(ammissione(u"1"_s, nessuna), ErroreDatabase);
    EXPECT_THROW(primoAvviso(giacenza42, nessuna), ErroreDatabase);
    EXPECT_THROW(primoAvviso(lettera, nessuna), ErroreDatabase);
    EXPECT_THROW(avvisoSuccessivo(giacenza42, 2, nessuna, u"x"_s), ErroreDatabase);
    EXPECT_THROW(avvisoSuccessivo(lettera, 2, nessuna), ErroreDatabase);
    EXPECT_THROW(chiusura(giacenza42, nessuna, u"1"_s), ErroreDatabase);
    EXPECT_THROW(condizioniFatturazione(u"1"_s, nessuna), ErroreDatabase);
}

} // namespace
