#include "reports/avvisodiprova.h"

using namespace giacenza;
using namespace giacenza::report;
using namespace giacenza::report::prove;
using namespace Qt::StringLiterals;

namespace {

class Avviso : public AvvisoDiProva
{};

INSTANTIATE_TEST_SUITE_P(Basi, Avviso, testing::Values("sqlite", "mariadb"),
                         giacenza::prove::nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(Avviso, diceTuttoDellaGiacenza)
{
    const auto documento = componi();
    EXPECT_EQ(documento->titolo(), u"Avviso di giacenza 1234/2015"_s);
    ASSERT_EQ(documento->pagine(), 1);
    const PaginaReport& p = documento->pagina(0);
    const std::pair<QString, QString> attesi[] = {
        {u"lblBord1"_s, u"Trasporti del Ponte S.r.l."_s},
        {u"lblBord2"_s, u"Via dell'Industria 14 - 10148 Torino (TO)"_s},
        {u"lblBord3"_s, u"Tel. 011 000000 - Fax 011 000001"_s},
        {u"lblBord4"_s, u"giacenze@trasportidelponte.example"_s},
        {u"txtData"_s, u"12/03/2015"_s},
        {u"txtCodiceCliente"_s, u"4711"_s},
        {u"lblSpettabile"_s, u"Spett.le"_s},
        {u"txtMittente"_s, u"Ceramiche dell'Arno S.p.A."_s},
        {u"txtIndMittente"_s, u"Via degli Orti 12"_s},
        {u"txtLocalitaMitt"_s, u"50056 Montelupo Fiorentino (FI)"_s},
        {u"lblTitolo"_s, u"Avviso di giacenza"_s},
        {u"txtNumero"_s, u"n. 1234 / 2015"_s},
        {u"txtBarLDV"_s, u"LDV 0098765"_s},
        {u"txtLDV"_s, u"0098765"_s},
        {u"txtDataLdv"_s, u"02/03/2015"_s},
        {u"txtFiliale"_s, u"Milano"_s},
        {u"txtRifMitt"_s, u"DDT 812"_s},
        {u"txtDestinatario"_s, u"Bottega del Gusto di Rossi Maria"_s},
        {u"txtIndDestinatario"_s, u"Piazza Garibaldi 7/b"_s},
        {u"txtLocalitaDest"_s, u"10123 Torino (TO)"_s},
        {u"txtNaturaMerce"_s, u"Piastrelle"_s},
        {u"txtColli"_s, u"4"_s},
        {u"txtPesoKg"_s, u"1.234,5 kg"_s},
        {u"txtVolume"_s, u"0,75 m³"_s},
        {u"txtValMerce"_s, u"12.345,60 €"_s},
        {u"txtContrassegno"_s, u"250,00 €"_s},
        {u"txtNrGia"_s, u"1234"_s},
        {u"txtDataGia"_s, u"05/03/2015"_s},
        {u"txtNrAvviso"_s, u"1 del 12/03/2015"_s},
        {u"txtGiorniSosta"_s, u"7"_s},
        {u"txtMagazzino"_s, u"Corso Francia 20 Torino (TO)"_s},
        {u"txtDescrizione"_s, u"Destinatario assente al secondo passaggio"_s},
        {u"txtIstruzioni"_s,
         u"Vi preghiamo di comunicarci entro 5 giorni se riconsegnare o rendere la merce."_s},
        {u"lblDocumento"_s, u"Avviso di giacenza 1234/2015"_s},
        {u"lblPagina"_s, u"Pagina 1 di 1"_s},
    };
    for (const auto& [controllo, atteso] : attesi)
        EXPECT_EQ(testo(p, controllo), atteso) << controllo.toStdString();
    EXPECT_EQ(diGenere<BarrePagina>(p, u"barLDV"_s).size(), 1U);
    aspettaOrdinata(p);
}

TEST_P(Avviso, conTuttoNullEsceLoStesso)
{
    esegui(
        u"update giace00f set GICODI=null, GIFIGI=null, GIDTGI=null, GIGGSO=null, GINRAV=null, GIDTAV=null, "
        "GIDES1=null, GIDTBF=null, GIIMGI=null, FissoGiacenza=null"_s);
    esegui(
        u"update letve00f set lecmpe=null, ledest=null, leindd=null, lecapd=null, lelocd=null, leprod=null, "
        "lenatu=null, lerife=null, lerifd=null, lecoll=null, lepeso=null, levolu=null, lecnss=null, levame=null"_s);
    esegui(u"update ekelvorqzt_tabge00f set IstrSuAvvGiac=null"_s);
    const PaginaReport p = pagina();
    EXPECT_EQ(testo(p, u"txtData"_s), u"01/04/2015"_s);
    EXPECT_EQ(testo(p, u"txtLDV"_s), u"0098765"_s);
    for (const QString& vuoto :
         {u"lblSpettabile"_s, u"txtMittente"_s, u"txtMagazzino"_s, u"txtGiorniSosta"_s, u"txtNrAvviso"_s,
          u"lblDescrizione"_s, u"linDescrizione"_s, u"lblIstruzioni"_s})
        EXPECT_EQ(testo(p, vuoto), QString()) << vuoto.toStdString();
    EXPECT_TRUE(diGenere<CornicePagina>(p, u"linDescrizione"_s).empty());
    aspettaOrdinata(p);
}

TEST_P(Avviso, senzaLaLetteraDiVetturaEsceLaGiacenza)
{
    esegui(u"delete from letve00f"_s);
    const PaginaReport p = pagina();
    EXPECT_EQ(testo(p, u"txtNrGia"_s), u"1234"_s);
    EXPECT_EQ(testo(p, u"txtLDV"_s), u"0098765"_s);
    EXPECT_EQ(testo(p, u"txtDestinatario"_s), QString());
    EXPECT_EQ(testo(p, u"txtMittente"_s), u"Ceramiche dell'Arno S.p.A."_s);
}

TEST_P(Avviso, laLetteraDiVetturaEQuellaDellaSuaFilialeEDelSuoAnno)
{
    esegui(u"insert into letve00f (lefili, lenrlv, leanlv, ledtlv, lecodi, ledest) values "
           "('TO', '0098765', 2015, '2015-01-01', 4711, 'Altra filiale'), "
           "('MI', '0098765', 2014, '2014-01-01', 4711, 'Altro anno'), "
           "('MI', '98765', 2015, '2015-01-01', 4711, 'Altro numero')"_s);
    EXPECT_EQ(componi()->pagine(), 1);
    EXPECT_EQ(testo(pagina(), u"txtDestinatario"_s), u"Bottega del Gusto di Rossi Maria"_s);
}

TEST_P(Avviso, istruzioniSenzaLaRigaDelleImpostazioni)
{
    esegui(u"delete from ekelvorqzt_tabge00f"_s);
    EXPECT_EQ(testo(pagina(), u"txtIstruzioni"_s), QString());
}

TEST_P(Avviso, magazzinoSconosciutoMostraIlCodice)
{
    esegui(u"update giace00f set GIFIGI='XX'"_s);
    EXPECT_EQ(testo(pagina(), u"txtMagazzino"_s), u"XX"_s);
}

TEST_P(Avviso, magazzinoSenzaIndirizzo)
{
    esegui(u"update filiali set Indirizzo=null, provincia=null where codice='TO'"_s);
    EXPECT_EQ(testo(pagina(), u"txtMagazzino"_s), u"Torino"_s);
}

TEST_P(Avviso, unErroreNelMagazzinoSiMostraENonStampa)
{
    esegui(u"update giace00f set GIFIGI='T''O'"_s);
    EXPECT_EQ(componi(), nullptr);
    ASSERT_EQ(mRegistro.messaggi().size(), 1U);
    const Messaggio messaggio = mRegistro.messaggi()[0];
    EXPECT_TRUE(messaggio.testo.startsWith(u"Error #513\r"_s)) << messaggio.testo.toStdString();
    EXPECT_EQ(messaggio.stile, Stile::critico);
}

TEST_P(Avviso, giorniDiSostaFinoAllAvvisoESoloSePositivi)
{
    mOggi = QDate(2015, 3, 30);
    esegui(u"update giace00f set GIDTAV=null"_s);
    EXPECT_EQ(testo(pagina(), u"txtGiorniSosta"_s), u"25"_s);
    esegui(u"update giace00f set GIDTAV='2015-03-05'"_s);
    EXPECT_EQ(testo(pagina(), u"txtGiorniSosta"_s), QString());
    esegui(u"update giace00f set GIDTAV='2015-03-01'"_s);
    EXPECT_EQ(testo(pagina(), u"txtGiorniSosta"_s), QString());
}

TEST_P(Avviso, apostrofiEFaccine)
{
    esegui(u"update giace00f set GIDES1='L''imballo \"rotto\" 📦 però c''è; 100% < & > \\ fine'"_s);
    EXPECT_EQ(testo(pagina(), u"txtDescrizione"_s), u"L'imballo \"rotto\" 📦 però c'è; 100% < & > \\ fine"_s);
}

TEST_P(Avviso, numeroCheIlCodiceABarreNonTiene)
{
    esegui(u"update letve00f set lenrlv='12€4'"_s);
    esegui(u"update giace00f set GINRLV='12€4'"_s);
    const PaginaReport p = pagina();
    EXPECT_TRUE(diGenere<BarrePagina>(p, u"barLDV"_s).empty());
    EXPECT_EQ(testo(p, u"txtLDV"_s), u"12€4"_s);
    EXPECT_EQ(testo(p, u"txtDestinatario"_s), u"Bottega del Gusto di Rossi Maria"_s);
}

TEST_P(Avviso, chiaviCheNonIndicanoUnaGiacenza)
{
    for (const QString& chiave :
         {u"9999_2015"_s, u"1234_2014"_s, u"1234"_s, u"_2015"_s, u"1234_"_s, QString()}) {
        mRichiesta.chiave = chiave;
        EXPECT_THROW(componi(), Errore) << chiave.toStdString();
    }
    for (const QString& chiave : {u"12'34_2015"_s, u"1234_x"_s}) {
        mRichiesta.chiave = chiave;
        EXPECT_THROW(componi(), ErroreDatabase) << chiave.toStdString();
    }
}

TEST_P(Avviso, numeroConTrattinoBasso)
{
    esegui(u"update giace00f set GINRGI='A_12'"_s);
    mRichiesta.chiave = u"A_12_2015"_s;
    EXPECT_EQ(testo(pagina(), u"txtNrGia"_s), u"A_12"_s);
}

TEST_P(Avviso, ilDatabaseCheNonCE)
{
    mRichiesta.percorsoDatabase = u"DRIVER={Nessuno};"_s;
    EXPECT_THROW(componi(), ErroreDatabase);
}

} // namespace
