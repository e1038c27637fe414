#include "base/impostazioni.h"
#include "base/orologio.h"
#include "dialogs/frmPorto.h"
#include "dialogs/frmRifiuto.h"
#include "e2e/tabelle.h"
#include "emissione/emittente.h"
#include "management/frmGestGia.h"
#include "redelivery/frmRiconsegna.h"
#include "registration/frmGiacenza.h"
#include "screens/schermatadiprova.h"
#include "support/modale.h"
#include "support/stampa.h"
#include "support/trova.h"

#include <QCoreApplication>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

/// One shipment from the day it is held to the day its case is closed, on all three screens.
class Vita : public SchermataDiProva
{
protected:
    Vita()
    {
        mBase.esegui(u"insert into tabfatturazione (FALCOD,FACODI,FACMPE,FADFGI,FAFRGI,FATGIG,FAMIGI) "
                     "values ('C',1001,'A',7.50,5,1.50,15.00);"_s);
        registraParte(QString::fromUtf16(classeEmittenteLdv),
                      [] { return std::make_unique<emissione::EmittenteDeposito>(); });
        mLettere = leggi(u"letve00f"_s, {u"lefili"_s, u"lenrlv"_s, u"leanlv"_s});
        mGiacenze = leggi(u"giace00f"_s, {u"ginrgi"_s, u"giangi"_s});
    }
    ~Vita() override { registraParte(QString::fromUtf16(classeEmittenteLdv), {}); }

    std::unique_ptr<Schermata> crea() const override
    {
        if (mQuale == u"frmGiacenza"_s)
            return std::make_unique<frmGiacenza>();
        if (mQuale == u"frmGestGia"_s)
            return std::make_unique<frmGestGia>();
        return std::make_unique<frmRiconsegna>();
    }

    void apri(const QString& quale, QDate giorno)
    {
        if (mSchermata)
            mSchermata->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        impostaOggi(giorno);
        mQuale = quale;
        SchermataDiProva::apri();
    }

    /// Number and date of the waybill that is held, for the screens that find it so.
    void cercaLdv()
    {
        scrivi("txtCodiceCli", u"1001"_s);
        lascia("txtCodiceCli");
        scrivi("txtFiliale", u"MI"_s);
        scrivi("txtLDV", u"4711"_s);
        scrivi("txtDataLdv", u"12112026"_s);
        lascia("txtDataLdv");
    }
    void richiamaGiacenza()
    {
        scrivi("txtNGiace", u"42"_s);
        tasto("txtNGiace", Qt::Key_Return);
        scrivi("txtDataGiace", u"21112026"_s);
        tasto("txtDataGiace", Qt::Key_Return);
        ASSERT_EQ(mostrato("lblNrGia"), u"42"_s);
    }
    void emetti()
    {
        const QuandoAperta<frmPorto> intanto([](frmPorto& porto) {
            trova<QRadioButton>(porto, u"optStampaLDVNo"_s)->click();
            trova<QPushButton>(porto, u"cmdEsci"_s)->click();
        });
        clicca("cmdRiconsegna");
    }

    Tabella leggi(const QString& nome, const QStringList& chiave) const
    {
        Connessione connessione = mBase.amministratore();
        return leggiTabella(connessione, nome, chiave);
    }

    /// Every column of every row is what it was, but for what the test has written into the two tables.
    void verifica(const char* quando)
    {
        confronta(leggi(u"letve00f"_s, {u"lefili"_s, u"lenrlv"_s, u"leanlv"_s}), mLettere, quando);
        confronta(leggi(u"giace00f"_s, {u"ginrgi"_s, u"giangi"_s}), mGiacenze, quando);
    }

    /// The days of one case, each on its screen; each writes into the two tables what it should have done.
    void registra();
    void rifiuta();
    void riconsegna(const Riga& originale);
    void rende();
    void chiude();
    void nonSiRiconsegnaPiu();

    QString mQuale;
    Tabella mLettere;
    Tabella mGiacenze;
};

