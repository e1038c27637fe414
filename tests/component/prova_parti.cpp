#include "component/cartellaprova.h"
#include "component/servizi.h"

#include <giacenza/Errore.h>
#include <giacenza/LettoreIni.h>

#include <QCoreApplication>
#include <QFileInfo>

#include <dlfcn.h>

using giacenza::CaricaModuloStampa;
using giacenza::cartelleParti;
using giacenza::creaParte;
using giacenza::creaParteDi;
using giacenza::LettoreIni;
using giacenza::ModuloStampa;
using giacenza::ParteCreata;
using giacenza::ParteDi;
using giacenza::ParteEsterna;
using giacenza::registraParte;

namespace {

const QString moduli = QStringLiteral(GIACENZA_PROVA_MODULI);
const QString classeBuona = QStringLiteral("ReportDocProva.cModuliStampa");

class ParteVuota : public ParteEsterna
{};

class Parti : public giacenza::prove::CartellaProva
{
protected:
    Parti() { qputenv("GIACENZA_PARTI", moduli.toUtf8()); }
    ~Parti() override { qunsetenv("GIACENZA_PARTI"); }

    // The reason is one text: the class, what each file did, and every folder that was looked into.
    static QString motivoAtteso(const QString& classe, const QStringList& cause)
    {
        QStringList righe{QStringLiteral("Impossibile creare la classe %1.").arg(classe)};
        righe += cause;
        righe += QStringLiteral("Cercata in: %1.").arg(cartelleParti().join(QStringLiteral(", ")));
        return righe.join(u'\n');
    }

    static bool caricato(const QString& file)
    {
        void* modulo = dlopen(file.toUtf8().constData(), RTLD_LAZY | RTLD_NOLOAD);
        if (modulo)
            dlclose(modulo);
        return modulo != nullptr;
    }

    static void rifiutata(const QString& classe, const QStringList& cause)
    {
        const ParteCreata creata = creaParte(classe);
        EXPECT_EQ(creata.parte, nullptr);
        EXPECT_EQ(creata.motivo.toStdString(), motivoAtteso(classe, cause).toStdString());
    }
};

} // namespace

TEST_F(Parti, leCartelleNelLoroOrdine)
{
    qputenv("GIACENZA_PARTI", "/una::/due:/una");
    const QString propria = QFileInfo(QCoreApplication::applicationFilePath()).absolutePath();
    EXPECT_EQ(cartelleParti(), (QStringList{QStringLiteral("/una"), QStringLiteral("/due"),
                                            propria + QStringLiteral("/giacenza"),
                                            QStringLiteral(GIACENZA_PROVA_INSTALLATA)}));
}

TEST_F(Parti, laClasseDiNessunoNonCaricaNulla)
{
    const QString copia = percorso(QStringLiteral("copia.so"));
    ASSERT_TRUE(QFile::copy(moduli + QStringLiteral("/buono.so"), copia));
    qputenv("GIACENZA_PARTI", percorso({}).toUtf8());
    rifiutata(QStringLiteral("Mai.cVista"), {});
    EXPECT_FALSE(caricato(copia));
    EXPECT_NE(creaParte(classeBuona).parte, nullptr);
    EXPECT_TRUE(caricato(copia));
}

TEST_F(Parti, dalModuloSenzaBadareAlleMaiuscole)
{
    for (const QString& nome : {classeBuona, classeBuona.toUpper(), classeBuona.toLower()}) {
        const ParteDi<ModuloStampa> creata = creaParteDi<ModuloStampa>(nome);
        ASSERT_NE(creata.parte, nullptr) << creata.motivo.toStdString();
        EXPECT_EQ(creata.motivo, QString());
        bool nonProdotto = false;
        creata.parte->stampaDocumento(QStringLiteral("senza documento"), nonProdotto);
        EXPECT_TRUE(nonProdotto);
    }
}

TEST_F(Parti, unModuloNonSiScaricaMai)
{
    ASSERT_NE(creaParte(classeBuona).parte, nullptr);
    EXPECT_TRUE(caricato(moduli + QStringLiteral("/buono.so")));
}

