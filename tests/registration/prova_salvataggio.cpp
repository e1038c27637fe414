#include "registration/salvataggio.h"

#include "data/traccia.h"
#include "support/bancadati.h"
#include "support/spedizioni.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;

namespace {

const QDate dodici(2026, 11, 12);

DatiGiacenza dati(const QString& ldv = QStringLiteral("4711"))
{
    return {.filiale = QStringLiteral("MI"),
            .numeroLdv = ldv,
            .dataLdv = QStringLiteral("12/11/2026"),
            .cliente = QStringLiteral("1001"),
            .filialeGiacenza = QStringLiteral("BO"),
            .giorniSosta = QStringLiteral("1"),
            .dataGiacenza = QStringLiteral("20/11/2026"),
            .motivo = QStringLiteral("L'insegna non c'è\nchiuso")};
}

const QString tutte = QStringLiteral(
    "select "
    "GIFILI,GINRLV,GIANLV,GICODI,GIFIGI,GINRGI,GIANGI,GIDTGI,GIGGSO,GINRAV,GIDTAV,GIDES1,GIDTBF,GIIMGI,"
    "FissoGiacenza,GINRFA,GIDTFA,GICOFA,GIVNRG,GIVDTG from giace00f where GINRLV='%1'");
const QString legame = QStringLiteral("select LERFGI,LEANGI,LEDTCO from letve00f where lenrlv='%1'");
const QString contatore = QStringLiteral("select UltimoNumGiacenza from ekelvorqzt_tabge00f");

class Salvataggio : public testing::TestWithParam<std::string>
{
protected:
    Salvataggio() { riempiDeposito(mBase); }

    QString inserisce(const DatiGiacenza& nuova)
    {
        return InserisciGiacenza(mSchermo, mBase.stringa(), nuova);
    }

    /// Neither row nor link, whatever the counter says.
    void nienteDiScritto() const
    {
        EXPECT_THAT(mBase.righe(tutte.arg(QStringLiteral("4711"))), ElementsAre());
        EXPECT_EQ(mBase.righe(legame.arg(QStringLiteral("4711"))),
                  (QList<QStringList>{
                      {QStringLiteral("NULL"), QStringLiteral("NULL"), QStringLiteral("2026-11-14")}}));
    }

