#include "base/parti.h"
#include "support/bancadati.h"
#include "support/ldvdiprova.h"
#include "support/spedizioni.h"
#include "support/stampa.h"
#include "support/tagliaconferma.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::SizeIs;

namespace {

/// The warnings that are written to the log meanwhile.
QStringList avvertimenti(const std::function<void()>& azione)
{
    static QStringList scritti;
    scritti.clear();
    const auto prima =
        qInstallMessageHandler([](QtMsgType tipo, const QMessageLogContext&, const QString& testo) {
            if (tipo == QtWarningMsg)
                scritti << testo;
        });
    azione();
    qInstallMessageHandler(prima);
    return scritti;
}

/// The issuer as the component finds it: by its name, in its file.
class Emissione : public testing::TestWithParam<std::string>
{
protected:
    static void SetUpTestSuite() { qputenv("GIACENZA_PARTI", GIACENZA_PROVA_PARTI); }
    static void TearDownTestSuite() { qunsetenv("GIACENZA_PARTI"); }

    Emissione()
    {
        riempiDeposito(mBase);
        mBase.esegui(u"update letve00f set LERFGI='40', LEANGI=2026 where lenrlv='4711';"_s);
    }

    QString emetti(const RecordLdv& ldv, bool stampa = true)
    {
        const auto emittente = creaParteDi<EmittenteLdv>(QString::fromUtf16(classeEmittenteLdv));
        if (!emittente.parte)
            throw std::runtime_error(emittente.motivo.toStdString());
        dynamic_cast<ParteConContesto&>(*emittente.parte).setContesto(mContesto);
        emittente.parte->setPercorsoDatabase(mStringa);
        emittente.parte->setCartellaStampa(mImp);
        emittente.parte->setPercorsoLogo(QStringLiteral(GIACENZA_PROVA_LOGO));
        emittente.parte->setStampa(stampa);
        emittente.parte->setDefinitiva(true);
        return emittente.parte->emetti(ldv);
    }
    QString emetti(bool stampa = true)
    {
        Connessione connessione = mBase.connessione();
        return emetti(LdvDiProva(connessione, u"4711"_s), stampa);
    }
    /// What the operator is told, once, when nothing is issued, or nothing printed; esito: what the issuer
    /// then returns.
    QString racconto(const std::function<QString()>& emissione, Tono tono = Tono::guasto,
                     const QString& esito = {}, QString* dettaglio = nullptr)
    {
        std::vector<Racconto> racconti;
        mContesto.racconta = [&](const Racconto& racconto) { racconti.push_back(racconto); };
        EXPECT_EQ(emissione(), esito);
        mContesto.racconta = {};
        EXPECT_THAT(racconti, SizeIs(1));
        if (racconti.empty())
            return {};
        EXPECT_EQ(racconti.front().tono, tono);
        EXPECT_EQ(racconti.front().dettaglio.isEmpty(), dettaglio == nullptr)
            << racconti.front().dettaglio.toStdString();
        if (dettaglio)
            *dettaglio = racconti.front().dettaglio;
        return racconti.front().testo;
    }
    static QString pagina(const QString& file)
    {
        QProcess testo;
        testo.start(u"pdftotext"_s, {u"-layout"_s, file, u"-"_s});
        EXPECT_TRUE(testo.waitForFinished());
        return QString::fromUtf8(testo.readAllStandardOutput());
    }
    QString emesse() const
    {
        return mBase.leggi(u"select count(*) from letve00f where ledtlv='2026-11-21'"_s).value_or(QString());
    }

