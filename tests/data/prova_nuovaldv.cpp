#include "data/nuovaldv.h"

#include "data/archivio.h"
#include "support/bancadati.h"
#include "support/ldvdiprova.h"
#include "support/spedizioni.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

#include <set>
#include <thread>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

/// A MariaDB whose table is the host's own, without the schema's generated column.
const std::string senzaColonna = "mariadbSenzaColonna";

class NuovaLdv : public testing::TestWithParam<std::string>
{
protected:
    NuovaLdv()
    {
        if (GetParam() == senzaColonna)
            mBase.esegui(u"alter table letve00f drop key letve_numerico, drop column lenrlv_numero;"_s);
        riempiDeposito(mBase);
        mBase.esegui(u"update letve00f set LERFGI='40', LEANGI=2026, lecdve='V01' where lenrlv='4711';"_s);
        mPrima = tutto();
        mConnessione = mBase.connessione();
    }
    ~NuovaLdv() override { impostaTraccia({}); }

    QList<QStringList> nuove() const
    {
        return mBase.righe(u"select "
                           u"lefili,lenrlv,leanlv,ledtlv,lecodi,lecmpe,ledest,leindd,lecapd,lelocd,leprod,"
                           u"lerico,lecdve,lelin1,"
                           "lenatu,lerife,lerifd,leport,lecoll,lepeso+0,levolu+0,lecnss+0,leanpc+0,lenote,"
                           "levame+0,leflbc,LERFGI,LEANGI,"
                           "LEDTCO from letve00f where ledtlv='2026-11-21' order by lenrlv"_s);
    }
    /// Everything but the waybills of today.
    QList<QList<QStringList>> tutto() const
    {
        return {mBase.righe(u"select * from letve00f where ledtlv<>'2026-11-21' order by lenrlv, lefili"_s),
                mBase.righe(u"select * from giace00f order by GINRGI"_s),
                mBase.righe(u"select * from clien order by Codice"_s),
                mBase.righe(u"select * from ekelvorqzt_tabge00f"_s)};
    }
    QString motivo(const RecordLdv& ldv, const Contesto& contesto)
    {
        try {
            emettiLdv(mConnessione, ldv, contesto);
        } catch (const Errore& errore) {
            return errore.testo();
        }
        return u"emessa"_s;
    }

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

    BancaDati mBase{GetParam() == senzaColonna ? "mariadb" : GetParam()};
    QList<QList<QStringList>> mPrima;
    Connessione mConnessione;
};

INSTANTIATE_TEST_SUITE_P(Basi, NuovaLdv, testing::Values("sqlite", "mariadb", senzaColonna),
                         nomeBase<testing::TestParamInfo<std::string>>);

QStringList ripulita(QStringList riga)
{
    for (QString& valore : riga)
        if (valore.contains(u'.') && eNumero(valore)) {
            while (valore.endsWith(u'0'))
                valore.chop(1);
            if (valore.endsWith(u'.'))
                valore.chop(1);
        }
    return riga;
}

TEST_P(NuovaLdv, LaRiconsegnaCopiaLaLdv)
{
    Contesto contesto = contestoDiProva();
    contesto.porto = 3;
    const LdvEmessa emessa = emettiLdv(mConnessione, LdvDiProva(mConnessione, u"4711"_s), contesto);
    EXPECT_EQ(emessa.numero, u"4716"_s);
    EXPECT_EQ(emessa.anno, 2026);
    EXPECT_EQ(emessa.filiale, u"MI"_s);
    EXPECT_EQ(emessa.mittente, QString());
    ASSERT_THAT(nuove(), SizeIs(1));
    EXPECT_EQ(
        ripulita(nuove().front()),
        QStringList({u"MI"_s,
                     u"4716"_s,
                     u"2026"_s,
                     u"2026-11-21"_s,
                     u"1001"_s,
                     u"A"_s,
                     u"Utensileria del Lago"_s,
                     u"Corso Italia 44"_s,
                     u"22100"_s,
                     u"Como"_s,
                     u"CO"_s,
                     u"R"_s,
                     u"V01"_s,
                     u"L05"_s,
                     u"MINUTERIA"_s,
                     u"ORD-881"_s,
                     u"2026-11-10"_s,
                     u"3"_s,
                     u"3"_s,
                     u"45.5"_s,
                     u"0.25"_s,
                     u"120"_s,
                     u"0"_s,
                     u"Riconsegna a Destinatario, giacenza 40/2026, LDV originale 4711\r\nSolo al mattino"_s,
                     u"850"_s,
                     u"NULL"_s,
                     u"40"_s,
                     u"2026"_s,
                     u"NULL"_s}));
    EXPECT_EQ(tutto(), mPrima) << "one row and nothing else";
}

