#include "base/messaggi.h"
#include "widgets/primopiano.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using giacenza::impostaPortaMessaggi;
using giacenza::Messaggio;
using giacenza::mostraMessaggio;
using giacenza::Risposta;
using giacenza::SempreInPrimoPiano;
using giacenza::Stile;

namespace {

using Operatore = std::function<void(QMessageBox& scatola)>;

class Messaggi : public ::testing::Test
{
protected:
    // Shows a real box and lets the operator act on it once it is open.
    Risposta mostra(const Messaggio& messaggio, const Operatore& operatore)
    {
        bool agito = false;
        QTimer orologio;
        QObject::connect(&orologio, &QTimer::timeout, &orologio, [&] {
            auto* scatola = mPadre ? mPadre->findChild<QMessageBox*>()
                                   : qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (agito || !scatola || !scatola->isVisible())
                return;
            agito = true;
            operatore(*scatola);
        });
        orologio.start(1);
        const Risposta risposta = mostraMessaggio(mPadre, messaggio);
        EXPECT_TRUE(agito);
        return risposta;
    }

    static QAbstractButton* bottone(const QMessageBox& scatola, const QString& testo)
    {
        for (QAbstractButton* uno : scatola.buttons()) {
            if (uno->text() == testo)
                return uno;
        }
        ADD_FAILURE() << "nessun bottone " << testo.toStdString();
        return nullptr;
    }

    static QStringList bottoni(const QMessageBox& scatola)
    {
        QStringList testi;
        for (const QAbstractButton* uno : scatola.buttons())
            testi.append(uno->text());
        testi.sort();
        return testi;
    }

    std::unique_ptr<QWidget> mSchermo = std::make_unique<QWidget>();
    QPointer<QWidget> mPadre = mSchermo.get();
};

const QStringList soloOk{u"OK"_s};
const QStringList siNo{u"No"_s, u"Sì"_s};

} // namespace

