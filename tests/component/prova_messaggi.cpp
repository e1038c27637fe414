#include "component/messaggi.h"
#include "component/servizi.h"

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

const QStringList soloOk{QStringLiteral("OK")};
const QStringList siNo{QStringLiteral("No"), QStringLiteral("Sì")};

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
        mostra({QStringLiteral("Giacenza aggiunta in database."), caso.stile, giacenza::titoloGestione()},
               [&](QMessageBox& scatola) {
                   EXPECT_EQ(scatola.text(), QStringLiteral("Giacenza aggiunta in database."));
                   EXPECT_EQ(scatola.icon(), caso.icona);
                   EXPECT_EQ(scatola.windowTitle(), QStringLiteral("Gestione Trasporti"));
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
    const Messaggio domanda{QStringLiteral("Continuare?"), Stile::domandaAvviso, QStringLiteral("Titolo")};
    const auto premi = [](const QString& testo) {
        return [testo](QMessageBox& scatola) { QTest::mouseClick(bottone(scatola, testo), Qt::LeftButton); };
    };
    EXPECT_EQ(mostra(domanda, premi(QStringLiteral("Sì"))), Risposta::si);
    EXPECT_EQ(mostra(domanda, premi(QStringLiteral("No"))), Risposta::no);
    EXPECT_EQ(mostra({QStringLiteral("Fatto."), Stile::informazione, {}}, premi(QStringLiteral("OK"))),
              Risposta::ok);
}

TEST_F(Messaggi, chiudereUnaDomandaEUnNo)
{
    const Messaggio domanda{QStringLiteral("Continuare?"), Stile::domandaInformazione, {}};
    EXPECT_EQ(mostra(domanda, [](QMessageBox& scatola) { scatola.close(); }), Risposta::no);
    EXPECT_EQ(mostra(domanda, [](QMessageBox& scatola) { QTest::keyClick(&scatola, Qt::Key_Escape); }),
              Risposta::no);
    EXPECT_EQ(mostra({QStringLiteral("Fatto."), Stile::avviso, {}},
                     [](QMessageBox& scatola) { QTest::keyClick(&scatola, Qt::Key_Escape); }),
              Risposta::ok);
}

TEST_F(Messaggi, invioPremeIlPrimoBottone)
{
    const auto invio = [](QMessageBox& scatola) { QTest::keyClick(&scatola, Qt::Key_Return); };
    EXPECT_EQ(mostra({QStringLiteral("Continuare?"), Stile::domandaAvviso, {}}, invio), Risposta::si);
    EXPECT_EQ(mostra({QStringLiteral("Fatto."), Stile::critico, {}}, invio), Risposta::ok);
}

TEST_F(Messaggi, ilTestoNonEMaiUnaMarcatura)
{
    const QString testo = QStringLiteral("<b>D'Angelo & \"Figli\"</b> <img src='x'>\nseconda riga");
    mostra({testo, Stile::avviso, {}}, [&](QMessageBox& scatola) {
        EXPECT_EQ(scatola.text(), testo);
        EXPECT_EQ(scatola.textFormat(), Qt::PlainText);
        scatola.close();
    });
}

TEST_F(Messaggi, unTestoLunghissimoStaNelloSchermoETuttoSiLegge)
{
    for (const QString& testo : {QStringLiteral("parola ").repeated(3000), QString(5000, u'x'),
                                 QStringLiteral("riga\n").repeated(300)}) {
        mostra({testo, Stile::critico, {}}, [&](QMessageBox& scatola) {
            const QSize schermo = scatola.screen()->availableSize();
            EXPECT_LE(scatola.width(), schermo.width());
            EXPECT_LE(scatola.height(), schermo.height());
            const QAbstractButton* ok = bottone(scatola, QStringLiteral("OK"));
            EXPECT_TRUE(scatola.rect().contains(ok->geometry().translated(ok->parentWidget()->pos())));
            EXPECT_EQ(scatola.focusWidget(), ok);
            const auto* lungo = scatola.findChild<QPlainTextEdit*>(QStringLiteral("txtMessaggio"));
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
    mostra({QStringLiteral("Fatto."), Stile::informazione, {}}, [](QMessageBox& scatola) {
        EXPECT_TRUE(scatola.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        scatola.close();
    });
}

TEST_F(Messaggi, senzaPadreFermaTutto)
{
    mPadre = nullptr;
    mostra({QStringLiteral("Fatto."), Stile::informazione, {}}, [](QMessageBox& scatola) {
        EXPECT_EQ(scatola.windowModality(), Qt::ApplicationModal);
        EXPECT_FALSE(scatola.testAttribute(Qt::WA_QuitOnClose));
        scatola.close();
    });
}

TEST_F(Messaggi, loSchermoDistruttoPortaViaLaScatola)
{
    const auto distruggi = [this](QMessageBox&) { mSchermo.reset(); };
    EXPECT_EQ(mostra({QStringLiteral("Continuare?"), Stile::domandaAvviso, {}}, distruggi), Risposta::no);
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
    EXPECT_EQ(mostraMessaggio(mPadre, {QStringLiteral("Uno"), Stile::domandaAvviso, {}}), Risposta::si);
    EXPECT_TRUE(impostaPortaMessaggi({}));
    EXPECT_EQ(detti, QStringList{QStringLiteral("Uno")});
}

TEST_F(Messaggi, iTitoli)
{
    EXPECT_EQ(giacenza::titoloGestione(), QStringLiteral("Gestione Trasporti"));
    const QString prima = QApplication::applicationDisplayName();
    QApplication::setApplicationDisplayName(QStringLiteral("Deposito della prova"));
    EXPECT_EQ(giacenza::titoloApplicazione(), QStringLiteral("Deposito della prova"));
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
