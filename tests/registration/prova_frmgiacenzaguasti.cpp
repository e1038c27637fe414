#include "registration/registrazionediprova.h"

#include "component/impostazioni.h"
#include "data/traccia.h"
#include "support/stampa.h"

#include <giacenza/RicercaTabella.h>

#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

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
    const Messaggio impossibile = {QStringLiteral("Impossibile aggiungere la nuova giacenza."),
                                   Stile::critico, titoloApplicazione()};
    consegna(QStringLiteral("4711"));
    for (const char16_t* punto : {u"select UltimoNumGiacenza", u"update ekelvorqzt",
                                  u"select * from giace00f", u"insert into giace00f", u"update letve00f"}) {
        fallisce(QString::fromUtf16(punto), QStringLiteral("08S01"));
        clicca("cmdSalva");
        guarisce();
        EXPECT_THAT(mMessaggi.prendi(), ElementsAre(impossibile));
        EXPECT_EQ(mostrato("lblNrGia"), QString()) << "the label shows what it showed before";
        EXPECT_EQ(mBase.leggi(QStringLiteral("select count(*) from giace00f where GINRLV='4711'")),
                  QStringLiteral("0"));
        EXPECT_EQ(mBase.leggi(QStringLiteral("select LEDTCO from letve00f where lenrlv='4711'")),
                  QStringLiteral("2026-11-14"));
    }
    EXPECT_THAT(mStampe, IsEmpty());
    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(QStringLiteral("Giacenza aggiunta in database.")))
        << "and then it works";
}

TEST_P(RegistrazioneGuasti, UnGuastoFuoriDallInserimentoFinisceSenzaMessaggio)
{
    consegna(QStringLiteral("4711"));
    fallisce(QStringLiteral("select Lerico"));
    clicca("cmdSalva");
    guarisce();
    EXPECT_EQ(mostrato("lblStato"), QStringLiteral("guasto di prova"));

    fallisce(QStringLiteral("select GINRAV"));
    clicca("cmdSalva");
    guarisce();
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(QStringLiteral("Giacenza aggiunta in database.")));
    EXPECT_EQ(mBase.leggi(QStringLiteral("select GINRAV from giace00f where GINRLV='4711'")), std::nullopt);
    EXPECT_THAT(mStampe, IsEmpty());
}

TEST_P(RegistrazioneGuasti, LEtichettaDellAvvisoCambiaSoloDopoLIstruzione)
{
    consegna(QStringLiteral("4714"));
    mBase.esegui(QStringLiteral("update giace00f set GIDTAV='2026-11-20' where GINRGI='40';"));
    fallisce(QStringLiteral("UPDATE giace00f SET GINRAV"));
    clicca("cmdAvvisoGia");
    guarisce();
    EXPECT_EQ(mMessaggi.prendi().size(), 1U);
    EXPECT_EQ(mostrato("lblDataAvviso"), QStringLiteral("15/11/2026"));
    EXPECT_THAT(mStampe, IsEmpty());
}

TEST_P(RegistrazioneGuasti, UnContoCheNonEUnNumeroFermaLAvviso)
{
    consegna(QStringLiteral("4714"));
    for (const char16_t* conto : {u"due", u"32767"}) {
        mBase.esegui(QStringLiteral("update giace00f set GIDTAV='2026-11-20', GINRAV='%1' where GINRGI='40';")
                         .arg(QString::fromUtf16(conto)));
        clicca("cmdAvvisoGia");
        EXPECT_EQ(mMessaggi.prendi().size(), 1U);
        EXPECT_EQ(mBase.leggi(QStringLiteral("select GINRAV from giace00f where GINRGI='40'")),
                  QString::fromUtf16(conto));
    }
    EXPECT_THAT(mStampe, IsEmpty());
}

TEST_P(RegistrazioneGuasti, UnaStampaCheNonRiesceSiDiceELaGiacenzaResta)
{
    const auto salva = [this](const char16_t* ldv) {
        consegna(QString::fromUtf16(ldv));
        clicca("cmdSalva");
        const auto messaggi = mMessaggi.prendi();
        EXPECT_EQ(messaggi.size(), 2U);
        EXPECT_EQ(
            mBase.leggi(
                QStringLiteral("select GINRAV from giace00f where GINRLV='%1'").arg(QString::fromUtf16(ldv))),
            QStringLiteral("1"));
        return messaggi.back().testo.toStdString();
    };
    const std::string inizio = "L'avviso di giacenza non è stato stampato; la giacenza resta registrata.\n\n";
    mGuastoStampa = QStringLiteral("Il disco è pieno.");
    EXPECT_EQ(salva(u"4711"), inizio + "Il disco è pieno.");
    mGuastoStampa.clear();
    mStampaNonProdotta = true;
    EXPECT_EQ(salva(u"4712"), inizio + "Il modulo di stampa non ha prodotto il documento.");
    impostazioni().percorsoFileIni = QStringLiteral("/non/ce.ini");
    mBase.esegui(QStringLiteral("insert into letve00f (lefili,lenrlv,leanlv,ledtlv,lecodi,lerife) values "
                                "('MI','4716',2026,'2026-11-12',1001,'X');"));
    EXPECT_THAT(salva(u"4716"), StartsWith(inizio + "Manca la voce IdentificativoDll"));
}

