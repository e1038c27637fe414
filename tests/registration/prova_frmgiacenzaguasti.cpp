#include "registration/registrazionediprova.h"

#include "base/impostazioni.h"
#include "data/archivio.h"
#include "database/stringaconnessione.h"
#include "support/stampa.h"

#include <giacenza/RicercaTabella.h>

#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

class RegistrazioneGuasti : public RegistrazioneDiProva
{};

INSTANTIATE_TEST_SUITE_P(Basi, RegistrazioneGuasti, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(RegistrazioneGuasti, UnSalvataggioFallitoLoDiceENonLasciaNiente)
{
    const Messaggio impossibile = {u"Impossibile aggiungere la nuova giacenza."_s, Stile::critico,
                                   titoloApplicazione()};
    consegna(u"4711"_s);
    for (const char16_t* punto : {u"select UltimoNumGiacenza", u"update ekelvorqzt",
                                  u"select * from giace00f", u"insert into giace00f", u"update letve00f"}) {
        fallisce(QString::fromUtf16(punto), u"08S01"_s);
        clicca("cmdSalva");
        guarisce();
        EXPECT_THAT(mMessaggi.prendi(), ElementsAre(impossibile));
        EXPECT_EQ(mostrato("lblNrGia"), QString()) << "the label shows what it showed before";
        EXPECT_EQ(mBase.leggi(u"select count(*) from giace00f where GINRLV='4711'"_s), u"0"_s);
        EXPECT_EQ(mBase.leggi(u"select LEDTCO from letve00f where lenrlv='4711'"_s), u"2026-11-14"_s);
    }
    EXPECT_THAT(mStampe, IsEmpty());
    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Giacenza aggiunta in database."_s)) << "and then it works";
}

TEST_P(RegistrazioneGuasti, UnGuastoFuoriDallInserimentoFinisceSenzaMessaggio)
{
    consegna(u"4711"_s);
    fallisce(u"select Lerico"_s);
    clicca("cmdSalva");
    guarisce();
    EXPECT_EQ(mostrato("lblStato"),
              u"Niente è stato salvato; riprovare con Salva. L'archivio ha rifiutato l'operazione."_s);
    EXPECT_EQ(c("lblStato")->toolTip(), u"Niente è stato salvato; riprovare con Salva. guasto di prova"_s)
        << "the driver's own words";

    fallisce(u"select GINRAV"_s);
    clicca("cmdSalva");
    guarisce();
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Giacenza aggiunta in database."_s));
    EXPECT_EQ(mostrato("lblStato"),
              u"La giacenza 42 è registrata, l'avviso no: emetterlo con il suo bottone. "
              "L'archivio ha rifiutato l'operazione."_s);
    EXPECT_EQ(mBase.leggi(u"select GINRAV from giace00f where GINRLV='4711'"_s), std::nullopt);
    EXPECT_THAT(mStampe, IsEmpty());
}

TEST_P(RegistrazioneGuasti, LEtichettaDellAvvisoCambiaSoloDopoLIstruzione)
{
    consegna(u"4714"_s);
    mBase.esegui(u"update giace00f set GIDTAV='2026-11-20' where GINRGI='40';"_s);
    fallisce(u"UPDATE giace00f SET GINRAV"_s);
    clicca("cmdAvvisoGia");
    guarisce();
    EXPECT_EQ(mMessaggi.prendi().size(), 1U);
    EXPECT_EQ(mostrato("lblDataAvviso"), u"15/11/2026"_s);
    EXPECT_THAT(mStampe, IsEmpty());
}

TEST_P(RegistrazioneGuasti, UnContoCheNonEUnNumeroFermaLAvviso)
{
    consegna(u"4714"_s);
    for (const char16_t* conto : {u"due", u"32767"}) {
        mBase.esegui(u"update giace00f set GIDTAV='2026-11-20', GINRAV='%1' where GINRGI='40';"_s.arg(
            QString::fromUtf16(conto)));
        clicca("cmdAvvisoGia");
        EXPECT_EQ(mMessaggi.prendi().size(), 1U);
        EXPECT_EQ(mBase.leggi(u"select GINRAV from giace00f where GINRGI='40'"_s), QString::fromUtf16(conto));
    }
    EXPECT_THAT(mStampe, IsEmpty());
}

TEST_P(RegistrazioneGuasti, UnaStampaCheNonRiesceSiDiceELaGiacenzaResta)
{
    const auto salva = [this](const QString& ldv) {
        consegna(ldv);
        clicca("cmdSalva");
        EXPECT_EQ(mBase.leggi(u"select GINRAV from giace00f where GINRLV='%1'"_s.arg(ldv)), u"1"_s);
        const auto messaggi = mMessaggi.prendi();
        EXPECT_EQ(messaggi.front().testo, u"Giacenza aggiunta in database."_s);
        return messaggi.size() == 2 ? messaggi.back().testo.toStdString() : "nessuna scatola";
    };
    const std::string inizio = "L'avviso di giacenza non è stato stampato; la giacenza resta registrata.\n\n";
    mGuastoStampa = u"Il disco è pieno."_s;
    EXPECT_EQ(salva(u"4711"_s), inizio + "Il disco è pieno.");
    mGuastoStampa.clear();
    mStampaNonProdotta = true;
    EXPECT_EQ(salva(u"4712"_s), "nessuna scatola") << "the module has told why";
    EXPECT_EQ(mostrato("lblStato"),
              u"Avviso di giacenza 43_2026 contato (n. 1) ma non stampato: ristamparlo oggi non lo conta di "
              "nuovo. Il modulo di stampa non ha prodotto il documento."_s);
    impostazioni().percorsoFileIni = u"/non/ce.ini"_s;
    mBase.esegui(u"insert into letve00f (lefili,lenrlv,leanlv,ledtlv,lecodi,lerife) values "
                 "('MI','4716',2026,'2026-11-12',1001,'X');"_s);
    EXPECT_THAT(salva(u"4716"_s), StartsWith(inizio + "Manca la voce IdentificativoDll"));
}

TEST_P(RegistrazioneGuasti, SenzaDatabaseLaSchermataNonSiApre)
{
    impostazioni().percorsoDatabase = u"DRIVER={Non esiste};SERVER=127.0.0.1"_s;
    frmGiacenza schermata;
    EXPECT_THROW(schermata.carica(), ErroreDatabase);
    EXPECT_FALSE(schermata.isVisible());
}

TEST_P(RegistrazioneGuasti, TestiCheRomperebberoUnIstruzione)
{
    apri();
    scrivi("txtCodiceCli", u"1001"_s);
    scrivi("txtFiliale", u"MI"_s);
    scrivi("txtDataLdv", u"12112026"_s);
    lascia("txtDataLdv");
    const QString lungo(10'000, u'9');
    for (const QString& numero :
         {u"%"_s, u"47\t11"_s, u"47\x01\x7f"_s, u"47;11"_s, u"4711 -- "_s, u"4711/*"_s, u"47\\11"_s,
          u"O''Neil"_s, QString::fromUtf8("47🚚11"), lungo}) {
        qobject_cast<QLineEdit*>(c("txtLDV"))->setText(numero);
        EXPECT_EQ(istruzioni([&] { tasto("txtLDV", Qt::Key_F12); }).size(), 1)
            << numero.left(20).toStdString();
        EXPECT_THAT(mMessaggi.prendi(), IsEmpty());
        EXPECT_THAT(mostrato("lblStato").toStdString(), testing::EndsWith("non trovata."));
    }
    for (const QString& rotto : {u"4711' or '1'='1"_s, QString(QChar(u'\0'))}) {
        qobject_cast<QLineEdit*>(c("txtLDV"))->setText(rotto);
        EXPECT_THAT(istruzioni([&] { tasto("txtLDV", Qt::Key_F12); }), IsEmpty()) << "it is not sent";
        EXPECT_EQ(mMessaggi.prendi().size(), 1U);
    }
    EXPECT_EQ(mostrato("txtDestinatario"), QString());
    EXPECT_TRUE(c("cmdSalva")->isEnabled());
}

TEST_P(RegistrazioneGuasti, RiferimentiCheRomperebberoUnIstruzione)
{
    apri();
    scrivi("txtCodiceCli", u"1001"_s);
    lascia("txtCodiceCli");
    scrivi("txtFiliale", u"MI"_s);
    scrivi("txtDataRif", u"10112026"_s);
    lascia("txtDataRif");
    for (const QString& riferimento : {u"100%"_s, u"A;B"_s, u"A -- B"_s, u"A/*B*/"_s, u"A\\"_s, u"d''Oro"_s,
                                       u"A\tB\x01"_s, QString(10'000, u'R')}) {
        qobject_cast<QLineEdit*>(c("txtRiferimento"))->setText(riferimento);
        EXPECT_EQ(istruzioni([&] { tasto("txtRiferimento", Qt::Key_F12); }).size(), 1)
            << riferimento.left(20).toStdString();
        EXPECT_THAT(mostrato("lblStato").toStdString(), testing::EndsWith("non trovato."));
    }
    qobject_cast<QLineEdit*>(c("txtRiferimento"))->setText(u"dell'Orto"_s);
    EXPECT_THAT(istruzioni([&] { tasto("txtRiferimento", Qt::Key_F12); }), IsEmpty()) << "it is not sent";
    EXPECT_EQ(mMessaggi.prendi().size(), 1U);
}

TEST_P(RegistrazioneGuasti, UnaRicercaFallitaSiDiceEIlClicCheLHaAvviataNonSalva)
{
    apri();
    scrivi("txtCodiceCli", u"1001"_s);
    lascia("txtCodiceCli");
    scrivi("txtFiliale", u"MI"_s);
    scrivi("txtLDV", u"4711"_s);
    scrivi("txtDataLdv", u"12112026"_s);
    fallisce(u"SELECT letve00f"_s);
    int salvataggi = 0;
    QObject::connect(qobject_cast<QPushButton*>(c("cmdSalva")), &QPushButton::clicked, c("cmdSalva"),
                     [&] { ++salvataggi; });
    clicca("cmdSalva");
    guarisce();
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(Messaggio{u"Operazione non riuscita: il database o un suo dato non risponde come "
                                      "dovrebbe.\n\nL'archivio ha rifiutato l'operazione."_s,
                                      Stile::critico, titoloApplicazione()}));
    EXPECT_EQ(c("lblStato")->toolTip(), u"guasto di prova"_s) << "the driver's words";
    EXPECT_EQ(salvataggi, 0);
}

class RegistrazioneSenzaFile : public RegistrazioneDiProva
{};

INSTANTIATE_TEST_SUITE_P(Basi, RegistrazioneSenzaFile, testing::Values("sqlite"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(RegistrazioneSenzaFile, UnFilePortatoViaSottoLaSchermataApertaSiDice)
{
    consegna(u"4711"_s);
    EXPECT_FALSE(mostrato("barLdv").isEmpty()) << "the screen has its connection";
    const QString file = fileSqlite(mBase.stringa());
    ASSERT_TRUE(QFile::rename(file, file + u".via"_s));
    clicca("cmdSalva");
    ASSERT_TRUE(QFile::rename(file + u".via"_s, file));
    EXPECT_TRUE(mostrato("lblStato").startsWith(u"Niente è stato salvato; riprovare con Salva. "_s))
        << mostrato("lblStato").toStdString();
    EXPECT_TRUE(c("lblStato")->toolTip().contains(u"Il file dell'archivio non c'è: "_s + file))
        << c("lblStato")->toolTip().toStdString();
    EXPECT_THAT(mMessaggi.prendi(), IsEmpty());
    EXPECT_EQ(mostrato("lblNrGia"), QString());
    clicca("cmdSalva");
    EXPECT_EQ(mostrato("lblNrGia"), u"42"_s);
    EXPECT_EQ(mMessaggi.prendi().size(), 1U);
}

TEST_P(RegistrazioneGuasti, CioCheUnaParteEsternaLanciaSiDice)
{
    class Rotta : public RicercaTabella
    {
    public:
        void setPercorsoDatabase(const QString&) override {}
        void setScelta(Scelta) override {}
        void mostra(const QString&, const QString&, QWidget*) override
        {
            throw std::runtime_error("parte rotta");
        }
    };
    registraParte(QString::fromUtf16(classeRicercaTabella), [] { return std::make_unique<Rotta>(); });
    apri();
    tasto("txtFilialeGia", Qt::Key_F12);
    registraParte(QString::fromUtf16(classeRicercaTabella), {});
    EXPECT_EQ(mMessaggi.prendi().size(), 1U);
    EXPECT_EQ(mostrato("lblStato"), u"parte rotta"_s);
}

TEST_P(RegistrazioneGuasti, UnaTabellaCheMancaSiDice)
{
    consegna(u"4711"_s);
    mBase.esegui(u"drop table codicizona;"_s);
    tasto("txtLDV", Qt::Key_F12);
    ASSERT_EQ(mMessaggi.messaggi().size(), 1U);
    EXPECT_EQ(mMessaggi.messaggi().front().stile, Stile::critico);
}

} // namespace
