#include "benchmarks/quadro/misura.h"
#include "benchmarks/quadro/opzioni.h"
#include "benchmarks/quadro/precedente.h"
#include "benchmarks/quadro/relazione.h"
#include "support/stampa.h"

#include <giacenza/Errore.h>

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

using namespace banco;
using namespace giacenza;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

Opzioni lette(const QStringList& argomenti)
{
    return leggiOpzioni(QStringList{u"banco"_s} + argomenti);
}

Misura unaMisura(const Obiettivo& obiettivo, double rapporto = 1.2)
{
    return {{u"grid"_s, u"sqlite"_s, 10000, {}, {}, obiettivo}, 9, 1.5, 1.25, rapporto, 0.3, 33.4, 6.1};
}

TEST(Mediana, eIlValoreDiMezzo)
{
    EXPECT_EQ(mediana({9, 1, 5}), 5);
    EXPECT_EQ(mediana({8, 1, 5, 3}), 4);
    EXPECT_EQ(mediana({7}), 7);
    EXPECT_EQ(quantile({1, 2, 3, 4, 5}, 0.25), 2);
    EXPECT_EQ(quantile({1, 2}, 0.75), 1.75);
}

TEST(OpzioniBanco, siLeggonoTutte)
{
    const Opzioni opzioni =
        lette({u"grid"_s, u"--rows"_s, u"1000,256"_s, u"--runs"_s, u"5"_s, u"--database"_s, u"mariadb"_s,
               u"--json"_s, u"f.json"_s, u"--confronta"_s, u"prima.json"_s});
    EXPECT_THAT(opzioni.nomi, ElementsAre(u"grid"_s));
    EXPECT_THAT(opzioni.misure({10}), ElementsAre(1000, 256));
    EXPECT_EQ(opzioni.corse.lunghe, 5);
    EXPECT_EQ(opzioni.corse.brevi, 100);
    EXPECT_THAT(opzioni.basi, ElementsAre(u"mariadb"_s));
    EXPECT_EQ(opzioni.relazione, u"f.json"_s);
    EXPECT_EQ(opzioni.precedente, u"prima.json"_s);
}

TEST(OpzioniBanco, senzaNienteSonoQuelleIntere)
{
    const Opzioni opzioni = lette({});
    EXPECT_THAT(opzioni.basi, ElementsAre(u"sqlite"_s, u"mariadb"_s));
    EXPECT_THAT(opzioni.misure({10, 1000}), ElementsAre(10, 1000));
    EXPECT_EQ(opzioni.corse.lunghe, 9);
    EXPECT_EQ(opzioni.corse.brevi, 100);
    EXPECT_FALSE(opzioni.svelto);
}

TEST(OpzioniBanco, leSveltePrendonoLaMisuraMinoreEPocheCoppie)
{
    const Opzioni opzioni = lette({u"--quick"_s});
    EXPECT_TRUE(opzioni.svelto);
    EXPECT_THAT(opzioni.misure({10, 1000}), ElementsAre(10));
    EXPECT_EQ(opzioni.corse.lunghe, 5);
    EXPECT_EQ(opzioni.corse.brevi, 21);
}

TEST(OpzioniBanco, menoDiCinqueCorseNonBastano)
{
    EXPECT_THROW(lette({u"--runs"_s, u"4"_s}), Errore);
    EXPECT_THROW(lette({u"--rows"_s, u"255"_s}), Errore);
    EXPECT_THROW(lette({u"--rows"_s, u"mille"_s}), Errore);
    EXPECT_THROW(lette({u"--database"_s, u"altro"_s}), Errore);
    EXPECT_THROW(lette({u"--altro"_s}), Errore);
}

TEST(Obiettivo, siRaggiungeSoloSeTuttoVaBene)
{
    EXPECT_TRUE(unaMisura({}).raggiunto());
    EXPECT_TRUE(unaMisura({.rapporto = 1.2, .inPiu = 0.25, .picco = 33.4, .piccoInPiu = 27.3}).raggiunto());
    EXPECT_FALSE(unaMisura({.rapporto = 1.19}).raggiunto());
    EXPECT_FALSE(unaMisura({.rapporto = 1.2, .inPiu = 0.2}).raggiunto());
    EXPECT_FALSE(unaMisura({.rapporto = 1.2, .picco = 33}).raggiunto());
    EXPECT_FALSE(unaMisura({.piccoInPiu = 27}).raggiunto());
}

