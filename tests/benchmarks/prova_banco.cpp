#include "benchmarks/quadro/misura.h"
#include "benchmarks/quadro/opzioni.h"
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

namespace {

Opzioni lette(const QStringList& argomenti)
{
    return leggiOpzioni(QStringList{u"banco"_s} + argomenti);
}

Misura unaMisura(double obiettivo)
{
    return {{u"grid"_s, u"sqlite"_s, 10000, {}, {}, {}, obiettivo}, 9, 1.5, 1.25, 1.2, 33.4, 6.1};
}

TEST(Mediana, eIlValoreDiMezzo)
{
    EXPECT_EQ(mediana({9, 1, 5}), 5);
    EXPECT_EQ(mediana({8, 1, 5, 3}), 4);
    EXPECT_EQ(mediana({7}), 7);
}

TEST(OpzioniBanco, siLeggonoTutte)
{
    const Opzioni opzioni = lette({u"grid"_s, u"--rows"_s, u"1000,256"_s, u"--runs"_s, u"5"_s,
                                   u"--database"_s, u"mariadb"_s, u"--json"_s, u"f.json"_s});
    EXPECT_THAT(opzioni.temi, ElementsAre(u"grid"_s));
    EXPECT_THAT(opzioni.righe, ElementsAre(1000, 256));
    EXPECT_EQ(opzioni.corse, 5);
    EXPECT_THAT(opzioni.basi, ElementsAre(u"mariadb"_s));
    EXPECT_EQ(opzioni.relazione, u"f.json"_s);
    EXPECT_THAT(lette({}).basi, ElementsAre(u"sqlite"_s, u"mariadb"_s));
}

TEST(OpzioniBanco, menoDiCinqueCorseNonBastano)
{
    EXPECT_THROW(lette({u"--runs"_s, u"4"_s}), Errore);
    EXPECT_THROW(lette({u"--rows"_s, u"255"_s}), Errore);
    EXPECT_THROW(lette({u"--rows"_s, u"mille"_s}), Errore);
    EXPECT_THROW(lette({u"--database"_s, u"altro"_s}), Errore);
    EXPECT_THROW(lette({u"--altro"_s}), Errore);
}

TEST(Relazione, eUnaListaDiOggetti)
{
    const QTemporaryDir cartella;
    const QString percorso = cartella.filePath(u"bench.json"_s);
    scriviRelazione(percorso, {unaMisura(1.3), unaMisura(0)});
    QFile file(percorso);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QJsonArray elenco = QJsonDocument::fromJson(file.readAll()).array();
    ASSERT_EQ(elenco.size(), 2);
    const QJsonObject atteso{
        {u"name"_s, u"grid"_s}, {u"database"_s, u"sqlite"_s}, {u"rows"_s, 10000}, {u"runs"_s, 9},
        {u"ours_ms"_s, 1.5},    {u"reference_ms"_s, 1.25},    {u"ratio"_s, 1.2},  {u"goal"_s, 1.3},
        {u"peak_mb"_s, 33.4},   {u"reference_peak_mb"_s, 6.1}};
    EXPECT_EQ(elenco[0].toObject(), atteso);
    EXPECT_TRUE(elenco[1].toObject().value(u"goal"_s).isNull());
}

TEST(Relazione, dovNonSiScriveLoDice)
{
    EXPECT_THROW(scriviRelazione(u"/nessuna/cartella/bench.json"_s, {}), Errore);
}

TEST(Tabella, testataERigheSonoInColonna)
{
    EXPECT_EQ(testata().size(), riga(unaMisura(1.3)).size());
    EXPECT_EQ(testata().size(), riga(unaMisura(0)).size());
    EXPECT_TRUE(riga(unaMisura(1.3)).contains(u"1.50       1.25   1.20   1.30     33.4      6.1"_s));
}

// A program that notes its turn and prints the figures of a run.
Programma programma(const QTemporaryDir& cartella, const QString& nome)
{
    const QString percorso = cartella.filePath(nome);
    QFile file(percorso);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(
        u"#!/bin/sh\necho %1 >> %2\necho 1.5 2048\n"_s.arg(nome, cartella.filePath(u"turni"_s)).toUtf8());
    file.close();
    EXPECT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    return {QDir(QCoreApplication::applicationDirPath()).relativeFilePath(percorso), {}};
}

TEST(Misura, nostroERiferimentoPartonoPrimiUnaVoltaCiascuno)
{
    int argomenti = 1;
    char nome[] = "prova_banco";
    char* testi[] = {nome, nullptr};
    const QCoreApplication applicazione(argomenti, testi);
    const QTemporaryDir cartella;
    const Misura esito = misura({u"x"_s,
                                 u"sqlite"_s,
                                 1,
                                 {},
                                 programma(cartella, u"nostro"_s),
                                 programma(cartella, u"riferimento"_s),
                                 0},
                                3);
    EXPECT_EQ(esito.nostroMs, 1.5);
    EXPECT_EQ(esito.piccoMb, 2);
    EXPECT_EQ(esito.rapporto, 1);
    QFile turni(cartella.filePath(u"turni"_s));
    ASSERT_TRUE(turni.open(QIODevice::ReadOnly));
    EXPECT_EQ(turni.readAll(),
              "riferimento\nnostro\nriferimento\nnostro\nnostro\nriferimento\nriferimento\nnostro\n");
}

TEST(Misura, unProgrammaCheNonCEFermaTutto)
{
    int argomenti = 1;
    char nome[] = "prova_banco";
    char* testi[] = {nome, nullptr};
    const QCoreApplication applicazione(argomenti, testi);
    const Programma nessuno{u"misura-nessuna"_s, {}};
    try {
        misura({u"x"_s, u"sqlite"_s, 1, {}, nessuno, nessuno, 0}, 5);
        FAIL() << "non ha lanciato";
    } catch (const Errore& errore) {
        EXPECT_TRUE(errore.testo().startsWith(u"misura-nessuna failed: "_s));
    }
}

} // namespace
