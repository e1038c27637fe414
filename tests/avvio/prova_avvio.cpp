#include "host/avvio/avvio.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

#include <QFileInfo>
#include <QMap>
#include <QSettings>
#include <QTemporaryDir>

using namespace deposito;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A key store in memory.
class PortachiaviDiProva : public Portachiavi
{
public:
    EsitoPortachiavi leggi(const QString& nome) override
    {
        if (assente)
            return {.assente = true, .motivo = u"Su questo computer non c'è un portachiavi."_s};
        if (!parole.contains(nome))
            return {.motivo = u"Nel portachiavi non c'è una parola d'ordine per questo archivio."_s};
        return {.riuscito = true, .parola = parole.value(nome)};
    }
    EsitoPortachiavi scrivi(const QString& nome, const QString& parola) override
    {
        if (chiuso)
            return {.motivo = u"Il portachiavi è rimasto chiuso."_s};
        parole[nome] = parola;
        return {.riuscito = true};
    }
    EsitoPortachiavi togli(const QString& nome) override
    {
        parole.remove(nome);
        return {.riuscito = true};
    }

    bool assente = false;
    bool chiuso = false;
    QMap<QString, QString> parole;
};

class AllAvvio : public testing::Test
{
protected:
    AllAvvio()
    {
        qputenv("XDG_DATA_HOME", mCartella.path().toUtf8());
        qputenv("GIACENZA_PARTI", GIACENZA_PROVA_PARTI);
    }
    ~AllAvvio() override
    {
        qunsetenv("GIACENZA_PARTI");
        qunsetenv("XDG_DATA_HOME");
    }

    Avvio::Domande domande()
    {
        return {.archivio = [this](const SceltaArchivio&, bool conPortachiavi,
                                   QWidget*) -> Avvio::Domande::Scelta {
                    mOfferto = conPortachiavi;
                    if (mRisposte.isEmpty())
                        return std::nullopt;
                    return mRisposte.takeFirst();
                },
                .parola = [this](const SceltaArchivio&, const QString& perche,
                                 QWidget*) -> std::optional<QString> {
                    mChieste << perche;
                    return mParola;
                },
                .avverti = [this](const QString& testo, QWidget*) { mAvvertimenti << testo; }};
    }
    static SceltaArchivio server(CustodiaParola custodia)
    {
        SceltaArchivio scelta;
        scelta.tipo = TipoArchivio::server;
        scelta.server = u"s"_s;
        scelta.base = u"b"_s;
        scelta.utente = u"u"_s;
        scelta.custodia = custodia;
        return scelta;
    }
    static QString stringa(const QString& parola)
    {
        return u"DRIVER={MariaDB Unicode};SERVER=s;PORT=3306;UID=u;PWD=%1;DATABASE=b"_s.arg(parola);
    }

    QTemporaryDir mCartella;
    QSettings mImpostazioni{mCartella.filePath(u"deposito.ini"_s), QSettings::IniFormat};
    PortachiaviDiProva mPortachiavi;
    QList<std::pair<SceltaArchivio, QString>> mRisposte;
    std::optional<QString> mParola;
    QStringList mChieste;
    QStringList mAvvertimenti;
    bool mOfferto = false;
};

TEST_F(AllAvvio, LaPrimaVoltaSiChiedeEPoiSiRicorda)
{
    mRisposte = {{server(CustodiaParola::portachiavi), u"p1"_s}};
    Avvio avvio(mImpostazioni, mPortachiavi, domande());
    EXPECT_EQ(avvio.archivio(nullptr), stringa(u"p1"_s));
    EXPECT_TRUE(mOfferto);
    EXPECT_EQ(mPortachiavi.parole.value(u"u@s:3306/b"_s), u"p1"_s);
    EXPECT_FALSE(mImpostazioni.allKeys().join(u' ').contains(u"parolaInChiaro"_s));
    EXPECT_EQ(avvio.archivio(nullptr), stringa(u"p1"_s)) << "without a question";
    EXPECT_THAT(mChieste, IsEmpty());
    EXPECT_THAT(mAvvertimenti, IsEmpty());
}

TEST_F(AllAvvio, ChiRinunciaNonHaUnArchivio)
{
    Avvio avvio(mImpostazioni, mPortachiavi, domande());
    EXPECT_EQ(avvio.archivio(nullptr), std::nullopt);
    EXPECT_EQ(sceltaRicordata(mImpostazioni), std::nullopt);
}

TEST_F(AllAvvio, SenzaCustodiaLaParolaSiChiedeOgniVolta)
{
    ricordaScelta(mImpostazioni, server(CustodiaParola::nessuna));
    mParola = u"p2"_s;
    Avvio avvio(mImpostazioni, mPortachiavi, domande());
    EXPECT_EQ(avvio.archivio(nullptr), stringa(u"p2"_s));
    EXPECT_THAT(mChieste, ElementsAre(QString()));
}

