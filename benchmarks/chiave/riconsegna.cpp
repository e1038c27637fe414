// The re-delivery screen: the issue by the issuer that comes with the component, without printing.

#include "base/impostazioni.h"
#include "benchmarks/chiave/schermata.h"
#include "benchmarks/quadro/residente.h"
#include "data/archivio.h"
#include "database/valori.h"
#include "emissione/emittente.h"
#include "redelivery/frmRiconsegna.h"

#include <QAbstractButton>
#include <QApplication>
#include <QChildEvent>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace giacenza;

namespace banco {

namespace {

/// The whole re-delivery, but for the dialog that asks for the freight terms: from the press of the button to
/// the beginning of the dialog, and from when it is gone to the end.
class Emissione : public OperazioneSuSchermata, public QObject
{
public:
    Emissione() : OperazioneSuSchermata(std::make_unique<frmRiconsegna>())
    {
        schermata().installEventFilter(this);
    }

    void prepara(const Caso& caso) override
    {
        registraParte(QString::fromUtf16(classeEmittenteLdv), {});
        attiva();
        scrivi(u"txtCodiceCli"_s, caso.cliente);
        scrivi(u"txtLDV"_s, caso.numero);
        scrivi(u"txtDataLdv"_s, dataBreve(caso.data));
        premi(u"txtLDV"_s, Qt::Key_F12);
        controllo<QPushButton>(u"cmdRiconsegna"_s)->setEnabled(true);
        dipingi();
        pretendi(u"lblNrGia"_s, caso.giacenza);
    }

    /// The issuer of the plug-in file tells nobody what it sends: here the same one is linked in.
    void registra() override
    {
        registraParte(QString::fromUtf16(classeEmittenteLdv), [] {
            return std::make_unique<giacenza::emissione::EmittenteDeposito>(accessoHost().traccia);
        });
    }

    double esegui(const Caso&) override
    {
        QTimer::singleShot(0, this, [this] { conferma(); });
        mPrima.reset();
        mFase.emplace();
        controllo<QPushButton>(u"cmdRiconsegna"_s)->click();
        const double dopo = mFase->millisecondi();
        if (controllo<QPushButton>(u"cmdRiconsegna"_s)->isEnabled() || !mPrima)
            throw Errore(u"Nothing was issued: %1"_s.arg(controllo<QLabel>(u"lblStato"_s)->text()));
        pretendiEmessa();
        QApplication::processEvents();
        return *mPrima + dopo;
    }

private:
    bool eventFilter(QObject*, QEvent* evento) override
    {
        // The dialog, the first child that the screen gets after the press.
        if (evento->type() == QEvent::ChildAdded && mFase && !mPrima &&
            static_cast<QChildEvent*>(evento)->child()->isWidgetType())
            mPrima = mFase->millisecondi();
        return false;
    }

    void conferma()
    {
        auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialogo)
            return;
        dialogo->findChild<QAbstractButton*>(u"optStampaLDVNo"_s)->setChecked(true);
        // The operator has looked at the dialog for seconds: what follows starts as cold as the press did.
        QObject::connect(dialogo, &QObject::destroyed, this, [this] {
            raffredda();
            mFase.emplace();
        });
        dialogo->findChild<QPushButton*>(u"cmdEsci"_s)->click();
    }

    void pretendiEmessa() const
    {
        const QString detto = controllo<QLabel>(u"lblStato"_s)->text();
        if (!detto.startsWith(u"Emessa la lettera di vettura"_s))
            throw Errore(u"Nothing was issued: %1"_s.arg(detto));
    }

    std::optional<double> mPrima; ///< milliseconds until the dialog begins
    std::optional<Cronometro> mFase;
};

} // namespace

std::unique_ptr<Operazione> emissione()
{
    return std::make_unique<Emissione>();
}

} // namespace banco