    BancaDati mBase{GetParam()};
    QTemporaryDir mCartella;
    QString mImp = mCartella.filePath(u"programma/imp"_s);
    QString mStringa = mBase.stringa();
    Contesto mContesto = contestoDiProva();
};

INSTANTIATE_TEST_SUITE_P(Basi, Emissione, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(Emissione, StampaLaLdvConIlSuoCodiceABarre)
{
    const QString file = mImp + u"/LDV_MI_4716_2026.pdf"_s;
    EXPECT_EQ(emetti(), u"Emessa la lettera di vettura 4716/2026, stampata in "_s + file);
    const QString letta = pagina(file);
    for (const char16_t* atteso :
         {u"Lettera di vettura", u"n. 4716 / 2026", u"LDV 4716", u"Ferramenta Lombarda S.r.l.", u"Via Po 1",
          u"20900 Monza (MB)", u"Utensileria del Lago", u"Corso Italia 44", u"22100 Como (CO)", u"21/11/2026",
          u"Assegnato", u"Autotrasporti Riuniti", u"Brianza nord", u"45,5 kg", u"120,00 €",
          u"giacenza 40/2026", u"Solo al mattino", u"Firma del destinatario", u"Pagina 1 di 1"})
        EXPECT_TRUE(letta.contains(QString::fromUtf16(atteso)))
            << QString::fromUtf16(atteso).toStdString() << '\n'
            << letta.toStdString();
    EXPECT_FALSE(letta.contains(u"Reso da"_s));
    EXPECT_EQ(emesse(), u"1"_s);
    EXPECT_THAT(QDir(mImp).entryList(QDir::Files | QDir::Hidden), SizeIs(1)) << "no leftover of the trial";
}

TEST_P(Emissione, SulResoIlMittenteEChiRendeLaMerce)
{
    mContesto.resoAMittente = true;
    emetti();
    QStringList righe = pagina(mImp + u"/LDV_MI_4716_2026.pdf"_s).split(u'\n', Qt::SkipEmptyParts);
    for (QString& riga : righe)
        riga = riga.simplified();
    const qsizetype prima = righe.indexOf(u"Mittente"_s);
    ASSERT_GE(prima, 0);
    EXPECT_EQ(righe.mid(prima, 6), (QStringList{u"Mittente"_s, u"Reso da Cliente"_s,
                                                u"Utensileria del Lago Ferramenta Lombarda S.r.l."_s,
                                                u"Corso Italia 44 Via Po 1"_s,
                                                u"22100 Como (CO) 20900 Monza (MB)"_s, u"Spedizione"_s}));
    EXPECT_EQ(righe.join(u' ').count(u"Ferramenta Lombarda S.r.l."_s), 2)
        << "the customer, who is the recipient too";
}

TEST_P(Emissione, IlCodiceABarreTornaAUnaSolaLdvEIlPiedeEDelleImpostazioni)
{
    mContesto.piede = {u"Trasporti del Ponte S.r.l."_s, u"P. IVA 01234567897"_s};
    emetti();
    const QString file = mImp + u"/LDV_MI_4716_2026.pdf"_s;
    EXPECT_TRUE(pagina(file).contains(u"P. IVA 01234567897"_s));
    const QString immagine = mCartella.filePath(u"ldv"_s);
    const auto leggi = [](const QString& programma, const QStringList& argomenti) {
        QProcess processo;
        processo.start(programma, argomenti);
        EXPECT_TRUE(processo.waitForFinished()) << programma.toStdString();
        return QString::fromUtf8(processo.readAllStandardOutput());
    };
    leggi(u"pdftoppm"_s, {u"-r"_s, u"300"_s, u"-png"_s, u"-singlefile"_s, file, immagine});
    EXPECT_EQ(leggi(u"zbarimg"_s, {u"-q"_s, immagine + u".png"_s}), u"CODE-128:MI-4716-2026\n"_s);
}

TEST_P(Emissione, SenzaStampaNonLasciaFile)
{
    EXPECT_EQ(emetti(false), u"Emessa la lettera di vettura 4716/2026."_s);
    EXPECT_FALSE(QDir(mImp).exists());
}

TEST_P(Emissione, UnaCartellaCheNonSiScriveFermaPrima)
{
    QFile occupata(mCartella.filePath(u"occupata"_s));
    ASSERT_TRUE(occupata.open(QIODevice::WriteOnly));
    mImp = occupata.fileName() + u"/imp"_s;
    EXPECT_EQ(
        racconto([this] { return emetti(); }),
        u"Nella cartella \"%1\" non si può scrivere: nessuna lettera di vettura è stata emessa."_s.arg(mImp));
    EXPECT_EQ(emesse(), u"0"_s);
    EXPECT_EQ(emetti(false), u"Emessa la lettera di vettura 4716/2026."_s)
        << "without printing it is not needed";
}

TEST_P(Emissione, UnRecordVuotoSiDice)
{
    const LdvDiProva vuota;
    EXPECT_TRUE(racconto([&] { return emetti(vuota); }, Tono::rifiuto)
                    .startsWith(u"La lettera di vettura da cui partire"_s));
    EXPECT_EQ(emesse(), u"0"_s);
}

TEST_P(Emissione, UnDatabaseCheNonRispondeSiDice)
{
    Connessione connessione = mBase.connessione();
    const LdvDiProva ldv(connessione, u"4711"_s);
    mStringa = u"DRIVER={Inesistente}"_s;
    QString parole;
    EXPECT_EQ(racconto([&] { return emetti(ldv); }, Tono::guasto, {}, &parole),
              u"La nuova lettera di vettura non è stata emessa: il database non ha accettato "
              "l'operazione.\n\nManca il driver ODBC dell'archivio."_s);
    EXPECT_THAT(parole.toStdString(), testing::HasSubstr("Inesistente")) << "the driver manager's words";
    EXPECT_THAT(avvertimenti([&] { EXPECT_EQ(emetti(ldv), QString()); }),
                ElementsAre(testing::Truly([&](const QString& riga) {
                    return riga.endsWith(u"\n\nManca il driver ODBC dell'archivio.\n"_s + parole);
                })))
        << "the log has both";
}

TEST_P(Emissione, UnaStampaFallitaDiceIlNumeroEmesso)
{
    // The waybill cannot be read back by its branch: the letter fails after the commit.
    Connessione connessione = mBase.connessione();
    mBase.esegui(GetParam() == "sqlite" ? u"alter table filiali rename to altrove;"_s
                                        : u"drop table filiali;"_s);
    const LdvDiProva ldv(connessione, u"4711"_s);
    QString parole;
    EXPECT_EQ(racconto([&] { return emetti(ldv); }, Tono::guasto,
                       u"Emessa la lettera di vettura 4716/2026, non stampata."_s, &parole),
              u"La lettera di vettura 4716/2026 è stata emessa, ma non è stata stampata.\n\n"
              "Nell'archivio manca una tabella."_s);
    EXPECT_THAT(parole.toStdString(), testing::HasSubstr("filiali")) << "the driver's words";
    EXPECT_EQ(emesse(), u"1"_s);
    EXPECT_TRUE(QDir(mImp).entryList(QDir::Files).isEmpty());
}

/// What only a server can do.
class EmissioneSuServer : public Emissione
{};

INSTANTIATE_TEST_SUITE_P(Basi, EmissioneSuServer, testing::Values("mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(EmissioneSuServer, UnaConfermaSenzaRispostaEUnGuastoENonUnRifiuto)
{
    const quint16 porta = mStringa.section(u"PORT="_s, 1).section(u';', 0, 0).toUShort();
    const TagliaConferma taglio(porta, TagliaConferma::Quando::primaDellaRisposta, false);
    mStringa.replace(u"PORT=%1"_s.arg(porta), u"PORT=%1"_s.arg(taglio.porta()));
    const QString ignoto = u"Non si sa se la lettera di vettura 4716/2026 è stata emessa: la connessione è "
                           "caduta mentre l'archivio la confermava. Cercarla prima di ripetere."_s;
    EXPECT_EQ(racconto([this] { return emetti(); }, Tono::guasto, ignoto), ignoto);
    EXPECT_TRUE(taglio.tagliata());
    EXPECT_EQ(emesse(), u"1"_s) << "it was there";
}

TEST_P(Emissione, IlFileStampatoSiDiceAlComponente)
{
    QStringList file;
    mContesto.documento = [&](const QString& stampato) { file << stampato; };
    emetti(false);
    EXPECT_THAT(file, SizeIs(0));
    emetti();
    EXPECT_THAT(file, ElementsAre(mImp + u"/LDV_MI_4717_2026.pdf"_s));
    EXPECT_TRUE(QFile::exists(file.value(0)));
}

TEST_P(Emissione, ChiNonAscoltaNonFermaNienteEIlMotivoStaNelRegistro)
{
    const LdvDiProva vuota;
    EXPECT_THAT(avvertimenti([&] { EXPECT_EQ(emetti(vuota), QString()); }),
                ElementsAre(u"La lettera di vettura da cui partire non si è potuta leggere dall'archivio: "
                            "nessuna lettera di vettura è stata emessa."_s));
    EXPECT_EQ(emesse(), u"0"_s);
}

} // namespace
