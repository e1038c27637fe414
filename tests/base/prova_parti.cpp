#include "base/cartellaprova.h"
#include "base/servizi.h"

#include <giacenza/Errore.h>
#include <giacenza/LettoreIni.h>

#include <QCoreApplication>
#include <QFileInfo>

#include <dlfcn.h>

using namespace Qt::StringLiterals;

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
const QString classeBuona = u"ReportDocProva.cModuliStampa"_s;

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
        QStringList righe{u"Impossibile creare la classe %1."_s.arg(classe)};
        righe += cause;
        righe += u"Cercata in: %1."_s.arg(cartelleParti().join(u", "_s));
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
    EXPECT_EQ(cartelleParti(), (QStringList{u"/una"_s, u"/due"_s, propria + u"/giacenza"_s,
                                            QStringLiteral(GIACENZA_PROVA_INSTALLATA)}));
}

TEST_F(Parti, laClasseDiNessunoNonCaricaNulla)
{
    const QString copia = percorso(u"copia.so"_s);
    ASSERT_TRUE(QFile::copy(moduli + u"/buono.so"_s, copia));
    qputenv("GIACENZA_PARTI", percorso({}).toUtf8());
    rifiutata(u"Mai.cVista"_s, {});
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
        creata.parte->stampaDocumento(u"senza documento"_s, nonProdotto);
        EXPECT_TRUE(nonProdotto);
    }
}

TEST_F(Parti, unModuloNonSiScaricaMai)
{
    ASSERT_NE(creaParte(classeBuona).parte, nullptr);
    EXPECT_TRUE(caricato(moduli + u"/buono.so"_s));
}

TEST_F(Parti, oggettoDiUnAltroGenere)
{
    const ParteDi<LettoreIni> creata = creaParteDi<LettoreIni>(classeBuona);
    EXPECT_EQ(creata.parte, nullptr);
    EXPECT_EQ(creata.motivo, u"La classe ReportDocProva.cModuliStampa non offre ciò che serve."_s);
}

TEST_F(Parti, moduloDiUnAltraVersioneNonSiCarica)
{
    rifiutata(
        u"Vecchia.cClasse"_s,
        {moduli + u"/altraversione.so: offre giacenza.FabbricaParti/0 e non giacenza.FabbricaParti/1."_s});
    EXPECT_FALSE(caricato(moduli + u"/altraversione.so"_s));
}

TEST_F(Parti, unModuloCheNonServeNonFermaGliAltri)
{
    EXPECT_NE(creaParte(u"Doppia.cClasse"_s).parte, nullptr);
}

TEST_F(Parti, radiceSenzaInterfaccia)
{
    rifiutata(u"Bugiarda.cClasse"_s,
              {moduli + u"/bugiardo.so: non offre l'interfaccia giacenza.FabbricaParti/1."_s});
}

TEST_F(Parti, fabbricaCheNonDaNulla)
{
    rifiutata(u"Promessa.cMaiFatta"_s, {moduli + u"/buono.so: nessun oggetto creato."_s});
}

TEST_F(Parti, fabbricaCheLancia)
{
    rifiutata(u"Lancia.cErrore"_s, {moduli + u"/lancia.so: la stampante è spenta."_s});
    rifiutata(u"Lancia.cIntero"_s, {moduli + u"/lancia.so: errore sconosciuto."_s});
}

TEST_F(Parti, fileCheNonEUnModulo)
{
    scrivi(u"finto.so"_s, "non sono una libreria\n");
    qputenv("GIACENZA_PARTI", percorso({}).toUtf8());
    rifiutata(classeBuona, {percorso(u"finto.so: non è un modulo leggibile."_s)});

    qputenv("GIACENZA_PARTI", (percorso({}) + u':' + moduli).toUtf8());
    EXPECT_NE(creaParte(classeBuona).parte, nullptr);
}

TEST_F(Parti, unaLibreriaDiAltroGenereNonEUnaCausa)
{
    ASSERT_TRUE(QFile::copy(QStringLiteral(GIACENZA_PROVA_LIBRERIA), percorso(u"altra.so"_s)));
    qputenv("GIACENZA_PARTI", percorso({}).toUtf8());
    rifiutata(classeBuona, {});
}

