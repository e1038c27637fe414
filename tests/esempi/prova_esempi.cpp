// The hosts of examples/ on both databases: each opens the screen, the screen is closed by the keys, the host
// hears "fine" once and ends.

#include "esempi/schermo.h"
#include "support/bancadati.h"
#include "support/spedizioni.h"
#include "support/stampa.h"

#include <QFileInfo>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <iostream>

using namespace Qt::StringLiterals;
using namespace giacenza::prove;

namespace {

struct Ospite
{
    const char* nome;
    QString programma;
    QStringList prima; ///< arguments before the host's own
};

Ospite ospite(const std::string& nome)
{
    const QString lavoro = QStringLiteral(LAVORO);
    if (nome == "c")
        return {"c", lavoro + u"/c/ospite-c"_s, {}};
    if (nome == "cpp")
        return {"cpp", lavoro + u"/cpp/ospite-cpp"_s, {}};
    return {"python", u"/usr/bin/python3"_s, {QStringLiteral(ESEMPI "/python/ospite.py")}};
}

struct Esito
{
    int codice;
    std::string uscita;
    std::string errori;
};

/// A host in another process.
class InCorso
{
public:
    /// ambiente: which display. casa: a folder in which it keeps what it may want to keep.
    InCorso(const std::string& nome, QProcessEnvironment ambiente, const QString& casa,
            const QStringList& argomenti)
    {
        for (const QString& cartella :
             {u"HOME"_s, u"XDG_DATA_HOME"_s, u"XDG_CONFIG_HOME"_s, u"XDG_RUNTIME_DIR"_s})
            ambiente.insert(cartella, casa);
        const Ospite quale = ospite(nome);
        ambiente.insert(u"GIACENZA_LIBRERIA"_s, QStringLiteral(LIBRERIA));
        ambiente.insert(u"PYTHONDONTWRITEBYTECODE"_s, u"1"_s);
        mProcesso.setProcessEnvironment(ambiente);
        mProcesso.start(quale.programma, quale.prima + argomenti);
    }
    InCorso(const InCorso&) = delete;
    InCorso& operator=(const InCorso&) = delete;
    /// What a host wrote that nobody asked for is told: it says why its window was never seen.
    ~InCorso()
    {
        if (mProcesso.state() != QProcess::NotRunning) {
            mProcesso.kill();
            mProcesso.waitForFinished();
        }
        std::cerr << mProcesso.readAllStandardError().constData();
    }