TEST(Obiettivo, siScriveInBreve)
{
    EXPECT_EQ(testoObiettivo({.rapporto = 1.2, .picco = 40}), u"1.2x 40 MB"_s);
    EXPECT_EQ(testoObiettivo({.inPiu = 5}), u"+5 ms"_s);
    EXPECT_EQ(testoObiettivo({.rapporto = 0.02}), u"0.02x"_s);
    EXPECT_EQ(testoObiettivo({.piccoInPiu = 2}), u"+2 MB"_s);
    EXPECT_EQ(testoObiettivo({}), QString());
}

TEST(Relazione, eUnaListaDiOggetti)
{
    const QTemporaryDir cartella;
    const QString percorso = cartella.filePath(u"bench.json"_s);
    scriviRelazione(percorso, {unaMisura({.rapporto = 1.1}), unaMisura({})});
    QFile file(percorso);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QJsonArray elenco = QJsonDocument::fromJson(file.readAll()).array();
    ASSERT_EQ(elenco.size(), 2);
    const QJsonObject atteso{
        {u"name"_s, u"grid"_s}, {u"database"_s, u"sqlite"_s},  {u"rows"_s, 10000},     {u"runs"_s, 9},
        {u"ours_ms"_s, 1.5},    {u"reference_ms"_s, 1.25},     {u"ratio"_s, 1.2},      {u"spread"_s, 0.3},
        {u"peak_mb"_s, 33.4},   {u"reference_peak_mb"_s, 6.1}, {u"goal"_s, u"1.1x"_s}, {u"met"_s, false}};
    EXPECT_EQ(elenco[0].toObject(), atteso);
    EXPECT_TRUE(elenco[1].toObject().value(u"goal"_s).isNull());
    EXPECT_TRUE(elenco[1].toObject().value(u"met"_s).isNull());
}

TEST(Relazione, dovNonSiScriveLoDice)
{
    EXPECT_THROW(scriviRelazione(u"/nessuna/cartella/bench.json"_s, {}), Errore);
}

TEST(Tabella, testataERigheSonoInColonna)
{
    EXPECT_EQ(testata().size(), riga(unaMisura({.rapporto = 1.3})).size());
    EXPECT_EQ(testata().size(), riga(unaMisura({})).size());
    EXPECT_EQ(riga(unaMisura({.rapporto = 1.1})),
              u"grid                   sqlite       10000       1.50       1.25   1.200    0.30     33.4 "
              u"1.1x         NO \n"_s);
}

// The figure that is there twice is the one of other rows.
TEST(ConfrontoConPrima, diceCheCosaSiERallentato)
{
    const QTemporaryDir cartella;
    const QString percorso = cartella.filePath(u"prima.json"_s);
    Misura altra = unaMisura({}, 9);
    altra.confronto.righe = 256;
    scriviRelazione(percorso, {altra, unaMisura({}, 1.2)});
    const std::vector<Precedente> prima = leggiPrecedenti(percorso);
    // A spread of 0.3 in 9 pairs explains a fifth.
    EXPECT_THAT(rallentate(prima, {unaMisura({}, 1.43)}), IsEmpty());
    EXPECT_THAT(rallentate(prima, {unaMisura({}, 1.45)}),
                ElementsAre(u"Slower: grid, sqlite, 10000 rows: 1.45 times the reference, before 1.20"_s));
    Misura nuova = unaMisura({}, 100);
    nuova.confronto.nome = u"save"_s;
    EXPECT_THAT(rallentate(prima, {nuova, unaMisura({}, 0.5)}), IsEmpty());
}

TEST(ConfrontoConPrima, unDecimoESempreConcesso)
{
    const std::vector<Precedente> prima{{u"grid"_s, u"sqlite"_s, 10000, 100, 1, 0}};
    Misura ora = unaMisura({}, 1.1);
    ora.dispersione = 0;
    EXPECT_THAT(rallentate(prima, {ora}), IsEmpty());
    ora.rapporto = 1.11;
    EXPECT_EQ(rallentate(prima, {ora}).size(), 1);
}

TEST(ConfrontoConPrima, rifiutaCioCheNonERelazione)
{
    const QTemporaryDir cartella;
    const QString percorso = cartella.filePath(u"x.json"_s);
    EXPECT_THROW(leggiPrecedenti(percorso), Errore);
    for (const std::string testo : {"", "{}", "[{}]", "[{\"ratio\": 1}]", "[{\"runs\": 3}]"}) {
        QFile file(percorso);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(testo.c_str());
        file.close();
        EXPECT_THROW(leggiPrecedenti(percorso), Errore) << testo;
    }
}

class Programmi : public testing::Test
{
protected:
    // A program of the shell's; it lies beside the one that starts it.
    Programma programma(const QString& nome, const QString& testo)
    {
        const QString percorso = mCartella.filePath(nome);
        QFile file(percorso);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(u"#!/bin/sh\n"_s.toUtf8() + testo.toUtf8());
        file.close();
        EXPECT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
        return {QDir(QCoreApplication::applicationDirPath()).relativeFilePath(percorso), {}, {}};
    }

