#include "basipiene.h"
#include "catalogo.h"
#include "piano.h"

#include "data/istruzioniricerca.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;
using testing::Contains;
using testing::IsSupersetOf;

namespace {

/// The tables that grow with the years, or with the customers. The others have as many rows as a depot has
/// branches, carriers and lines: reading them whole may be the better plan.
const QStringList tabelleGrandi{u"letve00f"_s, u"giace00f"_s, u"clien"_s, u"tabfatturazione"_s};

/// Columns that alone find a large part of a table: a depot may have one branch, and few years.
const QStringList colonneLarghe{u"lefili"_s, u"gifili"_s, u"leanlv"_s, u"gianlv"_s, u"leangi"_s, u"giangi"_s};

/// Statements whose condition names nothing better of the table.
const QStringList ammesse{
    // All open cases, counted for each customer: once, when the statements of all of them are asked for.
    u"clientiConAperte"_s,
    // The held shipments of the year, then of each its waybill, to see whose it is: a database that knows
    // nothing
    // of its rows may start here, and one that knows them starts with the customer's waybills.
    u"ricercaApertura 11"_s,
    // A text may lie anywhere in the value, so the customers are read, in the order of their name.
    u"ricercaSoggetti ragioneSociale"_s,
    u"ricercaSoggetti localita"_s,
    u"ricercaSoggetti provincia"_s,
    // On MariaDB without the column of the number; on SQLite the index of the year holds the number too.
    u"ultimoNumeroLdv"_s,
};

QStringList grandiNominate(const QString& istruzione)
{
    QStringList nominate;
    for (const QString& tabella : tabelleGrandi) {
        // A word of its own behind "from", "join" or "update", not the prefix of a column.
        const QRegularExpression nome(u"(from|join|update) \\(*%1\\b"_s.arg(tabella),
                                      QRegularExpression::CaseInsensitiveOption);
        if (istruzione.contains(nome))
            nominate << tabella;
    }
    return nominate;
}

/// True when the table is entered by a column that finds few of its rows.
bool buono(const AccessoTabella& accesso)
{
    return !accesso.tutta &&
           std::any_of(accesso.colonne.begin(), accesso.colonne.end(),
                       [](const QString& colonna) { return !colonneLarghe.contains(colonna); });
}

/// So many that the open cases are the few of a depot that has worked for years: where they are many, reading
/// the whole table is the better plan. GIACENZA_SPEDIZIONI sets another number, as a million.
int spedizioniDiAnni()
{
    bool detto = false;
    const int quante = qEnvironmentVariableIntValue("GIACENZA_SPEDIZIONI", &detto);
    return detto ? quante : 20'000;
}

class Piani : public testing::TestWithParam<std::string>
{
protected:
    const BancaDati& mBase = basePiena(GetParam(), spedizioniDiAnni());
    Connessione mConnessione = mBase.amministratore();
};

TEST_P(Piani, ogniIstruzioneEntraNelleTabelleGrandiConUnIndice)
{
    for (const VoceCatalogo& voce : catalogo(mBase)) {
        const Piano piano = leggiPiano(mConnessione, voce.testo, voce.parametri);
        if (piano.soloDaIndice)
            continue;
        EXPECT_THAT(piano.tabelle(), IsSupersetOf(grandiNominate(voce.testo)))
            << "the plan of " << voce.nome.toStdString() << " says too little:\n"
            << piano.testo.toStdString();
        for (const AccessoTabella& accesso : piano.accessi) {
            EXPECT_TRUE(buono(accesso) || !tabelleGrandi.contains(accesso.tabella) ||
                        ammesse.contains(voce.nome))
                << voce.nome.toStdString() << ": " << voce.testo.toStdString() << '\n'
                << piano.testo.toStdString();
        }
    }
}

/// The number and reference lists come as the operator scrolls, so nothing may stand between the first row
/// and him. MariaDB has no index on an expression: there the list by number is gathered and sorted, but only
/// the customer's rows in the branch.
TEST_P(Piani, gliElenchiDellaRicercaEsconoGiaInOrdine)
{
    int guardati = 0;
    for (const VoceCatalogo& voce : catalogo(mBase)) {
        const bool perNumero = voce.nome.contains(u" 7"_s);
        const bool perRiferimento =
            voce.nome.contains(u" 1"_s) && !voce.nome.contains(u" 10"_s) && !voce.nome.contains(u" 11"_s);
        if (!perNumero && !perRiferimento)
            continue;
        ++guardati;
        const Piano piano = leggiPiano(mConnessione, voce.testo, voce.parametri);
        EXPECT_EQ(piano.ordina, perNumero && GetParam() == "mariadb") << voce.nome.toStdString() << '\n'
                                                                      << piano.testo.toStdString();
    }
    EXPECT_EQ(guardati, 7);
}

/// Whoever opens the desk waits for the first rows.
TEST_P(Piani, iCasiApertiEsconoGiaInOrdine)
{
    int guardati = 0;
    for (const VoceCatalogo& voce : catalogo(mBase)) {
        if (!voce.nome.startsWith(u"casiAperti"_s))
            continue;
        ++guardati;
        const Piano piano = leggiPiano(mConnessione, voce.testo, voce.parametri);
        EXPECT_FALSE(piano.ordina) << piano.testo.toStdString();
    }
    EXPECT_EQ(guardati, 2);
}

TEST_P(Piani, unaLetturaDiTuttoSiRiconosce)
{
    const auto scansioni = [this](const QString& istruzione) {
        return leggiPiano(mConnessione, istruzione).scansioni();
    };
    EXPECT_THAT(scansioni(u"select * from letve00f where lenote='x';"_s), Contains(u"letve00f"_s));
    EXPECT_THAT(scansioni(u"select * from giace00f where GIDES1='x';"_s), Contains(u"giace00f"_s));
    EXPECT_THAT(scansioni(u"update Giace00f set GIGGSO=1 where GINRAV='1';"_s), Contains(u"giace00f"_s));
    // All of an index is no better than all of the table.
    EXPECT_THAT(scansioni(u"select leanlv, lenrlv from letve00f where lower(lenrlv)='x';"_s),
                Contains(u"letve00f"_s));
    EXPECT_THAT(scansioni(u"select * from letve00f inner join giace00f on lenote=GIDES1;"_s),
                testing::IsSupersetOf({u"letve00f"_s, u"giace00f"_s}));
}

TEST_P(Piani, unaLetturaDiUnaFilialeInteraSiRiconosce)
{
    const Piano piano =
        leggiPiano(mConnessione, u"select * from giace00f where giangi=%1;"_s.arg(oggiDimostrativo().year()));
    ASSERT_EQ(piano.accessi.size(), 1);
    EXPECT_FALSE(buono(piano.accessi.first())) << piano.testo.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Basi, Piani, testing::Values("sqlite", "sqliteNuovo", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

/// One of twenty waybills is the customer's, and one of ten is held: there MariaDB without an index of its
/// own for this list reads every held shipment.
TEST(PianoGiacenze, diUnClienteConMolteLettereNonSiLeggonoTutte)
{
    const BancaDati base("mariadb");
    base.esegui(
        u"insert into letve00f (lefili, lenrlv, leanlv, ledtlv, lecodi, ledest) select "
        "elt(1+seq%5,'MI','RM','TO','BO','FI'), seq, 2026, '2026-02-03', if(seq%100<5,1001,2000+seq%100), "
        "'DESTINATARIO' from seq_1_to_20000;\n"
        "insert into giace00f (GIFILI, GINRLV, GIANLV, GICODI, GINRGI, GIANGI, GIDTGI) select lefili, "
        "lenrlv, leanlv, lecodi, lenrlv, 2026, '2026-02-05' from letve00f where cast(lenrlv as "
        "unsigned)%10=0;\n"
        "analyze table letve00f, giace00f;"_s);
    DatiRicerca dati;
    dati.cliente = u"1001"_s;
    dati.annoCorrente = 2026;
    dati.annoOData = u"01/01/2026"_s;
    Connessione connessione = base.amministratore();
    for (const QString& istruzione : {istruzioni::ricercaApertura(ModoRicerca::giacenze, dati),
                                      istruzioni::ricercaVisualizza(ModoRicerca::giacenze, dati)}) {
        const Piano piano = leggiPiano(connessione, istruzione);
        EXPECT_THAT(piano.tabelle(), testing::ElementsAre(u"letve00f"_s, u"giace00f"_s))
            << piano.testo.toStdString();
        EXPECT_THAT(piano.scansioni(), testing::IsEmpty()) << piano.testo.toStdString();
    }
}

class PianoSenzaIndice : public testing::TestWithParam<std::string>
{};

/// The statement is the component's own: only its index is missing.
TEST_P(PianoSenzaIndice, unIndiceToltoSiNota)
{
    const BancaDati base(GetParam());
    Connessione connessione = base.amministratore();
    dimostrazione::riempi(connessione, {.spedizioni = 500, .oggi = oggiDimostrativo()});
    connessione.esegui(GetParam() == "mariadb" ? u"alter table letve00f drop key letve_riferimento"_s
                                               : u"drop index letve_riferimento"_s);
    int trovate = 0;
    for (const VoceCatalogo& voce : catalogo(base)) {
        if (voce.nome != u"spedizionePerRiferimento"_s)
            continue;
        ++trovate;
        const Piano piano = leggiPiano(connessione, voce.testo);
        EXPECT_THAT(piano.accessi, Contains(testing::Truly([](const AccessoTabella& accesso) {
                        return accesso.tabella == u"letve00f"_s && !buono(accesso);
                    })))
            << piano.testo.toStdString();
    }
    EXPECT_EQ(trovate, 1);
}

INSTANTIATE_TEST_SUITE_P(Basi, PianoSenzaIndice, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

/// A statement that is added without a line in the catalogue would not be looked at.
TEST(Catalogo, haOgniIstruzioneDelComponente)
{
    QSet<QString> voci;
    for (const char* base : {"sqlite", "mariadb"})
        for (const VoceCatalogo& voce : catalogo(basePiena(base, spedizioniDiAnni())))
            voci << voce.nome;
    QStringList inCatalogo;
    for (const QString& voce : voci)
        inCatalogo << voce.section(u' ', 0, 0);
    static const QRegularExpression dichiarazione(u"^QString (\\w+)\\("_s,
                                                  QRegularExpression::MultilineOption);
    QHash<QString, int> forme;
    const QDir cartella(QStringLiteral(GIACENZA_SORGENTI "/data"));
    QStringList intestazioni = cartella.entryList({u"istruzioni*.h"_s});
    // The register's tables are no part of the schema; its own tests send these.
    EXPECT_EQ(intestazioni.removeAll(u"istruzioniregistro.h"_s), 1);
    for (const QString& nome : intestazioni) {
        QFile file(cartella.filePath(nome));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
        const QString testo = QString::fromUtf8(file.readAll());
        for (auto trovate = dichiarazione.globalMatch(testo); trovate.hasNext();)
            ++forme[trovate.next().captured(1)];
    }
    EXPECT_EQ(forme.remove(u"modelloSoggetti"_s), 1) << "makes no statement";
    EXPECT_GE(forme.size(), 29);
    for (auto forma = forme.cbegin(); forma != forme.cend(); ++forma)
        EXPECT_GE(inCatalogo.count(forma.key()), forma.value()) << forma.key().toStdString();
}

} // namespace
