#include "stampa/modulodeposito.h"

#include "base/cartellaprova.h"
#include "base/parti.h"
#include "reports/casodiprova.h"
#include "reports/letters/fontedocumenti.h"
#include "reports/letters/reportcondivisi.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>

#include <gmock/gmock.h>

using namespace giacenza;
using namespace Qt::StringLiterals;

namespace {

/// What a tool of poppler says about a file.
QString esegui(const QString& programma, const QStringList& argomenti)
{
    QProcess processo;
    processo.start(programma, argomenti);
    EXPECT_TRUE(processo.waitForFinished()) << programma.toStdString();
    EXPECT_EQ(processo.exitCode(), 0) << processo.readAllStandardError().toStdString();
    return QString::fromUtf8(processo.readAllStandardOutput());
}

class Modulo : public prove::CartellaProva
{
protected:
    Modulo() { prove::aggiungiCaso(mBase); }
    ~Modulo() override
    {
        rptAvviso().setCronometro({});
        rptBuonFine().mostraTutto();
    }

    /// Drives a module as the component does.
    bool stampa(ModuloStampa& modulo, TipoDocumento tipo, const QString& chiave = u"1234_2015"_s)
    {
        const RichiestaDocumento richiesta = prove::richiestaDelCaso(mBase, tipo);
        collegaFonte(modulo, nullptr);
        modulo.setPercorsoDatabase(richiesta.percorsoDatabase);
        modulo.setPercorsoLogo(mLogo);
        modulo.setDidascalie(richiesta.didascalie);
        modulo.setStampa(true);
        modulo.setTipoDocumento(tipo);
        bool nonProdotto = true;
        modulo.stampaDocumento(chiave, nonProdotto);
        return !nonProdotto;
    }

    bool stampa(TipoDocumento tipo = TipoDocumento::avviso)
    {
        stampa::ModuloDeposito modulo;
        return stampa(modulo, tipo);
    }

    QString documento(const QString& nome) const { return percorso(u"documenti/"_s + nome); }

    QString testo(const QString& nome) const
    {
        return esegui(u"pdftotext"_s, {u"-layout"_s, u"-enc"_s, u"UTF-8"_s, documento(nome), u"-"_s});
    }

