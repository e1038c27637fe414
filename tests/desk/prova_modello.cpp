#include "desk/finestra/colonnecasi.h"
#include "desk/finestra/modellocasi.h"
#include "desk/finestra/tabellacasi.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

#include <QScrollBar>
#include <QTest>

using namespace giacenza;
using namespace giacenza::desk;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const QDate oggi(2026, 11, 20);
constexpr int setteGiorni = 7;

/// Held for so many days.
RigaCaso caso(int numero, int giorni, bool conCondizioni = true)
{
    Caso c;
    c.chiave = {QString::number(numero), 2026};
    c.ldv = {u"MI"_s, QString::number(4000 + numero), 2026};
    c.ragioneSociale = numero % 2 == 0 ? u"Alfa"_s : u"Beta"_s;
    c.dal = oggi.addDays(-giorni);
    c.avvisi = u"1"_s;
    c.ultimoAvviso = c.dal;
    c.colli = 1;
    if (conCondizioni)
        c.condizioni = CondizioniSosta{u"2.5"_s, u"5"_s, u"1.5"_s, u"4"_s};
    return rigaDi(c, oggi, setteGiorni);
}

QStringList colonna(const QAbstractItemModel& modello, int quale)
{
    QStringList testi;
    for (int riga = 0; riga < modello.rowCount(); ++riga)
        testi << modello.index(riga, quale).data().toString();
    return testi;
}

class ProvaTabella : public testing::Test
{
protected:
    ProvaTabella()
    {
        std::vector<RigaCaso> righe;
        for (int i = 1; i <= quante; ++i)
            righe.push_back(caso(i, i % 30));
        mModello.sostituisci(std::move(righe));
        mTabella.resize(900, 400);
        mTabella.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&mTabella));
    }
    QStringList marcate() const
    {
        QStringList nomi;
        for (const int riga : mTabella.marcate())
            nomi << mModello.riga(riga).caso.chiave.numero;
        nomi.sort();
        return nomi;
    }
    QString prima() const { return mModello.riga(mTabella.rowAt(0)).caso.chiave.numero; }

    static constexpr int quante = 500;
    ModelloCasi mModello;
    TabellaCasi mTabella{&mModello};
};

} // namespace

TEST(ModelloCasi, perPrimoCioCheScade)
{
    ModelloCasi modello;
    modello.sostituisci({caso(1, 2), caso(2, 9), caso(3, 9, false), caso(4, 5)});
    EXPECT_THAT(colonna(modello, 1), ElementsAre(u"2/2026"_s, u"4/2026"_s, u"1/2026"_s, u"3/2026"_s));
    EXPECT_THAT(colonna(modello, colonnaFranchi), ElementsAre(u"-4"_s, u"0"_s, u"3"_s, u""_s));
    EXPECT_THAT(colonna(modello, colonnaEuro),
                ElementsAre(u"8,50 €"_s, u"2,50 €"_s, u"2,50 €"_s, u"senza condizioni"_s));
    EXPECT_THAT(colonna(modello, colonnaStato),
                ElementsAre(u"in addebito"_s, u"in scadenza"_s, u"in attesa"_s, u"ferma"_s));
}

TEST(ModelloCasi, ogniColonnaOrdinaNeiDueVersi)
{
    ModelloCasi modello;
    modello.sostituisci({caso(10, 2), caso(9, 30), caso(100, 5)});
    modello.sort(1, Qt::AscendingOrder);
    EXPECT_THAT(colonna(modello, 1), ElementsAre(u"9/2026"_s, u"10/2026"_s, u"100/2026"_s)) << "as numbers";
    modello.sort(1, Qt::DescendingOrder);
    EXPECT_THAT(colonna(modello, 1), ElementsAre(u"100/2026"_s, u"10/2026"_s, u"9/2026"_s));
    for (int c = 0; c < modello.columnCount(); ++c) {
        modello.sort(c, Qt::AscendingOrder);
        for (int riga = 1; riga < modello.rowCount(); ++riga)
            EXPECT_FALSE(
                colonneCasi()[static_cast<std::size_t>(c)].prima(modello.riga(riga), modello.riga(riga - 1)))
                << c;
        EXPECT_FALSE(modello.headerData(c, Qt::Horizontal, Qt::ToolTipRole).toString().isEmpty());
    }
}

