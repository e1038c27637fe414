#include "management/gestionediprova.h"

#include "base/impostazioni.h"
#include "base/orologio.h"
#include "reports/letters/costibuonfine.h"
#include "reports/letters/reportcondivisi.h"
#include "support/stampa.h"

#include <QLineEdit>
#include <QRadioButton>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const QStringList controlliCosti = {u"corTot"_s,     u"lblsosta"_s,   u"txtGIGGSO"_s,     u"txtGIIMGI"_s,
                                    u"lblDossier"_s, u"txtDossier"_s, u"lblRiconsegna"_s, u"txtRicons"_s,
                                    u"lblTot"_s,     u"txtTot"_s};

QStringList nascosti()
{
    QStringList nomi;
    for (const report::Controllo& controllo : rptBuonFine().sezione(u"Dettaglio_Dettaglio"_s).controlli)
        if (!controllo.visibile)
            nomi << controllo.nome;
    return nomi;
}

class BuonFine : public GestioneDiProva
{
protected:
    ~BuonFine() override { MostraCostiBuonFine(); }

    /// Closure date, days, fixed fee and amount, the amounts with two decimals.
    QString chiusura(const QString& numero) const
    {
        QStringList campi = caso(u"GIDTBF,GIGGSO,FissoGiacenza,GIIMGI"_s, numero).split(u'|');
        for (QString& campo : campi)
            if (&campo >= &campi[2] && campo != u"NULL"_s)
                campo = arrotonda(campo, 2, Arrotondamento::alPari);
        return campi.join(u'|');
    }
    void condizioni(const QString& valori)
    {
        mBase.esegui(u"delete from tabfatturazione;"_s);
        if (!valori.isEmpty())
            mBase.esegui(u"insert into tabfatturazione (FALCOD,FACODI,FACMPE,FADFGI,FAFRGI,FATGIG,FAMIGI) "
                         "values ('C',1001,'A',%1);"_s.arg(valori));
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, BuonFine, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(BuonFine, ChiudeCalcolaEStampa)
{
    richiamaAvvisato();
    const QStringList inviate = istruzioni([&] { scorciatoia(Qt::Key_B); });
    EXPECT_THAT(
        inviate,
        ElementsAre(
            u"select GIDTBF from giace00f WHERE GINRGI='39' AND GIANGI=2026;"_s,
            u"UPDATE giace00f SET GIDTBF='2026-11-21', GIGGSO=16 WHERE GINRGI='39' AND GIANGI=2026;"_s,
            u"SELECT tabfatturazione.* from (tabfatturazione inner JOIN letve00f  on facodi=lecodi and "
            "facmpe=lecmpe) where falcod='C' and lenrlv='4712' and leanlv='2026';"_s,
            u"update Giace00f set  FissoGiacenza=7.50, GIIMGI=16.50 where GIFILI='MI' and GINRLV='4712' and "
            "gianlv=2026;"_s));
    EXPECT_EQ(chiusura(u"39"_s), u"2026-11-21|16|7.50|16.50"_s);
    EXPECT_EQ(mostrato("lblDataBuonFine"), u"21/11/2026"_s);
    EXPECT_EQ(mostrato("lblStatoCaso"), u"CHIUSA · 3 AVVISI"_s);
    EXPECT_EQ(mostrato("txtImponibile"), u"16,50"_s);
    EXPECT_EQ(
        mostrato("lblStato"),
        u"Giacenza 39_2026 chiusa, documento di buon fine prodotto. Si può ristampare l'avviso e ripetere "
        "la chiusura, con o senza i costi."_s);
    EXPECT_THAT(mStampe, ElementsAre(u"database "_s + mBase.stringa(), u"logo /logo"_s,
                                     u"didascalie uno|due|tre|quattro"_s, u"stampa 1"_s, u"tipo 6"_s,
                                     u"documento 39_2026"_s));
    EXPECT_THAT(nascosti(), IsEmpty()) << "Sì is the default";
    for (const char* nome : {"txtRiferimento", "txtAnnoRif", "txtFiliale", "txtLDV"})
        EXPECT_FALSE(c(nome)->isEnabled()) << nome;
    clicca("cmdAvvisoGia");
    EXPECT_EQ(mMessaggi.testi(), QStringList{u"La giacenza risulta chiusa,in data: 21/11/2026."_s});
}

TEST_P(BuonFine, SenzaAvvisoNonSiChiude)
{
    richiamaMaiAvvisato();
    EXPECT_THAT(istruzioni([&] { clicca("cmdBuonFine"); }), IsEmpty());
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(Messaggio{u"Non è stato ancora emesso un avviso di giacenza."_s, Stile::avviso,
                                      titoloApplicazione()}));
    EXPECT_EQ(chiusura(u"41"_s), u"NULL|NULL|NULL|NULL"_s);
    EXPECT_THAT(mStampe, IsEmpty());
    avvisa(u"assente"_s);
    clicca("cmdBuonFine");
    EXPECT_EQ(chiusura(u"41"_s), u"2026-11-21|11|7.50|15.00"_s) << "6 days at 1.50 are below the minimum";
}

TEST_P(BuonFine, DueVolteInGiorniDiversiTieneLaPrimaData)
{
    richiamaAvvisato();
    clicca("cmdBuonFine");
    mBase.esegui(u"update giace00f set GIGGSO=99, GIIMGI=1, FissoGiacenza=1 where GINRGI='39';"_s);
    impostaOggi(QDate(2026, 12, 1));
    EXPECT_THAT(istruzioni([&] { clicca("cmdBuonFine"); }),
                testing::Contains(u"UPDATE giace00f SET GIGGSO=16 WHERE GINRGI='39' AND GIANGI=2026;"_s));
    EXPECT_EQ(chiusura(u"39"_s), u"2026-11-21|16|7.50|16.50"_s);
    EXPECT_EQ(mostrato("lblDataBuonFine"), u"21/11/2026"_s);
    richiamaAvvisato();
    EXPECT_EQ(mostrato("barGiorniSosta"), u"16"_s) << "the days stopped growing";
    EXPECT_TRUE(c("txtLDV")->isEnabled()) << "a new retrieval starts afresh";
    EXPECT_EQ(mStampe.filter(u"tipo 6"_s).size(), 2);
}

TEST_P(BuonFine, SenzaCostiSiNascondonoTuttiEPoiTornano)
{
    richiamaAvvisato();
    clicca("optCostiNo");
    EXPECT_FALSE(qobject_cast<QRadioButton*>(c("optCosti"))->isChecked());
    clicca("cmdBuonFine");
    EXPECT_EQ(nascosti(), controlliCosti);
    EXPECT_EQ(chiusura(u"39"_s), u"2026-11-21|16|7.50|16.50"_s) << "only the paper leaves them out";
    clicca("cmdBuonFine");
    EXPECT_EQ(nascosti(), controlliCosti) << "also when it is repeated";
    clicca("optCosti");
    clicca("cmdBuonFine");
    EXPECT_THAT(nascosti(), IsEmpty());
}

TEST_P(BuonFine, OgniChiusuraPartonoVisibili)
{
    richiamaMaiAvvisato();
    NascondiCostiBuonFine();
    clicca("cmdBuonFine");
    EXPECT_EQ(mMessaggi.testi().size(), 1);
    EXPECT_THAT(nascosti(), IsEmpty());
}

TEST_P(BuonFine, ICostiSecondoLeCondizioni)
{
    const std::pair<QString, QString> attesi[] = {
        {u"7.50,16,1.50,15"_s, u"2026-11-21|16|7.50|0.00"_s},
        {u"7.50,15,1.50,15"_s, u"2026-11-21|16|7.50|15.00"_s},
        {u"0,13,0.333,0"_s, u"2026-11-21|16|0.00|1.00"_s},
        {u"7.50,20,1.50,15"_s, u"2026-11-21|16|7.50|0.00"_s},
        {u"-7.50,0,-1.50,-30"_s, u"2026-11-21|16|-7.50|-24.00"_s},
        {u"1.005,0,0,0.125"_s, u"2026-11-21|16|1.01|0.13"_s},
        {u"0,14.5,1,0"_s, u"2026-11-21|16|0.00|2.00"_s},
        {u"0,15.5,1,0"_s, u"2026-11-21|16|0.00|0.00"_s},
    };
    richiamaAvvisato();
    for (const auto& [valori, attesa] : attesi) {
        condizioni(valori);
        clicca("cmdBuonFine");
        EXPECT_EQ(chiusura(u"39"_s), attesa) << valori.toStdString();
    }
}

TEST_P(BuonFine, SenzaCondizioniICostiRestanoESiStampa)
{
    condizioni({});
    richiamaAvvisato();
    mBase.esegui(u"update giace00f set FissoGiacenza=3, GIIMGI=4 where GINRGI='39';"_s);
    clicca("cmdBuonFine");
    EXPECT_EQ(chiusura(u"39"_s), u"2026-11-21|16|3.00|4.00"_s);
    EXPECT_EQ(mStampe.filter(u"documento"_s), QStringList{u"documento 39_2026"_s});
    EXPECT_THAT(mMessaggi.prendi(), IsEmpty());
    EXPECT_TRUE(c("txtLDV")->isEnabled());
}

TEST_P(BuonFine, CondizioniIncompleteFermanoDopoLaChiusura)
{
    richiamaAvvisato();
    for (const QString& valori :
         {u"null,5,1.5,15"_s, u"7.5,null,1.5,15"_s, u"7.5,5,null,15"_s, u"7.5,5,1.5,null"_s}) {
        condizioni(valori);
        clicca("cmdBuonFine");
        EXPECT_EQ(mMessaggi.prendi().size(), 1U) << valori.toStdString();
        EXPECT_EQ(chiusura(u"39"_s), u"2026-11-21|16|NULL|NULL"_s) << "what was executed stays";
    }
    EXPECT_THAT(mStampe, IsEmpty());
}

TEST_P(BuonFine, GiorniNegativiNonCostano)
{
    mBase.esegui(u"update giace00f set GIDTGI='2026-11-25' where GINRGI='39';"_s);
    richiama(u"39"_s, u"25112026"_s);
    EXPECT_EQ(mostrato("barGiorniSosta"), u"-4"_s);
    clicca("cmdBuonFine");
    EXPECT_EQ(chiusura(u"39"_s), u"2026-11-21|-4|7.50|0.00"_s);
}

TEST_P(BuonFine, GiorniCheNonSonoUnNumeroFermanoPrimaDiScrivere)
{
    richiamaAvvisato();
    for (const QString& giorni : {QString(), u"tanti"_s, u"1;drop"_s}) {
        scriviEtichetta("barGiorniSosta", giorni);
        clicca("cmdBuonFine");
        EXPECT_EQ(mMessaggi.prendi().size(), 1U);
        EXPECT_EQ(chiusura(u"39"_s), u"NULL|NULL|NULL|NULL"_s);
        EXPECT_EQ(mostrato("lblDataBuonFine"), QString());
    }
    scriviEtichetta("barGiorniSosta", u"40000"_s);
    clicca("cmdBuonFine");
    EXPECT_EQ(mMessaggi.prendi().size(), 1U);
    EXPECT_EQ(chiusura(u"39"_s), u"2026-11-21|40000|NULL|NULL"_s) << "too large for the charges only";
    EXPECT_THAT(mStampe, IsEmpty());
}

TEST_P(BuonFine, ChiusoDaUnAltraPostazioneLaDataNonCambia)
{
    richiamaAvvisato();
    mBase.esegui(u"update giace00f set GIDTBF='2026-11-19' where GINRGI='39';"_s);
    clicca("cmdBuonFine");
    EXPECT_EQ(chiusura(u"39"_s), u"2026-11-19|16|7.50|16.50"_s);
    EXPECT_EQ(mostrato("lblDataBuonFine"), u"19/11/2026"_s);
    EXPECT_EQ(mostrato("lblStatoCaso"), u"CHIUSA · 3 AVVISI"_s);
    clicca("cmdAvvisoGia");
    EXPECT_EQ(mMessaggi.testi(), QStringList{u"La giacenza risulta chiusa,in data: 19/11/2026."_s});
}

TEST_P(BuonFine, CollegamentoPersoPrimaDiOgniIstruzione)
{
    struct Punto
    {
        const char16_t* istruzione;
        const char16_t* inArchivio;
        const char16_t* mostrata;
    };
    richiamaAvvisato();
    for (const Punto& punto :
         {Punto{u"select GIDTBF", u"NULL|NULL|NULL|NULL", u""},
          Punto{u"UPDATE giace00f SET GIDTBF", u"NULL|NULL|NULL|NULL", u""},
          Punto{u"SELECT tabfatturazione", u"2026-11-21|16|NULL|NULL", u"21/11/2026"},
          Punto{u"UPDATE giace00f SET GIGGSO", u"2026-11-21|16|NULL|NULL", u"21/11/2026"},
          Punto{u"update Giace00f set  Fisso", u"2026-11-21|16|NULL|NULL", u"21/11/2026"}}) {
        fallisce(QString::fromUtf16(punto.istruzione), u"08S01"_s);
        clicca("cmdBuonFine");
        guarisce();
        EXPECT_EQ(mMessaggi.prendi().size(), 1U);
        EXPECT_EQ(chiusura(u"39"_s), QString::fromUtf16(punto.inArchivio));
        EXPECT_EQ(mostrato("lblDataBuonFine"), QString::fromUtf16(punto.mostrata));
        EXPECT_TRUE(c("txtLDV")->isEnabled());
        EXPECT_THAT(mStampe, IsEmpty());
    }
    clicca("cmdBuonFine");
    EXPECT_EQ(chiusura(u"39"_s), u"2026-11-21|16|7.50|16.50"_s) << "and then it works";
}

TEST_P(BuonFine, LaStampaCheNonRiesceSiDiceELaChiusuraResta)
{
    const std::string inizio =
        "Il documento di buon fine non è stato stampato; la giacenza resta chiusa.\n\n";
    richiamaAvvisato();
    mGuastoStampa = u"Il disco è pieno."_s;
    clicca("cmdBuonFine");
    EXPECT_EQ(mMessaggi.prendi().front().testo.toStdString(), inizio + "Il disco è pieno.");
    mGuastoStampa.clear();
    mStampaNonProdotta = true;
    clicca("cmdBuonFine");
    EXPECT_THAT(mMessaggi.prendi(), testing::IsEmpty()) << "the module has told why";
    EXPECT_TRUE(mostrato("lblStato").endsWith(u" Il modulo di stampa non ha prodotto il documento."_s));
    impostazioni().percorsoFileIni = u"/non/ce.ini"_s;
    clicca("cmdBuonFine");
    EXPECT_THAT(mMessaggi.prendi().front().testo.toStdString(),
                testing::StartsWith(inizio + "Manca la voce IdentificativoDll"));
    EXPECT_EQ(chiusura(u"39"_s), u"2026-11-21|16|7.50|16.50"_s);
}

} // namespace
