// The screen that goes, closed or deleted, under one of its own messages.

#include "registration/registrazionediprova.h"

#include "support/stampa.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class RegistrazioneChiusa : public RegistrazioneDiProva
{};

INSTANTIATE_TEST_SUITE_P(Basi, RegistrazioneChiusa, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(RegistrazioneChiusa, ChiusaSottoUnMessaggioLaSchermataNonFaAltro)
{
    consegna(u"4711"_s);
    const QSignalSpy uscite(mSchermata, &Schermata::Uscita);
    mMessaggi.mentreAperto([this](QWidget*, const Messaggio&) {
        mSchermata->close();
        mSchermata->close();
    });
    QTest::keyClick(c("cmdSalva"), Qt::Key_Space);
    EXPECT_EQ(uscite.size(), 1);
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Giacenza aggiunta in database."_s));
    EXPECT_THAT(mStampe, IsEmpty());
    EXPECT_EQ(mBase.leggi(u"select GINRAV from giace00f where GINRLV='4711'"_s), std::nullopt);
}

TEST_P(RegistrazioneChiusa, LaSchermataPuoSparireSottoOgniSuoMessaggio)
{
    mMessaggi.mentreAperto([this](QWidget*, const Messaggio&) { delete mSchermata; });
    // A customer refused during a hand-over.
    consegna(u"4711"_s, u"12/11/2026"_s, u"MI"_s, u"77"_s);
    EXPECT_TRUE(mSchermata.isNull());
    // A refusal of a field that is left.
    apri();
    scrivi("txtCodiceCli", u"abc"_s);
    QTest::keyClick(c("txtCodiceCli"), Qt::Key_Tab);
    QCoreApplication::processEvents();
    EXPECT_TRUE(mSchermata.isNull());
    // A lookup that fails when its date is left.
    apri();
    mMessaggi.prendi();
    scrivi("txtCodiceCli", u"1001"_s);
    lascia("txtCodiceCli");
    scrivi("txtFiliale", u"MI"_s);
    scrivi("txtLDV", u"4711"_s);
    scrivi("txtDataLdv", u"12112026"_s);
    fallisce(u"SELECT letve00f"_s);
    QTest::keyClick(c("txtDataLdv"), Qt::Key_Tab);
    QCoreApplication::processEvents();
    guarisce();
    EXPECT_TRUE(mSchermata.isNull());
    EXPECT_EQ(mMessaggi.prendi().size(), 1U);
    // A goods type that cannot be kept.
    apri();
    tasto("cmbNaturaMerce", Qt::Key_F11);
    EXPECT_TRUE(mSchermata.isNull());
    EXPECT_EQ(mMessaggi.prendi().size(), 1U);
    // The notice that would have followed a save is abandoned, the held shipment stays.
    consegna(u"4711"_s);
    QTest::keyClick(c("cmdSalva"), Qt::Key_Space);
    EXPECT_TRUE(mSchermata.isNull());
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Giacenza aggiunta in database."_s));
    EXPECT_THAT(mStampe, IsEmpty());
    EXPECT_EQ(mBase.righe(u"select GINRGI,GINRAV from giace00f where GINRLV='4711'"_s),
              (QList<QStringList>{{u"42"_s, u"NULL"_s}}));
}

} // namespace