    QStringList documenti() const
    {
        return QDir(percorso(u"documenti"_s)).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    prove::BancaDati mBase{"sqlite"};
    QString mLogo;
};

TEST_F(Modulo, lAvvisoEUnPdfDaArchiviareConITestiDentro)
{
    ASSERT_TRUE(stampa());
    ASSERT_EQ(documenti(), QStringList{u"1234_2015.pdf"_s});
    const QString scritto = testo(u"1234_2015.pdf"_s);
    for (const QString& parte :
         {u"Trasporti del Ponte S.r.l."_s, u"Avviso di giacenza"_s, u"Ceramiche dell'Arno S.p.A."_s,
          u"0098765"_s, u"12.345,60 €"_s, u"0,75 m³"_s, u"Corso Francia 20 Torino (TO)"_s,
          u"Destinatario assente al secondo passaggio"_s, u"entro 5 giorni"_s, u"Pagina 1 di 1"_s})
        EXPECT_TRUE(scritto.contains(parte)) << parte.toStdString() << " manca in:\n"
                                             << scritto.toStdString();

    const QString informazioni = esegui(u"pdfinfo"_s, {documento(u"1234_2015.pdf"_s)});
    EXPECT_TRUE(informazioni.contains(QRegularExpression(u"Title: +Avviso di giacenza 1234/2015\\n"_s)))
        << informazioni.toStdString();
    EXPECT_TRUE(informazioni.contains(QRegularExpression(u"Pages: +1\\n"_s)));
    EXPECT_TRUE(informazioni.contains(u"(A4)"_s));
    EXPECT_TRUE(informazioni.contains(QRegularExpression(u"JavaScript: +no\\n"_s)));
}

TEST_F(Modulo, pdfA1b)
{
    mLogo = percorso(u"logo.png"_s);
    QImage logo(60, 20, QImage::Format_ARGB32);
    logo.fill(QColor(0, 0, 255, 100));
    ASSERT_TRUE(logo.save(mLogo));
    ASSERT_TRUE(stampa());
    const QString metadati = esegui(u"pdfinfo"_s, {u"-meta"_s, documento(u"1234_2015.pdf"_s)});
    EXPECT_TRUE(metadati.contains(QRegularExpression(u"pdfaid:part>\\s*1\\s*<|pdfaid:part=\"1\""_s)))
        << metadati.toStdString();
    EXPECT_TRUE(
        metadati.contains(QRegularExpression(u"pdfaid:conformance>\\s*B\\s*<|pdfaid:conformance=\"B\""_s)));
    const QByteArray byte = leggi(u"documenti/1234_2015.pdf"_s);
    EXPECT_TRUE(byte.startsWith("%PDF-1.4"));
    EXPECT_TRUE(byte.contains("/GTS_PDFA1"));
    EXPECT_FALSE(QString::fromLatin1(byte).contains(QRegularExpression(u"/SMask +\\d|/Transparency"_s)));
    EXPECT_FALSE(byte.contains("/Encrypt"));
}

TEST_F(Modulo, iCaratteriSonoDentro)
{
    ASSERT_TRUE(stampa());
    const QStringList righe =
        esegui(u"pdffonts"_s, {documento(u"1234_2015.pdf"_s)}).split(u'\n', Qt::SkipEmptyParts);
    ASSERT_GT(righe.size(), 2);
    for (const QString& riga : righe.mid(2)) // name, type, encoding, then: embedded, subset, unicode map
        EXPECT_TRUE(riga.contains(QRegularExpression(u" yes +(yes|no) +yes "_s))) << riga.toStdString();
}

TEST_F(Modulo, laRistampaHaIlSuoNumero)
{
    ASSERT_TRUE(stampa());
    ASSERT_TRUE(stampa());
    ASSERT_TRUE(stampa(TipoDocumento::buonFine));
    EXPECT_EQ(documenti(),
              (QStringList{u"1234_2015-2.pdf"_s, u"1234_2015.pdf"_s, u"1234_2015_buonfine.pdf"_s}));
}

TEST_F(Modulo, iCostiNascostiNonArrivanoSullaCarta)
{
    ASSERT_TRUE(stampa(TipoDocumento::buonFine));
    EXPECT_TRUE(testo(u"1234_2015_buonfine.pdf"_s).contains(u"23,50 €"_s));
    for (const QString& nome :
         {u"corTot"_s, u"lblsosta"_s, u"txtGIGGSO"_s, u"txtGIIMGI"_s, u"lblDossier"_s, u"txtDossier"_s,
          u"lblRiconsegna"_s, u"txtRicons"_s, u"lblTot"_s, u"txtTot"_s})
        rptBuonFine().sezione(u"Dettaglio_Dettaglio"_s).controllo(nome).visibile = false;
    ASSERT_TRUE(stampa(TipoDocumento::buonFine));
    const QString scritto = testo(u"1234_2015_buonfine-2.pdf"_s);
    for (const QString& costo : {u"23,50"_s, u"15,00"_s, u"8,50"_s, u"sosta"_s, u"dossier"_s, u"Totale"_s})
        EXPECT_FALSE(scritto.contains(costo)) << costo.toStdString();
    EXPECT_TRUE(scritto.contains(u"Bottega del Gusto"_s));
}

TEST_F(Modulo, unaStampaAnnullataNonLasciaNulla)
{
    rptAvviso().setCronometro([] { return [secondi = 0]() mutable { return secondi += 12; }; });
    mRegistro.rispondi(Risposta::no); // while the rows are read
    mRegistro.rispondi(Risposta::si);
    QStringList righe;
    for (int i = 0; i < 200; ++i)
        righe << u"Riga"_s;
    mBase.esegui(u"update giace00f set GIDES1='%1'"_s.arg(righe.join(u"\r\n"_s)));
    EXPECT_FALSE(stampa());
    EXPECT_EQ(mRegistro.messaggi().size(), 2U);
    EXPECT_EQ(documenti(), QStringList());
}

TEST_F(Modulo, unErroreGiaMostratoNonDaDocumento)
{
    mBase.esegui(u"update giace00f set GIFIGI='T''O'"_s);
    EXPECT_FALSE(stampa());
    EXPECT_EQ(mRegistro.messaggi().size(), 1U);
    EXPECT_EQ(documenti(), QStringList());
}

TEST_F(Modulo, senzaFonteNonStampa)
{
    stampa::ModuloDeposito modulo;
    modulo.setStampa(true);
    bool nonProdotto = false;
    EXPECT_THROW(modulo.stampaDocumento(u"1234_2015"_s, nonProdotto), Errore);
}

TEST_F(Modulo, senzaRichiestaNonStampa)
{
    stampa::ModuloDeposito modulo;
    collegaFonte(modulo, nullptr);
    bool nonProdotto = false;
    EXPECT_THROW(modulo.stampaDocumento(u"1234_2015"_s, nonProdotto), Errore);
}

TEST_F(Modulo, unaGiacenzaCheNonCE)
{
    stampa::ModuloDeposito modulo;
    EXPECT_THROW(stampa(modulo, TipoDocumento::avviso, u"999_2015"_s), Errore);
    EXPECT_EQ(documenti(), QStringList());
}

TEST_F(Modulo, ilModuloSiTrovaPerNome)
{
    qputenv("GIACENZA_PARTI", GIACENZA_PROVA_PARTI);
    const auto creato = creaParteDi<ModuloStampa>(u"ReportDocDeposito.cModuliStampa"_s);
    ASSERT_TRUE(creato.parte) << creato.motivo.toStdString();
    EXPECT_TRUE(stampa(*creato.parte, TipoDocumento::avviso));
    EXPECT_EQ(documenti(), QStringList{u"1234_2015.pdf"_s});
    EXPECT_FALSE(creaParteDi<ModuloStampa>(u"ReportDocAltro.cModuliStampa"_s).parte);
}

} // namespace
