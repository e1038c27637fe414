#include "redelivery/riconsegnadiprova.h"

#include "redelivery/frmPorto.h"
#include "redelivery/frmRiconsegna.h"
#include "support/modale.h"
#include "support/trova.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

namespace giacenza::prove {

namespace {

const QString classe = QString::fromUtf16(classeEmittenteLdv);

void riempiGiacenza(const BancaDati& base, int numero, int legate, bool chiusa)
{
    const QString ldv = QStringLiteral("9%1").arg(numero);
    base.esegui(QStringLiteral(
                    "insert into giace00f (GIFILI,GINRLV,GIANLV,GICODI,GIFIGI,GINRGI,GIANGI,GIDTGI,GIDTBF) "
                    "values ('MI','%1',2026,1001,'BO','%2',2026,'2026-11-13',%3);")
                    .arg(ldv)
                    .arg(numero)
                    .arg(chiusa ? QStringLiteral("'2026-11-19'") : QStringLiteral("null")));
    QStringList righe;
    for (int i = 0; i < std::max(legate, 1); ++i)
        righe << QStringLiteral(
                     "('MI','%1',2026,'2026-11-12',1001,'Casalinghi Rossi','V01','L05','ORD-%2',%3)")
                     .arg(i == 0 ? ldv : QStringLiteral("8%1%2").arg(numero).arg(i, 3, 10, QLatin1Char('0')))
                     .arg(numero)
                     .arg(legate == 0 ? QStringLiteral("null,null")
                                      : QStringLiteral("'%1',2026").arg(numero));
    base.esegui(
        QStringLiteral(
            "insert into letve00f "
            "(lefili,lenrlv,leanlv,ledtlv,lecodi,ledest,lecdve,lelin1,lerife,LERFGI,LEANGI) values ") +
        righe.join(QLatin1Char(',')) + QLatin1Char(';'));
}

void rispondi(frmPorto& finestra, const Porto& porto)
{
    if (porto.riga >= 0)
        trova<QComboBox>(finestra, QStringLiteral("cmbPorto"))->setCurrentIndex(porto.riga);
    if (!porto.controllo)
        trova<QRadioButton>(finestra, QStringLiteral("optGiacenzaNo"))->click();
    if (!porto.stampa)
        trova<QRadioButton>(finestra, QStringLiteral("optStampaLDVNo"))->click();
    switch (porto.chiude) {
    case Porto::Chiude::conferma:
        QTest::mouseClick(trova<QPushButton>(finestra, QStringLiteral("cmdEsci")), Qt::LeftButton);
        break;
    case Porto::Chiude::annulla:
        QTest::mouseClick(trova<QPushButton>(finestra, QStringLiteral("cmdAnnulla")), Qt::LeftButton);
        break;
    case Porto::Chiude::esc:
        QTest::keyClick(&finestra, Qt::Key_Escape);
        break;
    case Porto::Chiude::casella:
        finestra.close();
        break;
    }
}

} // namespace

void EmittenteDiProva::setContesto(const Contesto& contesto)
{
    mEmissioni.chiamate << QStringLiteral("contesto");
    mEmissioni.contesti.push_back(contesto);
}

void EmittenteDiProva::setPercorsoDatabase(const QString& percorso)
{
    mEmissioni.chiamate << QStringLiteral("database ") + percorso;
    if (mEmissioni.allInizio)
        mEmissioni.allInizio();
}

void EmittenteDiProva::setCartellaStampa(const QString& cartella)
{
    mEmissioni.chiamate << QStringLiteral("cartella ") + cartella;
}

void EmittenteDiProva::setPercorsoLogo(const QString& percorso)
{
    mEmissioni.chiamate << QStringLiteral("logo ") + percorso;
}

void EmittenteDiProva::setStampa(bool stampa)
{
    mEmissioni.chiamate << QStringLiteral("stampa %1").arg(stampa);
}

void EmittenteDiProva::setDefinitiva(bool definitiva)
{
    mEmissioni.chiamate << QStringLiteral("definitiva %1").arg(definitiva);
}

QString EmittenteDiProva::emetti(const RecordLdv& ldv)
{
    const QString numero =
        ldv.vuoto() ? QStringLiteral("(vuota)") : ldv.valore(QStringLiteral("LENRLV")).value_or(QString());
    mEmissioni.chiamate << QStringLiteral("emetti ") + numero;
    mEmissioni.colonne.push_back(ldv.colonne());
    if (mEmissioni.durante)
        mEmissioni.durante();
    return QStringLiteral("Emessa da %1").arg(numero);
}

RiconsegnaDiProva::RiconsegnaDiProva()
{
    riempiGiacenza(mBase, 50, 1, false);
    riempiGiacenza(mBase, 51, 3, false);
    riempiGiacenza(mBase, 52, 0, false);
    riempiGiacenza(mBase, 53, 3, true);
    riempiGiacenza(mBase, 54, 300, false);
    registraParte(classe, [this] { return std::make_unique<EmittenteDiProva>(mEmissioni); });
}

RiconsegnaDiProva::~RiconsegnaDiProva()
{
    registraParte(classe, {});
}

std::unique_ptr<Schermata> RiconsegnaDiProva::crea() const
{
    return std::make_unique<frmRiconsegna>();
}

void RiconsegnaDiProva::cerca(const QString& ldv, const QString& data)
{
    if (!mSchermata)
        apri();
    attiva();
    if (mostrato("txtCodiceCli").isEmpty()) {
        scrivi("txtCodiceCli", QStringLiteral("1001"));
        lascia("txtCodiceCli");
    }
    scrivi("txtLDV", ldv);
    scrivi("txtDataLdv", data);
    lascia("txtDataLdv");
}

void RiconsegnaDiProva::attiva()
{
    mSchermata->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(mSchermata));
}

QStringList RiconsegnaDiProva::emetti(const Porto& porto)
{
    mEmissioni.chiamate.clear();
    const QuandoAperta<frmPorto> intanto([&](frmPorto& finestra) { rispondi(finestra, porto); });
    clicca("cmdRiconsegna");
    return mEmissioni.chiamate;
}

bool RiconsegnaDiProva::bottoneAcceso() const
{
    return c("cmdRiconsegna")->isEnabled();
}

QLabel* RiconsegnaDiProva::stato() const
{
    return trova<QLabel>(mSchermata, QStringLiteral("lblStato"));
}

} // namespace giacenza::prove