TEST_P(NuovaLdv, IlResoVaAlMittenteSenzaContrassegno)
{
    Contesto contesto = contestoDiProva();
    contesto.lavoro = u"Reso a Mittente"_s;
    contesto.resoAMittente = true;
    EXPECT_EQ(emettiLdv(mConnessione, LdvDiProva(mConnessione, u"4711"_s), contesto).mittente,
              u"Utensileria del Lago Corso Italia 44 22100 Como (CO)"_s);
    ASSERT_THAT(nuove(), SizeIs(1));
    const QStringList riga = ripulita(nuove().front());
    EXPECT_EQ(riga.mid(6, 5),
              QStringList({u"Ferramenta Lombarda S.r.l."_s, u"Via Po 1"_s, u"20900"_s, u"Monza"_s, u"MB"_s}));
    EXPECT_EQ(riga[17], u"2"_s) << "no terms chosen: the original's";
    EXPECT_EQ(riga.mid(21, 2), QStringList({u"0"_s, u"0"_s}));
    EXPECT_TRUE(riga[23].startsWith(u"Reso a Mittente, giacenza 40/2026, LDV originale 4711"_s));

    mBase.esegui(u"delete from clien where Codice=1001;"_s);
    EXPECT_EQ(motivo(LdvDiProva(mConnessione, u"4711"_s), contesto),
              u"Il mittente, cliente 1001, non è in archivio: nessuna lettera di vettura è stata emessa."_s);
    EXPECT_THAT(nuove(), SizeIs(1));
}

TEST_P(NuovaLdv, DaUnaLdvQuasiVuota)
{
    emettiLdv(mConnessione, LdvDiProva(mConnessione, u"4712"_s), contestoDiProva());
    ASSERT_THAT(nuove(), SizeIs(1));
    const QStringList riga = nuove().front();
    EXPECT_EQ(riga[6], u"NULL"_s);
    EXPECT_EQ(riga[23], u"Riconsegna a Destinatario, LDV originale 4712"_s)
        << "it is linked to no held shipment";
    EXPECT_EQ(riga[26], u"NULL"_s);
}

TEST_P(NuovaLdv, IlNumeroSegueIlPiuAltoDellAnnoDiOgniFiliale)
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

TEST_P(NuovaLdv, IlNumeroSiCercaConCioCheIlDatabaseOffre)
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

TEST_P(NuovaLdv, ConLIndiceNessunaLdvDellAnnoSiLegge)
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

TEST_P(NuovaLdv, UnaColonnaDelloStessoNomeMaDAltriNonServe)
{
    if (GetParam() == "sqlite")
        mBase.esegui(u"alter table letve00f add column lenrlv_numero integer;"_s);
    else if (GetParam() == "mariadb")
        mBase.esegui(u"alter table letve00f drop key letve_numerico, drop column lenrlv_numero, "
                     "add lenrlv_numero bigint default 7777;"_s);
    else
        mBase.esegui(u"alter table letve00f add lenrlv_numero bigint default 7777;"_s);
    EXPECT_EQ(emettiLdv(mConnessione, LdvDiProva(mConnessione, u"4711"_s), contestoDiProva()).numero,
              u"4716"_s);
}

TEST_P(NuovaLdv, LaColonnaDelNumeroNonSiVedeENonSiScrive)
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

TEST_P(NuovaLdv, ConIlControlloSiRicontaDentro)
{
    mBase.esegui(
        u"update giace00f set GIDTBF=null; update letve00f set LERFGI=null, LEANGI=null where lenrlv='4714';"_s
            .replace(u"; "_s, u";\n"_s));
    Contesto contesto = contestoDiProva();
    contesto.controlloGiacenza = true;
    const LdvDiProva ldv(mConnessione, u"4711"_s);
    EXPECT_EQ(emettiLdv(mConnessione, ldv, contesto).numero, u"4716"_s) << "the first waybill alone";
    EXPECT_EQ(motivo(ldv, contesto),
              u"Per la giacenza 40/2026 un'altra postazione ha emesso nel frattempo una lettera di vettura: "
              "nessun'altra è stata emessa. Riaprire la schermata e ripetere, se serve."_s);
    contesto.riconsegne = 1;
    EXPECT_EQ(emettiLdv(mConnessione, ldv, contesto).numero, u"4717"_s) << "the operator knew of it";
    mBase.esegui(u"update giace00f set GIDTBF='2026-11-20';"_s);
    contesto.riconsegne = 2;
    EXPECT_EQ(
        motivo(ldv, contesto),
        u"La giacenza 40/2026 è stata chiusa nel frattempo: nessuna lettera di vettura è stata emessa."_s);
    contesto.numeroGiacenza = u"77"_s;
    EXPECT_EQ(motivo(ldv, contesto),
              u"La giacenza 77/2026 non è più in archivio: nessuna lettera di vettura è stata emessa."_s);
    EXPECT_THAT(nuove(), SizeIs(2));
}

