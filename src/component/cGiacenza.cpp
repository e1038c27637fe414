#include <giacenza/Chiamata.h>

#include "base/forme.h"
#include "base/impostazioni.h"
#include "base/messaggi.h"
#include "component/registraforme.h"

#include <QApplication>
#include <QThread>

#include <vector>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

const QString schermataGiacenza = u"frmGiacenza"_s;
const QString schermataRiconsegna = u"frmRiconsegna"_s;
const QString schermataGestione = u"frmGestGia"_s;

// The calendar and the refusal dialog are not among them: they are modal and go by themselves.
QStringList daScaricare()
{
    return {schermataGestione,  schermataGiacenza,   u"frmPorto"_s,  u"frmRicerca"_s,
            u"frmRicercaGia"_s, schermataRiconsegna, u"rptAvviso"_s, u"rptBuonFine"_s};
}

std::shared_ptr<Forme> formePronte()
{
    std::shared_ptr<Forme> forme = Forme::delThread();
    static thread_local const bool registrate = [&] {
        registraForme(*forme);
        return true;
    }();
    Q_UNUSED(registrate);
    return forme;
}

// A window made elsewhere would take the process with it.
void controllaInterfaccia()
{
    const auto* applicazione = qobject_cast<QApplication*>(QCoreApplication::instance());
    if (!applicazione)
        throw ErroreChiamata(ErroreChiamata::senzaInterfaccia,
                             u"Per aprire una schermata serve l'interfaccia grafica (QApplication)."_s);
    if (applicazione->thread() != QThread::currentThread())
        throw ErroreChiamata(ErroreChiamata::altroThread,
                             u"Una schermata si apre nel thread dell'interfaccia grafica."_s);
}

void mostra(QWidget& schermata)
{
    schermata.setWindowState(schermata.windowState() & ~Qt::WindowMinimized);
    schermata.show();
    schermata.raise();
    schermata.activateWindow();
}

} // namespace

class cGiacenza::Interno
{
public:
    // The screen that was asked for, bound; null, with a message, in a version that does not have it.
    QWidget* lega(const QString& nome)
    {
        controllaInterfaccia();
        QWidget* schermata = mForme->forma(nome);
        if (!schermata) {
            mostraMessaggio(nullptr, {u"Questa schermata non è ancora disponibile in questa versione."_s,
                                      Stile::informazione, titoloApplicazione()});
            return nullptr;
        }
        std::erase_if(mLegate, [&](const auto& legata) { return !legata || legata == schermata; });
        mLegate.emplace_back(schermata);
        return schermata;
    }

    void apri(const QString& nome)
    {
        if (QWidget* schermata = lega(nome))
            mostra(*schermata);
    }

    bool rilascia(const QWidget* schermata) { return std::erase(mLegate, schermata) > 0; }

    const std::shared_ptr<Forme> mForme = formePronte();

private:
    std::vector<QPointer<QWidget>> mLegate;
};

cGiacenza::cGiacenza(QObject* parent) : QObject(parent), mInterno(std::make_unique<Interno>())
{
    connect(mInterno->mForme.get(), &Forme::uscita, this, [this](const QWidget* schermata) {
        // Last: the host may destroy this object while it is told.
        if (mInterno->rilascia(schermata))
            Q_EMIT fine();
    });
}

cGiacenza::~cGiacenza()
{
    const std::shared_ptr<Forme> forme = mInterno->mForme;
    forme->disconnect(this);
    for (const QString& nome : daScaricare())
        forme->scarica(nome);
}

QString cGiacenza::PercorsoDatabase() const
{
    return impostazioni().percorsoDatabase;
}

void cGiacenza::setPercorsoDatabase(const QString& percorso)
{
    impostazioni().percorsoDatabase = percorso;
}

QString cGiacenza::PercorsoFileIni() const
{
    return impostazioni().percorsoFileIni;
}

void cGiacenza::setPercorsoFileIni(const QString& percorso)
{
    impostazioni().percorsoFileIni = percorso;
}

void cGiacenza::NuovaGiacenza()
{
    mInterno->apri(schermataGiacenza);
}

void cGiacenza::NuovaGiacenzaEXT(const QString& strLdv, const QString& strDataLdv, const QString& strFiliale,
                                 const QString& strCliente)
{
    QWidget* schermata = mInterno->lega(schermataGiacenza);
    if (!schermata)
        return;
    schermata->setProperty("NLettVett", strLdv);
    schermata->setProperty("DataLdv", strDataLdv);
    schermata->setProperty("Filiale", strFiliale);
    schermata->setProperty("CodiceCliente", strCliente);
    mostra(*schermata);
}

void cGiacenza::setPercorsoLogoIntestazione(const QString& percorso)
{
    impostazioni().percorsoLogoIntestazione = percorso;
}

void cGiacenza::MostraRiconsegna()
{
    mInterno->apri(schermataRiconsegna);
}

void cGiacenza::setTipoReso(Reso tipo)
{
    impostazioni().movimento = tipo == ResoMittente ? Movimento::reso : Movimento::riconsegna;
}

void cGiacenza::ConsultaGiacenza()
{
    mInterno->apri(schermataGestione);
}

QVariant cGiacenza::Esegui(const QString&, const QVariant&)
{
    return {};
}

} // namespace giacenza