TEST_F(Parti, oggettoDiUnAltroGenere)
{
    const ParteDi<LettoreIni> creata = creaParteDi<LettoreIni>(classeBuona);
    EXPECT_EQ(creata.parte, nullptr);
    EXPECT_EQ(creata.motivo,
              QStringLiteral("La classe ReportDocProva.cModuliStampa non offre ciò che serve."));
}

TEST_F(Parti, moduloDiUnAltraVersioneNonSiCarica)
{
    rifiutata(
        QStringLiteral("Vecchia.cClasse"),
        {moduli + QStringLiteral(
                      "/altraversione.so: offre giacenza.FabbricaParti/0 e non giacenza.FabbricaParti/1.")});
    EXPECT_FALSE(caricato(moduli + QStringLiteral("/altraversione.so")));
}

TEST_F(Parti, unModuloCheNonServeNonFermaGliAltri)
{
    EXPECT_NE(creaParte(QStringLiteral("Doppia.cClasse")).parte, nullptr);
}

TEST_F(Parti, radiceSenzaInterfaccia)
{
    rifiutata(QStringLiteral("Bugiarda.cClasse"),
              {moduli + QStringLiteral("/bugiardo.so: non offre l'interfaccia giacenza.FabbricaParti/1.")});
}

TEST_F(Parti, fabbricaCheNonDaNulla)
{
    rifiutata(QStringLiteral("Promessa.cMaiFatta"),
              {moduli + QStringLiteral("/buono.so: nessun oggetto creato.")});
}

TEST_F(Parti, fabbricaCheLancia)
{
    rifiutata(QStringLiteral("Lancia.cErrore"),
              {moduli + QStringLiteral("/lancia.so: la stampante è spenta.")});
    rifiutata(QStringLiteral("Lancia.cIntero"), {moduli + QStringLiteral("/lancia.so: errore sconosciuto.")});
}

TEST_F(Parti, fileCheNonEUnModulo)
{
    scrivi(QStringLiteral("finto.so"), "non sono una libreria\n");
    qputenv("GIACENZA_PARTI", percorso({}).toUtf8());
    rifiutata(classeBuona, {percorso(QStringLiteral("finto.so: non è un modulo leggibile."))});

    qputenv("GIACENZA_PARTI", (percorso({}) + u':' + moduli).toUtf8());
    EXPECT_NE(creaParte(classeBuona).parte, nullptr);
}

TEST_F(Parti, unaLibreriaDiAltroGenereNonEUnaCausa)
{
    ASSERT_TRUE(QFile::copy(QStringLiteral(GIACENZA_PROVA_LIBRERIA), percorso(QStringLiteral("altra.so"))));
    qputenv("GIACENZA_PARTI", percorso({}).toUtf8());
    rifiutata(classeBuona, {});
}

TEST_F(Parti, moduloTroncato)
{
    QFile intero(moduli + QStringLiteral("/buono.so"));
    ASSERT_TRUE(intero.open(QIODevice::ReadOnly));
    scrivi(QStringLiteral("tronco.so"), intero.read(12000));
    qputenv("GIACENZA_PARTI", percorso({}).toUtf8());
    rifiutata(classeBuona, {percorso(QStringLiteral("tronco.so: non è un modulo leggibile."))});
}

TEST_F(Parti, moduloCheNonSiCarica)
{
    const ParteCreata creata = creaParte(QStringLiteral("Mutila.cClasse"));
    EXPECT_EQ(creata.parte, nullptr);
    EXPECT_TRUE(creata.motivo.contains(moduli + QStringLiteral("/mutilo.so: non si carica (")))
        << creata.motivo.toStdString();
    EXPECT_TRUE(creata.motivo.contains(QStringLiteral("simboloCheManca"))) << creata.motivo.toStdString();
}

