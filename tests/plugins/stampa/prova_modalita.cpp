#include "plugins/stampa/documentofinto.h"

#include "base/cartellaprova.h"
#include "base/parti.h"
#include "support/modale.h"
#include "support/trova.h"

#include <QAction>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QProgressDialog>
#include <QPushButton>
#include <QTest>
#include <QThread>

#include <gmock/gmock.h>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;

namespace {

/// The module as the component finds it, by name.
class Modalita : public CartellaProva
{
protected:
    Modalita()
    {
        qputenv("GIACENZA_PARTI", GIACENZA_PROVA_PARTI);
        // No printer, whatever the machine has.
        qputenv("CUPS_SERVER", percorso(u"nessuno"_s).toUtf8());
        mPadre.show();
    }

    /// False when the module says that no document came out.
    bool stampa(const QString& modalita, std::unique_ptr<Documento> documento)
    {
        const auto creato = creaParteDi<ModuloStampa>(u"ReportDocDeposito.cModuliStampa"_s);
        auto* modulo = dynamic_cast<ModuloStampaConFonte*>(creato.parte.get());
        if (!modulo)
            throw Errore(creato.motivo);
        FonteFinta fonte(percorso(u"documenti"_s), std::move(documento));
        fonte.modalita = modalita;
        modulo->setFonte(&fonte, &mPadre);
        modulo->setStampa(true);
        modulo->setTipoDocumento(TipoDocumento::avviso);
        bool nonProdotto = false;
        modulo->stampaDocumento(u"7_2024"_s, nonProdotto);
        return !nonProdotto;
    }

    bool stampa(const QString& modalita, int pagine = 1)
    {
        return stampa(modalita, std::make_unique<DocumentoFinto>(pagine));
    }

    std::string motivo(const QString& modalita)
    {
        try {
            stampa(modalita);
        } catch (const Errore& errore) {
            return errore.what();
        }
        return {};
    }

