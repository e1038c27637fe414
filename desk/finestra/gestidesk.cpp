// What the operator does on the desk: searching, opening, sending.

#include "database/valori.h"
#include "desk/dati/tentativi.h"
#include "desk/finestra/camposcansione.h"
#include "desk/finestra/finestradesk.h"
#include "desk/finestra/finestrainvio.h"
#include "desk/finestra/modellocasi.h"
#include "desk/finestra/paginacaso.h"
#include "desk/finestra/paginaelenco.h"
#include "desk/finestra/paginarisultati.h"
#include "desk/finestra/tabellacasi.h"

#include "base/modale.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QKeyEvent>
#include <QStackedWidget>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace giacenza::desk {

namespace {

CasoDaMostrare daMostrare(const Caso& caso)
{
    return {caso.chiave.numero,      dataBreve(caso.dal), caso.ldv.numero,
            dataBreve(caso.dataLdv), caso.cliente,        caso.ldv.filiale};
}

/// A menu that the first character of a scan closes: its letters are the one field's, and choose nothing.
class MenuDelCaso : public QMenu
{
public:
    MenuDelCaso(CampoScansione* campo, QWidget* padre) : QMenu(padre), mCampo(campo)
    {
        setAttribute(Qt::WA_DeleteOnClose);
    }

protected:
    void keyPressEvent(QKeyEvent* evento) override
    {
        if (evento->key() == Qt::Key_Space || !scriveUnCarattere(*evento))
            return QMenu::keyPressEvent(evento);
        close();
        mCampo->prendi(*evento);
    }

private:
    CampoScansione* mCampo;
};

} // namespace

void FinestraDesk::collegaAzioni()
{
    connect(mAzioni.gestione, &QAction::triggered, this,
            [this] { apriPrimo(SchermataCaso::gestione, u"Gestione giacenze"_s); });
    connect(mAzioni.riconsegna, &QAction::triggered, this,
            [this] { apriPrimo(SchermataCaso::riconsegna, u"Riconsegna a destinatario"_s); });
    connect(mAzioni.reso, &QAction::triggered, this,
            [this] { apriPrimo(SchermataCaso::reso, u"Reso a mittente"_s); });
    connect(mAzioni.catena, &QAction::triggered, this, [this] {
        if (const auto scelti = casi(); !scelti.empty())
            mostraCatena(scelti.front());
    });
    connect(mAzioni.avvisa, &QAction::triggered, this, [this] { invia(Lavoro::avviso); });
    connect(mAzioni.ristampa, &QAction::triggered, this, [this] { invia(Lavoro::ristampa); });
    connect(mAzioni.aggiorna, &QAction::triggered, this, &FinestraDesk::aggiorna);
    connect(mAzioni.filtra, &QAction::triggered, this, [this] {
        mPagine->setCurrentWidget(mElenco);
        mElenco->filtra();
    });
    connect(mAzioni.cerca, &QAction::triggered, this, [this] {
        mCampo->setFocus(Qt::ShortcutFocusReason);
        mCampo->selectAll();
    });
    connect(mAzioni.elenco, &QAction::triggered, this, &FinestraDesk::indietro);
}

std::vector<Caso> FinestraDesk::casi() const
{
    if (mPagine->currentWidget() == mElenco)
        return mElenco->marcati();
    if (mPagine->currentWidget() == mCaso && mCaso->catena())
        return {mCaso->catena()->riga.caso};
    if (const auto scelto = mRisultati->caso(); scelto && mPagine->currentWidget() == mRisultati)
        return {*scelto};
    return {};
}

void FinestraDesk::cerca(const QString& testo)
{
    const QString pulito = ripulito(testo);
    if (pulito.isEmpty())
        return dici(u"Scrivere o scansionare un numero."_s);
    if (mArchivioHost.database.isEmpty())
        return dici(u"Non c'è un archivio in cui cercare."_s, true);
    if (!accesso())
        return;
    mRilettura = false;
    mCercando = true;
    dici(u"Cerco %1…"_s.arg(pulito));
    mArchivio->cerca(sguardo(), pulito);
    mCampo->cercato();
}