TEST_F(Parti, laRegistrazioneVinceSuiModuli)
{
    registraParte(classeBuona.toUpper(), [] { return std::make_unique<ParteVuota>(); });
    ParteCreata creata = creaParte(classeBuona);
    EXPECT_NE(dynamic_cast<ParteVuota*>(creata.parte.get()), nullptr);

    registraParte(classeBuona, {});
    creata = creaParte(classeBuona);
    EXPECT_NE(dynamic_cast<ModuloStampa*>(creata.parte.get()), nullptr);
}

TEST_F(Parti, laFabbricaRegistrataCheLancia)
{
    const QString classe = QStringLiteral("Deposito.cGuasta");
    registraParte(classe, []() -> std::unique_ptr<ParteEsterna> {
        throw giacenza::Errore(QStringLiteral("licenza scaduta"));
    });
    EXPECT_EQ(creaParte(classe).motivo, QStringLiteral("Impossibile creare la classe Deposito.cGuasta.\n"
                                                       "Registrata dal programma: licenza scaduta."));
    registraParte(classe, []() -> std::unique_ptr<ParteEsterna> { return nullptr; });
    EXPECT_EQ(creaParte(classe).motivo, QStringLiteral("Impossibile creare la classe Deposito.cGuasta.\n"
                                                       "Registrata dal programma: nessun oggetto creato."));
    registraParte(classe, {});
}

TEST_F(Parti, unaFabbricaPuoTogliereSeStessa)
{
    const QString classe = QStringLiteral("Deposito.cUsaEGetta");
    registraParte(classe, [classe] {
        registraParte(classe, {});
        return std::make_unique<ParteVuota>();
    });
    EXPECT_NE(creaParte(classe).parte, nullptr);
    EXPECT_EQ(creaParte(classe).parte, nullptr);
}

TEST_F(Parti, ilModuloStampaDelFileDelleImpostazioni)
{
    scrivi(QStringLiteral("gest.ini"), "[DLLStampe]\nIdentificativoDll=Prova\n");
    const ParteDi<ModuloStampa> modulo = CaricaModuloStampa();
    EXPECT_NE(modulo.parte, nullptr) << modulo.motivo.toStdString();
    EXPECT_EQ(modulo.motivo, QString());
}

TEST_F(Parti, ilModuloStampaCheNonSiTrova)
{
    scrivi(QStringLiteral("gest.ini"), "[DLLStampe]\nIdentificativoDll=Ignoto\n");
    const ParteDi<ModuloStampa> modulo = CaricaModuloStampa();
    EXPECT_EQ(modulo.parte, nullptr);
    EXPECT_EQ(modulo.motivo.toStdString(),
              motivoAtteso(QStringLiteral("ReportDocIgnoto.cModuliStampa"), {}).toStdString());
}

TEST_F(Parti, senzaIdentificativoSiDiceQualeVoceManca)
{
    const QString file = giacenza::impostazioni().percorsoFileIni;
    const ParteDi<ModuloStampa> modulo = CaricaModuloStampa();
    EXPECT_EQ(modulo.parte, nullptr);
    EXPECT_EQ(modulo.motivo.toStdString(),
              (QStringLiteral("Manca la voce IdentificativoDll della sezione DLLStampe nel file delle "
                              "impostazioni \"%1\".\n")
                   .arg(file) +
               motivoAtteso(QStringLiteral("ReportDoc.cModuliStampa"), {}))
                  .toStdString());
}

TEST_F(Parti, unLettoreCheLanciaLasciaIlRiferimentoVuoto)
{
    class LettoreGuasto : public LettoreIni
    {
        QString leggi(const QString&, const QString&, const QString&) override
        {
            throw giacenza::Errore(QStringLiteral("file delle impostazioni illeggibile"));
        }
    };
    const QString classe = QStringView(giacenza::classeLettoreIni).toString();
    registraParte(classe, [] { return std::make_unique<LettoreGuasto>(); });
    const ParteDi<ModuloStampa> modulo = CaricaModuloStampa();
    registraParte(classe, {});
    EXPECT_EQ(modulo.parte, nullptr);
    EXPECT_EQ(modulo.motivo, QStringLiteral("file delle impostazioni illeggibile"));
}
