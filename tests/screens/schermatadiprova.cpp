#include "screens/schermatadiprova.h"

#include "base/impostazioni.h"
#include "base/orologio.h"
#include "data/archivio.h"
#include "screens/campi.h"
#include "support/stampa.h"
#include "support/trova.h"

#include <QApplication>
#include <QFile>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

namespace {

const QString classeStampa = u"ReportDocProva.cModuliStampa"_s;

} // namespace

void ModuloDiProva::setPercorsoDatabase(const QString& percorso)
{
    mChiamate << u"database "_s + percorso;
}

void ModuloDiProva::setPercorsoLogo(const QString& percorso)
{
    mChiamate << u"logo "_s + percorso;
}

void ModuloDiProva::setDidascalie(const std::array<QString, 4>& didascalie)
{
    mChiamate << u"didascalie "_s + QStringList(didascalie.begin(), didascalie.end()).join(u'|');
}

void ModuloDiProva::setStampa(bool stampa)
{
    mChiamate << u"stampa %1"_s.arg(stampa);
}

void ModuloDiProva::setTipoDocumento(TipoDocumento tipo)
{
    mChiamate << u"tipo %1"_s.arg(static_cast<int>(tipo));
}

void ModuloDiProva::stampaDocumento(const QString& chiave, bool& nonProdotto)
{
    mChiamate << u"documento "_s + chiave;
    if (mDurante)
        mDurante();
    nonProdotto = mNonProdotto;
}

SchermataDiProva::SchermataDiProva()
{
    riempiDeposito(mBase);
    impostaOggi(QDate(2026, 11, 21));
    QFile ini(mCartella.filePath(u"giacenza.ini"_s));
    if (!ini.open(QIODevice::WriteOnly) || ini.write("[DLLStampe]\nIdentificativoDll=Prova\n[Bord]"
                                                     "\nCaptionLbl1=uno\nCaptionLbl2=due\nCaptionLbl3=tre\n"
                                                     "CaptionLbl4=quattro\n") < 0)
        throw std::runtime_error("the settings file of the test cannot be written");
    impostazioni() = {mBase.stringa(), ini.fileName(), u"/logo"_s, {}};
    registraParte(classeStampa, [this] {
        const auto durante = [azione = mDuranteStampa, guasto = mGuastoStampa] {
            if (azione)
                azione();
            if (!guasto.isEmpty())
                throw Errore(guasto);
        };
        return std::make_unique<ModuloDiProva>(mStampe, durante, mStampaNonProdotta);
    });
}

SchermataDiProva::~SchermataDiProva()
{
    guarisce();
    delete mSchermata;
    registraParte(classeStampa, {});
    impostaOggi(std::nullopt);
    impostazioni() = {};
}

void SchermataDiProva::apri()
{
    auto nuova = crea();
    nuova->carica();
    mSchermata = nuova.release();
    mSchermata->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(mSchermata));
}

QWidget* SchermataDiProva::c(const char* nome) const
{
    return trova<QWidget>(mSchermata, QLatin1String(nome));
}

QString SchermataDiProva::mostrato(const char* nome) const
{
    return testoMostrato(c(nome));
}

bool SchermataDiProva::avanzo(const char* nome) const
{
    return eAvanzo(c(nome));
}

void SchermataDiProva::scrivi(const char* nome, const QString& testo)
{
    c(nome)->setFocus();
    QTest::keyClick(c(nome), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(c(nome), Qt::Key_Delete);
    QTest::keyClicks(c(nome), testo);
}

void SchermataDiProva::lascia(const char* nome)
{
    QTest::keyClick(c(nome), Qt::Key_Tab);
    QCoreApplication::processEvents();
}

void SchermataDiProva::clicca(const char* nome)
{
    QTest::mouseClick(c(nome), Qt::LeftButton);
    QCoreApplication::processEvents();
}

void SchermataDiProva::tasto(const char* nome, Qt::Key tasto)
{
    c(nome)->setFocus();
    QTest::keyClick(c(nome), tasto);
    QCoreApplication::processEvents();
}

void SchermataDiProva::scorciatoia(Qt::Key lettera)
{
    const auto bottoni = mSchermata->findChildren<QPushButton*>();
    int scattati = 0;
    QObject osservatore; // its connections go with it
    for (const QPushButton* bottone : bottoni)
        QObject::connect(bottone, &QPushButton::clicked, &osservatore, [&] { ++scattati; });
    QTest::keyClick(mSchermata, lettera, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return scattati > 0; }));
}

void SchermataDiProva::fallisce(const QString& inizio, const QString& sqlstate)
{
    impostaTraccia([=](EventoDati evento, const QString& testo) {
        if (evento == EventoDati::istruzione && testo.startsWith(inizio, Qt::CaseInsensitive))
            throw ErroreDatabase(sqlstate, 1, u"guasto di prova"_s, testo);
    });
}

void SchermataDiProva::guarisce()
{
    impostaTraccia({});
}

QStringList SchermataDiProva::istruzioni(const std::function<void()>& azione) const
{
    QStringList inviate;
    const Traccia prima = impostaTraccia([&](EventoDati evento, const QString& testo) {
        if (evento == EventoDati::istruzione && !testo.contains("@@"_L1) &&
            !testo.startsWith("pragma"_L1, Qt::CaseInsensitive))
            inviate << testo;
    });
    azione();
    impostaTraccia(prima);
    return inviate;
}

} // namespace giacenza::prove