void FinestraDesk::letto(const Catena& catena)
{
    mCercando = false;
    mCaso->mostra(catena);
    const bool rilettura = std::exchange(mRilettura, false);
    if (rilettura && mPagine->currentWidget() != mRisultati)
        return;
    // What was found has become one case: its page takes the place, and the focus only from there.
    const bool conFuoco = !rilettura || mRisultati->isAncestorOf(window()->focusWidget());
    if (!rilettura) {
        dici({});
        mCampo->cercato();
    }
    mPagine->setCurrentWidget(mCaso);
    if (conFuoco)
        mCaso->setFocus();
}

void FinestraDesk::trovato(const EsitoRicerca& esito)
{
    mCercando = false;
    if (std::exchange(mRilettura, false))
        return mRisultati->rimostra(esito);
    mCampo->cercato();
    if (esito.trovate.empty())
        return dici(senzaEsito(esito), true);
    dici({});
    mRisultati->mostra(esito);
    mPagine->setCurrentWidget(mRisultati);
    mRisultati->setFocus();
}

void FinestraDesk::scelta(const Trovata& trovata)
{
    if (!trovata.caso)
        return registra(trovata);
    mRilettura = false;
    mCercando = true;
    mArchivio->leggi(sguardo(), *trovata.caso);
}

void FinestraDesk::mostraCatena(const Caso& caso)
{
    // The number that stands there did not lead here.
    mCampo->clear();
    mRilettura = false;
    mCercando = true;
    mArchivio->leggi(sguardo(), caso.chiave);
}

void FinestraDesk::apriCaso(SchermataCaso schermata, const QString& nome, const Caso& caso)
{
    mApertura(u"%1, giacenza %2"_s.arg(nome, nomeGiacenza(caso.chiave)),
              [&] { MostraCaso(mComponente, schermata, daMostrare(caso)); });
}

void FinestraDesk::apriPrimo(SchermataCaso schermata, const QString& nome)
{
    const auto scelti = casi();
    if (scelti.empty())
        return dici(u"Nessun caso scelto: indicarne uno nell'elenco, o cercarlo."_s, true);
    if (scelti.size() > 1)
        return dici(u"I casi segnati sono %1: qui se ne apre uno alla volta."_s.arg(scelti.size()), true);
    apriCaso(schermata, nome, scelti.front());
}

void FinestraDesk::registra(const Trovata& trovata)
{
    mApertura(u"Nuova giacenza per la LDV %1"_s.arg(nomeLdv(trovata.ldv)), [&] {
        mComponente.NuovaGiacenzaEXT(trovata.ldv.numero, dataBreve(trovata.dataLdv), trovata.ldv.filiale,
                                     trovata.cliente);
    });
}

void FinestraDesk::invia(Lavoro lavoro)
{
    const auto scelti = casi();
    if (scelti.empty())
        return dici(u"Nessun caso scelto: indicarne uno nell'elenco, o cercarlo."_s, true);
    const auto con = accesso();
    if (!con)
        return;
    dici({});
    const bool fatti = eseguiModale(std::make_unique<FinestraInvio>(lavoro, scelti, *con, window()),
                                    [](const FinestraInvio& finestra) { return finestra.cominciato(); });
    if (fatti)
        aggiorna();
}

void FinestraDesk::apriDocumento(const QString& file)
{
    if (!QFileInfo(file).isFile())
        return dici(u"Il documento %1 non c'è più."_s.arg(file), true);
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(file)))
        dici(u"Nessun programma apre %1."_s.arg(file), true);
}

void FinestraDesk::menuCaso(const QPoint& dove)
{
    if (casi().empty())
        return;
    auto* menu = new MenuDelCaso(mCampo, this);
    menu->setObjectName(u"menuRiga"_s);
    mAzioni.riempiCaso(menu);
    menu->popup(mElenco->tabella()->viewport()->mapToGlobal(dove));
}

} // namespace giacenza::desk
