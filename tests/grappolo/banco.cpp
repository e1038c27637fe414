#include "grappolo/banco.h"

#include "base/impostazioni.h"
#include "base/messaggi.h"
#include "base/orologio.h"
#include "base/parti.h"
#include "data/archivio.h"
#include "database/valori.h"
#include "emissione/emittente.h"
#include "grappolo/detto.h"
#include "management/frmGestGia.h"
#include "redelivery/frmRiconsegna.h"
#include "registration/frmGiacenza.h"
#include "screens/campi.h"
#include "screens/schermatadiprova.h"
#include "support/trova.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

namespace {

const QString classeStampa = u"ReportDocProva.cModuliStampa"_s;

/// Confirms the dialog that the press of a button opens, if it opens one.
void confermaDialogo()
{
    auto* dialogo = QApplication::activeModalWidget();
    if (!dialogo)
        return;
    if (dialogo->objectName() == u"frmRifiuto"_s) {
        scrivi(trova<QLineEdit>(*dialogo, u"txtMotivazione"_s), u"Rifiuta la merce"_s);
        trova<QPushButton>(*dialogo, u"cmdOk"_s)->click();
    } else if (dialogo->objectName() == u"frmPorto"_s) {
        trova<QRadioButton>(*dialogo, u"optStampaLDVNo"_s)->setChecked(true);
        trova<QPushButton>(*dialogo, u"cmdEsci"_s)->click();
    }
}

} // namespace

Banco::Banco(const QString& stringa)
{
    QFile ini(mCartella.filePath(u"giacenza.ini"_s));
    if (!ini.open(QIODevice::WriteOnly) || ini.write("[DLLStampe]\nIdentificativoDll=Prova\n") < 0)
        throw std::runtime_error("the settings file of the workstation cannot be written");
    impostazioni() = {stringa, ini.fileName(), {}, Movimento::riconsegna};
    registraParte(classeStampa, [this] { return std::make_unique<ModuloDiProva>(mStampe, nullptr, false); });
    registraParte(QString::fromUtf16(classeEmittenteLdv),
                  [] { return std::make_unique<emissione::EmittenteDeposito>(accessoHost().traccia); });
    impostaPortaMessaggi([this](QWidget*, const Messaggio& messaggio) {
        mMessaggi << messaggio.testo;
        // A second re-delivery is wanted by nobody here: the question comes only where one was issued unseen.
        const bool domanda =
            messaggio.stile == Stile::domandaAvviso || messaggio.stile == Stile::domandaInformazione;
        return domanda ? Risposta::no : Risposta::ok;
    });
}

Banco::~Banco()
{
    impostaPortaMessaggi({});
    registraParte(classeStampa, {});
    registraParte(QString::fromUtf16(classeEmittenteLdv), {});
}

template<class Forma>
Schermata& Banco::schermata(std::unique_ptr<Schermata>& quale)
{
    if (!quale) {
        auto nuova = std::make_unique<Forma>();
        nuova->carica();
        nuova->show();
        quale = std::move(nuova);
    }
    mUsata = quale.get();
    mUsata->activateWindow();
    QApplication::processEvents();
    return *mUsata;
}

QString Banco::stato() const
{
    if (!mUsata)
        return {};
    const auto* riga = trova<QLabel>(*mUsata, u"lblStato"_s);
    const QString aggiunta = riga->toolTip() == riga->text() ? QString() : u" ["_s + riga->toolTip() + u']';
    return riga->text() + aggiunta;
}

void Banco::premi(const QString& bottone)
{
    QTimer guarda;
    QObject::connect(&guarda, &QTimer::timeout, &confermaDialogo);
    guarda.start(5);
    trova<QPushButton>(*mUsata, bottone)->click();
}