TEST(ModelloCasi, ilFiltroValeAncheperITotali)
{
    ModelloCasi modello;
    modello.sostituisci({caso(1, 2), caso(2, 9), caso(3, 9)});
    modello.setFiltro(u"alfa"_s);
    EXPECT_THAT(colonna(modello, 1), ElementsAre(u"2/2026"_s));
    EXPECT_EQ(modello.totali().casi, 1);
    EXPECT_EQ(modello.tutte(), 3U);
    modello.aggiungi({caso(4, 1)});
    EXPECT_EQ(modello.totali().casi, 2);
    modello.setFiltro({});
    EXPECT_EQ(modello.totali().colli, 4);
}

TEST(Importi, siLegggonoInItaliano)
{
    EXPECT_EQ(euro(123456), u"1.234,56 €"_s);
    EXPECT_EQ(chili(466224), u"4.662,24 kg"_s);
    EXPECT_EQ(chili(1200), u"12 kg"_s);
}

TEST_F(ProvaTabella, unaRiletturaLasciaSegniEPosto)
{
    mTabella.mostraRiga(300);
    QTest::keyClick(&mTabella, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(&mTabella, Qt::Key_Down, Qt::ShiftModifier);
    const QStringList segnate = marcate();
    ASSERT_EQ(segnate.size(), 3);
    const QString inCima = prima();
    const QString corrente = mModello.riga(mTabella.currentIndex().row()).caso.chiave.numero;
    std::vector<RigaCaso> nuove;
    for (int i = quante + 20; i >= 1; --i)
        if (i != 7)
            nuove.push_back(caso(i, i % 30));
    mModello.sostituisci(std::move(nuove));
    EXPECT_EQ(marcate(), segnate);
    EXPECT_EQ(mModello.riga(mTabella.currentIndex().row()).caso.chiave.numero, corrente);
    EXPECT_EQ(prima(), inCima);
}

TEST_F(ProvaTabella, unaRiletturaLasciaIlPostoAncheDiTraverso)
{
    QScrollBar* traverso = mTabella.horizontalScrollBar();
    ASSERT_GT(traverso->maximum(), 200);
    for (const int riga : {300, 0}) {
        mTabella.mostraRiga(riga);
        traverso->setValue(150);
        std::vector<RigaCaso> nuove;
        for (int i = 1; i <= quante; ++i)
            nuove.push_back(caso(i, i % 30));
        mModello.sostituisci(std::move(nuove));
        EXPECT_EQ(traverso->value(), 150) << riga;
        QCoreApplication::processEvents();
        EXPECT_EQ(traverso->value(), 150) << riga;
    }
}

TEST_F(ProvaTabella, moltiSegniSonoPochiTratti)
{
    constexpr int tutte = 20'000;
    const auto righe = [] {
        std::vector<RigaCaso> nuove;
        for (int i = 1; i <= tutte; ++i)
            nuove.push_back(caso(i, i % 30));
        return nuove;
    };
    mModello.sostituisci(righe());
    mTabella.selectAll();
    mTabella.selectionModel()->select(mModello.index(9'000, 0),
                                      QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
    const QString tolta = mModello.riga(9'000).caso.chiave.numero;
    mModello.sostituisci(righe());
    EXPECT_EQ(mTabella.selectionModel()->selection().size(), 2) << "above the one that is not, and below";
    EXPECT_EQ(mTabella.marcate().size(), tutte - 1);
    EXPECT_FALSE(marcate().contains(tolta));
}

TEST_F(ProvaTabella, ilFiltroAvantiEIndietroLasciaISegni)
{
    mTabella.mostraRiga(3);
    const QStringList segnata = marcate();
    mModello.setFiltro(u"niente che ci sia"_s);
    EXPECT_THAT(marcate(), IsEmpty());
    mModello.setFiltro({});
    EXPECT_EQ(mModello.riga(mTabella.currentIndex().row()).caso.chiave.numero, segnata.first());
}

TEST_F(ProvaTabella, invioEDoppioClicPrendonoLaRiga)
{
    QList<int> prese;
    QObject::connect(&mTabella, &TabellaDesk::presa, [&](int riga) { prese << riga; });
    mTabella.mostraRiga(2);
    QTest::keyClick(&mTabella, Qt::Key_Return);
    const QPoint quarta = mTabella.visualRect(mModello.index(4, 1)).center();
    QTest::mouseClick(mTabella.viewport(), Qt::LeftButton, {}, quarta);
    QTest::mouseDClick(mTabella.viewport(), Qt::LeftButton, {}, quarta);
    EXPECT_THAT(prese, ElementsAre(2, 4));
}