    BancaDati mBase{GetParam()};
    Connessione mSchermo{mBase.connessione()};
};

INSTANTIATE_TEST_SUITE_P(Basi, Salvataggio, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(Salvataggio, ScriveLaRigaIlLegameEIlContatore)
{
    EXPECT_EQ(inserisce(dati()), QStringLiteral("42"));
    const QString nullo = QStringLiteral("NULL");
    EXPECT_EQ(mBase.righe(tutte.arg(QStringLiteral("4711"))),
              (QList<QStringList>{{QStringLiteral("MI"),
                                   QStringLiteral("4711"),
                                   QStringLiteral("2026"),
                                   QStringLiteral("1001"),
                                   QStringLiteral("BO"),
                                   QStringLiteral("42"),
                                   QStringLiteral("2026"),
                                   QStringLiteral("2026-11-20"),
                                   QStringLiteral("1"),
                                   nullo,
                                   nullo,
                                   QStringLiteral("20/11/2026 - L'insegna non c'è\r\nchiuso"),
                                   nullo,
                                   nullo,
                                   nullo,
                                   nullo,
                                   nullo,
                                   nullo,
                                   nullo,
                                   nullo}}));
    EXPECT_EQ(mBase.righe(legame.arg(QStringLiteral("4711"))),
              (QList<QStringList>{{QStringLiteral("42"), QStringLiteral("2026"), nullo}}));
    EXPECT_EQ(mBase.leggi(contatore), QStringLiteral("42"));
}

TEST_P(Salvataggio, ScriveLeColonneFacoltativeSoloSePiene)
{
    DatiGiacenza piena = dati();
    piena.dataAvviso = QStringLiteral("2026-11-21");
    piena.dataBuonFine = QStringLiteral("22/11/2026");
    piena.imponibile = QStringLiteral("10,005");
    piena.giacenzaPrecedente = QStringLiteral("39");
    piena.dataPrecedente = QStringLiteral("02/10/2026");
    inserisce(piena);
    EXPECT_EQ(
        mBase.righe(QStringLiteral("select GIDTAV,GIDTBF,GIIMGI,GIVNRG,GIVDTG from giace00f "
                                   "where GINRLV='4711'")),
        (QList<QStringList>{{QStringLiteral("2026-11-21"), QStringLiteral("2026-11-22"),
                             QStringLiteral("10.01"), QStringLiteral("39"), QStringLiteral("2026-10-02")}}));
}

TEST_P(Salvataggio, IlPrimoComandoDellaTransazioneEIlInserimento)
{
    QStringList eventi;
    const Traccia prima = impostaTraccia([&](EventoDati evento, const QString& testo) {
        static const char* const nomi[] = {"apertura", "istruzione", "inizio",
                                           "conferma", "annullo",    "chiusura"};
        eventi << QLatin1String(nomi[static_cast<int>(evento)]) + QLatin1Char(' ') + testo.left(28);
    });
    inserisce(dati());
    impostaTraccia(prima);
    eventi.removeIf([](const QString& e) {
        return e.startsWith(QLatin1String("apertura")) ||
               e.contains(QLatin1String("SET SESSION"), Qt::CaseInsensitive) ||
               e.contains(QLatin1String("pragma"), Qt::CaseInsensitive) || e.contains(QLatin1String("@@"));
    });
    EXPECT_THAT(eventi,
                ElementsAre(QStringLiteral("inizio "),
                            QStringLiteral("istruzione select * from giace00f"), // described, not executed
                            QStringLiteral("istruzione select UltimoNumGiacenza fro"),
                            QStringLiteral("istruzione update ekelvorqzt_tabge00f s"),
                            testing::ResultOf([](const QString& e) { return e.left(32).toLower(); },
                                              QStringLiteral("istruzione insert into giace00f ")),
                            QStringLiteral("istruzione update letve00f set LERFGI='"),
                            QStringLiteral("conferma "), QStringLiteral("chiusura ")));
}

TEST_P(Salvataggio, UnErroreInOgniPuntoNonLasciaNienteAMeta)
{
    // What fails in turn, and where the counter stands then: a number that was taken is not given back.
    const std::pair<QString, QString> punti[] = {
        {QStringLiteral("select * from giace00f"), QStringLiteral("41")},
        {QStringLiteral("select UltimoNumGiacenza"), QStringLiteral("41")},
        {QStringLiteral("update ekelvorqzt_tabge00f"), QStringLiteral("41")},
        {QStringLiteral("insert into"), QStringLiteral("42")},
        {QStringLiteral("update letve00f"), QStringLiteral("43")},
        {QStringLiteral("COMMIT"), QStringLiteral("44")},
    };
    for (const auto& [punto, contatoreDopo] : punti) {
        SCOPED_TRACE(punto.toStdString());
        const Traccia prima = impostaTraccia([&](EventoDati evento, const QString& testo) {
            const bool conferma = evento == EventoDati::conferma && punto == QLatin1String("COMMIT");
            if (conferma ||
                (evento == EventoDati::istruzione && testo.startsWith(punto, Qt::CaseInsensitive)))
                throw ErroreDatabase(QStringLiteral("HY000"), 1, QStringLiteral("guasto di prova"), testo);
        });
        EXPECT_THROW(inserisce(dati()), ErroreDatabase);
        impostaTraccia(prima);
        nienteDiScritto();
        EXPECT_EQ(mBase.leggi(contatore), contatoreDopo);
    }
    EXPECT_EQ(inserisce(dati()), QStringLiteral("45")) << "the series goes on behind the gap";
}

TEST_P(Salvataggio, UnCollegamentoCadutoFermaIlSalvataggioEIlSuccessivoRiesce)
{
    const Traccia prima = impostaTraccia([](EventoDati evento, const QString& testo) {
        if (evento == EventoDati::istruzione && testo.startsWith(QLatin1String("update letve00f")))
            throw ErroreDatabase(QStringLiteral("08S01"), 2006, QStringLiteral("collegamento caduto"), testo);
    });
    EXPECT_THROW(inserisce(dati()), ErroreDatabase);
    impostaTraccia(prima);
    nienteDiScritto();
    EXPECT_EQ(inserisce(dati()), QStringLiteral("43"));
}

TEST_P(Salvataggio, UnNumeroGiaPresoDaUnAltraPostazioneNonEntraDueVolte)
{
    inserisce(dati());
    mBase.esegui(QStringLiteral("update ekelvorqzt_tabge00f set UltimoNumGiacenza=41;"));
    EXPECT_THROW(inserisce(dati(QStringLiteral("4712"))), ErroreDatabase);
    EXPECT_THAT(mBase.righe(tutte.arg(QStringLiteral("4712"))), ElementsAre());
    EXPECT_EQ(mBase.leggi(QStringLiteral("select LERFGI from letve00f where lenrlv='4712'")), std::nullopt);
}

TEST_P(Salvataggio, LaStessaSpedizioneNonEntraDueVolte)
{
    inserisce(dati());
    EXPECT_THROW(inserisce(dati()), ErroreDatabase);
    EXPECT_EQ(mBase.righe(tutte.arg(QStringLiteral("4711"))).size(), 1);
    EXPECT_EQ(mBase.leggi(QStringLiteral("select LERFGI from letve00f where lenrlv='4711'")),
              QStringLiteral("42"));
}

TEST_P(Salvataggio, UnValoreCheNonSiScriveNonCostaUnNumero)
{
    DatiGiacenza senzaData = dati();
    senzaData.dataGiacenza = QStringLiteral("31/02/2026");
    EXPECT_THROW(inserisce(senzaData), ErroreConversione);
    DatiGiacenza importoErrato = dati();
    importoErrato.imponibile = QStringLiteral("dieci");
    EXPECT_THROW(inserisce(importoErrato), ErroreConversione);
    nienteDiScritto();
    EXPECT_EQ(mBase.leggi(contatore), QStringLiteral("41"));
}

TEST_P(Salvataggio, ContatoreAssenteNulloONonNumericoFermaIlSalvataggio)
{
    mBase.esegui(QStringLiteral("update ekelvorqzt_tabge00f set UltimoNumGiacenza=null;"));
    EXPECT_THROW(inserisce(dati()), ErroreDatabase);
    mBase.esegui(QStringLiteral("delete from ekelvorqzt_tabge00f;"));
    EXPECT_THROW(inserisce(dati()), ErroreDatabase);
    nienteDiScritto();
}

TEST_P(Salvataggio, UnaLdvConUnApiceSemplicePassaNellaRigaMaNonNelLegame)
{
    mBase.esegui(QStringLiteral("insert into letve00f (lefili,lenrlv,leanlv,ledtlv,lecodi) values "
                                "('MI','47''16',2026,'2026-11-12',1001);"));
    EXPECT_THROW(inserisce(dati(QStringLiteral("47'16"))), ErroreDatabase);
    EXPECT_EQ(mBase.leggi(QStringLiteral("select count(*) from giace00f")), QStringLiteral("1"));
}

TEST_P(Salvataggio, AmmetteSoloCioCheSiPuoMettereInGiacenza)
{
    const auto esito = [this](const char* numero) {
        return ControlloInserimento(mSchermo, QLatin1String(numero), dodici);
    };
    EXPECT_EQ(esito("4711"), Ammissione::ammessa);
    EXPECT_EQ(esito("4714"), Ammissione::giaInGiacenza);
    EXPECT_EQ(esito("4713"), Ammissione::riconsegna);
    EXPECT_EQ(esito("9999"), Ammissione::sconosciuta);
    EXPECT_EQ(ControlloInserimento(mSchermo, QStringLiteral("4711"), dodici.addDays(1)),
              Ammissione::sconosciuta);

    mBase.esegui(QStringLiteral("update letve00f set LERFGI='7' where lenrlv='4711';"));
    EXPECT_EQ(esito("4711"), Ammissione::ammessa) << "one of the two numbers is not enough";
    mBase.esegui(QStringLiteral("update letve00f set LERFGI='7/A', LEANGI=2026 where lenrlv='4711';"));
    EXPECT_EQ(esito("4711"), Ammissione::ammessa) << "a text that is no number does not hold it";
    mBase.esegui(QStringLiteral("update letve00f set lerico='R', LERFGI='7' where lenrlv='4711';"));
    EXPECT_EQ(esito("4711"), Ammissione::riconsegna) << "the re-delivery is told before the link";
}

} // namespace
