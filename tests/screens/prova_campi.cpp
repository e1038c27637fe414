#include "screens/campi.h"

#include "screens/avvertenza.h"
#include "support/stampa.h"
#include "widgets/campodata.h"

#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTest>

#include <gmock/gmock.h>

#include <tuple>

using namespace Qt::StringLiterals;
using namespace giacenza;

namespace {

constexpr auto riga = "txtRiga"_L1;
constexpr auto data = "txtData"_L1;
constexpr auto etichetta = "lblEtichetta"_L1;
constexpr auto elenco = "cmbElenco"_L1;
constexpr auto libero = "cmbLibero"_L1;
constexpr auto blocco = "txtBlocco"_L1;

const MappaSpedizione mappa = {
    {u"a", "txtRiga", Conversione::testo},      {u"b", "txtData", Conversione::data},
    {u"c", "lblEtichetta", Conversione::testo}, {u"d", "cmbElenco", Conversione::posizione},
    {u"e", "cmbLibero", Conversione::testo},    {u"f", "txtBlocco", Conversione::testo},
    {u"GINRLV", "", Conversione::marca},
};

/// A screen with one control of each kind that is filled.
class Campi : public testing::Test
{
protected:
    Campi()
    {
        aggiunge(mRiga, riga);
        aggiunge(mData, data);
        aggiunge(mEtichetta, etichetta);
        aggiunge(mElenco, elenco);
        aggiunge(mLibero, libero);
        aggiunge(mBlocco, blocco);
        mElenco->addItems({u"1 - Franco"_s, u"2 - Assegnato"_s});
        mElenco->setCurrentIndex(-1);
        mLibero->setEditable(true);
        mCampi = new CampiSchermata(&mSchermata, mappa);
    }

    /// What a row with something for every control leaves, and the next with nothing for any.
    void riempie()
    {
        for (const auto nome : {riga, etichetta, libero, blocco})
            mCampi->scrivi(nome, u"prima"_s);
        mCampi->scrivi(data, u"12/11/2026"_s);
        mCampi->seleziona(elenco, 1);
    }
    void lasciaTutti()
    {
        for (const auto nome : {riga, data, etichetta, elenco, libero, blocco})
            mCampi->lascia(nome);
    }