TEST_P(NuovaLdv, DueEmittentiInsiemeNonDannoLoStessoNumero)
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

TEST_P(NuovaLdv, DuePostazioniSullaStessaGiacenzaUnaSolaEmette)
{
    mBase.esegui(u"update giace00f set GIDTBF=null;"_s);
    mBase.esegui(u"update letve00f set LERFGI=null, LEANGI=null where lenrlv='4714';"_s);
    std::atomic<int> emesse = 0;
    std::atomic<int> battute = 0;
    std::vector<std::thread> postazioni;
    for (int i = 0; i < 4; ++i)
        postazioni.emplace_back([&] {
            try {
                Connessione connessione = mBase.connessione();
                Contesto contesto = contestoDiProva();
                contesto.controlloGiacenza = true;
                emettiLdv(connessione, LdvDiProva(connessione, u"4711"_s), contesto);
                ++emesse;
            } catch (const Errore&) {
                ++battute;
            }
        });
    for (std::thread& postazione : postazioni)
        postazione.join();
    EXPECT_EQ(emesse, 1);
    EXPECT_EQ(battute, 3);
    EXPECT_THAT(nuove(), SizeIs(1));
}

TEST_P(NuovaLdv, UnNumeroPresoDaUnAltroProgrammaSiSalta)
{
    // A program that does not queue takes the number between the look and the insert.
    int volte = 0;
    impostaTraccia([&](EventoDati evento, const QString& testo) {
        if (evento == EventoDati::istruzione &&
            testo.startsWith(u"insert into letve00f"_s, Qt::CaseInsensitive) && ++volte == 1)
            throw ErroreDatabase(u"23000"_s, 1062, u"Duplicate entry"_s, testo);
    });
    EXPECT_EQ(emettiLdv(mConnessione, LdvDiProva(mConnessione, u"4711"_s), contestoDiProva()).numero,
              u"4716"_s);
    EXPECT_EQ(volte, 2);
}

TEST_P(NuovaLdv, IlNumeroDoppioVeroEUnErroreCheSiRiconosce)
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

TEST_P(NuovaLdv, UnGuastoInOgniPuntoNonLasciaNiente)
{
    const LdvDiProva ldv(mConnessione, u"4711"_s);
    for (const char16_t* punto : {u"update ekelvorqzt", u"select coalesce", u"insert into letve00f"}) {
        impostaTraccia([&](EventoDati evento, const QString& testo) {
            if (evento == EventoDati::istruzione &&
                testo.startsWith(QString::fromUtf16(punto), Qt::CaseInsensitive))
                throw ErroreDatabase(u"08S01"_s, 1, u"guasto di prova"_s, testo);
        });
        EXPECT_EQ(motivo(ldv, contestoDiProva()), u"guasto di prova"_s);
        impostaTraccia({});
        mConnessione.apri(mBase.accesso());
        EXPECT_THAT(nuove(), IsEmpty());
    }
    impostaTraccia([](EventoDati evento, const QString& testo) {
        if (evento == EventoDati::conferma)
            throw ErroreDatabase(u"08S01"_s, 1, u"guasto di prova"_s, testo);
    });
    EXPECT_EQ(motivo(ldv, contestoDiProva()), u"guasto di prova"_s);
    impostaTraccia({});
    EXPECT_THAT(nuove(), IsEmpty());
    EXPECT_EQ(tutto(), mPrima);
}

TEST_P(NuovaLdv, UnRecordVuotoSiRifiuta)
{
    EXPECT_EQ(
        motivo(LdvDiProva(), contestoDiProva()),
        u"La lettera di vettura da cui partire non è stata trovata in archivio: nessuna lettera di vettura è "
        "stata emessa."_s);
    EXPECT_THAT(nuove(), IsEmpty());
}

} // namespace
