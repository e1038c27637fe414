#include "data/salvataggio.h"

#include "data/archivio.h"
#include "support/bancadati.h"
#include "support/spedizioni.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;

namespace {

const QDate dodici(2026, 11, 12);

DatiGiacenza dati(const QString& ldv = u"4711"_s)
{
    return {.filiale = u"MI"_s,
            .numeroLdv = ldv,
            .dataLdv = dodici,
            .cliente = u"1001"_s,
            .filialeGiacenza = u"BO"_s,
            .giorniSosta = u"1"_s,
            .dataGiacenza = QDate(2026, 11, 20),
            .motivo = u"L'insegna non c'è\nchiuso"_s};
}

const QString tutte =
    u"select "
    "GIFILI,GINRLV,GIANLV,GICODI,GIFIGI,GINRGI,GIANGI,GIDTGI,GIGGSO,GINRAV,GIDTAV,GIDES1,GIDTBF,GIIMGI,"
    "FissoGiacenza,GINRFA,GIDTFA,GICOFA,GIVNRG,GIVDTG from giace00f where GINRLV='%1'"_s;
const QString legame = u"select LERFGI,LEANGI,LEDTCO from letve00f where lenrlv='%1'"_s;
const QString contatore = u"select UltimoNumGiacenza from ekelvorqzt_tabge00f"_s;

class Salvataggio : public testing::TestWithParam<std::string>
{
protected:
    Salvataggio() { riempiDeposito(mBase); }

    QString inserisce(const DatiGiacenza& nuova)
    {
        return InserisciGiacenza(mSchermo, mBase.accesso(), nuova);
    }

    /// Neither row nor link, whatever the counter says.
    void nienteDiScritto() const
    {
        EXPECT_THAT(mBase.righe(tutte.arg(u"4711"_s)), ElementsAre());
        EXPECT_EQ(mBase.righe(legame.arg(u"4711"_s)),
                  (QList<QStringList>{{u"NULL"_s, u"NULL"_s, u"2026-11-14"_s}}));
    }