TEST_F(Parti, moduloTroncato)
{
    QFile intero(moduli + u"/buono.so"_s);
    ASSERT_TRUE(intero.open(QIODevice::ReadOnly));
    scrivi(u"tronco.so"_s, intero.read(12000));
    qputenv("GIACENZA_PARTI", percorso({}).toUtf8());
    rifiutata(classeBuona, {percorso(u"tronco.so: non è un modulo leggibile."_s)});
}

TEST_F(Parti, moduloCheNonSiCarica)
{
    const ParteCreata creata = creaParte(u"Mutila.cClasse"_s);
    EXPECT_EQ(creata.parte, nullptr);
    EXPECT_TRUE(creata.motivo.contains(moduli + u"/mutilo.so: non si carica ("_s))
        << creata.motivo.toStdString();
    EXPECT_TRUE(creata.motivo.contains(u"simboloCheManca"_s)) << creata.motivo.toStdString();
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
    const QString classe = u"Deposito.cGuasta"_s;
    registraParte(classe,
                  []() -> std::unique_ptr<ParteEsterna> { throw giacenza::Errore(u"licenza scaduta"_s); });
    EXPECT_EQ(creaParte(classe).motivo, u"Impossibile creare la classe Deposito.cGuasta.\n"
                                        "Registrata dal programma: licenza scaduta."_s);
    registraParte(classe, []() -> std::unique_ptr<ParteEsterna> { return nullptr; });
    EXPECT_EQ(creaParte(classe).motivo, u"Impossibile creare la classe Deposito.cGuasta.\n"
                                        "Registrata dal programma: nessun oggetto creato."_s);
    registraParte(classe, {});
}

TEST_F(Parti, unaFabbricaPuoTogliereSeStessa)
{
    const QString classe = u"Deposito.cUsaEGetta"_s;
    registraParte(classe, [classe] {
        registraParte(classe, {});
        return std::make_unique<ParteVuota>();
    });
    EXPECT_NE(creaParte(classe).parte, nullptr);
    EXPECT_EQ(creaParte(classe).parte, nullptr);
}

TEST_F(Parti, ilModuloStampaDelFileDelleImpostazioni)
{
    scrivi(u"gest.ini"_s, "[DLLStampe]\nIdentificativoDll=Prova\n");
    const ParteDi<ModuloStampa> modulo = CaricaModuloStampa();
    EXPECT_NE(modulo.parte, nullptr) << modulo.motivo.toStdString();
    EXPECT_EQ(modulo.motivo, QString());
}

TEST_F(Parti, ilModuloStampaCheNonSiTrova)
{
    scrivi(u"gest.ini"_s, "[DLLStampe]\nIdentificativoDll=Ignoto\n");
    const ParteDi<ModuloStampa> modulo = CaricaModuloStampa();
    EXPECT_EQ(modulo.parte, nullptr);
    EXPECT_EQ(modulo.motivo.toStdString(),
              motivoAtteso(u"ReportDocIgnoto.cModuliStampa"_s, {}).toStdString());
}

TEST_F(Parti, senzaIdentificativoSiDiceQualeVoceManca)
{
    const QString file = giacenza::impostazioni().percorsoFileIni;
    const ParteDi<ModuloStampa> modulo = CaricaModuloStampa();
    EXPECT_EQ(modulo.parte, nullptr);
    EXPECT_EQ(modulo.motivo.toStdString(),
              (u"Manca la voce IdentificativoDll della sezione DLLStampe nel file delle "
               "impostazioni \"%1\".\n"_s.arg(file) +
               motivoAtteso(u"ReportDoc.cModuliStampa"_s, {}))
                  .toStdString());
}

TEST_F(Parti, unLettoreCheLanciaLasciaIlRiferimentoVuoto)
{
    class LettoreGuasto : public LettoreIni
    {
        QString leggi(const QString&, const QString&, const QString&) override
        {
            throw giacenza::Errore(u"file delle impostazioni illeggibile"_s);
        }
    };
    const QString classe = QStringView(giacenza::classeLettoreIni).toString();
    registraParte(classe, [] { return std::make_unique<LettoreGuasto>(); });
    const ParteDi<ModuloStampa> modulo = CaricaModuloStampa();
    registraParte(classe, {});
    EXPECT_EQ(modulo.parte, nullptr);
    EXPECT_EQ(modulo.motivo, u"file delle impostazioni illeggibile"_s);
}