bool Banco::registra(const CasoSeguito& caso, const std::function<void()>& prima)
{
    auto& schermata = this->schermata<frmGiacenza>(mRegistrazione);
    schermata.setProperty("NLettVett", caso.ldv);
    schermata.setProperty("DataLdv", dataBreve(giornoLdv));
    schermata.setProperty("Filiale", u"MI"_s);
    schermata.setProperty("CodiceCliente", u"1001"_s);
    QApplication::processEvents();
    if (testoMostrato(trova<QWidget>(schermata, u"barLdv"_s)) !=
        u"%1 del %2"_s.arg(caso.ldv, dataBreve(giornoLdv)))
        return false;
    scrivi(trova<QWidget>(schermata, u"txtFilialeGia"_s), u"BO"_s);
    scrivi(trova<QWidget>(schermata, u"txtDescGia"_s), u"Assente"_s);
    prima();
    premi(u"cmdSalva"_s);
    return true;
}

bool Banco::richiama(const CasoSeguito& caso)
{
    auto& schermata = this->schermata<frmGestGia>(mGestione);
    scrivi(trova<QWidget>(schermata, u"txtNGiace"_s), caso.giacenza);
    scrivi(trova<QWidget>(schermata, u"txtDataGiace"_s), dataBreve(giornoRegistrazione));
    trova<QPushButton>(schermata, u"cmdRicGiac"_s)->click();
    QApplication::processEvents();
    return testo(trova<QWidget>(schermata, u"lblNrGia"_s)) == caso.giacenza;
}

bool Banco::premiSulCaso(const CasoSeguito& caso, const std::function<void()>& prima, const QString& bottone)
{
    if (!richiama(caso))
        return false;
    prima();
    premi(bottone);
    return true;
}

bool Banco::avvisa(const CasoSeguito& caso, const std::function<void()>& prima)
{
    return premiSulCaso(caso, prima, u"cmdAvvisoGia"_s);
}

bool Banco::chiude(const CasoSeguito& caso, const std::function<void()>& prima)
{
    return premiSulCaso(caso, prima, u"cmdBuonFine"_s);
}

bool Banco::riconsegna(const CasoSeguito& caso, const std::function<void()>& prima)
{
    // One screen issues once.
    mRiconsegna.reset();
    auto& schermata = this->schermata<frmRiconsegna>(mRiconsegna);
    scrivi(trova<QWidget>(schermata, u"txtCodiceCli"_s), u"1001"_s);
    scrivi(trova<QWidget>(schermata, u"txtLDV"_s), caso.ldv);
    scrivi(trova<QWidget>(schermata, u"txtDataLdv"_s), dataBreve(giornoLdv));
    auto* numero = trova<QWidget>(schermata, u"txtLDV"_s);
    numero->setFocus();
    QTest::keyClick(numero, Qt::Key_F12);
    QApplication::processEvents();
    if (testo(trova<QWidget>(schermata, u"lblNrGia"_s)) != caso.giacenza)
        return false;
    prima();
    premi(u"cmdRiconsegna"_s);
    return true;
}

QList<Voce> Banco::fai(Lavoro lavoro, const CasoSeguito& caso, const std::function<void()>& prima)
{
    using Fa = bool (Banco::*)(const CasoSeguito&, const std::function<void()>&);
    static constexpr Fa fa[] = {&Banco::registra, &Banco::avvisa, &Banco::riconsegna, &Banco::chiude};
    static constexpr int giorniDopo[] = {0, 2, 1, 3};
    const auto quale = static_cast<std::size_t>(lavoro);
    impostaOggi(giornoRegistrazione.addDays(giorniDopo[quale]));
    mMessaggi.clear();
    mUsata = nullptr;
    Detto detto;
    QElapsedTimer orologio;
    orologio.start();
    try {
        detto.premuto = (this->*fa[quale])(caso, prima);
        detto.giacenza =
            lavoro == Lavoro::registra ? testo(trova<QWidget>(*mUsata, u"lblNrGia"_s)) : caso.giacenza;
        detto.stato = stato();
    } catch (const Errore& errore) {
        // A screen that cannot be opened is told to the host, and nothing was pressed.
        detto.stato = errore.testo();
    }
    detto.messaggi = mMessaggi;
    QList<Voce> voci = capisci(lavoro, detto);
    for (Voce& voce : voci) {
        voce.millisecondi = orologio.elapsed();
        voce.ldv = caso.ldv;
        voce.giorno = oggi();
    }
    QApplication::processEvents();
    return voci;
}

} // namespace giacenza::prove
