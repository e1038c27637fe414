#include "redelivery/riconsegnadiprova.h"

#include "dialogs/frmPorto.h"
#include "redelivery/frmRiconsegna.h"
#include "support/modale.h"
#include "support/trova.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

namespace {

const QString classe = QString::fromUtf16(classeEmittenteLdv);

void riempiGiacenza(const BancaDati& base, int numero, int legate, bool chiusa)
{
    const QString ldv = u"9%1"_s.arg(numero);
    base.esegui(u"insert into giace00f (GIFILI,GINRLV,GIANLV,GICODI,GIFIGI,GINRGI,GIANGI,GIDTGI,GIDTBF) "
                "values ('MI','%1',2026,1001,'BO','%2',2026,'2026-11-13',%3);"_s.arg(ldv)
                    .arg(numero)
                    .arg(chiusa ? u"'2026-11-19'"_s : u"null"_s));
    QStringList righe;
    for (int i = 0; i < std::max(legate, 1); ++i)
        righe << u"('MI','%1',2026,'2026-11-12',1001,'Casalinghi Rossi','V01','L05','ORD-%2',%3)"_s
                     .arg(i == 0 ? ldv : u"8%1%2"_s.arg(numero).arg(i, 3, 10, QChar(u'0')))
                     .arg(numero)
                     .arg(legate == 0 ? u"null,null"_s : u"'%1',2026"_s.arg(numero));
    base.esegui(u"insert into letve00f "
                "(lefili,lenrlv,leanlv,ledtlv,lecodi,ledest,lecdve,lelin1,lerife,LERFGI,LEANGI) values "_s +
                righe.join(u',') + u';');
}

void rispondi(frmPorto& finestra, const Porto& porto)
{
    if (porto.riga >= 0)
        trova<QComboBox>(finestra, u"cmbPorto"_s)->setCurrentIndex(porto.riga);
    if (!porto.controllo)
        trova<QRadioButton>(finestra, u"optGiacenzaNo"_s)->click();
    if (!porto.stampa)
        trova<QRadioButton>(finestra, u"optStampaLDVNo"_s)->click();
    switch (porto.chiude) {
    case Porto::Chiude::conferma:
        QTest::mouseClick(trova<QPushButton>(finestra, u"cmdEsci"_s), Qt::LeftButton);
        break;
    case Porto::Chiude::annulla:
        QTest::mouseClick(trova<QPushButton>(finestra, u"cmdAnnulla"_s), Qt::LeftButton);
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
    mEmissioni.chiamate << u"contesto"_s;
    mEmissioni.contesti.push_back(contesto);
}

void EmittenteDiProva::setPercorsoDatabase(const QString& percorso)
{
    mEmissioni.chiamate << u"database "_s + percorso;
    if (mEmissioni.allInizio)
        mEmissioni.allInizio();
}

void EmittenteDiProva::setCartellaStampa(const QString& cartella)
{
    mEmissioni.chiamate << u"cartella "_s + cartella;
}

void EmittenteDiProva::setPercorsoLogo(const QString& percorso)
{
    mEmissioni.chiamate << u"logo "_s + percorso;
}

void EmittenteDiProva::setStampa(bool stampa)
{
    mEmissioni.chiamate << u"stampa %1"_s.arg(stampa);
}

void EmittenteDiProva::setDefinitiva(bool definitiva)
{
    mEmissioni.chiamate << u"definitiva %1"_s.arg(definitiva);
}

QString EmittenteDiProva::emetti(const RecordLdv& ldv)
{
    const QString numero = ldv.vuoto() ? u"(vuota)"_s : ldv.valore(u"LENRLV"_s).value_or(QString());
    mEmissioni.chiamate << u"emetti "_s + numero;
    mEmissioni.colonne.push_back(ldv.colonne());
    if (mEmissioni.durante)
        mEmissioni.durante();
    return mEmissioni.esito.value_or(u"Emessa da %1"_s.arg(numero));
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
        scrivi("txtCodiceCli", u"1001"_s);
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
    return trova<QLabel>(mSchermata, u"lblStato"_s);
}

} // namespace giacenza::prove
