#include "search/apriricerca.h"

#include "base/forme.h"
#include "base/impostazioni.h"
#include "database/valori.h"
#include "search/frmRicerca.h"
#include "search/listascelta.h"
#include "support/bancadati.h"
#include "support/modale.h"
#include "support/registromessaggi.h"
#include "support/stampa.h"
#include "support/trova.h"

#include <gmock/gmock.h>

#include <QLineEdit>
#include <QTest>
#include <QWindow>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;

namespace {

class Apertura : public testing::TestWithParam<std::string>
{
protected:
    Apertura()
    {
        mBase.esegui(u"insert into clien (Codice, RagioneSociale) values (5, 'D''Alì & C.');"_s);
        impostazioni().percorsoDatabase = mBase.stringa();
    }
    ~Apertura() override { impostazioni() = {}; }

    static void scegliIlPrimo(frmRicerca& finestra)
    {
        auto* testo = trova<QLineEdit>(finestra, u"txtCerca"_s);
        auto* lista = trova<ListaScelta>(finestra, u"lstCerca"_s);
        testo->setText(u"d'al"_s);
        QTest::keyClick(testo, Qt::Key_Return);
        QTest::keyClick(lista, Qt::Key_Down);
        QTest::keyClick(lista, Qt::Key_Return);
    }

    BancaDati mBase{GetParam()};
    RegistroMessaggi mMessaggi;
};

} // namespace

TEST_P(Apertura, daIlSoggettoSceltoAncheDueVolteDiFila)
{
    QWidget padre;
    padre.show();
    for (int volta = 0; volta < 2; ++volta) {
        QString titolo;
        const QuandoAperta<frmRicerca> intanto([&](frmRicerca& finestra) {
            titolo = finestra.windowTitle();
            EXPECT_EQ(finestra.parentWidget(), &padre);
            EXPECT_EQ(finestra.NomeTabella(), u"Clien"_s);
            scegliIlPrimo(finestra);
        });
        const RisultatoRicerca risultato = ApriRicerca(u"1"_s, u"Clien"_s, &padre);
        EXPECT_EQ(titolo, u"Ricerca Cliente"_s);
        EXPECT_TRUE(risultato.trovato);
        EXPECT_EQ(risultato.codice, 5);
        EXPECT_EQ(risultato.ragioneSociale, u"D'Alì & C."_s);
        EXPECT_TRUE(padre.findChildren<frmRicerca*>().isEmpty());
    }
}

TEST_P(Apertura, chiusaSenzaSceltaNonDaNulla)
{
    const QuandoAperta<frmRicerca> intanto([](frmRicerca& finestra) { finestra.windowHandle()->close(); });
    const RisultatoRicerca risultato = ApriRicerca(u"2"_s, u"forni"_s, nullptr);
    EXPECT_FALSE(risultato.trovato);
    EXPECT_EQ(risultato.codice, 0);
    EXPECT_EQ(risultato.ragioneSociale, QString());
}

TEST_P(Apertura, ilPadreSeNeVaConLaFinestraAperta)
{
    auto* padre = new QWidget;
    padre->show();
    const QuandoAperta<frmRicerca> intanto([&](frmRicerca&) { delete padre; });
    EXPECT_FALSE(ApriRicerca(u"1"_s, u"Clien"_s, padre).trovato);
}

TEST_P(Apertura, ilPadreSeNeVaSottoIlMessaggio)
{
    auto* padre = new QWidget;
    padre->show();
    mMessaggi.mentreAperto([&](QWidget*, const Messaggio&) { delete padre; });
    const QuandoAperta<frmRicerca> intanto(
        [](frmRicerca& finestra) { QTest::keyClick(finestra.focusWidget(), Qt::Key_Return); });
    EXPECT_FALSE(ApriRicerca(u"1"_s, u"Clien"_s, padre).trovato);
    EXPECT_EQ(mMessaggi.testi(),
              QStringList{u"Campo Ricerca vuoto! Bisogna inserire una stringa da ricercare"_s});
}

TEST_P(Apertura, chiusaSottoIlMessaggioNonDaNulla)
{
    const QuandoAperta<frmRicerca> intanto([this](frmRicerca& finestra) {
        mMessaggi.mentreAperto([&](QWidget* sopra, const Messaggio&) {
            EXPECT_EQ(sopra, &finestra);
            finestra.windowHandle()->close();
        });
        finestra.setNomeTabella(u"nessuna"_s);
        auto* testo = trova<QLineEdit>(finestra, u"txtCerca"_s);
        testo->setText(u"a"_s);
        QTest::keyClick(testo, Qt::Key_Return);
        EXPECT_FALSE(finestra.isVisible());
    });
    EXPECT_FALSE(ApriRicerca(u"1"_s, u"Clien"_s, nullptr).trovato);
    EXPECT_EQ(mMessaggi.messaggi().size(), 1U);
}

TEST_P(Apertura, laFinestraSiScaricaPerNome)
{
    const QuandoAperta<frmRicerca> intanto([](frmRicerca&) { Forme::delThread()->scarica(u"frmRicerca"_s); });
    EXPECT_FALSE(ApriRicerca(u"1"_s, u"Clien"_s, nullptr).trovato);
}

TEST_P(Apertura, unTipoCheNonEUnNumeroNonApre)
{
    EXPECT_THROW(ApriRicerca(u"uno"_s, u"Clien"_s, nullptr), ErroreConversione);
    EXPECT_THROW(ApriRicerca(u"40000"_s, u"Clien"_s, nullptr), ErroreConversione);
}

INSTANTIATE_TEST_SUITE_P(Basi, Apertura, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);
