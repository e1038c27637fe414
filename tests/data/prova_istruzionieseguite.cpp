#include "data/istruzioni.h"
#include "data/istruzioniricerca.h"
#include "support/bancadati.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;

// Each statement on each database, as the user of a workstation: it is accepted and finds or changes its row.

namespace {

const QDate giorno(2024, 3, 5);
const QDate oggi(2024, 3, 9);
const ChiaveSpedizione lettera{u"MI"_s, u"0123"_s, 2024};
const ChiaveGiacenza giacenza42{u"42"_s, 2024};

class Eseguite : public testing::TestWithParam<std::string>
{
protected:
    Eseguite()
    {
        mBase.esegui(uR"(
insert into filiali (codice, descrizione, Indirizzo) values ('MI', 'Milano', 'Via Roma 1');
insert into forni (Codice, RagioneSociale) values ('V1', 'Vettore Uno');
insert into codicizona (Codice, Descrizione) values ('L1', 'Linea Uno');
insert into clien (Codice, RagioneSociale) values (1001, 'Ditta Mille');
insert into porto (idPorto, Descrizione) values (1, 'Franco');
insert into ekelvorqzt_tabge00f (UltimoNumGiacenza, IstrSuAvvGiac) values (42, 'Istruzioni');
insert into tabfatturazione (FALCOD, FACODI, FACMPE, FADFGI) values ('C', 1001, '01', 7.5);
insert into letve00f (lefili, lenrlv, leanlv, ledtlv, lecodi, lecmpe, lecdve, lelin1, lerife, lerifd, ledest,
 LERFGI, LEANGI, LEDTCO) values
 ('MI', '0123', 2024, '2024-03-05', 1001, '01', 'V1', 'L1', 'RIF7', '2024-03-01', 'Rossi', '42', 2024, null);
insert into letve00f (lefili, lenrlv, leanlv, ledtlv, lecodi, lecmpe, lecdve, lelin1, lerife, lerifd, ledest,
 LEDTCO) values
 ('MI', '99', 2024, '2024-03-05', 1001, '01', 'XX', 'XX', 'RIF8', '2024-03-01', 'Verdi', '2024-03-06');
insert into giace00f (GIFILI, GINRLV, GIANLV, GINRGI, GIANGI, GIDTGI, GICODI) values
 ('MI', '0123', 2024, '42', 2024, '2024-03-06', 1001);
)"_s);
    }

    /// A column of all rows.
    QStringList colonna(const QString& istruzione, const QString& nome)
    {
        QStringList valori;
        Recordset recordset;
        for (recordset.apri(mConnessione, istruzione); !recordset.eof(); recordset.successivo()) {
            valori << recordset.valore(nome).value_or(u"NULL"_s);
        }
        return valori;
    }

    /// Columns of the held shipment after a change of one row.
    QStringList dopo(const QString& istruzione, const QString& colonne)
    {
        EXPECT_EQ(mConnessione.esegui(istruzione), 1);
        return mBase.righe(u"select %1 from giace00f"_s.arg(colonne)).value(0);
    }

