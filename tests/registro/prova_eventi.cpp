#include "operazioni.h"

#include "data/istruzioni.h"

#include <QElapsedTimer>

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Eventi : public ConRegistro
{
protected:
    /// What one statement of any program leaves in the register: what, before, after.
    QList<QStringList> dopo(const QString& istruzione)
    {
        const qsizetype prima = registrati(mBase).size();
        mBase.esegui(istruzione);
        QList<QStringList> nuovi;
        for (const QStringList& riga : registrati(mBase).mid(prima))
            nuovi << riga.mid(6);
        return nuovi;
    }

    /// As the database writes an amount joined to a text.
    QString importo(const QString& euro) const { return mariadb() ? euro + u".00"_s : euro; }
};

INSTANTIATE_TEST_SUITE_P(Basi, Eventi, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(Eventi, TuttoQuelloCheFaIlComponenteVaNelRegistro)
{
    faiTutto(mBase);
    QList<QStringList> attesi = {
        {u"MI"_s, u"4711"_s, u"2026"_s, u"registrata"_s, u"NULL"_s, u"20/11/2026 - L'insegna non c'è"_s},
        {u"MI"_s, u"4711"_s, u"2026"_s, u"collegata"_s, u"NULL"_s, u"NULL"_s},
        {u"MI"_s, u"4711"_s, u"2026"_s, u"avvisata"_s, u"NULL"_s, u"1"_s},
        {u"MI"_s, u"4711"_s, u"2026"_s, u"avvisata"_s, u"1"_s, u"2"_s},
        {u"MI"_s, u"4711"_s, u"2026"_s, u"descrizione"_s, u"20/11/2026 - L'insegna non c'è"_s,
         u"Rifiuta: l'imballo è rotto"_s},
        {u"MI"_s, u"4711"_s, u"2026"_s, u"chiusa"_s, u"NULL"_s, u"2026-11-30"_s},
        {u"MI"_s, u"4711"_s, u"2026"_s, u"addebitata"_s, u"sosta= fisso="_s,
         mariadb() ? u"sosta=7.50 fisso=5.00"_s : u"sosta=7.5 fisso=5"_s}};

    const auto trovati = registrati(mBase);
    ASSERT_EQ(trovati.size(), attesi.size() + 1);
    for (qsizetype i = 0; i < attesi.size(); ++i) {
        EXPECT_EQ(trovati[i].mid(3), attesi[i]);
        EXPECT_EQ(trovati[i].mid(1, 2), (QStringList{u"42"_s, u"2026"_s}));
        // The session's user, not the one that the triggers belong to.
        EXPECT_THAT(trovati[i][0].toStdString(),
                    testing::StartsWith(mariadb() ? "prova_" : addetto.toStdString()));
    }
    const QStringList emessa = trovati.last();
    EXPECT_EQ(emessa.mid(1, 3), (QStringList{u"42"_s, u"2026"_s, u"MI"_s}));
    EXPECT_EQ(emessa[4], u"4716"_s);
    EXPECT_EQ(emessa[6], u"riconsegnata"_s);
    EXPECT_THAT(emessa[8].toStdString(), testing::HasSubstr("Riconsegna a Destinatario"));
}

TEST_P(Eventi, NelleTabelleDelComponenteNonCambiaNiente)
{
    faiTutto(mBase);
    const BancaDati senza{GetParam()};
    riempiDeposito(senza);
    faiTutto(senza);
    EXPECT_EQ(contenuto(mBase), contenuto(senza));
}

TEST_P(Eventi, UnaRigaCheNasceIntera)
{
    EXPECT_THAT(
        dopo(u"insert into giace00f (GIFILI,GINRLV,GIANLV,GINRGI,GIANGI,GINRAV,GIDTBF,GIIMGI,GIDES1) values "
             "('MI','4712',2026,'50',2026,'1','2026-11-30',15,'x')"_s),
        ElementsAre(QStringList{u"registrata"_s, u"NULL"_s, u"x"_s},
                    QStringList{u"avvisata"_s, u"NULL"_s, u"1"_s},
                    QStringList{u"chiusa"_s, u"NULL"_s, u"2026-11-30"_s},
                    QStringList{u"addebitata"_s, u"NULL"_s, u"sosta=%1 fisso="_s.arg(importo(u"15"_s))}));
}

TEST_P(Eventi, QuelloCheFannoGliAltriProgrammi)
{
    EXPECT_THAT(dopo(u"update giace00f set GINRFA='78' where GINRGI='40'"_s),
                ElementsAre(QStringList{u"fatturata"_s, u"77"_s, u"78"_s}));
    EXPECT_THAT(dopo(u"update giace00f set GIDTBF=null where GINRGI='40'"_s),
                ElementsAre(QStringList{u"riaperta"_s, u"2026-11-18"_s, u"NULL"_s}));
    EXPECT_THAT(dopo(u"update giace00f set GIDES1=upper(GIDES1) where GINRGI='40'"_s),
                ElementsAre(QStringList{u"descrizione"_s, u"13/11/2026 - Chiuso per ferie"_s,
                                        u"13/11/2026 - CHIUSO PER FERIE"_s}));
    EXPECT_THAT(dopo(u"update giace00f set GINRGI='41' where GINRGI='40'"_s),
                ElementsAre(QStringList{u"rinumerata"_s, u"40/2026"_s, u"41/2026"_s}));
    EXPECT_THAT(dopo(u"update letve00f set LEDTCO='2026-12-01' where lenrlv='4714'"_s),
                ElementsAre(QStringList{u"consegnata"_s, u"NULL"_s, u"2026-12-01"_s}));
    EXPECT_THAT(dopo(u"update letve00f set LERFGI='41' where lenrlv='4714'"_s),
                ElementsAre(QStringList{u"scollegata"_s, u"NULL"_s, u"NULL"_s},
                            QStringList{u"collegata"_s, u"NULL"_s, u"NULL"_s}));
    EXPECT_THAT(dopo(u"delete from letve00f where lenrlv='4714'"_s),
                ElementsAre(QStringList{u"scollegata"_s, u"NULL"_s, u"NULL"_s}));
    EXPECT_THAT(dopo(u"delete from giace00f where GINRGI='41'"_s),
                ElementsAre(QStringList{u"cancellata"_s, u"13/11/2026 - CHIUSO PER FERIE"_s, u"NULL"_s}));
}

TEST_P(Eventi, QuelloCheNonRiguardaUnCasoNonViEntra)
{
    EXPECT_THAT(dopo(u"update letve00f set lenote='x', LEDTCO='2026-12-01' where lenrlv='4712'"_s),
                IsEmpty());
    EXPECT_THAT(dopo(u"update giace00f set GIGGSO=7, GINRAV=GINRAV where GINRGI='40'"_s), IsEmpty());
    EXPECT_THAT(dopo(u"delete from letve00f where lenrlv='4712'"_s), IsEmpty());
}

TEST_P(Eventi, QuelloCheNonSiConfermaNonVResta)
{
    const qsizetype prima = registrati(mBase).size();
    EXPECT_THROW(mBase.esegui(u"insert into giace00f (GIFILI,GINRLV,GIANLV,GINRGI,GIANGI) values "
                              "('MI','4712',2026,'40',2026)"_s),
                 ErroreDatabase);
    EXPECT_EQ(registrati(mBase).size(), prima);
}

TEST_P(Eventi, LIstanteEInTempoUniversale)
{
    const auto prima = QDateTime::currentDateTimeUtc().addSecs(-1);
    mBase.esegui(u"update giace00f set GINRFA='79' where GINRGI='40'"_s);
    const QString testo = mBase.righe(u"select istante from registro order by progressivo"_s).last().first();
    auto istante = QDateTime::fromString(testo.left(19), u"yyyy-MM-dd HH:mm:ss"_s);
    istante.setTimeSpec(Qt::UTC);
    ASSERT_TRUE(istante.isValid()) << testo.toStdString();
    EXPECT_GE(istante, prima);
    EXPECT_LE(istante, QDateTime::currentDateTimeUtc().addSecs(1));
}

TEST_P(Eventi, UnaDescrizioneLunghissimaCiSta)
{
    const QString lunga = QString(65'000, u'x');
    mBase.esegui(u"update giace00f set GIDES1='%1' where GINRGI='40'"_s.arg(lunga));
    mBase.esegui(u"update giace00f set GIDES1='corta' where GINRGI='40'"_s);
    const auto ultima = registrati(mBase).last();
    EXPECT_EQ(ultima[7], lunga);
    EXPECT_EQ(ultima[8], u"corta"_s);
}

/// Figures, for who changes the triggers: no assertion on time.
TEST_P(Eventi, QuantoCostaAUnSalvataggio)
{
    const auto salvataggi = [&](const BancaDati& base) {
        base.esegui(u"update ekelvorqzt_tabge00f set UltimoNumGiacenza=100"_s);
        Connessione connessione = base.connessione();
        QElapsedTimer tempo;
        tempo.start();
        for (int i = 0; i < 200; ++i) {
            connessione.esegui(
                u"insert into giace00f (GIFILI,GINRLV,GIANLV,GINRGI,GIANGI,GIDES1) values ('MI','%1',2026,'%1',2026,'x')"_s
                    .arg(1000 + i));
            connessione.esegui(istruzioni::primoAvviso(ChiaveGiacenza{QString::number(1000 + i), 2026},
                                                       QDate(2026, 11, 20)));
        }
        return tempo.nsecsElapsed() / 200'000;
    };
    const BancaDati senza{GetParam()};
    riempiDeposito(senza);
    const auto prima = salvataggi(senza);
    const auto con = salvataggi(mBase);
    RecordProperty("microsecondiSenza", static_cast<int>(prima));
    RecordProperty("microsecondiCon", static_cast<int>(con));
    EXPECT_EQ(mBase.leggi(u"select count(*) from registro where fatto='registrata'"_s), u"200"_s);
}

} // namespace