    QWidget mSchermata;
    QLineEdit* mRiga = nullptr;
    CampoData* mData = nullptr;
    QLabel* mEtichetta = nullptr;
    QComboBox* mElenco = nullptr;
    QComboBox* mLibero = nullptr;
    QPlainTextEdit* mBlocco = nullptr;
    CampiSchermata* mCampi = nullptr;

private:
    template<class Controllo>
    void aggiunge(Controllo*& dove, QLatin1String nome)
    {
        dove = new Controllo(&mSchermata);
        dove->setObjectName(nome);
    }
};

TEST_F(Campi, CioCheUnaRigaNonHaRestaVisibileENonVale)
{
    riempie();
    lasciaTutti();
    const std::pair<QWidget*, QString> attesi[] = {
        {mRiga, u"prima"_s},           {mData, u"12/11/2026"_s}, {mEtichetta, u"prima"_s},
        {mElenco, u"2 - Assegnato"_s}, {mLibero, u"prima"_s},    {mBlocco, u"prima"_s},
    };
    for (const auto& [controllo, mostrato] : attesi) {
        EXPECT_EQ(testoMostrato(controllo), mostrato);
        EXPECT_EQ(testo(controllo), QString()) << controllo->objectName().toStdString();
        EXPECT_TRUE(eAvanzo(controllo));
        EXPECT_EQ(controllo->toolTip(), u"Valore di un'altra lettera di vettura: non viene usato."_s);
    }
}

TEST_F(Campi, LaRigaSuccessivaTogliIlSegno)
{
    riempie();
    lasciaTutti();
    riempie();
    for (QWidget* controllo : mSchermata.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        EXPECT_FALSE(eAvanzo(controllo)) << controllo->objectName().toStdString();
        EXPECT_EQ(testo(controllo), testoMostrato(controllo));
        EXPECT_EQ(controllo->toolTip(), QString());
    }
}

TEST_F(Campi, ScrivereTogliIlSegno)
{
    riempie();
    lasciaTutti();
    QTest::keyClicks(mRiga, u"x"_s);
    QTest::keyClicks(mLibero, u"x"_s);
    QTest::keyClicks(mBlocco, u"x"_s);
    QTest::keyClick(mElenco, Qt::Key_Up);
    scrivi(mEtichetta, u"di chi scrive"_s);
    for (QWidget* controllo :
         {static_cast<QWidget*>(mRiga), static_cast<QWidget*>(mLibero), static_cast<QWidget*>(mBlocco),
          static_cast<QWidget*>(mElenco), static_cast<QWidget*>(mEtichetta)})
        EXPECT_FALSE(eAvanzo(controllo)) << controllo->objectName().toStdString();
    EXPECT_EQ(testo(mRiga), u"primax"_s);
}

TEST_F(Campi, IlProprioNonDiventaAvanzo)
{
    for (QWidget* controllo :
         {static_cast<QWidget*>(mRiga), static_cast<QWidget*>(mEtichetta), static_cast<QWidget*>(mBlocco)})
        scrivi(controllo, u"di oggi"_s);
    lasciaTutti();
    EXPECT_EQ(testo(mRiga), u"di oggi"_s);
    EXPECT_EQ(testo(mEtichetta), u"di oggi"_s);
    EXPECT_EQ(testo(mBlocco), u"di oggi"_s);

    mCampi->scrivi(riga, u"della riga"_s);
    QTest::keyClicks(mRiga, u"!"_s);
    mCampi->lascia(riga);
    EXPECT_EQ(testo(mRiga), u"della riga!"_s) << "what was typed is the clerk's";
}

TEST_F(Campi, CioCheIlProgrammaScriveDelCasoDiventaAvanzo)
{
    scriviDelCaso(mEtichetta, u"2026-11-21"_s);
    EXPECT_EQ(testo(mEtichetta), u"2026-11-21"_s);
    mCampi->lascia(etichetta);
    EXPECT_TRUE(eAvanzo(mEtichetta));
    EXPECT_EQ(testo(mEtichetta), QString());
}

TEST_F(Campi, ChiAscoltaLeggeIlTestoSenzaIlSegnoDiPrima)
{
    QStringList letti;
    QObject::connect(mRiga, &QLineEdit::textChanged, &mSchermata, [&] { letti << testo(mRiga); });
    mCampi->scrivi(riga, u"prima"_s);
    mCampi->lascia(riga);
    mCampi->scrivi(riga, u"dopo"_s);
    EXPECT_EQ(letti, (QStringList{u"prima"_s, u"dopo"_s}));

    QStringList segni;
    quandoCambiaAvanzo(mRiga, [&] { segni << testo(mRiga); });
    mCampi->lascia(riga);
    mCampi->scrivi(riga, u"dopo"_s);
    mRiga->setProperty("barra", true);
    EXPECT_EQ(segni, (QStringList{QString(), u"dopo"_s})) << "what is shown stayed the same";
}

TEST_F(Campi, UnVuotoNonESegnato)
{
    mCampi->scrivi(riga, {});
    mCampi->lascia(riga);
    EXPECT_FALSE(eAvanzo(mRiga));
    mCampi->lascia(QLatin1String());
}

TEST_F(Campi, IlNumeroELeScritteSePresentiAltrimentiIlTrovato)
{
    EXPECT_EQ(numeroLdv(mRiga), QString());
    mCampi->scrivi(riga, {});
    mCampi->scriviTag(riga, u"4711"_s);
    EXPECT_EQ(mRiga->text(), QString());
    EXPECT_EQ(mRiga->placeholderText(), u"4711"_s) << "the clerk sees it";
    EXPECT_EQ(tag(mRiga), u"4711"_s);
    EXPECT_EQ(numeroLdv(mRiga), u"4711"_s);
    mRiga->setText(u"9"_s);
    EXPECT_EQ(numeroLdv(mRiga), u"9"_s);
    EXPECT_EQ(tag(mRiga), u"4711"_s);
}

TEST_F(Campi, UnaRigaCheLElencoNonHaLasciaQuellaDiPrimaComeAvanzo)
{
    mCampi->seleziona(elenco, 1);
    mCampi->seleziona(elenco, -1);
    EXPECT_EQ(mElenco->currentIndex(), -1);
    for (const int fuori : {2, 32766, -2}) {
        mCampi->seleziona(elenco, 0);
        EXPECT_EQ(testo(mElenco), u"1 - Franco"_s);
        mCampi->seleziona(elenco, fuori);
        EXPECT_EQ(mElenco->currentIndex(), 0);
        EXPECT_TRUE(eAvanzo(mElenco)) << fuori << ": it is another waybill's";
    }
}

TEST_F(Campi, IFineRigaSonoSemplici)
{
    mCampi->scrivi(blocco, u"uno\r\ndue\ntre"_s);
    EXPECT_EQ(testo(mBlocco), u"uno\ndue\ntre"_s);
}

TEST_F(Campi, LaMarcaDiGiacenzaPassaAllaSchermata)
{
    QList<bool> lette;
    QObject::connect(mCampi, &CampiSchermata::giacenzaLetta, &mSchermata, [&](bool si) { lette << si; });
    mCampi->giaInGiacenza(true);
    mCampi->giaInGiacenza(false);
    EXPECT_EQ(lette, (QList<bool>{true, false}));
}

TEST_F(Campi, LAvvertenzaStaNelleParoleENellaCorniceDelCampo)
{
    mSchermata.show();
    QLabel parole(&mSchermata);
    parole.show();
    const auto vista = [&] {
        return std::tuple(parole.isVisible(), parole.text(), mRiga->accessibleDescription(),
                          mRiga->property("avvertenza").toBool());
    };
    Avvertenza avvertenza(mRiga, &parole);
    EXPECT_EQ(vista(), std::tuple(false, QString(), QString(), false));
    avvertenza.mostra(u"manca"_s);
    EXPECT_EQ(vista(), std::tuple(true, u"⚠ manca"_s, u"manca"_s, true));
    avvertenza.mostra(u"sconosciuta"_s);
    EXPECT_EQ(vista(), std::tuple(true, u"⚠ sconosciuta"_s, u"sconosciuta"_s, true));
    avvertenza.mostra({});
    EXPECT_EQ(vista(), std::tuple(false, QString(), QString(), false));
}

TEST_F(Campi, UnControlloCheMancaSiTrovaSubito)
{
    EXPECT_THROW(mCampi->scrivi("txtAltro"_L1, {}), std::logic_error);
    EXPECT_THROW(mCampi->seleziona(riga, 0), std::logic_error);
}

} // namespace