    Esito esito()
    {
        EXPECT_TRUE(mProcesso.waitForFinished(60'000));
        EXPECT_EQ(mProcesso.exitStatus(), QProcess::NormalExit);
        return {mProcesso.exitCode(), mProcesso.readAllStandardOutput().toStdString(),
                mProcesso.readAllStandardError().toStdString()};
    }

private:
    QProcess mProcesso;
};

class Esempi : public testing::TestWithParam<std::tuple<std::string, std::string>>
{
protected:
    static void SetUpTestSuite() { schermo() = std::make_unique<Schermo>(); }
    static void TearDownTestSuite() { schermo().reset(); }
    static std::unique_ptr<Schermo>& schermo()
    {
        static std::unique_ptr<Schermo> unico;
        return unico;
    }

    QStringList argomenti(const QString& database) const
    {
        return {database, mCasa.filePath(u"giacenza.ini"_s), mCasa.filePath(u"logo.gif"_s)};
    }
    std::string quale() const { return std::get<0>(GetParam()); }

    QTemporaryDir mCasa;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Ospiti, Esempi,
                         testing::Combine(testing::Values("c", "python", "cpp"),
                                          testing::Values("sqlite", "mariadb")),
                         [](const auto& parametro) {
                             return std::get<0>(parametro.param) + "_" + std::get<1>(parametro.param);
                         });

TEST_P(Esempi, ApreAscoltaLaFineEFinisce)
{
    const BancaDati base(std::get<1>(GetParam()));
    riempiDeposito(base);
    InCorso processo(quale(), schermo()->ambiente(), mCasa.path(), argomenti(base.stringa()));
    schermo()->premi(u"Registrazione giacenza"_s, u"alt+F4"_s);
    const Esito esito = processo.esito();
    EXPECT_EQ(esito.uscita, "fine\n") << "once";
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_EQ(esito.errori, "");
}

TEST_P(Esempi, DicePercheNonSiApre)
{
    QString database = u"DRIVER={SQLite3};Database="_s + mCasa.filePath(u"manca.db"_s);
    if (std::get<1>(GetParam()) == "mariadb")
        database = u"DRIVER={MariaDB Unicode};SERVER=127.0.0.1;PORT=1;UID=x;PWD=x;DATABASE=x"_s;
    InCorso processo(quale(), schermo()->ambiente(), mCasa.path(), argomenti(database));
    const Esito esito = processo.esito();
    EXPECT_EQ(esito.codice, 1);
    EXPECT_EQ(esito.uscita, "");
    EXPECT_THAT(esito.errori, testing::StartsWith("La schermata non è stata aperta: "));
    EXPECT_THAT(esito.errori, testing::ContainsRegex(" \\[[0-9A-Z]{5}\\]\n$"));
}

TEST(EsempiRiga, UnaRigaSbagliata)
{
    const QTemporaryDir casa;
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    ambiente.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    for (const char* nome : {"c", "python", "cpp"}) {
        const Esito esito = InCorso(nome, ambiente, casa.path(), {u"solo uno"_s}).esito();
        EXPECT_EQ(esito.codice, 2) << nome;
        EXPECT_THAT(esito.errori, testing::StartsWith("Uso: ospite"));
        EXPECT_EQ(esito.uscita, "");
    }
}

TEST(EsempiTardi, CaricaLaLibreriaEdElencaIMembri)
{
    QProcess processo;
    processo.start(QStringLiteral(LAVORO "/c/ospite-tardi"), {QStringLiteral(LIBRERIA)});
    ASSERT_TRUE(processo.waitForFinished(60'000));
    EXPECT_EQ(processo.readAllStandardError().toStdString(), "");
    EXPECT_EQ(processo.exitCode(), 0);
    EXPECT_EQ(processo.readAllStandardOutput().toStdString(), "versione " VERSIONE R"(
0x68030003 leggi PercorsoDatabase, 0 argomenti
0x68030003 scrivi PercorsoDatabase, 1 argomenti
0x68030002 leggi PercorsoFileIni, 0 argomenti
0x68030002 scrivi PercorsoFileIni, 1 argomenti
0x60030005 metodo NuovaGiacenza, 0 argomenti
0x60030006 metodo NuovaGiacenzaEXT, 4 argomenti
0x68030001 scrivi PercorsoLogoIntestazione, 1 argomenti
0x60030008 metodo MostraRiconsegna, 0 argomenti
0x68030000 scrivi TipoReso, 1 argomenti
0x6003000b metodo ConsultaGiacenza, 0 argomenti
0x6003000c metodo Esegui, 2 argomenti
0x00000001 evento fine, 0 argomenti
)");
}

TEST(EsempiRegistra, LInstallataRegistraLaLibreriaInstallata)
{
    const QTemporaryDir casa;
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    ambiente.insert(u"XDG_DATA_HOME"_s, casa.path());
    QProcess processo;
    processo.setProcessEnvironment(ambiente);
    processo.start(QStringLiteral(LAVORO "/installato/bin/giacenza-registra"), {});
    ASSERT_TRUE(processo.waitForFinished(60'000));
    EXPECT_EQ(processo.readAllStandardError().toStdString(), "");
    EXPECT_EQ(processo.exitCode(), 0);
    EXPECT_THAT(QString::fromUtf8(processo.readAllStandardOutput()).toStdString(),
                testing::HasSubstr(QStringLiteral("\nLibreria: " LIBRERIA "\n").toStdString()));
    EXPECT_TRUE(
        QFileInfo::exists(QStringLiteral(LAVORO "/installato/share/man/man1/giacenza-registra.1.gz")));
}

TEST(EsempiRegistra, PerLaMacchinaVaNeiDatiDellInstallazione)
{
    const QString descrittore =
        QStringLiteral(LAVORO "/installato/share/giacenza/classi/giacenza.cgiacenza.json");
    for (const QString& opzione : {QString(), u"--verifica"_s, u"--togli"_s}) {
        QStringList riga{u"--sistema"_s};
        if (!opzione.isEmpty())
            riga << opzione;
        QProcess processo;
        processo.start(QStringLiteral(LAVORO "/installato/bin/giacenza-registra"), riga);
        ASSERT_TRUE(processo.waitForFinished(60'000));
        EXPECT_EQ(processo.readAllStandardError().toStdString(), "");
        EXPECT_EQ(processo.exitCode(), 0) << opzione.toStdString();
        EXPECT_EQ(QFileInfo::exists(descrittore), opzione != u"--togli"_s);
    }
}