INSTANTIATE_TEST_SUITE_P(Basi, Vita, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

void Vita::registra()
{
    Riga& ldv = mLettere.at(u"MI/4711/2026"_s);
    apri(u"frmGiacenza"_s, QDate(2026, 11, 21));
    cercaLdv();
    scrivi("txtFilialeGia", u"BO"_s);
    scrivi("txtDescGia", u"Assente"_s);
    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(Messaggio{u"Giacenza aggiunta in database."_s,
                                                          Stile::informazione, titoloApplicazione()}));
    ldv[u"lerfgi"_s] = u"42"_s;
    ldv[u"leangi"_s] = u"2026"_s;
    ldv[u"ledtco"_s] = u"NULL"_s;
    Riga& giacenza = mGiacenze[u"42/2026"_s];
    for (const auto& [colonna, valore] : mGiacenze.at(u"40/2026"_s))
        giacenza[colonna] = u"NULL"_s;
    giacenza[u"gifili"_s] = u"MI"_s;
    giacenza[u"ginrlv"_s] = u"4711"_s;
    giacenza[u"gianlv"_s] = u"2026"_s;
    giacenza[u"gicodi"_s] = u"1001"_s;
    giacenza[u"gifigi"_s] = u"BO"_s;
    giacenza[u"ginrgi"_s] = u"42"_s;
    giacenza[u"giangi"_s] = u"2026"_s;
    giacenza[u"gidtgi"_s] = u"2026-11-21"_s;
    giacenza[u"giggso"_s] = u"0"_s;
    giacenza[u"gides1"_s] = u"21/11/2026 - Assente"_s;
    giacenza[u"ginrav"_s] = u"1"_s;
    giacenza[u"gidtav"_s] = u"2026-11-21"_s;
    verifica("registrata e avvisata");
    EXPECT_EQ(mBase.leggi(u"select UltimoNumGiacenza from ekelvorqzt_tabge00f"_s), u"42"_s);
    EXPECT_EQ(mStampe.last(), u"documento 42_2026"_s);
}

void Vita::rifiuta()
{
    apri(u"frmGestGia"_s, QDate(2026, 11, 25));
    richiamaGiacenza();
    {
        const QuandoAperta<frmRifiuto> intanto([](frmRifiuto& rifiuto) {
            auto* motivo = trova<QLineEdit>(rifiuto, u"txtMotivazione"_s);
            motivo->setFocus();
            QTest::keyClicks(motivo, u"Imballo bagnato"_s);
            trova<QPushButton>(rifiuto, u"cmdOk"_s)->click();
        });
        clicca("cmdAvvisoGia");
    }
    Riga& giacenza = mGiacenze.at(u"42/2026"_s);
    giacenza[u"ginrav"_s] = u"2"_s;
    giacenza[u"gidtav"_s] = u"2026-11-25"_s;
    giacenza[u"gides1"_s] = u"21/11/2026 - Assente\r\n25/11/2026 - Imballo bagnato"_s;
    verifica("rifiutata e avvisata di nuovo");
    EXPECT_EQ(mStampe.filter(u"documento"_s), QStringList({u"documento 42_2026"_s, u"documento 42_2026"_s}));
}

void Vita::riconsegna(const Riga& originale)
{
    impostazioni().movimento = Movimento::riconsegna;
    apri(u"frmRiconsegna"_s, QDate(2026, 11, 26));
    cercaLdv();
    emetti();
    Riga& nuova = mLettere[u"MI/4716/2026"_s];
    nuova = originale;
    nuova[u"lenrlv"_s] = u"4716"_s;
    nuova[u"ledtlv"_s] = u"2026-11-26"_s;
    nuova[u"lerico"_s] = u"R"_s;
    nuova[u"leport"_s] = u"1"_s;
    nuova[u"lenote"_s] =
        u"Riconsegna a Destinatario, giacenza 42/2026, LDV originale 4711\r\nSolo al mattino"_s;
    nuova[u"lerfgi"_s] = u"42"_s;
    nuova[u"leangi"_s] = u"2026"_s;
    nuova[u"ledtco"_s] = u"NULL"_s;
    verifica("riconsegnata");
}