TEST_F(Messaggi, testoIconaTitoloEBottoni)
{
    struct Caso
    {
        Stile stile;
        QMessageBox::Icon icona;
        QStringList bottoni;
    };
    for (const Caso& caso : {Caso{Stile::critico, QMessageBox::Critical, soloOk},
                             Caso{Stile::avviso, QMessageBox::Warning, soloOk},
                             Caso{Stile::informazione, QMessageBox::Information, soloOk},
                             Caso{Stile::domandaAvviso, QMessageBox::Warning, siNo},
                             Caso{Stile::domandaInformazione, QMessageBox::Information, siNo}}) {
        mostra({u"Giacenza aggiunta in database."_s, caso.stile, giacenza::titoloGestione()},
               [&](QMessageBox& scatola) {
                   EXPECT_EQ(scatola.text(), u"Giacenza aggiunta in database."_s);
                   EXPECT_EQ(scatola.icon(), caso.icona);
                   EXPECT_EQ(scatola.windowTitle(), u"Gestione Trasporti"_s);
                   EXPECT_EQ(bottoni(scatola), caso.bottoni);
                   EXPECT_EQ(scatola.parentWidget(), mPadre);
                   EXPECT_EQ(scatola.windowModality(), Qt::WindowModal);
                   EXPECT_FALSE(scatola.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
                   scatola.close();
               });
    }
}

TEST_F(Messaggi, leRisposteDeiBottoni)
{
    const Messaggio domanda{u"Continuare?"_s, Stile::domandaAvviso, u"Titolo"_s};
    const auto premi = [](const QString& testo) {
        return [testo](QMessageBox& scatola) { QTest::mouseClick(bottone(scatola, testo), Qt::LeftButton); };
    };
    EXPECT_EQ(mostra(domanda, premi(u"Sì"_s)), Risposta::si);
    EXPECT_EQ(mostra(domanda, premi(u"No"_s)), Risposta::no);
    EXPECT_EQ(mostra({u"Fatto."_s, Stile::informazione, {}}, premi(u"OK"_s)), Risposta::ok);
}

TEST_F(Messaggi, chiudereUnaDomandaEUnNo)
{
    const Messaggio domanda{u"Continuare?"_s, Stile::domandaInformazione, {}};
    EXPECT_EQ(mostra(domanda, [](QMessageBox& scatola) { scatola.close(); }), Risposta::no);
    EXPECT_EQ(mostra(domanda, [](QMessageBox& scatola) { QTest::keyClick(&scatola, Qt::Key_Escape); }),
              Risposta::no);
    EXPECT_EQ(mostra({u"Fatto."_s, Stile::avviso, {}},
                     [](QMessageBox& scatola) { QTest::keyClick(&scatola, Qt::Key_Escape); }),
              Risposta::ok);
}

TEST_F(Messaggi, invioPremeIlPrimoBottone)
{
    const auto invio = [](QMessageBox& scatola) { QTest::keyClick(&scatola, Qt::Key_Return); };
    EXPECT_EQ(mostra({u"Continuare?"_s, Stile::domandaAvviso, {}}, invio), Risposta::si);
    EXPECT_EQ(mostra({u"Fatto."_s, Stile::critico, {}}, invio), Risposta::ok);
}

TEST_F(Messaggi, ilTestoNonEMaiUnaMarcatura)
{
    const QString testo = u"<b>D'Angelo & \"Figli\"</b> <img src='x'>\nseconda riga"_s;
    mostra({testo, Stile::avviso, {}}, [&](QMessageBox& scatola) {
        EXPECT_EQ(scatola.text(), testo);
        EXPECT_EQ(scatola.textFormat(), Qt::PlainText);
        scatola.close();
    });
}

TEST_F(Messaggi, unTestoLunghissimoStaNelloSchermoETuttoSiLegge)
{
    for (const QString& testo :
         {u"parola "_s.repeated(3000), QString(5000, u'x'), u"riga\n"_s.repeated(300)}) {
        mostra({testo, Stile::critico, {}}, [&](QMessageBox& scatola) {
            const QSize schermo = scatola.screen()->availableSize();
            EXPECT_LE(scatola.width(), schermo.width());
            EXPECT_LE(scatola.height(), schermo.height());
            const QAbstractButton* ok = bottone(scatola, u"OK"_s);
            EXPECT_TRUE(scatola.rect().contains(ok->geometry().translated(ok->parentWidget()->pos())));
            EXPECT_EQ(scatola.focusWidget(), ok);
            const auto* lungo = scatola.findChild<QPlainTextEdit*>(u"txtMessaggio"_s);
            ASSERT_NE(lungo, nullptr);
            EXPECT_TRUE(lungo->isVisible());
            EXPECT_EQ(lungo->toPlainText(), testo);
            EXPECT_EQ(scatola.text(), testo);
            EXPECT_TRUE(lungo->isReadOnly());
            scatola.close();
        });
    }
}

TEST_F(Messaggi, sopraUnoSchermoInPrimoPiano)
{
    mPadre->show();
    SempreInPrimoPiano(mPadre, true);
    auto* campo = new QWidget(mPadre);
    mPadre = campo;
    mostra({u"Fatto."_s, Stile::informazione, {}}, [](QMessageBox& scatola) {
        EXPECT_TRUE(scatola.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        scatola.close();
    });
}

TEST_F(Messaggi, senzaPadreFermaTutto)
{
    mPadre = nullptr;
    mostra({u"Fatto."_s, Stile::informazione, {}}, [](QMessageBox& scatola) {
        EXPECT_EQ(scatola.windowModality(), Qt::ApplicationModal);
        EXPECT_FALSE(scatola.testAttribute(Qt::WA_QuitOnClose));
        scatola.close();
    });
}

TEST_F(Messaggi, loSchermoDistruttoPortaViaLaScatola)
{
    const auto distruggi = [this](QMessageBox&) { mSchermo.reset(); };
    EXPECT_EQ(mostra({u"Continuare?"_s, Stile::domandaAvviso, {}}, distruggi), Risposta::no);
}

TEST_F(Messaggi, laPortaImpostaStaAlPostoDellaScatola)
{
    QStringList detti;
    const auto precedente = impostaPortaMessaggi([&](QWidget* padre, const Messaggio& messaggio) {
        EXPECT_EQ(padre, mPadre);
        detti.append(messaggio.testo);
        return Risposta::si;
    });
    EXPECT_FALSE(precedente);
    EXPECT_EQ(mostraMessaggio(mPadre, {u"Uno"_s, Stile::domandaAvviso, {}}), Risposta::si);
    EXPECT_TRUE(impostaPortaMessaggi({}));
    EXPECT_EQ(detti, QStringList{u"Uno"_s});
}

TEST_F(Messaggi, iTitoli)
{
    EXPECT_EQ(giacenza::titoloGestione(), u"Gestione Trasporti"_s);
    const QString prima = QApplication::applicationDisplayName();
    QApplication::setApplicationDisplayName(u"Deposito della prova"_s);
    EXPECT_EQ(giacenza::titoloApplicazione(), u"Deposito della prova"_s);
    QApplication::setApplicationDisplayName(prima);
}

TEST(PrimoPiano, cambiaLOrdineENientAltro)
{
    QWidget finestra;
    SempreInPrimoPiano(&finestra, true);
    EXPECT_EQ(finestra.windowHandle(), nullptr);

    finestra.setGeometry(40, 50, 300, 200);
    finestra.show();
    const QRect posto = finestra.geometry();
    for (const bool primoPiano : {true, true, false}) {
        SempreInPrimoPiano(&finestra, primoPiano);
        EXPECT_EQ(finestra.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint), primoPiano);
        EXPECT_TRUE(finestra.isVisible());
        EXPECT_EQ(finestra.geometry(), posto);
    }
}
