#include "depositodesk.h"

#include "desk/documenti/serieestratti.h"

#include <QFile>
#include <QProcess>

using namespace giacenza;
using namespace giacenza::documenti;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

class Salvati : public DepositoDesk
{
protected:
    SerieEstratti serie(const QString& cartella, Forme forme = {true, true, true})
    {
        Connessione connessione = mBase.connessione();
        return {mBase.accesso(),
                clientiConAperte(connessione),
                {{}, QDate(2026, 11, 1), QDate(2026, 11, 30), mOggi},
                forme,
                carta(),
                cartella};
    }
    static QByteArray leggi(const QString& file)
    {
        QFile aperto(file);
        EXPECT_TRUE(aperto.open(QIODevice::ReadOnly)) << file.toStdString();
        return aperto.readAll();
    }
    /// A part of a workbook, unpacked.
    static QString parte(const QString& file, const QString& nome)
    {
        const QTemporaryDir posto;
        QProcess apri;
        apri.setWorkingDirectory(posto.path());
        apri.start(u"cmake"_s, {u"-E"_s, u"tar"_s, u"xf"_s, file});
        EXPECT_TRUE(apri.waitForFinished());
        return QString::fromUtf8(leggi(posto.filePath(nome)));
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, Salvati, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(Salvati, TuttiIClientiInTreForme)
{
    SerieEstratti tutti = serie(mCartella.path());
    ASSERT_EQ(tutti.totale(), 2);
    while (!tutti.finita())
        tutti.avanti();
    EXPECT_THAT(salvati(), ElementsAre(u"Estratto giacenze 1001 2026-11-01 2026-11-30.csv"_s,
                                       u"Estratto giacenze 1001 2026-11-01 2026-11-30.pdf"_s,
                                       u"Estratto giacenze 1001 2026-11-01 2026-11-30.xlsx"_s,
                                       u"Estratto giacenze 1002 2026-11-01 2026-11-30.csv"_s,
                                       u"Estratto giacenze 1002 2026-11-01 2026-11-30.pdf"_s,
                                       u"Estratto giacenze 1002 2026-11-01 2026-11-30.xlsx"_s));
    EXPECT_EQ(tutti.esiti()[0].casi, 2);
    EXPECT_EQ(tutti.esiti()[0].guasto, QString());
    ASSERT_EQ(tutti.esiti()[0].file.size(), 3);
    const QString testo = testoPdf(tutti.esiti()[0].file[0]).simplified();
    for (const QString& atteso :
         {u"Estratto giacenze 1001 Ferramenta Lombarda S.r.l., dal 01/11/2026 al 30/11/2026"_s,
          u"Giacenze 2, di cui 1 aperte Totale 44,00 €"_s, u"42/2026 01/11/2026 4711/2026"_s,
          u"16/11/2026 Avviso n. 2"_s, u"chiudendole il 22/11/2026"_s})
        EXPECT_TRUE(testo.contains(atteso)) << atteso.toStdString() << '\n' << testo.toStdString();
    EXPECT_THAT(testoPdf(tutti.esiti()[1].file[0]).toStdString(),
                HasSubstr("Di 1 giacenze mancano gli importi"));
}

TEST_P(Salvati, NienteSiSostituisce)
{
    const Forme soloCsv{false, true, false};
    for (int i = 0; i < 2; ++i) {
        SerieEstratti uno = serie(mCartella.path(), soloCsv);
        uno.avanti();
    }
    EXPECT_THAT(salvati(), ElementsAre(u"Estratto giacenze 1001 2026-11-01 2026-11-30-2.csv"_s,
                                       u"Estratto giacenze 1001 2026-11-01 2026-11-30.csv"_s));
}

TEST_P(Salvati, UnaCartellaCheNonSiScriveSiDice)
{
    QFile ostacolo(mCartella.filePath(u"ostacolo"_s));
    ASSERT_TRUE(ostacolo.open(QIODevice::WriteOnly));
    SerieEstratti tutti = serie(mCartella.filePath(u"ostacolo/sotto"_s));
    while (!tutti.finita())
        tutti.avanti();
    for (const EsitoEstratto& esito : tutti.esiti()) {
        EXPECT_TRUE(esito.file.isEmpty());
        EXPECT_THAT(esito.guasto.toStdString(), HasSubstr("Impossibile creare la cartella"));
    }
}

TEST_P(Salvati, IlFoglioDiCalcoloHaDateENumeriVeri)
{
    mBase.esegui(u"update letve00f set lerife='=1+1' where lenrlv='4711'"_s);
    SerieEstratti uno = serie(mCartella.path(), {false, false, true});
    uno.avanti();
    ASSERT_EQ(uno.esiti()[0].guasto, QString());
    const QString file = uno.esiti()[0].file.at(0);
    EXPECT_TRUE(leggi(file).startsWith("PK"));
    const QString foglio = parte(file, u"xl/worksheets/sheet1.xml"_s);
    // 01/11/2026 is day 46327 of the sheet's calendar; amounts are numbers; the last line sums them.
    EXPECT_THAT(foglio.toStdString(), testing::ContainsRegex("<c r=\"E2\" s=\"[0-9]+\"><v>46327</v></c>"));
    EXPECT_THAT(foglio.toStdString(), testing::ContainsRegex("<c r=\"W2\" s=\"[0-9]+\"><v>29</v></c>"));
    EXPECT_THAT(foglio.toStdString(), HasSubstr("<f>SUM(W2:W3)</f><v>44</v>"));
    EXPECT_FALSE(foglio.contains(u"<f>1+1"_s));
    EXPECT_THAT(parte(file, u"xl/sharedStrings.xml"_s).toStdString(), HasSubstr("<t>=1+1</t>"));
    EXPECT_THAT(parte(file, u"xl/styles.xml"_s).toStdString(), HasSubstr("dd/mm/yyyy"));
}

} // namespace
