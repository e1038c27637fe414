#include "desk/deskdiprova.h"

#include <QAccessible>
#include <QMenu>

using namespace giacenza;
using namespace giacenza::prove;
using testing::IsEmpty;

namespace {

class ProvaRisultati : public DeskDiProva
{};

} // namespace

TEST_P(ProvaRisultati, dopoLaRegistrazioneSiVedeIlCaso)
{
    scansiona(u"4711"_s);
    attendi([this] { return pagina() == u"pagRisultati"_s; });
    premi(Qt::Key_Return);
    mBase.esegui(u"insert into giace00f (GIFILI,GINRLV,GIANLV,GICODI,GIFIGI,GINRGI,GIANGI,GIDTGI) values "
                 "('MI','4711',2026,1001,'MI','46',2026,'2026-11-20')"_s);
    mBase.esegui(u"update letve00f set LERFGI='46', LEANGI=2026 where lefili='MI' and lenrlv='4711' and "
                 "leanlv=2026"_s);
    Q_EMIT mComponente->fine();
    attendi([this] { return pagina() == u"pagCaso"_s; });
    EXPECT_EQ(figlio<QLabel>(u"lblCaso")->text(), u"Giacenza 46/2026 · LDV 4711/2026 MI"_s);
    EXPECT_TRUE(figlio<QTableView>(u"tabPassi")->hasFocus());
}

TEST_P(ProvaRisultati, piuDiUnaSiRileggeSenzaMuovereNulla)
{
    mBase.esegui(
        u"insert into letve00f (lefili,lenrlv,leanlv,ledtlv,lecodi) values ('BO','4722',2025,'2025-03-01',1002)"_s);
    scansiona(u"4722"_s);
    attendi([this] { return pagina() == u"pagRisultati"_s; });
    premi(Qt::Key_Down);
    premi(Qt::Key_L, Qt::ControlModifier);
    digita(u"99"_s);
    mBase.esegui(u"update giace00f set GIDTBF='2026-11-20' where GINRGI='42'"_s);
    premi(Qt::Key_F5);
    const auto* tabella = figlio<QTableView>(u"tabRisultati");
    attendi([&] {
        return colonna(tabella, 0) ==
               QStringList{u"LDV non in giacenza"_s, u"giacenza 42/2026, chiusa il 20/11/2026"_s};
    });
    EXPECT_EQ(tabella->currentIndex().row(), 0) << "the waybill that was chosen";
    EXPECT_EQ(pagina(), u"pagRisultati"_s);
    EXPECT_TRUE(figlio<QLineEdit>(u"txtCerca")->hasFocus());
    EXPECT_EQ(figlio<QLineEdit>(u"txtCerca")->text(), u"99"_s);
}

TEST_P(ProvaRisultati, iTastiValgonoPerIlCasoSceltoTraPiuDiUno)
{
    mBase.esegui(
        u"insert into letve00f (lefili,lenrlv,leanlv,ledtlv,lecodi) values ('BO','4722',2025,'2025-03-01',1002)"_s);
    scansiona(u"4722"_s);
    attendi([this] { return pagina() == u"pagRisultati"_s; });
    attendi([this] { return mDesk->casi().size() == 1; });
    EXPECT_EQ(mDesk->casi().front().motivo, u"10/11/2026 - Chiuso per ferie"_s) << "the whole case";
    premi(Qt::Key_R, Qt::ControlModifier);
    EXPECT_THAT(chiamate(), testing::Contains(testing::Truly([](const QString& chiamata) {
                    return chiamata.startsWith(u"caso 1 42|10/11/2026|4722|05/11/2026|1001"_s);
                })));
    premi(Qt::Key_Down);
    EXPECT_THAT(mDesk->casi(), IsEmpty()) << "a waybill that is not held";
    premi(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(detto(), u"Nessun caso scelto: indicarne uno nell'elenco, o cercarlo."_s);
}

TEST_P(ProvaRisultati, leVociDelCasoSiLeggonoDallaTastiera)
{
    scansiona(u"42/2026"_s);
    attendi([this] { return pagina() == u"pagCaso"_s; });
    QStringList voci;
    for (const auto* voce : figlio<QWidget>(u"pagCaso")->findChildren<QLabel*>())
        if (voce->textInteractionFlags() & Qt::TextSelectableByKeyboard) {
            EXPECT_TRUE(voce->focusPolicy() & Qt::TabFocus) << voce->text().toStdString();
            voci << QAccessible::queryAccessibleInterface(const_cast<QLabel*>(voce))->text(QAccessible::Name);
        }
    EXPECT_EQ(voci.size(), 7);
    EXPECT_THAT(voci, testing::IsSupersetOf({u"Destinatario: Bar Centrale Lecco LC"_s,
                                             u"Motivo: 10/11/2026 - Chiuso per ferie"_s}));
}

TEST_P(ProvaRisultati, unaRiletturaLasciaQuelloCheAltriHannoDetto)
{
    scansiona(u"zz9"_s);
    const QString prima = detto();
    ASSERT_FALSE(prima.isEmpty());
    premi(Qt::Key_F5);
    attendiElenco();
    EXPECT_EQ(detto(), prima);
}

TEST_P(ProvaRisultati, unaScansioneColMenuDellaRigaApertoNonSceglieNulla)
{
    vai(u"43/2026"_s);
    for (const QString& numero : {u"A99"_s, u"p98"_s}) {
        Q_EMIT elenco()->customContextMenuRequested({40, 40});
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        menu->setActiveAction(mDesk->azioni().gestione);
        QTest::keyClick(menu, numero.front().toLatin1());
        EXPECT_FALSE(QApplication::activePopupWidget());
        mFinestra->activateWindow(); // without a window manager nobody gives it its focus back
        ASSERT_TRUE(QTest::qWaitForWindowActive(mFinestra.get()));
        scansiona(numero.mid(1));
        EXPECT_EQ(detto(),
                  u"Nessuna corrispondenza per %1. Cercato come: LDV %1, giacenza %1, riferimento %1."_s.arg(
                      numero));
    }
    EXPECT_THAT(mStampate, IsEmpty());
    EXPECT_THAT(chiamate(), testing::Each(testing::Not(testing::Truly(
                                [](const QString& chiamata) { return chiamata.startsWith(u"caso"_s); }))));
}

INSTANTIATE_TEST_SUITE_P(Basi, ProvaRisultati, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);
