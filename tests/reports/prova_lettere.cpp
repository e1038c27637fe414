// What the letters have in common: the envelope's window, the labels, the foot, the amounts, the barcode.
#include "base/cartellaprova.h"
#include "base/orologio.h"
#include "reports/casodiprova.h"
#include "reports/letters/blocchi.h"
#include "reports/letters/rptavviso.h"
#include "reports/letters/rptbuonfine.h"
#include "reports/pagineprova.h"

#include <QImage>
#include <QPainter>
#include <QProcess>

#include <gmock/gmock.h>

using namespace giacenza;
using namespace giacenza::report;
using namespace giacenza::report::prove;

namespace {

/// Paper 210 mm wide: 100 by 45 mm, 10 from the right edge and 35 from the top, text 10 from the field's
/// sides; 90 by 45, 8 and 45.
const QRectF campoFrancese(100, 35, 100, 45);
const QRectF testoFrancese(110, 35, 80, 45);
const QRectF campoSvizzero(112, 45, 90, 45);

class Lettere : public giacenza::prove::CartellaProva
{
protected:
    Lettere() { giacenza::prove::aggiungiCaso(mBase); }

    std::unique_ptr<DocumentoReport> componi(TipoDocumento tipo)
    {
        mRichiesta.tipo = tipo;
        if (tipo == TipoDocumento::avviso)
            return mAvviso.componi(mRichiesta, QDate(2026, 11, 21), nullptr);
        return mBuonFine.componi(mRichiesta, QDate(2026, 11, 21), nullptr);
    }
    PaginaReport pagina(TipoDocumento tipo = TipoDocumento::avviso) { return componi(tipo)->pagina(0); }

    void esegui(const QString& istruzione) { mBase.esegui(istruzione); }

    void cliente(const QString& nome, const QString& indirizzo, const QString& cap, const QString& localita)
    {
        esegui(
            u"update clien set RagioneSociale='%1', Indirizzo='%2', CLCAP='%3', Localita='%4', Provincia='MW'"_s
                .arg(nome, indirizzo, cap, localita));
    }

