#include "desk/deskdiprova.h"
#include "desk/finestra/colonnescelte.h"
#include "desk/finestra/tabellacasi.h"

#include <QComboBox>
#include <QHeaderView>
#include <QSettings>
#include <QToolButton>

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;

namespace {

/// A desk that is closed and opened again, with settings of its own.
class ProvaMemoria : public DeskDiProva
{
protected:
    /// Another morning.
    void riapri()
    {
        QSettings impostazioni(mCartella.filePath(u"ricordi.ini"_s), QSettings::IniFormat);
        mDesk->ricorda(impostazioni);
        impostazioni.sync();
        apriConRicordi();
    }
    void apriConRicordi()
    {
        const QSettings impostazioni(mCartella.filePath(u"ricordi.ini"_s), QSettings::IniFormat);
        apriDesk([&](desk::FinestraDesk& desk) { desk.riprendi(impostazioni); });
        attendiElenco();
    }
    void scrivi(const QByteArray& testo)
    {
        QFile file(mCartella.filePath(u"ricordi.ini"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        ASSERT_EQ(file.write(testo), testo.size());
    }
    QHeaderView* testata() const { return elenco()->horizontalHeader(); }
    QStringList titoli() const
    {
        QStringList visti;
        for (int posto = 0; posto < testata()->count(); ++posto)
            if (const int colonna = testata()->logicalIndex(posto); !testata()->isSectionHidden(colonna))
                visti << elenco()->model()->headerData(colonna, Qt::Horizontal).toString();
        return visti;
    }
    void voce(const QString& testo) const
    {
        for (QAction* azione : figlio<QMenu>(u"menuColonne")->actions())
            if (azione->text() == testo)
                return azione->trigger();
        FAIL() << testo.toStdString();
    }
    QString totali() const { return figlio<QLabel>(u"lblTotali")->text(); }

    const QStringList mSoliti{u"Stato"_s,    u"Giacenza"_s, u"LDV"_s,    u"Cliente"_s,    u"Destinatario"_s,
                              u"Località"_s, u"Dal"_s,      u"Giorni"_s, u"Franchi"_s,    u"Euro oggi"_s,
                              u"Avvisi"_s,   u"Ricons."_s,  u"Motivo"_s, u"Riferimento"_s};
};

constexpr int colonnaCliente = 3;
constexpr int colonnaDal = 6;

} // namespace

TEST_P(ProvaMemoria, leColonneTornanoComeLasciate)
{
    EXPECT_EQ(titoli(), mSoliti);
    testata()->moveSection(testata()->visualIndex(colonnaDal), 1);
    testata()->resizeSection(colonnaCliente, 213);
    voce(u"Ricons."_s);
    voce(u"Stato"_s);
    elenco()->sortByColumn(colonnaCliente, Qt::DescendingOrder);
    const QStringList lasciati = titoli();
    EXPECT_EQ(lasciati.mid(0, 3), QStringList({u"Dal"_s, u"Giacenza"_s, u"LDV"_s}));
    const QStringList casi = colonna(elenco(), 1);
    riapri();
    EXPECT_EQ(titoli(), lasciati);
    EXPECT_NEAR(testata()->sectionSize(colonnaCliente), 213, 1);
    EXPECT_EQ(testata()->sortIndicatorSection(), colonnaCliente);
    EXPECT_EQ(testata()->sortIndicatorOrder(), Qt::DescendingOrder);
    EXPECT_EQ(colonna(elenco(), 1), casi);
    vai(casi.at(2));
    premi(Qt::Key_F5);
    attendiElenco();
    EXPECT_EQ(elenco()->currentIndex().row(), 2) << "also with its first column hidden";
}

TEST_P(ProvaMemoria, ripristinaColonneDaQuelleSolite)
{
    const int larga = testata()->sectionSize(colonnaCliente);
    testata()->moveSection(0, 9);
    testata()->resizeSection(colonnaCliente, 400);
    voce(u"Dal"_s);
    elenco()->sortByColumn(1, Qt::DescendingOrder);
    riapri();
    voce(u"&Ripristina colonne"_s);
    EXPECT_EQ(titoli(), mSoliti);
    EXPECT_EQ(testata()->sectionSize(colonnaCliente), larga);
    EXPECT_THAT(colonna(elenco(), 1),
                ElementsAre(u"42/2026"_s, u"43/2026"_s, u"41/2026"_s, u"44/2026"_s, u"45/2026"_s));
}

TEST_P(ProvaMemoria, laLarghezzaSceltaCresceColCarattere)
{
    testata()->resizeSection(colonnaCliente, 200);
    const int prima = elenco()->fontMetrics().averageCharWidth();
    const int dal = testata()->sectionSize(colonnaDal);
    QFont grande = elenco()->font();
    grande.setPointSizeF(grande.pointSizeF() * 1.5);
    elenco()->setFont(grande);
    EXPECT_EQ(testata()->sectionSize(colonnaCliente),
              200 * elenco()->fontMetrics().averageCharWidth() / prima);
    EXPECT_GT(testata()->sectionSize(colonnaDal), dal);
}

TEST_P(ProvaMemoria, unaColonnaRestaSempre)
{
    for (const QString& titolo : mSoliti)
        voce(titolo);
    EXPECT_EQ(titoli(), QStringList{u"Riferimento"_s});
    auto* menu = figlio<QMenu>(u"menuColonne");
    menu->popup({});
    QStringList segnate;
    for (const QAction* azione : menu->actions())
        if (azione->isChecked())
            segnate << azione->text();
    menu->close();
    EXPECT_THAT(segnate, ElementsAre(u"Riferimento"_s));
}

TEST_P(ProvaMemoria, unFiltroDellaVoltaPrimaSiVede)
{
    premi(Qt::Key_F, Qt::ControlModifier);
    digita(u"rotonda"_s);
    riapri();
    auto* filtro = figlio<QLineEdit>(u"txtFiltro");
    EXPECT_EQ(filtro->text(), u"rotonda"_s);
    EXPECT_TRUE(figlio<QToolButton>(u"cmdTogliFiltro")->isVisible());
    EXPECT_TRUE(filtro->property("filtra").toBool());
    EXPECT_TRUE(totali().startsWith(u"1 di 5 casi"_s)) << totali().toStdString();
    EXPECT_EQ(detto(), u"L'elenco mostra 1 di 5 casi: vale ancora il filtro \"rotonda\" dell'ultima volta. "
                       u"Ctrl+F e poi Esc lo tolgono."_s);
    premi(Qt::Key_F, Qt::ControlModifier);
    premi(Qt::Key_Escape);
    EXPECT_TRUE(totali().startsWith(u"5 casi"_s)) << totali().toStdString();
    EXPECT_FALSE(filtro->property("filtra").toBool());
    EXPECT_FALSE(figlio<QToolButton>(u"cmdTogliFiltro")->isVisible());
    filtro->setText(u"rossi"_s);
    figlio<QToolButton>(u"cmdTogliFiltro")->click();
    EXPECT_TRUE(totali().startsWith(u"5 casi"_s)) << totali().toStdString();
    EXPECT_EQ(detto(), QString());
    riapri();
    EXPECT_EQ(figlio<QLineEdit>(u"txtFiltro")->text(), QString());
    EXPECT_EQ(detto(), QString()) << "nothing is hidden";
}

TEST_P(ProvaMemoria, laFilialeTornaFinCheCE)
{
    auto* filiali = figlio<QComboBox>(u"cmbFiliale");
    attendi([&] { return filiali->count() == 3; });
    filiali->setCurrentIndex(1);
    attendiElenco();
    riapri();
    EXPECT_THAT(colonna(elenco(), 1), ElementsAre(u"45/2026"_s));
    filiali = figlio<QComboBox>(u"cmbFiliale");
    attendi([&] { return filiali->count() == 3; });
    EXPECT_EQ(filiali->currentText(), u"BO · Bologna"_s);
    scrivi("[desk]\nfiliale=ZZ\n");
    apriConRicordi();
    attendi([this] { return elenco()->model()->rowCount() == 5; });
    EXPECT_EQ(figlio<QComboBox>(u"cmbFiliale")->currentText(), u"Tutte le filiali"_s);
}

TEST_P(ProvaMemoria, ricordiGuastiNonContano)
{
    for (const QByteArray& guasto :
         {QByteArray("\0\xff\xfe[[[\n=%%%\nnon sono impostazioni", 34),
          QByteArray("[desk]\ncolonne=Stato|100|1, Stato|100|1\nordine=Boh|crescente\n"),
          QByteArray("[desk]\ncolonne=Stato|-5|1\nordine=Cliente|obliquo\nfiltro=@Invalid()\n"),
          QByteArray("[desk]\ncolonne=Stato|999999999999|1\nordine=|\n"),
          QByteArray("[desk]\ncolonne=Stato|100|0\nordine=@ByteArray(\\0\\x1)\nfiltro=\"a\\tb\"\n"),
          "[desk]\ncolonne=42\nfiltro=" + QByteArray(500, 'x') + "\nfiliale=" + QByteArray(500, 'y') +
              "\n"}) {
        SCOPED_TRACE(guasto.toStdString());
        scrivi(guasto);
        apriConRicordi();
        if (guasto.contains("Stato|100|0"))
            EXPECT_EQ(titoli(), mSoliti.mid(1)) << "the others are new to these settings";
        else
            EXPECT_EQ(titoli(), mSoliti);
        EXPECT_EQ(testata()->sortIndicatorSection(), 8);
        EXPECT_TRUE(totali().startsWith(u"5 casi"_s)) << totali().toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Basi, ProvaMemoria, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);