    QStringList archivio() const
    {
        return QDir(percorso(u"documenti"_s)).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    const QStringList mUno{u"7_2024.pdf"_s};
    QWidget mPadre;
};

QProgressDialog* avanzamento()
{
    auto* finestra = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
    return finestra && finestra->isVisible() ? finestra : nullptr;
}

/// A page that takes long enough for thousands of them to need seconds.
void paginaLenta()
{
    QThread::msleep(1);
}

/// A document that would take more than a second; the key goes to the window of its progress, once it is
/// there, through azione.
std::unique_ptr<Documento> lungo(std::function<void(QProgressDialog&)> azione, int& dipinte)
{
    auto fatto = std::make_shared<bool>(false);
    return std::make_unique<DocumentoFinto>(4000, [=, &dipinte](int) {
        ++dipinte;
        paginaLenta();
        if (QProgressDialog* finestra = *fatto ? nullptr : avanzamento()) {
            *fatto = true;
            azione(*finestra);
        }
        return true;
    });
}

TEST_F(Modalita, siArchiviaEBasta)
{
    EXPECT_TRUE(stampa({}));
    EXPECT_TRUE(stampa(u" PDF "_s));
    EXPECT_EQ(archivio(), (QStringList{u"7_2024-2.pdf"_s, u"7_2024.pdf"_s}));
}

TEST_F(Modalita, unaSconosciutaSiDiceEIlDocumentoResta)
{
    EXPECT_EQ(motivo(u"carta"_s),
              "La voce \"Modalita\" delle impostazioni vale \"carta\" invece di \"pdf\", \"anteprima\" o "
              "\"stampante\".\nIl documento resta archiviato in \"" +
                  percorso(u"documenti/7_2024.pdf"_s).toStdString() + "\".");
    EXPECT_EQ(archivio(), mUno);
}

TEST_F(Modalita, senzaStampanteSiDiceEIlDocumentoResta)
{
    EXPECT_EQ(motivo(u"stampante"_s),
              "Il sistema non ha una stampante predefinita.\nIl documento resta archiviato in \"" +
                  percorso(u"documenti/7_2024.pdf"_s).toStdString() + "\".");
    EXPECT_EQ(archivio(), mUno);
}

TEST_F(Modalita, lAnteprimaSiChiudeConEsc)
{
    const QuandoAperta<QPrintPreviewDialog> intanto([this](QPrintPreviewDialog& finestra) {
        EXPECT_EQ(archivio(), mUno) << "si archivia prima";
        EXPECT_EQ(finestra.parentWidget(), &mPadre);
        EXPECT_EQ(finestra.windowTitle(), u"Elenco di prova"_s);
        QTest::keyClick(&finestra, Qt::Key_Escape);
    });
    EXPECT_TRUE(stampa(u"anteprima"_s));
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Modalita, lAnteprimaEItalianaEMostraLePagine)
{
    const QuandoAperta<QPrintPreviewDialog> intanto([](QPrintPreviewDialog& finestra) {
        QStringList voci;
        for (const QAction* azione : finestra.findChildren<QAction*>())
            voci << azione->text();
        EXPECT_TRUE(voci.contains(u"Stampa"_s)) << voci.join(u'|').toStdString();
        auto* pagine = finestra.findChild<QPrintPreviewWidget*>();
        ASSERT_TRUE(pagine);
        EXPECT_TRUE(QTest::qWaitFor([&] { return pagine->pageCount() == 3; }));
        finestra.close();
    });
    EXPECT_TRUE(stampa(u"anteprima"_s, 3));
}

TEST_F(Modalita, dallAnteprimaSiStampa)
{
    const QuandoAperta<QPrintPreviewDialog> intanto([](QPrintPreviewDialog& finestra) {
        QAction* stampa = nullptr;
        for (QAction* azione : finestra.findChildren<QAction*>()) {
            if (azione->text() == u"Stampa"_s)
                stampa = azione;
        }
        ASSERT_TRUE(stampa);
        const QuandoAperta<QPrintDialog> scelta(
            [](QPrintDialog& dialogo) { QTest::keyClick(&dialogo, Qt::Key_Escape); });
        stampa->trigger();
        QTest::keyClick(&finestra, Qt::Key_Escape);
    });
    EXPECT_TRUE(stampa(u"anteprima"_s));
}

TEST_F(Modalita, lAnteprimaSopravviveAllaSchermata)
{
    auto* padre = new QWidget;
    FonteFinta fonte(percorso(u"documenti"_s), std::make_unique<DocumentoFinto>(2));
    fonte.modalita = u"anteprima"_s;
    const auto creato = creaParteDi<ModuloStampa>(u"ReportDocDeposito.cModuliStampa"_s);
    auto* modulo = dynamic_cast<ModuloStampaConFonte*>(creato.parte.get());
    ASSERT_TRUE(modulo);
    modulo->setFonte(&fonte, padre);
    modulo->setStampa(true);
    const QuandoAperta<QPrintPreviewDialog> intanto([&](QPrintPreviewDialog&) { delete padre; });
    bool nonProdotto = true;
    modulo->stampaDocumento(u"7_2024"_s, nonProdotto);
    EXPECT_FALSE(nonProdotto);
}

TEST_F(Modalita, unGuastoNellAnteprimaLaChiudeESiDice)
{
    int dipinte = 0;
    try {
        stampa(u"anteprima"_s, std::make_unique<DocumentoFinto>(1, [&](int) {
                   if (++dipinte > 1)
                       throw Errore(u"Manca un carattere."_s);
                   return true;
               }));
        FAIL() << "non ha lanciato";
    } catch (const Errore& errore) {
        EXPECT_EQ(errore.testo(), u"Manca un carattere.\nIl documento resta archiviato in \"%1\"."_s.arg(
                                      percorso(u"documenti/7_2024.pdf"_s)));
    }
    EXPECT_EQ(archivio(), mUno);
}

TEST_F(Modalita, unDocumentoCortoNonMostraLAvanzamento)
{
    // Of many pages a first one that takes long on a busy machine makes a long document.
    bool visto = false;
    EXPECT_TRUE(stampa({}, std::make_unique<DocumentoFinto>(2, [&](int) {
                           visto = visto || avanzamento();
                           return true;
                       })));
    EXPECT_FALSE(visto);
}

TEST_F(Modalita, unDocumentoLungoMostraLAvanzamentoEArrivaInFondo)
{
    int mostrato = 0;
    EXPECT_TRUE(stampa({}, std::make_unique<DocumentoFinto>(1200, [&](int pagina) {
                           paginaLenta();
                           if (QProgressDialog* finestra = avanzamento()) {
                               ++mostrato;
                               EXPECT_EQ(finestra->value(), pagina);
                               EXPECT_EQ(finestra->maximum(), 1200);
                               EXPECT_EQ(finestra->windowTitle(), u"Elenco di prova"_s);
                               EXPECT_EQ(finestra->labelText(), u"Stampa di 1200 pagine…"_s);
                               EXPECT_EQ(finestra->parentWidget(), &mPadre);
                           }
                           return true;
                       })));
    EXPECT_GT(mostrato, 0);
    EXPECT_FALSE(avanzamento());
    EXPECT_EQ(archivio(), mUno);
}

TEST_F(Modalita, annullareConIlPulsanteNonLasciaNulla)
{
    int dipinte = 0;
    EXPECT_FALSE(stampa({}, lungo(
                                [](QProgressDialog& finestra) {
                                    auto* annulla = trova<QPushButton>(finestra, u"cmdAnnulla"_s);
                                    EXPECT_EQ(annulla->text(), u"Annulla"_s);
                                    QTest::keyClick(annulla, Qt::Key_Space);
                                },
                                dipinte)));
    EXPECT_LT(dipinte, 4000);
    EXPECT_EQ(archivio(), QStringList());
    EXPECT_FALSE(avanzamento());
}

TEST_F(Modalita, annullareConEscNonLasciaNulla)
{
    int dipinte = 0;
    EXPECT_FALSE(stampa(
        u"anteprima"_s,
        lungo([](QProgressDialog& finestra) { QTest::keyClick(&finestra, Qt::Key_Escape); }, dipinte)));
    EXPECT_LT(dipinte, 4000);
    EXPECT_EQ(archivio(), QStringList());
}

TEST_F(Modalita, chiRispondeSiAllaDomandaNonLasciaNulla)
{
    int dipinte = 0;
    EXPECT_FALSE(stampa({}, std::make_unique<DocumentoFinto>(30, [&](int pagina) {
                            ++dipinte;
                            return pagina < 4;
                        })));
    EXPECT_EQ(dipinte, 5);
    EXPECT_EQ(archivio(), QStringList());
}

} // namespace