TEST_F(AllAvvio, UnPortachiaviCheNonRispondeSiDiceChiedendo)
{
    ricordaScelta(mImpostazioni, server(CustodiaParola::portachiavi));
    mPortachiavi.assente = true;
    mParola = u"p3"_s;
    Avvio avvio(mImpostazioni, mPortachiavi, domande());
    EXPECT_EQ(avvio.archivio(nullptr), stringa(u"p3"_s));
    EXPECT_THAT(mChieste, ElementsAre(u"Su questo computer non c'è un portachiavi."_s));
    mParola.reset();
    EXPECT_EQ(avvio.archivio(nullptr), std::nullopt)
        << "given up, then asked for another archive and given up again";
    EXPECT_FALSE(mOfferto);
}

TEST_F(AllAvvio, LaParolaInChiaroSiTogliePassandoAdAltro)
{
    mRisposte = {{server(CustodiaParola::inChiaro), u"p4"_s}, {server(CustodiaParola::nessuna), u"p5"_s}};
    Avvio avvio(mImpostazioni, mPortachiavi, domande());
    EXPECT_EQ(avvio.scegli(nullptr), stringa(u"p4"_s));
    EXPECT_EQ(mImpostazioni.value(u"archivio/parolaInChiaro"_s).toString(), u"p4"_s);
    EXPECT_EQ(QFile::permissions(mImpostazioni.fileName()) &
                  (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
              QFile::Permissions())
        << "nobody else reads it";
    EXPECT_THAT(mAvvertimenti, IsEmpty());
    EXPECT_EQ(avvio.archivio(nullptr), stringa(u"p4"_s));
    EXPECT_EQ(avvio.scegli(nullptr), stringa(u"p5"_s));
    EXPECT_FALSE(mImpostazioni.contains(u"archivio/parolaInChiaro"_s));
}

TEST_F(AllAvvio, DoveNonSiPuoCustodireLaParolaInChiaroNonSiScrive)
{
    const QString assente = mCartella.filePath(u"assente"_s);
    QFile(assente).open(QIODevice::WriteOnly); // a file stands where the settings' folder would be
    QSettings altre(assente + u"/deposito.ini"_s, QSettings::IniFormat);
    mRisposte = {{server(CustodiaParola::inChiaro), u"p7"_s}};
    Avvio avvio(altre, mPortachiavi, domande());
    EXPECT_EQ(avvio.scegli(nullptr), stringa(u"p7"_s));
    EXPECT_FALSE(altre.contains(u"archivio/parolaInChiaro"_s));
    EXPECT_THAT(mAvvertimenti,
                ElementsAre(u"La parola d'ordine non è stata ricordata: al prossimo avvio verrà chiesta. Il "
                            "file delle impostazioni non si può chiudere agli altri utenti: %1"_s.arg(
                                altre.fileName())));
}

TEST_F(AllAvvio, UnaParolaNonRicordataSiDice)
{
    mPortachiavi.chiuso = true;
    mRisposte = {{server(CustodiaParola::portachiavi), u"p6"_s}};
    Avvio avvio(mImpostazioni, mPortachiavi, domande());
    EXPECT_EQ(avvio.scegli(nullptr), stringa(u"p6"_s));
    EXPECT_THAT(mAvvertimenti,
                ElementsAre(u"La parola d'ordine non è stata ricordata: al prossimo avvio verrà chiesta. "
                            "Il portachiavi è rimasto chiuso."_s));
}

TEST_F(AllAvvio, UnFileSparitoSiDiceESiChiedeAncora)
{
    SceltaArchivio file;
    file.tipo = TipoArchivio::file;
    file.file = mCartella.filePath(u"sparito.db"_s);
    ricordaScelta(mImpostazioni, file);
    Avvio avvio(mImpostazioni, mPortachiavi, domande());
    EXPECT_EQ(avvio.archivio(nullptr), std::nullopt);
    EXPECT_THAT(mAvvertimenti, ElementsAre(u"Il file dell'archivio non c'è: %1"_s.arg(file.file)));
}

TEST_F(AllAvvio, LaDimostrazioneSiPreparaUnaVoltaSola)
{
    mRisposte = {{SceltaArchivio(), QString()}};
    Avvio avvio(mImpostazioni, mPortachiavi, domande());
    const auto archivio = avvio.archivio(nullptr);
    EXPECT_THAT(mAvvertimenti, IsEmpty());
    ASSERT_TRUE(archivio);
    const QFileInfo file(fileDimostrazione());
    ASSERT_TRUE(file.isFile());
    EXPECT_TRUE(file.path().startsWith(mCartella.path()));
    const EsitoProva esito = provaStringa(*archivio);
    EXPECT_TRUE(esito.riuscita) << esito.testo.toStdString();
    const QDateTime fatta = file.lastModified();
    EXPECT_EQ(avvio.archivio(nullptr), archivio);
    EXPECT_EQ(QFileInfo(fileDimostrazione()).lastModified(), fatta);
    EXPECT_THAT(file.dir().entryList({u".nuovo*"_s}, QDir::AllEntries | QDir::Hidden), IsEmpty());
}

} // namespace