    BancaDati mBase{GetParam()};
    Connessione mSchermo{mBase.connessione()};
};

INSTANTIATE_TEST_SUITE_P(Basi, Salvataggio, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(Salvataggio, ScriveLaRigaIlLegameEIlContatore)
{
    EXPECT_EQ(inserisce(dati()), u"42"_s);
    const QString nullo = u"NULL"_s;
    EXPECT_EQ(
        mBase.righe(tutte.arg(u"4711"_s)),
        (QList<QStringList>{{u"MI"_s, u"4711"_s, u"2026"_s, u"1001"_s,
                             u"BO"_s, u"42"_s,   u"2026"_s, u"2026-11-20"_s,
                             u"1"_s,  nullo,     nullo,     u"20/11/2026 - L'insegna non c'è\r\nchiuso"_s,
                             nullo,   nullo,     nullo,     nullo,
                             nullo,   nullo,     nullo,     nullo}}));
    EXPECT_EQ(mBase.righe(legame.arg(u"4711"_s)), (QList<QStringList>{{u"42"_s, u"2026"_s, nullo}}));
    EXPECT_EQ(mBase.leggi(contatore), u"42"_s);
}

TEST_P(Salvataggio, ScriveLeColonneFacoltativeSoloSePiene)
{
    DatiGiacenza piena = dati();
    piena.dataAvviso = QDate(2026, 11, 21);
    piena.dataBuonFine = QDate(2026, 11, 22);
    piena.imponibile = Decimale(u"10,005"_s);
    piena.giacenzaPrecedente = u"39"_s;
    piena.dataPrecedente = QDate(2026, 10, 2);
    inserisce(piena);
    EXPECT_EQ(mBase.righe(u"select GIDTAV,GIDTBF,GIIMGI,GIVNRG,GIVDTG from giace00f "
                          "where GINRLV='4711'"_s),
              (QList<QStringList>{{u"2026-11-21"_s, u"2026-11-22"_s, u"10.01"_s, u"39"_s, u"2026-10-02"_s}}));
}

TEST_P(Salvataggio, IlPrimoComandoDellaTransazioneEIlInserimento)
{
    QStringList eventi;
    const Traccia prima = impostaTraccia([&](EventoDati evento, const QString& testo) {
        static const char* const nomi[] = {"apertura", "istruzione", "inizio",
                                           "conferma", "annullo",    "chiusura"};
        eventi << QLatin1String(nomi[static_cast<int>(evento)]) + u' ' + testo.left(28);
    });
    inserisce(dati());
    impostaTraccia(prima);
    eventi.removeIf([](const QString& e) {
        return e.startsWith("apertura"_L1) || e.contains("SET SESSION"_L1, Qt::CaseInsensitive) ||
               e.contains("pragma"_L1, Qt::CaseInsensitive) || e.contains("@@"_L1);
    });
    EXPECT_THAT(eventi,
                ElementsAre(u"inizio "_s,
                            u"istruzione select * from giace00f"_s, // described, not executed
                            u"istruzione select UltimoNumGiacenza fro"_s,
                            u"istruzione update ekelvorqzt_tabge00f s"_s,
                            testing::ResultOf([](const QString& e) { return e.left(32).toLower(); },
                                              u"istruzione insert into giace00f "_s),
                            u"istruzione update letve00f set LERFGI='"_s, u"conferma "_s, u"chiusura "_s));
}

TEST_P(Salvataggio, UnErroreInOgniPuntoNonLasciaNienteAMeta)
{
    // What fails in turn, and where the counter stands then: a number that was taken is not given back.
    const std::pair<QString, QString> punti[] = {
        {u"select * from giace00f"_s, u"41"_s},
        {u"select UltimoNumGiacenza"_s, u"41"_s},
        {u"update ekelvorqzt_tabge00f"_s, u"41"_s},
        {u"insert into"_s, u"42"_s},
        {u"update letve00f"_s, u"43"_s},
        {u"COMMIT"_s, u"44"_s},
    };
    for (const auto& [punto, contatoreDopo] : punti) {
        SCOPED_TRACE(punto.toStdString());
        const Traccia prima = impostaTraccia([&](EventoDati evento, const QString& testo) {
            const bool conferma = evento == EventoDati::conferma && punto == "COMMIT"_L1;
            if (conferma ||
                (evento == EventoDati::istruzione && testo.startsWith(punto, Qt::CaseInsensitive)))
                throw ErroreDatabase(u"HY000"_s, 1, u"guasto di prova"_s, testo);
        });
        EXPECT_THROW(inserisce(dati()), ErroreDatabase);
        impostaTraccia(prima);
        nienteDiScritto();
        EXPECT_EQ(mBase.leggi(contatore), contatoreDopo);
    }
    EXPECT_EQ(inserisce(dati()), u"45"_s) << "the series goes on behind the gap";
}

TEST_P(Salvataggio, UnCollegamentoCadutoFermaIlSalvataggioEIlSuccessivoRiesce)
{
    const Traccia prima = impostaTraccia([](EventoDati evento, const QString& testo) {
        if (evento == EventoDati::istruzione && testo.startsWith("update letve00f"_L1))
            throw ErroreDatabase(u"08S01"_s, 2006, u"collegamento caduto"_s, testo);
    });
    EXPECT_THROW(inserisce(dati()), ErroreDatabase);
    impostaTraccia(prima);
    nienteDiScritto();
    EXPECT_EQ(inserisce(dati()), u"43"_s);
}

TEST_P(Salvataggio, UnNumeroGiaPresoDaUnAltraPostazioneNonEntraDueVolte)
{
    inserisce(dati());
    mBase.esegui(u"update ekelvorqzt_tabge00f set UltimoNumGiacenza=41;"_s);
    EXPECT_EQ(inserisce(dati(u"4712"_s)), u"43"_s) << "the race is nobody's business";
    EXPECT_EQ(mBase.leggi(u"select LERFGI from letve00f where lenrlv='4712'"_s), u"43"_s);
    EXPECT_EQ(mBase.righe(tutte.arg(u"4711"_s)).size(), 1);
}

TEST_P(Salvataggio, UnoStalloSiRitentaFinoACinqueVolte)
{
    int tentativi = 0;
    const auto stalli = [&](int quanti) {
        tentativi = 0;
        return impostaTraccia([&tentativi, quanti](EventoDati evento, const QString& testo) {
            if (evento == EventoDati::istruzione && testo.startsWith("update letve00f"_L1) &&
                ++tentativi <= quanti)
                throw ErroreDatabase(u"40001"_s, 1213, u"Deadlock found"_s, testo);
        });
    };
    const Traccia prima = stalli(5);
    EXPECT_EQ(inserisce(dati()), u"47"_s) << "each try takes a number";
    EXPECT_EQ(tentativi, 6);
    EXPECT_EQ(mBase.righe(tutte.arg(u"4711"_s)).size(), 1);
    stalli(6);
    EXPECT_THROW(inserisce(dati(u"4712"_s)), ErroreDatabase);
    EXPECT_EQ(tentativi, 6);
    impostaTraccia(prima);
    EXPECT_THAT(mBase.righe(tutte.arg(u"4712"_s)), ElementsAre());
}

TEST_P(Salvataggio, LaStessaSpedizioneNonEntraDueVolteESiDiceChiLaTiene)
{
    inserisce(dati());
    const QString terza =
        u"Giacenza esistente impossibile inserirla in database. La LDV 4711 è già la giacenza 42/2026 del 20/11/2026."_s;
    try {
        inserisce(dati());
        FAIL() << "held twice";
    } catch (const ErroreGiaInGiacenza& tenuta) {
        EXPECT_EQ(tenuta.testo(), terza);
    }
    EXPECT_EQ(mBase.leggi(contatore), u"43"_s) << "no race: it is tried once";
    EXPECT_EQ(mBase.righe(tutte.arg(u"4711"_s)).size(), 1);
    EXPECT_EQ(mBase.leggi(u"select LERFGI from letve00f where lenrlv='4711'"_s), u"42"_s);
}

TEST_P(Salvataggio, ChiTieneLaSpedizioneESenzaDataOPiuNonSiLegge)
{
    inserisce(dati());
    mBase.esegui(u"update giace00f set GIDTGI=null where GINRLV='4711';"_s);
    const auto detto = [&] {
        try {
            return u"entra: "_s + inserisce(dati());
        } catch (const ErroreGiaInGiacenza& tenuta) {
            return tenuta.testo();
        } catch (const ErroreDatabase& errore) {
            return u"del database: "_s + errore.istruzione().left(11);
        }
    };
    EXPECT_EQ(
        detto(),
        u"Giacenza esistente impossibile inserirla in database. La LDV 4711 è già la giacenza 42/2026."_s);
    const Traccia prima = impostaTraccia([](EventoDati evento, const QString& testo) {
        if (evento == EventoDati::istruzione && testo.startsWith(u"select GINRGI"_s))
            throw ErroreDatabase(u"08S01"_s, 2013, u"Lost connection"_s, testo);
    });
    EXPECT_EQ(detto(), u"del database: insert into"_s) << "what the insert met with";
    impostaTraccia(prima);
}

TEST_P(Salvataggio, UnValoreCheNonSiScriveNonCostaUnNumero)
{
    DatiGiacenza senzaData = dati();
    senzaData.dataGiacenza = QDate();
    EXPECT_THROW(inserisce(senzaData), ErroreDatabase);
    DatiGiacenza dataErrata = dati();
    dataErrata.dataAvviso = QDate(2026, 2, 31);
    EXPECT_THROW(inserisce(dataErrata), ErroreDatabase);
    EXPECT_THROW(Decimale(u"dieci"_s), ErroreConversione);
    nienteDiScritto();
    EXPECT_EQ(mBase.leggi(contatore), u"41"_s);
}

TEST_P(Salvataggio, ContatoreAssenteNulloONonNumericoFermaIlSalvataggio)
{
    mBase.esegui(u"update ekelvorqzt_tabge00f set UltimoNumGiacenza=null;"_s);
    EXPECT_THROW(inserisce(dati()), ErroreDatabase);
    mBase.esegui(u"delete from ekelvorqzt_tabge00f;"_s);
    EXPECT_THROW(inserisce(dati()), ErroreDatabase);
    nienteDiScritto();
}

TEST_P(Salvataggio, UnaLdvConUnApiceSemplicePassaNellaRigaMaNonNelLegame)
{
    mBase.esegui(u"insert into letve00f (lefili,lenrlv,leanlv,ledtlv,lecodi) values "
                 "('MI','47''16',2026,'2026-11-12',1001);"_s);
    EXPECT_THROW(inserisce(dati(u"47'16"_s)), ErroreDatabase);
    EXPECT_EQ(mBase.leggi(u"select count(*) from giace00f"_s), u"1"_s);
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
    EXPECT_EQ(ControlloInserimento(mSchermo, u"4711"_s, dodici.addDays(1)), Ammissione::sconosciuta);

    mBase.esegui(u"update letve00f set LERFGI='7' where lenrlv='4711';"_s);
    EXPECT_EQ(esito("4711"), Ammissione::ammessa) << "one of the two numbers is not enough";
    mBase.esegui(u"update letve00f set LERFGI='7/A', LEANGI=2026 where lenrlv='4711';"_s);
    EXPECT_EQ(esito("4711"), Ammissione::ammessa) << "a text that is no number does not hold it";
    mBase.esegui(u"update letve00f set lerico='R', LERFGI='7' where lenrlv='4711';"_s);
    EXPECT_EQ(esito("4711"), Ammissione::riconsegna) << "the re-delivery is told before the link";
}

} // namespace
