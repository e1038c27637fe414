// The number that a new waybill gets.

#include "data/nuovaldvdiprova.h"

#include <set>
#include <thread>

using namespace giacenza;
using namespace giacenza::prove;
using testing::SizeIs;

namespace {

class NuovaLdvNumero : public NuovaLdvDiProva
{
protected:
    /// The statement that looks for the highest number, as the issue of a waybill runs it.
    QString istruzioneDelNumero()
    {
        QString istruzione;
        impostaTraccia([&](EventoDati evento, const QString& testo) {
            if (evento == EventoDati::istruzione && testo.startsWith(u"select coalesce(max("_s))
                istruzione = testo;
        });
        emettiLdv(mConnessione, LdvDiProva(mConnessione, u"4711"_s), contestoDiProva());
        impostaTraccia({});
        return istruzione;
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, NuovaLdvNumero, testing::Values("sqlite", "mariadb", senzaColonna),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(NuovaLdvNumero, IlNumeroSegueIlPiuAltoDellAnnoDiOgniFiliale)
{
    mBase.esegui(
        u"insert into letve00f (lefili,lenrlv,leanlv,ledtlv,lecodi) values "
        "('BO','009999',2026,'2026-11-12',1001),('BO','10500',2025,'2025-11-12',1001),"
        "('BO','20000X',2026,'2026-11-12',1001),('BO','99999999999999999999',2026,'2026-11-12',1001);"_s);
    const LdvDiProva ldv(mConnessione, u"4711"_s);
    EXPECT_EQ(emettiLdv(mConnessione, ldv, contestoDiProva()).numero, u"10000"_s);
    EXPECT_EQ(emettiLdv(mConnessione, ldv, contestoDiProva()).numero, u"10001"_s);
    Contesto capodanno = contestoDiProva();
    capodanno.oggi = QDate(2027, 1, 1);
    const LdvEmessa prima = emettiLdv(mConnessione, ldv, capodanno);
    EXPECT_EQ(prima.numero, u"1"_s) << "each year starts anew";
    EXPECT_EQ(prima.anno, 2027);
}

TEST_P(NuovaLdvNumero, IlNumeroSiCercaConCioCheIlDatabaseOffre)
{
    const QMap<std::string, QString> attese{
        {"sqlite",
         u"select coalesce(max(cast(lenrlv as unsigned)),0) from letve00f where leanlv=? and lenrlv "
         "not glob '*[^0-9]*' and length(lenrlv) between 1 and 18"_s},
        {"mariadb", u"select coalesce(max(lenrlv_numero),0) from letve00f where leanlv=?"_s},
        {senzaColonna, u"select coalesce(max(cast(lenrlv as unsigned)),0) from letve00f where leanlv=? and "
                       "lenrlv regexp '^[0-9]{1,18}$'"_s},
    };
    EXPECT_EQ(istruzioneDelNumero(), attese.value(GetParam()));
}

TEST_P(NuovaLdvNumero, ConLIndiceNessunaLdvDellAnnoSiLegge)
{
    const QString istruzione = istruzioneDelNumero().replace(u'?', u"2026"_s);
    QStringList piano;
    for (const QStringList& riga :
         mBase.righe((GetParam() == "sqlite" ? u"explain query plan "_s : u"explain "_s) + istruzione))
        piano << riga.last();
    if (GetParam() == "sqlite")
        EXPECT_EQ(piano, QStringList(u"SEARCH letve00f USING INDEX letve_anno (leanlv=?)"_s));
    else if (GetParam() == "mariadb")
        EXPECT_EQ(piano, QStringList(u"Select tables optimized away"_s));
    else
        EXPECT_EQ(piano, QStringList(u"Using where; Using index"_s)) << "the year's waybills, from the index";
}

TEST_P(NuovaLdvNumero, UnaColonnaDelloStessoNomeMaDAltriNonServe)
{
    if (GetParam() == "sqlite")
        mBase.esegui(u"alter table letve00f add column lenrlv_numero integer;"_s);
    else if (GetParam() == "mariadb")
        mBase.esegui(u"alter table letve00f drop key letve_numerico, drop column lenrlv_numero, "
                     "add lenrlv_numero bigint default 7777;"_s);
    else
        mBase.esegui(u"alter table letve00f add lenrlv_numero bigint default 7777;"_s);
    // A connection that described the table before it changed would read the columns one off.
    mConnessione.chiudi();
    mConnessione.apri(mBase.accesso());
    EXPECT_EQ(emettiLdv(mConnessione, LdvDiProva(mConnessione, u"4711"_s), contestoDiProva()).numero,
              u"4716"_s);
}

TEST_P(NuovaLdvNumero, LaColonnaDelNumeroNonSiVedeENonSiScrive)
{
    const LdvDiProva ldv(mConnessione, u"4711"_s);
    Recordset tutte;
    tutte.apri(mConnessione, u"select * from letve00f"_s);
    EXPECT_EQ(tutte.indice(u"lenrlv_numero"_s), -1);
    EXPECT_EQ(tutte.colonne(), 29);
    mBase.esegui(u"create table copia as select * from letve00f where lenrlv='4711';"_s);
    mBase.esegui(u"update copia set lenrlv='4799';"_s);
    mBase.esegui(u"insert into letve00f select * from copia;"_s);
    EXPECT_EQ(emettiLdv(mConnessione, ldv, contestoDiProva()).numero, u"4800"_s);
}

TEST_P(NuovaLdvNumero, DueEmittentiInsiemeNonDannoLoStessoNumero)
{
    constexpr int quanti = 4;
    constexpr int volte = 5;
    std::vector<std::thread> postazioni;
    std::vector<QStringList> numeri(quanti);
    std::vector<QString> guasti(quanti);
    for (std::size_t i = 0; i < quanti; ++i)
        postazioni.emplace_back([&, i] {
            try {
                Connessione connessione = mBase.connessione();
                const LdvDiProva ldv(connessione, u"4711"_s);
                for (int volta = 0; volta < volte; ++volta)
                    numeri[i] << emettiLdv(connessione, ldv, contestoDiProva()).numero;
            } catch (const Errore& errore) {
                guasti[i] = errore.testo();
            }
        });
    for (std::thread& postazione : postazioni)
        postazione.join();
    EXPECT_THAT(guasti, testing::Each(QString()));
    std::set<QString> diversi;
    for (const QStringList& dati : numeri)
        diversi.insert(dati.begin(), dati.end());
    EXPECT_THAT(diversi, SizeIs(quanti * volte));
    EXPECT_EQ(*diversi.begin(), u"4716"_s);
    EXPECT_EQ(*diversi.rbegin(), u"4735"_s);
}

TEST_P(NuovaLdvNumero, UnNumeroPresoDaUnAltroProgrammaSiSalta)
{
    // A program that does not queue takes the number between the look and the insert.
    int volte = 0;
    impostaTraccia([&](EventoDati evento, const QString& testo) {
        if (evento == EventoDati::istruzione &&
            testo.startsWith(u"insert into letve00f"_s, Qt::CaseInsensitive) && ++volte == 1)
            throw GetParam() == "sqlite"
                ? ErroreDatabase(u"HY000"_s, 19, u"UNIQUE constraint failed"_s, testo)
                : ErroreDatabase(u"23000"_s, 1062, u"Duplicate entry"_s, testo);
    });
    EXPECT_EQ(emettiLdv(mConnessione, LdvDiProva(mConnessione, u"4711"_s), contestoDiProva()).numero,
              u"4716"_s);
    EXPECT_EQ(volte, 2);
}

TEST_P(NuovaLdvNumero, IlNumeroDoppioVeroEUnErroreCheSiRiconosce)
{
    try {
        mConnessione.esegui(
            u"insert into letve00f (lefili,lenrlv,leanlv,ledtlv,lecodi) values ('MI','4711',2026,'2026-11-12',1)"_s);
        FAIL() << "the key is not unique";
    } catch (const ErroreDatabase& errore) {
        EXPECT_TRUE(errore.sqlstate() == u"23000"_s || errore.codiceNativo() == 19)
            << errore.sqlstate().toStdString() << ' ' << errore.codiceNativo();
    }
}

} // namespace
