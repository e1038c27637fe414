#include "screens/spedizione.h"

#include "support/bancadati.h"
#include "support/stampa.h"

#include <QMap>
#include <QRegularExpression>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::ElementsAreArray;

namespace {

/// Writes down what is done to each control, in order.
class SchermoFinto : public DestinazioneSpedizione
{
public:
    void scrivi(QLatin1String controllo, const QString& testo) override
    {
        fatto << u"%1=%2"_s.arg(controllo, testo);
    }
    void scriviTag(QLatin1String controllo, const QString& testo) override
    {
        fatto << u"%1.tag=%2"_s.arg(controllo, testo);
    }
    void seleziona(QLatin1String controllo, int riga) override
    {
        fatto << u"%1[%2]"_s.arg(controllo).arg(riga);
    }
    void lascia(QLatin1String controllo) override { fatto << u"%1 resta"_s.arg(controllo); }
    void giaInGiacenza(bool giacente) override { fatto << (giacente ? u"in giacenza"_s : u"libera"_s); }

    QStringList fatto;
};

const QMap<QString, QString> intera = {
    {u"GINRLV"_s, u"4714"_s},       {u"ledtlv"_s, u"2026-11-12"_s}, {u"lenrlv"_s, u"4714"_s},
    {u"leanlv"_s, u"2026"_s},       {u"lefili"_s, u"MI"_s},         {u"filiale"_s, u"Milano"_s},
    {u"ledest"_s, u"Rossi"_s},      {u"leindd"_s, u"Via Po 1"_s},   {u"lecapd"_s, u"22100"_s},
    {u"lelocd"_s, u"Como"_s},       {u"leprod"_s, u"CO"_s},         {u"lerico"_s, u"R"_s},
    {u"lecdve"_s, u"V01"_s},        {u"Vettore"_s, u"Riuniti"_s},   {u"lelin1"_s, u"L05"_s},
    {u"linea"_s, u"Brianza"_s},     {u"lenatu"_s, u"CARTA"_s},      {u"lerife"_s, u"ORD-1"_s},
    {u"lerifd"_s, u"2025-12-31"_s}, {u"leport"_s, u"2"_s},          {u"lecoll"_s, u"3"_s},
    {u"lepeso"_s, u"45.50"_s},      {u"levolu"_s, u"0.250"_s},      {u"lecnss"_s, u"120.00"_s},
    {u"leanpc"_s, u"7.00"_s},       {u"lenote"_s, u"mattino"_s},    {u"levame"_s, u"850.00"_s},
    {u"GIDES1"_s, u"chiuso"_s},     {u"GIFIGI"_s, u"BO"_s},         {u"GIDTAV"_s, u"2026-11-15"_s},
    {u"GIDTBF"_s, u"2026-11-18"_s}, {u"GINRGI"_s, u"40"_s},         {u"GIDTGI"_s, u"2026-11-13"_s},
    {u"GINRFA"_s, u"77"_s},         {u"GIDTFA"_s, u"2026-11-20"_s}, {u"GIIMGI"_s, u"15.00"_s},
    {u"GICOFA"_s, u"F"_s},          {u"GIVNRG"_s, u"39"_s},         {u"GIVDTG"_s, u"2026-10-02"_s},
};

class Spedizione : public testing::TestWithParam<std::string>
{
protected:
    /// What a screen does with a whole row, or one of nulls only, but for some other values.
    QStringList carica(const MappaSpedizione& mappa, const QMap<QString, QString>& altre = {},
                       bool tutteNulle = false)
    {
        QStringList colonne;
        for (auto voce = intera.begin(); voce != intera.end(); ++voce) {
            const QString valore = altre.value(voce.key(), voce.value());
            const bool nulla = tutteNulle && !altre.contains(voce.key());
            colonne << (nulla ? u"null"_s : u"'%1'"_s.arg(valore)) + u" as "_s + voce.key();
        }
        Connessione connessione = mBase.connessione();
        Recordset riga;
        riga.apri(connessione, u"select %1;"_s.arg(colonne.join(u',')));
        SchermoFinto schermo;
        PostiSpedizione posti(mappa);
        CaricaDatiSpedizione(riga, posti, schermo);
        return schermo.fatto;
    }

    QStringList soloDi(const QStringList& fatto, const QString& controllo)
    {
        return fatto.filter(QRegularExpression(u"^%1\\b"_s.arg(controllo)));
    }

