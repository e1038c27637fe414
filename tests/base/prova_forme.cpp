#include "base/formafinta.h"
#include "base/forme.h"
#include "support/stampa.h"

#include <giacenza/Errore.h>

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <thread>

using namespace Qt::StringLiterals;

using giacenza::Forme;

namespace {

constexpr char nomeUno[] = "frmUno";
using FormaUno = SchermataFinta<nomeUno>;

class FormaCheNonCarica : public FormaUno
{
public:
    void carica() { throw giacenza::ErroreDatabase(u"08001"_s, 7, u"chiusa"_s); }
};

// A dialog that does not let itself be closed.
class FormaOstinata : public QWidget
{
protected:
    void closeEvent(QCloseEvent* evento) override { evento->ignore(); }
};

const QString uno = u"frmUno"_s;

class FormeCondivise : public ::testing::Test
{
protected:
    FormeCondivise() { accaduto().clear(); }
    ~FormeCondivise() override { svuota(); }

    // What was to be deleted later is deleted.
    static void svuota() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    Forme mForme;
};

} // namespace

TEST_F(FormeCondivise, unNomeNonRegistrato)
{
    EXPECT_FALSE(mForme.registrata(uno));
    EXPECT_EQ(mForme.forma(uno), nullptr);
    EXPECT_EQ(mForme.caricata(uno), nullptr);
    mForme.scarica(uno);
}

TEST_F(FormeCondivise, unaSolaIstanza)
{
    mForme.registra<FormaUno>(uno);
    EXPECT_TRUE(mForme.registrata(uno));
    EXPECT_EQ(mForme.caricata(uno), nullptr);
    EXPECT_EQ(accaduto(), QStringList());
    QWidget* forma = mForme.forma(uno);
    ASSERT_NE(forma, nullptr);
    EXPECT_EQ(mForme.forma(uno), forma);
    EXPECT_EQ(mForme.caricata(uno), forma);
    EXPECT_EQ(accaduto(), QStringList{u"frmUno creata"_s});
    EXPECT_FALSE(forma->isVisible());
    mForme.registra(uno, Forme::Creatore());
    EXPECT_FALSE(mForme.registrata(uno));
    EXPECT_EQ(mForme.forma(uno), forma);
    mForme.scarica(uno);
}

TEST_F(FormeCondivise, usciteNeFannoUnaNuova)
{
    mForme.registra<FormaUno>(uno);
    QWidget* prima = mForme.forma(uno);
    QWidget* uscita = nullptr;
    QObject::connect(&mForme, &Forme::uscita, &mForme, [&](QWidget* finestra) {
        uscita = finestra;
        EXPECT_EQ(mForme.caricata(uno), nullptr);
    });
    prima->close();
    EXPECT_EQ(uscita, prima);
    QWidget* dopo = mForme.forma(uno);
    EXPECT_NE(dopo, prima);
    svuota();
    EXPECT_EQ(mForme.caricata(uno), dopo);
    mForme.scarica(uno);
}

TEST_F(FormeCondivise, distruttaEDimenticata)
{
    mForme.registra<FormaUno>(uno);
    delete mForme.forma(uno);
    EXPECT_EQ(mForme.caricata(uno), nullptr);
    EXPECT_NE(mForme.forma(uno), nullptr);
    mForme.scarica(uno);
}

TEST_F(FormeCondivise, ilCaricamentoFallitoTornaTaleEQualeENonTieneNulla)
{
    mForme.registra<FormaCheNonCarica>(uno);
    try {
        mForme.forma(uno);
        FAIL() << "caricata";
    } catch (const giacenza::ErroreDatabase& errore) {
        EXPECT_EQ(errore.sqlstate(), u"08001"_s);
        EXPECT_EQ(errore.codiceNativo(), 7);
    }
    EXPECT_EQ(mForme.caricata(uno), nullptr);
    EXPECT_EQ(accaduto(), (QStringList{u"frmUno creata"_s, u"frmUno distrutta"_s}));
    mForme.registra<FormaUno>(uno);
    EXPECT_NE(mForme.forma(uno), nullptr);
    mForme.scarica(uno);
}

TEST_F(FormeCondivise, scaricareChiudeSoloCioCheECaricato)
{
    mForme.registra<FormaUno>(uno);
    mForme.scarica(uno);
    EXPECT_EQ(accaduto(), QStringList());
    mForme.forma(uno)->show();
    mForme.scarica(uno);
    svuota();
    EXPECT_EQ(accaduto(), (QStringList{u"frmUno creata"_s, u"frmUno mostrata"_s, u"frmUno chiusa"_s,
                                       u"frmUno distrutta"_s}));
    mForme.scarica(uno);
    EXPECT_EQ(accaduto().size(), 4);
}

TEST_F(FormeCondivise, unaFormaChiusaSenzaUscitaSiCancella)
{
    mForme.registra<FormaOstinata>(uno);
    QPointer<QWidget> forma = mForme.forma(uno);
    forma->show();
    mForme.scarica(uno);
    EXPECT_EQ(mForme.caricata(uno), nullptr);
    ASSERT_TRUE(forma);
    EXPECT_FALSE(forma->isVisible());
    svuota();
    EXPECT_FALSE(forma);
}

TEST_F(FormeCondivise, unaFinestraAnnotataSiChiudeERestaDiChiLHaFatta)
{
    QWidget dialogo;
    mForme.annota(uno, &dialogo);
    EXPECT_EQ(mForme.caricata(uno), &dialogo);
    dialogo.show();
    mForme.scarica(uno);
    EXPECT_FALSE(dialogo.isVisible());
    svuota();
}

TEST_F(FormeCondivise, ogniThreadHaLeSue)
{
    const std::shared_ptr<Forme> mie = Forme::delThread();
    EXPECT_EQ(Forme::delThread(), mie);
    std::thread([&] { EXPECT_NE(Forme::delThread(), mie); }).join();
}
