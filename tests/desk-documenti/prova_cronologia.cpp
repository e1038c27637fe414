#include "depositodesk.h"

#include "data/archivio.h"
#include "desk/registro/cronologia.h"
#include "desk/registro/note.h"

using namespace giacenza;
using namespace giacenza::prove;
using namespace giacenza::registro;
using testing::ElementsAre;

namespace {

class CronologiaDelCaso : public DepositoDesk
{
protected:
    /// When known by its day, what.
    QStringList fatti(const ChiaveGiacenza& caso)
    {
        Connessione connessione = mBase.connessione();
        QStringList righe;
        for (const Evento& evento : leggiCronologia(connessione, caso).eventi)
            righe << (evento.fonte == Fonte::dedotto ? quandoEsteso(evento) + u' ' : QString()) + evento.che;
        return righe;
    }
    QString rifiuto(const QString& autore, const QString& testo)
    {
        Connessione connessione = mBase.connessione();
        try {
            aggiungiNota(connessione, mAperta, autore, testo);
        } catch (const Errore& errore) {
            return errore.testo();
        }
        return u"aggiunta"_s;
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, CronologiaDelCaso, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(CronologiaDelCaso, SenzaRegistroQuelloCheSiRicava)
{
    EXPECT_THAT(fatti(mAperta), ElementsAre(u"01/11/2026 Messa in giacenza"_s, u"16/11/2026 Avviso n. 2"_s,
                                            u"19/11/2026 Emessa la lettera di vettura 4720/2026 MI"_s));
    EXPECT_THAT(fatti(mChiusa), ElementsAre(u"02/10/2026 Giacenza precedente n. 39"_s,
                                            u"13/11/2026 Messa in giacenza"_s, u"15/11/2026 Avviso n. 2"_s,
                                            u"18/11/2026 Buon fine"_s, u"20/11/2026 Fattura n. 77"_s));
    Connessione connessione = mBase.connessione();
    EXPECT_EQ(
        presenzaRegistro(connessione).mancanza(),
        u"In questo archivio il registro non c'è, o questo utente non lo vede: gli eventi sono quelli che si "
        "ricavano dalle giacenze, senza ora e senza nome, e non si possono aggiungere note. Lo prepara chi "
        "amministra l'archivio, con \"deposito --prepara-registro\"."_s);
    EXPECT_THROW(leggiCronologia(connessione, {u"999"_s, 2026}), Errore);
}

TEST_P(CronologiaDelCaso, LaPresenzaNonCostaUnIstruzione)
{
    int istruzioni = 0;
    Connessione connessione = mBase.connessione();
    const Traccia prima = impostaTraccia(
        [&](EventoDati evento, const QString&) { istruzioni += evento == EventoDati::istruzione ? 1 : 0; });
    EXPECT_FALSE(presenzaRegistro(connessione).eventi);
    impostaTraccia(prima);
    EXPECT_EQ(istruzioni, 0);
}

TEST_P(CronologiaDelCaso, ColRegistroLEventoStaUnaVoltaSola)
{
    conRegistro();
    mBase.esegui(
        u"update giace00f set GINRAV='3', GIDTAV='2026-11-22', GIDES1='01/11/2026 - Chiuso\r\nRifiuta' "
        "where GINRGI='42'"_s);
    mBase.esegui(u"update giace00f set GIDTBF='2026-11-22' where GINRGI='42'"_s);
    mBase.esegui(u"update giace00f set GIIMGI=24, FissoGiacenza=5 where GINRGI='42'"_s);
    EXPECT_THAT(fatti(mAperta),
                ElementsAre(u"01/11/2026 Messa in giacenza"_s,
                            u"19/11/2026 Emessa la lettera di vettura 4720/2026 MI"_s, u"Avviso n. 3"_s,
                            u"Descrizione cambiata"_s, u"Buon fine del 22/11/2026"_s,
                            u"Importi scritti: sosta 24,00 €, fisso 5,00 €"_s));
    Connessione connessione = mBase.connessione();
    const Cronologia letta = leggiCronologia(connessione, mAperta);
    EXPECT_EQ(letta.presenza.mancanza(), QString());
    EXPECT_EQ(letta.eventi[3].testo, u"Aggiunto: Rifiuta"_s);
    EXPECT_FALSE(letta.eventi[3].chi.isEmpty());
    EXPECT_LT(std::abs(letta.eventi[3].quando.secsTo(QDateTime::currentDateTime())), 60);
}

TEST_P(CronologiaDelCaso, ConLaSolaPrimaVersioneMancanoLeNote)
{
    preparaRegistro(mBase.accessoAmministratore(), 1);
    Connessione connessione = mBase.connessione();
    const Presenza presenza = presenzaRegistro(connessione);
    EXPECT_TRUE(presenza.eventi);
    EXPECT_FALSE(presenza.note);
    EXPECT_TRUE(presenza.mancanza().startsWith(u"In questo archivio manca la tabella delle note"_s));
    EXPECT_EQ(fatti(mAperta).size(), 3);
}

TEST_P(CronologiaDelCaso, UnaNotaHaUnAutoreENonSiCambia)
{
    conRegistro();
    Connessione connessione = mBase.connessione();
    aggiungiNota(connessione, mAperta, u"  Neri "_s,
                 u" Il cliente richiama lunedì: \"aspettare\"\n';-- \U0001F4E6 "_s);
    const Cronologia letta = leggiCronologia(connessione, mAperta);
    const Evento& nota = letta.eventi.back();
    EXPECT_EQ(nota.fonte, Fonte::nota);
    EXPECT_EQ(nota.testo, u"Il cliente richiama lunedì: \"aspettare\"\n';-- \U0001F4E6"_s);
    EXPECT_TRUE(nota.chi.startsWith(GetParam() == "mariadb" ? u"Neri (prova_"_s : u"Neri (Bianchi)"_s))
        << nota.chi.toStdString();
    EXPECT_THROW(connessione.esegui(u"update registro_note set testo='x'"_s), ErroreDatabase);
    EXPECT_THROW(connessione.esegui(u"delete from registro_note"_s), ErroreDatabase);
    EXPECT_EQ(autoreProposto(), u"Bianchi"_s);
}

TEST_P(CronologiaDelCaso, UnaNotaVuotaOSenzaAutoreNonSiPrende)
{
    conRegistro();
    EXPECT_EQ(rifiuto(u" "_s, u"x"_s), u"Manca chi scrive la nota."_s);
    EXPECT_EQ(rifiuto(u"Neri"_s, u" \n"_s), u"La nota è vuota."_s);
    const QString lunga = u"La nota può avere 20000 caratteri, chi la scrive 80."_s;
    EXPECT_EQ(rifiuto(u"Neri"_s, QString(20'001, u'x')), lunga);
    EXPECT_EQ(rifiuto(QString(81, u'x'), u"x"_s), lunga);
    EXPECT_EQ(rifiuto(u"Neri"_s, QString(20'000, u'x')), u"aggiunta"_s);
}

} // namespace