    /// Notes its turn and prints the figures of a run.
    Programma ogniVolta(const QString& nome)
    {
        return programma(nome, u"echo %1 >> %2\necho 1.5 2048\n"_s.arg(nome, turni()));
    }

    /// Stays: notes its turn and what it was asked for.
    Programma residente(const QString& nome, const QStringList& istruzioni, const QString& millisecondi)
    {
        QString detti;
        for (const QString& istruzione : istruzioni)
            detti += u"echo \"%1\"; "_s.arg(istruzione);
        Programma p = programma(nome, uR"(while read -r riga; do
echo "%1 $riga" >> %2
case $riga in "? "*) %3 echo ;; *) echo %4 2048 ;; esac
done
)"_s.arg(nome, turni(), detti, millisecondi));
        p.richieste = {u"a"_s, u"b"_s, u"c"_s};
        return p;
    }

    QString turni() const { return mCartella.filePath(u"turni"_s); }
    QByteArray segnati() const
    {
        QFile file(turni());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

private:
    int mArgomenti = 1;
    char mNome[12] = "prova_banco";
    char* mTesti[2] = {mNome, nullptr};
    const QCoreApplication mApplicazione{mArgomenti, mTesti};
    const QTemporaryDir mCartella;
};

Confronto confronto(const Programma& nostro, const Programma& riferimento, bool stesse = false)
{
    return {u"x"_s, u"sqlite"_s, 1, nostro, riferimento, {}, stesse};
}

TEST_F(Programmi, nostroERiferimentoPartonoPrimiUnaVoltaCiascuno)
{
    const Misura esito = misura(confronto(ogniVolta(u"nostro"_s), ogniVolta(u"riferimento"_s)), {3, 4});
    EXPECT_EQ(esito.nostroMs, 1.5);
    EXPECT_EQ(esito.piccoMb, 2);
    EXPECT_EQ(esito.rapporto, 1);
    EXPECT_EQ(esito.dispersione, 0);
    EXPECT_EQ(esito.corse, 4) << "it is short";
    EXPECT_EQ(segnati(),
              "riferimento\nnostro\nriferimento\nnostro\nnostro\nriferimento\nriferimento\nnostro\n"
              "nostro\nriferimento\n");
}

TEST_F(Programmi, chiRestaRiceveLeRichiesteInGiro)
{
    const QStringList istruzioni{u"select 1"_s, u"select 2"_s};
    const Misura esito = misura(confronto(residente(u"nostro"_s, istruzioni, u"30"_s),
                                          residente(u"riferimento"_s, istruzioni, u"20"_s), true),
                                {3, 100});
    EXPECT_EQ(esito.rapporto, 1.5);
    EXPECT_EQ(esito.corse, 3) << "30 ms are long";
    EXPECT_EQ(segnati(), "nostro ? a\nriferimento ? a\nriferimento a\nnostro a\nriferimento b\nnostro b\n"
                         "nostro c\nriferimento c\nriferimento a\nnostro a\n");
}

TEST_F(Programmi, chiMandaAltreIstruzioniNonSiMisura)
{
    try {
        misura(confronto(residente(u"nostro"_s, {u"select 1"_s}, u"1"_s),
                         residente(u"riferimento"_s, {u"select 2"_s}, u"1"_s), true),
               {5, 5});
        FAIL() << "it was measured";
    } catch (const Errore& errore) {
        EXPECT_EQ(errore.testo(),
                  u"x: the statements differ. Ours:\n  select 1\nThe reference's:\n  select 2"_s);
    }
}

TEST_F(Programmi, unProgrammaCheNonCEFermaTutto)
{
    for (const QStringList& richieste : {QStringList(), QStringList{u"a"_s}}) {
        const Programma nessuno{u"misura-nessuna"_s, {}, {}, richieste};
        try {
            misura(confronto(nessuno, nessuno), {5, 5});
            FAIL() << "non ha lanciato";
        } catch (const Errore& errore) {
            EXPECT_TRUE(errore.testo().startsWith(u"misura-nessuna failed: "_s));
        }
    }
}

TEST_F(Programmi, unProgrammaCheFinisceAMetaFermaTutto)
{
    Programma rotto = programma(u"rotto"_s, u"echo guasto >&2; exit 1\n"_s);
    rotto.richieste = {u"a"_s};
    EXPECT_THROW(misura(confronto(rotto, rotto), {5, 5}), Errore);
    const Programma muto = programma(u"muto"_s, u"echo niente\n"_s);
    EXPECT_THROW(misura(confronto(muto, muto), {5, 5}), Errore);
}

} // namespace