void Vita::rende()
{
    impostazioni().movimento = Movimento::reso;
    apri(u"frmRiconsegna"_s, QDate(2026, 11, 27));
    cercaLdv();
    mMessaggi.rispondi(Risposta::si);
    emetti();
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(Messaggio{u"Sono presenti n.1 riconsegne emettere una nuova riconsegna?"_s,
                                      Stile::domandaInformazione, titoloApplicazione()}));
    Riga& nuova = mLettere[u"MI/4717/2026"_s];
    nuova = mLettere.at(u"MI/4716/2026"_s);
    nuova[u"lenrlv"_s] = u"4717"_s;
    nuova[u"ledtlv"_s] = u"2026-11-27"_s;
    nuova[u"ledest"_s] = u"Ferramenta Lombarda S.r.l."_s;
    nuova[u"leindd"_s] = u"Via Po 1"_s;
    nuova[u"lecapd"_s] = u"20900"_s;
    nuova[u"lelocd"_s] = u"Monza"_s;
    nuova[u"leprod"_s] = u"MB"_s;
    nuova[u"leport"_s] = u"3"_s;
    nuova[u"lecnss"_s] = u"0"_s;
    nuova[u"leanpc"_s] = u"0"_s;
    nuova[u"lenote"_s] = u"Reso a Mittente, giacenza 42/2026, LDV originale 4711\r\nSolo al mattino"_s;
    verifica("resa");
}

void Vita::chiude()
{
    apri(u"frmGestGia"_s, QDate(2026, 11, 30));
    richiamaGiacenza();
    clicca("cmdBuonFine");
    Riga& giacenza = mGiacenze.at(u"42/2026"_s);
    giacenza[u"gidtbf"_s] = u"2026-11-30"_s;
    giacenza[u"giggso"_s] = u"9"_s;
    giacenza[u"fissogiacenza"_s] = u"7.5"_s;
    giacenza[u"giimgi"_s] = u"15"_s; // four days at 1.50 make 6.00, the minimum is 15.00
    verifica("chiusa");
    EXPECT_EQ(mStampe.filter(u"tipo"_s).last(), u"tipo 6"_s);
}

void Vita::nonSiRiconsegnaPiu()
{
    apri(u"frmRiconsegna"_s, QDate(2026, 12, 1));
    cercaLdv();
    emetti();
    EXPECT_THAT(
        mMessaggi.prendi(),
        ElementsAre(Messaggio{u"la Giacenza è stata chiusa con avviso di buon fine in data: 30/11/2026."_s,
                              Stile::avviso, titoloApplicazione()}));
    verifica("una giacenza chiusa non si riconsegna");
}

TEST_P(Vita, DallaRegistrazioneAllaChiusura)
{
    const Riga originale = mLettere.at(u"MI/4711/2026"_s);
    registra();
    rifiuta();
    riconsegna(originale);
    rende();
    chiude();
    nonSiRiconsegnaPiu();
}

TEST_P(Vita, UnaRiconsegnaNonSiMetteInGiacenza)
{
    apri(u"frmGiacenza"_s, QDate(2026, 11, 21));
    cercaLdv();
    clicca("cmdSalva");
    mMessaggi.prendi();
    apri(u"frmRiconsegna"_s, QDate(2026, 11, 21));
    cercaLdv();
    emetti();
    apri(u"frmGiacenza"_s, QDate(2026, 11, 22));
    scrivi("txtCodiceCli", u"1001"_s);
    lascia("txtCodiceCli");
    scrivi("txtFiliale", u"MI"_s);
    scrivi("txtLDV", u"4716"_s);
    scrivi("txtDataLdv", u"21112026"_s);
    lascia("txtDataLdv");
    EXPECT_EQ(mostrato("txtRiconsegna"), u"R"_s);
    clicca("cmdSalva");
    EXPECT_THAT(
        mMessaggi.testi(),
        ElementsAre(u"La spedizione selezionata è una riconsegna relativa ad una giacenza già esistente."_s));
}

} // namespace