    BancaDati mBase{GetParam()};
    Connessione mConnessione = mBase.connessione();
};

using namespace istruzioni;

TEST_P(Eseguite, spedizioni)
{
    const QStringList una{u"0123"_s};
    const QString nome = u"lenrlv"_s;
    EXPECT_EQ(colonna(spedizionePerNumeroDataFiliale(u"0123"_s, giorno, u"MI"_s), nome), una);
    EXPECT_EQ(colonna(spedizionePerNumeroData(u"0123"_s, giorno, Giunzione::esterna), nome), una);
    EXPECT_EQ(colonna(spedizionePerNumeroData(u"0123"_s, giorno, Giunzione::esternaMinuscola), nome), una);
    EXPECT_EQ(colonna(spedizionePerNumeroData(u"0123"_s, giorno, Giunzione::interna), nome), una);
    EXPECT_EQ(colonna(spedizionePerRiferimento(u"RIF7"_s, QDate(2024, 3, 1), u"MI"_s), nome), una);
    EXPECT_EQ(colonna(spedizionePerGiacenza(u"42"_s, QDate(2024, 3, 6)), nome), una);
    EXPECT_EQ(colonna(spedizioneIntera(lettera), nome), una);
    EXPECT_EQ(colonna(riconsegne(giacenza42), nome), una);
}

TEST_P(Eseguite, iNomiDiFilialeLineaVettore)
{
    const QString istruzione = spedizionePerNumeroData(u"0123"_s, giorno, Giunzione::interna);
    EXPECT_EQ(colonna(istruzione, u"filiale"_s), QStringList{u"Milano"_s});
    EXPECT_EQ(colonna(istruzione, u"linea"_s), QStringList{u"Linea Uno"_s});
    EXPECT_EQ(colonna(istruzione, u"vettore"_s), QStringList{u"Vettore Uno"_s});
}

TEST_P(Eseguite, senzaLineaEVettoreSoloLeGiunzioniEsterneTrovano)
{
    for (const Giunzione esterna : {Giunzione::esterna, Giunzione::esternaMinuscola}) {
        EXPECT_EQ(colonna(spedizionePerNumeroData(u"99"_s, giorno, esterna), u"vettore"_s),
                  QStringList{u"NULL"_s});
    }
    EXPECT_EQ(colonna(spedizionePerNumeroData(u"99"_s, giorno, Giunzione::interna), u"lenrlv"_s),
              QStringList());
}

TEST_P(Eseguite, ilNumeroSiConfrontaComeTesto)
{
    EXPECT_EQ(colonna(spedizionePerNumeroData(u"123"_s, giorno, Giunzione::esterna), u"lenrlv"_s),
              QStringList());
}

TEST_P(Eseguite, anagrafica)
{
    EXPECT_EQ(colonna(clientePerCodice(u"1001"_s), u"RagioneSociale"_s), QStringList{u"Ditta Mille"_s});
    EXPECT_EQ(colonna(clientePerCodice(u"7"_s), u"RagioneSociale"_s), QStringList());
    EXPECT_EQ(colonna(elencoFiliali(), u"codice"_s), QStringList{u"MI"_s});
    EXPECT_EQ(colonna(descrizioneFiliale(u"MI"_s), u"descrizione"_s), QStringList{u"Milano"_s});
    EXPECT_EQ(colonna(filialeIntera(u"MI"_s), u"Indirizzo"_s), QStringList{u"Via Roma 1"_s});
    EXPECT_EQ(colonna(elencoPorto(), u"idPorto"_s), QStringList{u"1"_s});
}

TEST_P(Eseguite, ammissioneECollegamento)
{
    EXPECT_EQ(colonna(ammissione(u"99"_s, giorno), u"lerfgi"_s), QStringList{u"NULL"_s});
    EXPECT_EQ(mConnessione.esegui(collegaGiacenza({u"43"_s, 2025}, u"99"_s, 2024)), 1);
    EXPECT_EQ(colonna(ammissione(u"99"_s, giorno), u"lerfgi"_s), QStringList{u"43"_s});
    EXPECT_EQ(mBase.righe(u"select LERFGI, LEANGI, LEDTCO from letve00f where lenrlv='99'"_s).value(0),
              QStringList({u"43"_s, u"2025"_s, u"NULL"_s}));
}

TEST_P(Eseguite, avvisoPerGiacenza)
{
    const QString colonne = u"GINRAV, GIDTAV, GIDES1"_s;
    EXPECT_EQ(colonna(statoAvviso(giacenza42), u"GINRAV"_s), QStringList{u"NULL"_s});
    EXPECT_EQ(dopo(primoAvviso(giacenza42, oggi), colonne),
              QStringList({u"1"_s, u"2024-03-09"_s, u"NULL"_s}));
    EXPECT_EQ(dopo(avvisoSuccessivo(giacenza42, 2, oggi.addDays(1), u"l''atrio \\ 100%"_s), colonne),
              QStringList({u"2"_s, u"2024-03-10"_s, u"l'atrio \\ 100%"_s}));
    EXPECT_EQ(colonna(statoAvviso(giacenza42), u"GIDES1"_s), QStringList{u"l'atrio \\ 100%"_s});
    EXPECT_EQ(colonna(istruzioniAvviso(), u"IstrSuAvvGiac"_s), QStringList{u"Istruzioni"_s});
}

TEST_P(Eseguite, avvisoPerSpedizione)
{
    EXPECT_EQ(dopo(primoAvviso(lettera, oggi), u"GINRAV, GIDTAV"_s), QStringList({u"1"_s, u"2024-03-09"_s}));
    EXPECT_EQ(dopo(avvisoSuccessivo(lettera, 2, oggi.addDays(1)), u"GINRAV, GIDTAV"_s),
              QStringList({u"2"_s, u"2024-03-10"_s}));
    EXPECT_EQ(colonna(statoAvviso(lettera), u"GIDTAV"_s), QStringList{u"2024-03-10"_s});
}

TEST_P(Eseguite, chiusuraECosti)
{
    EXPECT_EQ(colonna(condizioniFatturazione(u"0123"_s, 2024), u"FACODI"_s), QStringList{u"1001"_s});
    EXPECT_EQ(colonna(condizioniFatturazione(u"0123"_s, giorno), u"FACODI"_s), QStringList{u"1001"_s});
    EXPECT_EQ(dopo(chiusura(giacenza42, oggi, u"3"_s), u"GIDTBF, GIGGSO"_s),
              QStringList({u"2024-03-09"_s, u"3"_s}));
    EXPECT_EQ(dopo(chiusuraRipetuta(giacenza42, u"-4"_s), u"GIDTBF, GIGGSO"_s),
              QStringList({u"2024-03-09"_s, u"-4"_s}));
    EXPECT_EQ(colonna(dataBuonFine(giacenza42), u"GIDTBF"_s), QStringList{u"2024-03-09"_s});
    EXPECT_EQ(colonna(dataBuonFine(lettera), u"GIDTBF"_s), QStringList{u"2024-03-09"_s});
    const QStringList importi =
        dopo(salvaCosti(lettera, Decimale(u"7,5"_s), Decimale(u"15"_s)), u"FissoGiacenza, GIIMGI"_s);
    ASSERT_EQ(importi.size(), 2);
    EXPECT_EQ(confronta(importi.at(0), u"7.50"_s), std::strong_ordering::equal);
    EXPECT_EQ(confronta(importi.at(1), u"15.00"_s), std::strong_ordering::equal);
}

class RicercaEseguita : public Eseguite
{
protected:
    RicercaEseguita()
    {
        mDati.cliente = u"1001"_s;
        mDati.filiale = u"MI"_s;
        mDati.giacenza = u"42"_s;
        mDati.annoGiacenza = u"2024"_s;
        mDati.annoCorrente = 2024;
    }