    giacenza::prove::BancaDati mBase{"sqlite"};
    RichiestaDocumento mRichiesta = giacenza::prove::richiestaDelCaso(mBase);
    RptAvviso mAvviso;
    RptBuonFine mBuonFine;
};

bool dellIndirizzo(const QString& nome)
{
    return QStringList{u"lblSpettabile"_s, u"txtMittente"_s, u"txtIndMittente"_s, u"txtLocalitaMitt"_s}
        .contains(nome);
}

/// Every line of the address within all windows, and nothing else in any of them.
void aspettaNellaFinestra(const PaginaReport& pagina)
{
    int righe = 0;
    for (const Primitiva& primitiva : pagina) {
        const QRectF area = areaDi(primitiva);
        const std::string nome = nomeDi(primitiva).toStdString();
        if (dellIndirizzo(nomeDi(primitiva))) {
            ++righe;
            for (const QRectF& finestra : {testoFrancese, campoSvizzero, blocchi::finestraBusta})
                EXPECT_TRUE(finestra.contains(area)) << nome << " a " << area.top() << ", " << area.right();
            continue;
        }
        for (const QRectF& finestra : {campoFrancese, campoSvizzero})
            EXPECT_FALSE(finestra.intersects(area)) << nome << " si vede dalla busta";
    }
    EXPECT_GE(righe, 4);
}

QString compatto(const PaginaReport& pagina, const QString& controllo)
{
    return testo(pagina, controllo).remove(u' ');
}

TEST_F(Lettere, lIndirizzoStaNellaFinestraDellaBusta)
{
    EXPECT_EQ(campoFrancese & campoSvizzero, blocchi::finestraBusta);
    for (const TipoDocumento tipo : {TipoDocumento::avviso, TipoDocumento::buonFine}) {
        const PaginaReport p = pagina(tipo);
        aspettaNellaFinestra(p);
        EXPECT_EQ(diGenere<TestoPagina>(p, u"txtMittente"_s).at(0).carattere.punti, 11);
        EXPECT_EQ(testo(p, u"txtLocalitaMitt"_s), u"50056 Montelupo Fiorentino (FI)"_s);
    }
}

TEST_F(Lettere, lIndirizzoPiuLungoRestaNellaFinestraIntero)
{
    // The widest letter of the alphabet in every place that the columns have.
    const QString nome(80, u'W');
    const QString via(80, u'W');
    cliente(nome, via, QString(10, u'W'), QString(60, u'W'));
    for (const TipoDocumento tipo : {TipoDocumento::avviso, TipoDocumento::buonFine}) {
        const PaginaReport p = pagina(tipo);
        aspettaNellaFinestra(p);
        EXPECT_EQ(compatto(p, u"txtMittente"_s), nome);
        EXPECT_EQ(compatto(p, u"txtIndMittente"_s), via);
        EXPECT_EQ(compatto(p, u"txtLocalitaMitt"_s), QString(70, u'W') + u"(MW)"_s);
        aspettaOrdinata(p);
    }
}

TEST_F(Lettere, unIndirizzoLungoMaVeroSiLeggeBene)
{
    cliente(u"Manifatture Riunite dell''Alto Appennino Società Cooperativa a Responsabilità Lim"_s,
            u"Strada Provinciale per San Martino in Valle, Località Case Nuove di Sopra n. 117/b"_s.left(80),
            u"50056"_s, u"San Benedetto in Alpe, frazione di Portico e San Benedetto"_s);
    const PaginaReport p = pagina();
    aspettaNellaFinestra(p);
    EXPECT_GE(diGenere<TestoPagina>(p, u"txtMittente"_s).at(0).carattere.punti, 8);
}

TEST_F(Lettere, righeACapoNellIndirizzoNonLoFannoUscire)
{
    const QString alta = QString(40, u'W') + QString(20, u'\n') + QString(20, u'W');
    cliente(alta, alta, u"50056"_s, QString(30, u'm') + QString(20, u'\n') + u'M');
    const PaginaReport p = pagina();
    aspettaNellaFinestra(p);
    EXPECT_EQ(testo(p, u"txtMittente"_s).count(u'W'), 60);
}

TEST_F(Lettere, lIntestazioneNonSpingeLIndirizzo)
{
    const double y = diGenere<TestoPagina>(pagina(), u"txtMittente"_s).at(0).area.top();
    mRichiesta.didascalie = {};
    EXPECT_EQ(diGenere<TestoPagina>(pagina(), u"txtMittente"_s).at(0).area.top(), y);
    mRichiesta.didascalie = {QString(120, u'W'), QString(200, u'w'), QString(200, u'w'), QString(200, u'w')};
    const PaginaReport p = pagina();
    EXPECT_EQ(diGenere<TestoPagina>(p, u"txtMittente"_s).at(0).area.top(), y);
    aspettaNellaFinestra(p);
    aspettaOrdinata(p);
}

TEST_F(Lettere, laFinestraStaSoloSullaPrimaPagina)
{
    esegui(u"update giace00f set GIDES1='%1'"_s.arg(QStringList(120, u"riga"_s).join(u"\r\n"_s)));
    const auto documento = componi(TipoDocumento::avviso);
    ASSERT_GT(documento->pagine(), 1);
    aspettaNellaFinestra(documento->pagina(0));
    for (int i = 1; i < documento->pagine(); ++i)
        EXPECT_EQ(testo(documento->pagina(i), u"txtMittente"_s), QString());
}

TEST_F(Lettere, senzaValoreNonCEEtichetta)
{
    impostaOggi(QDate(2015, 4, 1));
    esegui(
        u"update giace00f set GICODI=null, GIFIGI=null, GIDTGI=null, GIGGSO=null, GINRAV=null, GIDTAV=null, "
        "GIDES1=null, GIDTBF=null, GIIMGI=null, FissoGiacenza=null"_s);
    esegui(u"update letve00f set ledest=null, leindd=' ', lecapd='', lelocd=null, leprod=null, lenatu='', "
           "lerife=null, lecoll=null, lepeso=null, levolu=null, lecnss=null, levame=null"_s);
    esegui(u"update ekelvorqzt_tabge00f set IstrSuAvvGiac=''"_s);
    const auto etichette = [](const PaginaReport& p) {
        QStringList scritte;
        for (const Primitiva& primitiva : p) {
            if (nomeDi(primitiva).startsWith(u"lbl"_s))
                scritte << std::get<TestoPagina>(primitiva).testo;
        }
        return scritte;
    };
    mRichiesta.didascalie = {};
    EXPECT_EQ(etichette(pagina()),
              (QStringList{u"Data"_s, u"Avviso di giacenza"_s,
                           u"Vi informiamo che la spedizione qui descritta non è stata consegnata ed è in "
                           "giacenza nel nostro magazzino."_s,
                           u"Restiamo in attesa delle Vostre istruzioni."_s, u"Spedizione"_s,
                           u"Lettera di vettura"_s, u"Data"_s, u"Filiale"_s, u"Giacenza"_s, u"Numero"_s,
                           u"Distinti saluti"_s, u"Avviso di giacenza 1234/2015"_s, u"Pagina 1 di 1"_s}));
    EXPECT_EQ(etichette(pagina(TipoDocumento::buonFine)),
              (QStringList{u"Data"_s, u"Buon fine giacenza"_s,
                           u"Vi confermiamo che la giacenza della spedizione qui descritta è chiusa."_s,
                           u"Spedizione"_s, u"Lettera di vettura"_s, u"Data"_s, u"Filiale"_s, u"Giacenza"_s,
                           u"Numero"_s, u"Distinti saluti"_s, u"Riconsegna"_s, u"Totale"_s,
                           u"Buon fine della giacenza 1234/2015"_s, u"Pagina 1 di 1"_s}));
    for (const TipoDocumento tipo : {TipoDocumento::avviso, TipoDocumento::buonFine}) {
        const PaginaReport p = pagina(tipo);
        EXPECT_TRUE(diGenere<CornicePagina>(p, u"linMerce"_s).empty());
        aspettaOrdinata(p);
    }
    impostaOggi({});
}

TEST_F(Lettere, unaFilialeSconosciutaSiStampaComeCodice)
{
    esegui(u"update giace00f set GIFIGI='ZZ9'"_s);
    const PaginaReport p = pagina();
    EXPECT_EQ(testo(p, u"txtMagazzino"_s), u"ZZ9"_s);
    EXPECT_EQ(testo(p, u"lblMagazzino"_s), u"Magazzino"_s);
}

TEST_F(Lettere, ilPiedePortaFinoATreRigheDalleImpostazioni)
{
    const double fine = diGenere<TestoPagina>(pagina(), u"lblPagina"_s).at(0).area.top();
    scrivi(u"gest.ini"_s, "[Lettere]\nPiede1=Trasporti del Ponte S.r.l. - P. IVA 01234567897\nPiede2=  \n"
                          "Piede3=Capitale sociale € 10.000 i.v.\nPiede4=mai\n");
    for (const TipoDocumento tipo : {TipoDocumento::avviso, TipoDocumento::buonFine}) {
        const PaginaReport p = pagina(tipo);
        EXPECT_EQ(testo(p, u"lblPiede1"_s), u"Trasporti del Ponte S.r.l. - P. IVA 01234567897"_s);
        EXPECT_EQ(testo(p, u"lblPiede2"_s), u"Capitale sociale € 10.000 i.v."_s);
        EXPECT_EQ(testo(p, u"lblPiede3"_s), QString());
        EXPECT_NEAR(diGenere<TestoPagina>(p, u"lblPagina"_s).at(0).area.top(), fine - 7.2, 0.01)
            << "the empty line takes no room";
        aspettaOrdinata(p);
    }
    const QByteArray lunga(400, 'W');
    scrivi(u"gest.ini"_s, "[Lettere]\nPiede1=" + lunga + "\nPiede2=" + lunga + "\nPiede3=" + lunga + "\n");
    const PaginaReport p = pagina();
    EXPECT_TRUE(testo(p, u"lblPiede3"_s).endsWith(u"…"_s));
    aspettaOrdinata(p);
}

TEST_F(Lettere, gliImportiSonoInColonna)
{
    const PaginaReport p = pagina(TipoDocumento::buonFine);
    const auto destra = [&](const QString& controllo) {
        return diGenere<TestoPagina>(p, controllo).at(0).area.right();
    };
    EXPECT_NEAR(destra(u"txtValMerce"_s), destra(u"txtContrassegno"_s), 0.001);
    EXPECT_NEAR(destra(u"txtColli"_s), destra(u"txtContrassegno"_s), 0.001);
    EXPECT_NEAR(destra(u"txtPesoKg"_s), destra(u"txtVolume"_s), 0.001);
    for (const QString& costo : {u"txtGIIMGI"_s, u"txtDossier"_s, u"txtRicons"_s})
        EXPECT_NEAR(destra(costo), destra(u"txtTot"_s), 0.001) << costo.toStdString();
}

TEST_F(Lettere, ilCodiceABarreSiRileggeDallaPagina)
{
    esegui(u"update letve00f set lefili='M-I'"_s);
    esegui(u"update giace00f set GIFILI='M-I'"_s);
    const auto documento = componi(TipoDocumento::avviso);
    constexpr double puntiPerMm = 300 / 25.4;
    QImage carta(qRound(210 * puntiPerMm), qRound(297 * puntiPerMm), QImage::Format_RGB32);
    carta.setDotsPerMeterX(qRound(puntiPerMm * 1000));
    carta.setDotsPerMeterY(qRound(puntiPerMm * 1000));
    carta.fill(Qt::white);
    QPainter pittore(&carta);
    ASSERT_TRUE(documento->dipingi(0, pittore));
    pittore.end();
    ASSERT_TRUE(carta.save(percorso(u"pagina.png"_s)));
    QProcess lettore;
    lettore.start(u"zbarimg"_s, {u"-q"_s, percorso(u"pagina.png"_s)});
    ASSERT_TRUE(lettore.waitForFinished());
    EXPECT_EQ(QString::fromUtf8(lettore.readAllStandardOutput()), u"CODE-128:M\\-I-0098765-2015\n"_s);
    EXPECT_EQ(testo(documento->pagina(0), u"txtBarLDV"_s), u"LDV 0098765"_s);
}

TEST_F(Lettere, anchePerUnaChiaveLungaCEPosto)
{
    esegui(u"update letve00f set lenrlv='123456789012345678', lefili='MILANOSUD2'"_s);
    esegui(u"update giace00f set GINRLV='123456789012345678', GIFILI='MILANOSUD2'"_s);
    const PaginaReport p = pagina();
    ASSERT_EQ(diGenere<BarrePagina>(p, u"barLDV"_s).size(), 1U);
    aspettaNellaFinestra(p);
}

} // namespace