TEST_P(RegistrazioneGuasti, SenzaDatabaseLaSchermataNonSiApre)
{
    impostazioni().percorsoDatabase = QStringLiteral("DRIVER={Non esiste};SERVER=127.0.0.1");
    frmGiacenza schermata;
    EXPECT_THROW(schermata.carica(), ErroreDatabase);
    EXPECT_FALSE(schermata.isVisible());
}

TEST_P(RegistrazioneGuasti, TestiCheRomperebberoUnIstruzione)
{
    apri();
    scrivi("txtCodiceCli", QStringLiteral("1001"));
    scrivi("txtFiliale", QStringLiteral("MI"));
    scrivi("txtDataLdv", QStringLiteral("12112026"));
    lascia("txtDataLdv");
    const QString lungo(10'000, QLatin1Char('9'));
    for (const QString& numero :
         {QStringLiteral("%"), QStringLiteral("47\t11"), QStringLiteral("47\x01\x7f"),
          QStringLiteral("47;11"), QStringLiteral("4711 -- "), QStringLiteral("4711/*"),
          QStringLiteral("47\\11"), QStringLiteral("O''Neil"), QString::fromUtf8("47🚚11"), lungo}) {
        qobject_cast<QLineEdit*>(c("txtLDV"))->setText(numero);
        EXPECT_EQ(istruzioni([&] { tasto("txtLDV", Qt::Key_F12); }).size(), 1)
            << numero.left(20).toStdString();
        EXPECT_THAT(mMessaggi.prendi(), IsEmpty());
        EXPECT_THAT(mostrato("lblStato").toStdString(), testing::EndsWith("non trovata."));
    }
    for (const QString& rotto : {QStringLiteral("4711' or '1'='1"), QString(QChar(u'\0'))}) {
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
    scrivi("txtCodiceCli", QStringLiteral("1001"));
    lascia("txtCodiceCli");
    scrivi("txtFiliale", QStringLiteral("MI"));
    scrivi("txtDataRif", QStringLiteral("10112026"));
    lascia("txtDataRif");
    for (const QString& riferimento :
         {QStringLiteral("100%"), QStringLiteral("A;B"), QStringLiteral("A -- B"), QStringLiteral("A/*B*/"),
          QStringLiteral("A\\"), QStringLiteral("d''Oro"), QStringLiteral("A\tB\x01"),
          QString(10'000, QLatin1Char('R'))}) {
        qobject_cast<QLineEdit*>(c("txtRiferimento"))->setText(riferimento);
        EXPECT_EQ(istruzioni([&] { tasto("txtRiferimento", Qt::Key_F12); }).size(), 1)
            << riferimento.left(20).toStdString();
        EXPECT_THAT(mostrato("lblStato").toStdString(), testing::EndsWith("non trovato."));
    }
    qobject_cast<QLineEdit*>(c("txtRiferimento"))->setText(QStringLiteral("dell'Orto"));
    EXPECT_THAT(istruzioni([&] { tasto("txtRiferimento", Qt::Key_F12); }), IsEmpty()) << "it is not sent";
    EXPECT_EQ(mMessaggi.prendi().size(), 1U);
}

TEST_P(RegistrazioneGuasti, UnaRicercaFallitaSiDiceEIlClicCheLHaAvviataNonSalva)
{
    apri();
    scrivi("txtCodiceCli", QStringLiteral("1001"));
    lascia("txtCodiceCli");
    scrivi("txtFiliale", QStringLiteral("MI"));
    scrivi("txtLDV", QStringLiteral("4711"));
    scrivi("txtDataLdv", QStringLiteral("12112026"));
    fallisce(QStringLiteral("SELECT letve00f"));
    int salvataggi = 0;
    QObject::connect(qobject_cast<QPushButton*>(c("cmdSalva")), &QPushButton::clicked, c("cmdSalva"),
                     [&] { ++salvataggi; });
    clicca("cmdSalva");
    guarisce();
    EXPECT_EQ(mMessaggi.prendi().size(), 1U);
    EXPECT_EQ(salvataggi, 0);
}

TEST_P(RegistrazioneGuasti, LaSchermataPuoSparireSottoOgniSuoMessaggio)
{
    mMessaggi.mentreAperto([this](QWidget*, const Messaggio&) { delete mSchermata; });
    // A customer refused during a hand-over.
    consegna(QStringLiteral("4711"), QStringLiteral("12/11/2026"), QStringLiteral("MI"),
             QStringLiteral("77"));
    EXPECT_TRUE(mSchermata.isNull());
    // A refusal of a field that is left.
    apri();
    scrivi("txtCodiceCli", QStringLiteral("abc"));
    QTest::keyClick(c("txtCodiceCli"), Qt::Key_Tab);
    QCoreApplication::processEvents();
    EXPECT_TRUE(mSchermata.isNull());
    // A lookup that fails when its date is left.
    apri();
    mMessaggi.prendi();
    scrivi("txtCodiceCli", QStringLiteral("1001"));
    lascia("txtCodiceCli");
    scrivi("txtFiliale", QStringLiteral("MI"));
    scrivi("txtLDV", QStringLiteral("4711"));
    scrivi("txtDataLdv", QStringLiteral("12112026"));
    fallisce(QStringLiteral("SELECT letve00f"));
    QTest::keyClick(c("txtDataLdv"), Qt::Key_Tab);
    QCoreApplication::processEvents();
    guarisce();
    EXPECT_TRUE(mSchermata.isNull());
    EXPECT_EQ(mMessaggi.prendi().size(), 1U);
    // A goods type that cannot be kept.
    apri();
    tasto("cmbNaturaMerce", Qt::Key_F11);
    EXPECT_TRUE(mSchermata.isNull());
    EXPECT_EQ(mMessaggi.prendi().size(), 1U);
    // The notice that would have followed a save is abandoned, the held shipment stays.
    consegna(QStringLiteral("4711"));
    QTest::keyClick(c("cmdSalva"), Qt::Key_Space);
    EXPECT_TRUE(mSchermata.isNull());
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(QStringLiteral("Giacenza aggiunta in database.")));
    EXPECT_THAT(mStampe, IsEmpty());
    EXPECT_EQ(mBase.righe(QStringLiteral("select GINRGI,GINRAV from giace00f where GINRLV='4711'")),
              (QList<QStringList>{{QStringLiteral("42"), QStringLiteral("NULL")}}));
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
    EXPECT_EQ(mostrato("lblStato"), QStringLiteral("parte rotta"));
}

TEST_P(RegistrazioneGuasti, UnaTabellaCheMancaSiDice)
{
    consegna(QStringLiteral("4711"));
    mBase.esegui(QStringLiteral("drop table codicizona;"));
    tasto("txtLDV", Qt::Key_F12);
    ASSERT_EQ(mMessaggi.messaggi().size(), 1U);
    EXPECT_EQ(mMessaggi.messaggi().front().stile, Stile::critico);
}

/// The server itself ends the connections of the workstation.
class RegistrazioneInterrotta : public RegistrazioneGuasti
{
protected:
    void interrompi()
    {
        static const QRegularExpression utente(QStringLiteral("UID=([^;]+)"));
        const auto aperte =
            mBase.righe(QStringLiteral("select id from information_schema.processlist where user='%1'")
                            .arg(utente.match(mBase.stringa()).captured(1)));
        EXPECT_THAT(aperte, testing::Not(IsEmpty()));
        for (const QStringList& collegamento : aperte)
            mBase.esegui(QStringLiteral("kill %1;").arg(collegamento.first()));
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, RegistrazioneInterrotta, testing::Values("mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(RegistrazioneInterrotta, AMetaDiUnSalvataggioNonLasciaNienteEPoiSiSalva)
{
    consegna(QStringLiteral("4711"));
    bool interrotta = false;
    impostaTraccia([&](EventoDati evento, const QString& istruzione) {
        if (evento != EventoDati::istruzione || interrotta ||
            !istruzione.startsWith(QLatin1String("update letve00f")))
            return;
        interrotta = true;
        interrompi();
    });
    clicca("cmdSalva");
    guarisce();
    EXPECT_TRUE(interrotta);
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(QStringLiteral("Impossibile aggiungere la nuova giacenza.")));
    mMessaggi.prendi();
    EXPECT_EQ(mBase.leggi(QStringLiteral("select count(*) from giace00f where GINRLV='4711'")),
              QStringLiteral("0"));
    EXPECT_EQ(mBase.righe(QStringLiteral("select LERFGI,LEDTCO from letve00f where lenrlv='4711'")),
              (QList<QStringList>{{QStringLiteral("NULL"), QStringLiteral("2026-11-14")}}));
    EXPECT_EQ(mBase.leggi(QStringLiteral("select UltimoNumGiacenza from ekelvorqzt_tabge00f")),
              QStringLiteral("42"))
        << "the number that was taken is a gap";
    EXPECT_THAT(mStampe, IsEmpty());

    // The screen's own connection was ended too: its first statement finds that out, the next opens it again.
    clicca("cmdSalva");
    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(QStringLiteral("Giacenza aggiunta in database.")));
    EXPECT_EQ(mostrato("lblNrGia"), QStringLiteral("43"));
}

} // namespace