    DatiRicerca mDati;
};

TEST_P(RicercaEseguita, perRiferimento)
{
    mDati.riferimento = u"RIF8"_s;
    const QStringList una{u"99"_s};
    EXPECT_EQ(colonna(ricercaApertura(ModoRicerca::riferimento, mDati), u"lenrlv"_s), una);
    mDati.annoOData = u"2024"_s;
    EXPECT_EQ(colonna(ricercaApertura(ModoRicerca::riferimento, mDati), u"lenrlv"_s), una);
    mDati.annoOData = u"2023"_s;
    EXPECT_EQ(colonna(ricercaApertura(ModoRicerca::riferimento, mDati), u"lenrlv"_s), QStringList());
    mDati.valore = u"RIF7"_s;
    EXPECT_EQ(colonna(ricercaVisualizza(ModoRicerca::riferimento, mDati), u"lenrlv"_s),
              QStringList({u"0123"_s, u"99"_s}));
}

TEST_P(RicercaEseguita, perLetteraAllAperturaComeTestoPoiComeNumero)
{
    mDati.numero = u"9"_s;
    EXPECT_EQ(colonna(ricercaApertura(ModoRicerca::letteraVettura, mDati), u"Num_Ldv"_s),
              QStringList{u"99"_s});
    mDati.annoOData = u"2024"_s;
    EXPECT_EQ(colonna(ricercaApertura(ModoRicerca::letteraVettura, mDati), u"Num_Ldv"_s),
              QStringList{u"99"_s});
    mDati.valore = u"9"_s;
    const QStringList inOrdine{u"99"_s, u"0123"_s};
    EXPECT_EQ(colonna(ricercaVisualizza(ModoRicerca::letteraVettura, mDati), u"Num_Ldv"_s), inOrdine);
    mDati.annoOData.clear();
    EXPECT_EQ(colonna(ricercaVisualizza(ModoRicerca::letteraVettura, mDati), u"Num_Ldv"_s), inOrdine);
    mDati.annoOData = u"2025"_s;
    EXPECT_EQ(colonna(ricercaVisualizza(ModoRicerca::letteraVettura, mDati), u"Num_Ldv"_s), QStringList());
}

TEST_P(RicercaEseguita, riconsegneEGiacenze)
{
    EXPECT_EQ(colonna(ricercaApertura(ModoRicerca::riconsegne, mDati), u"Num_Ldv"_s), QStringList{u"0123"_s});
    const QStringList una{u"42"_s};
    EXPECT_EQ(colonna(ricercaApertura(ModoRicerca::giacenze, mDati), u"Giacenza"_s), una);
    mDati.annoCorrente = 2025;
    EXPECT_EQ(colonna(ricercaApertura(ModoRicerca::giacenze, mDati), u"Giacenza"_s), QStringList());
    mDati.annoOData = u"06/03/2024"_s;
    EXPECT_EQ(colonna(ricercaVisualizza(ModoRicerca::giacenze, mDati), u"Giacenza"_s), una);
    mDati.annoOData = u"07/03/2024"_s;
    EXPECT_EQ(colonna(ricercaVisualizza(ModoRicerca::giacenze, mDati), u"Giacenza"_s), QStringList());
}

INSTANTIATE_TEST_SUITE_P(Basi, Eseguite, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);
INSTANTIATE_TEST_SUITE_P(Basi, RicercaEseguita, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

} // namespace