    BancaDati mBase{GetParam(), Contenuto::vuoto};
};

INSTANTIATE_TEST_SUITE_P(Basi, Spedizione, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

/// The waybill's controls behind the branch, and then the held shipment's: the same on every screen, but for
/// what follows the reference.
QStringList dallaFiliale(const QStringList& dateRiferimento)
{
    return QStringList{u"txtFilSped=MI"_s,
                       u"txtFiliale=MI"_s,
                       u"barFilSped=Milano"_s,
                       u"txtDestinatario=Rossi"_s,
                       u"txtIndDestinatario=Via Po 1"_s,
                       u"txtCapDestinatario=22100"_s,
                       u"txtLocalitaDest=Como"_s,
                       u"txtProvDest=CO"_s,
                       u"txtRiconsegna=R"_s,
                       u"txtVettore=V01"_s,
                       u"barVettore=Riuniti"_s,
                       u"txtLinea=L05"_s,
                       u"barLineaCli=Brianza"_s,
                       u"cmbNaturaMerce=CARTA"_s,
                       u"txtRifMitt=ORD-1"_s,
                       u"txtRiferimento=ORD-1"_s} +
           dateRiferimento +
           QStringList{u"cmbPorto[1]"_s,
                       u"txtColli=3"_s,
                       u"txtPesoKg=45,5"_s,
                       u"txtVolume=0,25"_s,
                       u"txtContrassegno=120,00"_s,
                       u"txtAnticipo=7,00"_s,
                       u"txtNoteLdv=mattino"_s,
                       u"txtValMerce=850,00"_s,
                       u"txtDescGia=chiuso"_s,
                       u"txtFilialeGia=BO"_s,
                       u"lblDataAvviso=15/11/2026"_s,
                       u"lblDataBuonFine=18/11/2026"_s,
                       u"lblNrGia=40"_s,
                       u"txtDataGia=13/11/2026"_s,
                       u"lblFattura=77"_s,
                       u"txtDataFatt=20/11/2026"_s,
                       u"txtImponibile=15,00"_s,
                       u"txtCodFatt=F"_s,
                       u"txtGiaOld=39"_s,
                       u"txtDataGiaOld=02/10/2026"_s};
}

const QStringList ricercabile = QStringList{u"in giacenza"_s, u"lblDataLav=12/11/2026"_s, u"txtLDV="_s,
                                            u"txtLDV.tag=4714"_s, u"txtDataLdv=12/11/2026"_s} +
                                dallaFiliale({u"txtDataRifMitt=31/12/2025"_s, u"txtDataRif=31/12/2025"_s});

TEST_P(Spedizione, LaRegistrazioneNelSuoOrdine)
{
    EXPECT_THAT(carica(mappaRegistrazione()), ElementsAreArray(ricercabile));
}

TEST_P(Spedizione, LaRiconsegnaNelloStessoOrdine)
{
    EXPECT_THAT(carica(mappaRiconsegna()), ElementsAreArray(ricercabile));
}

TEST_P(Spedizione, LaGestioneMostraNumeroEAnni)
{
    EXPECT_THAT(carica(mappaGestione()),
                ElementsAreArray(QStringList{u"in giacenza"_s, u"txtLDV=4714"_s, u"txtAnnoLdv=2026"_s,
                                             u"txtAnnoRif=2025"_s} +
                                 dallaFiliale({u"txtDataRifMitt=31/12/2025"_s})));
}

QStringList svuotati(const QStringList& fatto)
{
    QStringList vuoti;
    for (const QString& passo : fatto)
        if (passo.endsWith(u'='))
            vuoti << passo.chopped(1);
    return vuoti;
}

TEST_P(Spedizione, UnNulloLasciaIlControlloComEra)
{
    const QStringList registrazione = carica(mappaRegistrazione(), {}, true);
    EXPECT_EQ(registrazione.size(), ricercabile.size()) << "every control is told";
    EXPECT_EQ(registrazione.first(), u"libera"_s);
    EXPECT_THAT(svuotati(registrazione),
                ElementsAre(u"txtLDV"_s, u"txtDataLdv"_s, u"txtIndDestinatario"_s, u"txtCapDestinatario"_s,
                            u"txtLocalitaDest"_s, u"txtDataRif"_s));
    EXPECT_EQ(registrazione.filter(u" resta"_s).size(), registrazione.size() - 7);

    const QStringList gestione = carica(mappaGestione(), {}, true);
    EXPECT_THAT(svuotati(gestione),
                ElementsAre(u"txtIndDestinatario"_s, u"txtCapDestinatario"_s, u"txtLocalitaDest"_s));
    EXPECT_EQ(gestione.filter(u" resta"_s).size(), gestione.size() - 4);
}

TEST_P(Spedizione, LaRiconsegnaSvuotaCioCheLaGiacenzaNonHa)
{
    const QStringList fatto = carica(mappaRiconsegna(), {}, true);
    EXPECT_THAT(svuotati(fatto),
                ElementsAre(u"txtLDV"_s, u"txtDataLdv"_s, u"txtDestinatario"_s, u"txtIndDestinatario"_s,
                            u"txtCapDestinatario"_s, u"txtLocalitaDest"_s, u"txtRiconsegna"_s,
                            u"txtDataRif"_s, u"txtDescGia"_s, u"lblDataAvviso"_s, u"lblDataBuonFine"_s,
                            u"lblFattura"_s, u"txtDataFatt"_s, u"txtImponibile"_s, u"txtCodFatt"_s,
                            u"txtGiaOld"_s, u"txtDataGiaOld"_s));
    EXPECT_THAT(fatto.filter(QRegularExpression(u"^(txtFilialeGia|lblNrGia|txtDataGia|cmbPorto) "_s)),
                ElementsAre(u"cmbPorto resta"_s, u"txtFilialeGia resta"_s, u"lblNrGia resta"_s,
                            u"txtDataGia resta"_s))
        << "these have no null test";
}

TEST_P(Spedizione, GiaInGiacenzaSoloConUnNumero)
{
    const auto marca = [this](const QString& numero) {
        return carica(mappaRegistrazione(), {{u"GINRLV"_s, numero}}).first();
    };
    EXPECT_EQ(marca(u"0123"_s), u"in giacenza"_s);
    EXPECT_EQ(marca(u"47/A"_s), u"libera"_s);
    EXPECT_EQ(marca({}), u"libera"_s);
}

TEST_P(Spedizione, IlPortoSceglieLaRigaPerPosizione)
{
    const auto porto = [this](const QString& valore) {
        return soloDi(carica(mappaRegistrazione(), {{u"leport"_s, valore}}), u"cmbPorto"_s);
    };
    EXPECT_THAT(porto(u"1"_s), ElementsAre(u"cmbPorto[0]"_s));
    EXPECT_THAT(porto(u"0"_s), ElementsAre(u"cmbPorto[-1]"_s)) << "no row";
    EXPECT_THAT(porto(u"32767"_s), ElementsAre(u"cmbPorto[32766]"_s));
    for (const char16_t* troppo : {u"32768", u"-32769", u"99999999999999999999"})
        EXPECT_THAT(porto(QString::fromUtf16(troppo)), ElementsAre(u"cmbPorto resta"_s));
    EXPECT_THAT(porto(u"franco"_s), ElementsAre(u"cmbPorto resta"_s));
}

TEST_P(Spedizione, UnValoreCheNonSiConverteNonFermaGliAltri)
{
    const QStringList fatto =
        carica(mappaRegistrazione(), {{u"GIDTAV"_s, u"ieri"_s}, {u"GIDTGI"_s, u"2026-02-31"_s}});
    QStringList attesi = ricercabile;
    attesi.replaceInStrings(u"lblDataAvviso=15/11/2026"_s, u"lblDataAvviso resta"_s);
    attesi.replaceInStrings(u"txtDataGia=13/11/2026"_s, u"txtDataGia resta"_s);
    EXPECT_THAT(fatto, ElementsAreArray(attesi));
}

TEST_P(Spedizione, UnaColonnaCheMancaNonFermaLeAltre)
{
    Connessione connessione = mBase.connessione();
    Recordset riga;
    riga.apri(connessione, u"select 'MI' as LEFILI, 'V' as VETTORE;"_s);
    SchermoFinto schermo;
    PostiSpedizione posti(mappaRegistrazione());
    CaricaDatiSpedizione(riga, posti, schermo);
    EXPECT_EQ(schermo.fatto.size(), ricercabile.size());
    EXPECT_TRUE(schermo.fatto.contains(u"txtFilSped=MI"_s)) << "names are compared without case";
    EXPECT_TRUE(schermo.fatto.contains(u"barVettore=V"_s));
    EXPECT_TRUE(schermo.fatto.contains(u"txtDataGiaOld resta"_s));
}

TEST_P(Spedizione, LeDateConUnOraSonoGiorni)
{
    const QStringList fatto = carica(mappaRegistrazione(), {{u"ledtlv"_s, u"2026-11-12 00:00:00"_s}});
    EXPECT_THAT(soloDi(fatto, u"lblDataLav"_s), ElementsAre(u"lblDataLav=12/11/2026"_s));
}

TEST_P(Spedizione, LeChiaviDiDataSiSvuotanoPrimaEDiUnValoreCheNonEUnaDataNonRestaNiente)
{
    QStringList fatto = carica(mappaRegistrazione(), {{u"ledtlv"_s, u"ieri"_s}, {u"lerifd"_s, u"2026"_s}});
    fatto += carica(mappaRiconsegna(), {{u"GIDTAV"_s, u"ieri"_s}});
    for (const QString& atteso : {u"txtDataLdv="_s, u"txtDataRif="_s, u"lblDataLav resta"_s,
                                  u"txtDataRifMitt resta"_s, u"lblDataAvviso resta"_s})
        EXPECT_TRUE(fatto.contains(atteso)) << atteso.toStdString();
}

TEST_P(Spedizione, UnNumeroSiMostraUgualeComunqueLoScrivaLaBase)
{
    const auto mostrati = [this](const QString& valore) {
        const QStringList fatto = carica(
            mappaRegistrazione(),
            {{u"lecoll"_s, valore}, {u"lepeso"_s, valore}, {u"levolu"_s, valore}, {u"lecnss"_s, valore}});
        QStringList soli;
        for (const QString& nome : {u"txtColli"_s, u"txtPesoKg"_s, u"txtVolume"_s, u"txtContrassegno"_s})
            soli << soloDi(fatto, nome).value(0).section(u'=', 1);
        return soli.join(u' ');
    };
    for (const char16_t* intero : {u"120", u"120.0", u"120.00", u"120.000"})
        EXPECT_EQ(mostrati(QString::fromUtf16(intero)), u"120 120 120 120,00"_s);
    EXPECT_EQ(mostrati(u"0.250"_s), u"0,25 0,25 0,25 0,25"_s);
    EXPECT_EQ(mostrati(u"0.00"_s), u"0 0 0 0,00"_s);
    EXPECT_EQ(mostrati(u"-1.50"_s), u"-1,5 -1,5 -1,5 -1,50"_s);
    EXPECT_EQ(mostrati(u"molti"_s), QString() + u"   "_s) << "no number leaves the control as it was";
}

TEST_P(Spedizione, IPostiSiCercanoUnaVoltaEDiNuovoPerAltreColonne)
{
    Connessione connessione = mBase.connessione();
    const MappaSpedizione mappa = {{u"lenrlv", "txtLDV", Conversione::testo},
                                   {u"", "txtAltro", Conversione::svuota},
                                   {u"lefili", "txtFiliale", Conversione::testo}};
    PostiSpedizione posti(mappa);
    const MappaSpedizione senzaVuoti = {mappa.front(), mappa.back()};
    PostiSpedizione altri(senzaVuoti);
    const auto dove = [&](const QString& colonne) {
        Recordset riga;
        riga.apri(connessione, u"select %1;"_s.arg(colonne));
        const std::vector<int> trovati = posti.in(riga);
        EXPECT_THAT(altri.in(riga), ElementsAre(trovati[0], trovati[2]));
        return trovati;
    };
    EXPECT_THAT(dove(u"1 as lenrlv, 2 as lefili"_s), ElementsAre(0, -1, 1));
    EXPECT_THAT(dove(u"1 as LENRLV, 2 as LEFILI"_s), ElementsAre(0, -1, 1));
    EXPECT_THAT(dove(u"2 as lefili, 1 as lenrlv"_s), ElementsAre(1, -1, 0)) << "as many, elsewhere";
    EXPECT_THAT(dove(u"2 as lefili, 1 as altra"_s), ElementsAre(-1, -1, 0));
    EXPECT_THAT(dove(u"2 as lefili, 1 as lenrlv"_s), ElementsAre(1, -1, 0)) << "it is there again";
    EXPECT_THAT(dove(u"0 as z, 2 as lefili, 1 as lenrlv"_s), ElementsAre(2, -1, 1));
}

} // namespace
