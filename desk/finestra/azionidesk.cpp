#include "desk/finestra/azionidesk.h"

#include <QWidget>

using namespace Qt::StringLiterals;

namespace giacenza::desk {

namespace {

QAction* azione(QWidget* padre, const char16_t* nome, const QString& testo, const QString& spiegazione,
                const QKeySequence& tasto)
{
    auto* nuova = new QAction(testo, padre);
    nuova->setObjectName(QString::fromUtf16(nome));
    nuova->setStatusTip(spiegazione);
    nuova->setToolTip(spiegazione);
    nuova->setShortcut(tasto);
    padre->addAction(nuova);
    return nuova;
}

} // namespace

AzioniDesk::AzioniDesk(QWidget* padre)
    // Enter is no shortcut: in a field it means something else. The menus say it all the same.
    : gestione(azione(padre, u"azCasoGestione", u"Apri in &gestione\tInvio"_s,
                      u"Apre il caso nella gestione giacenze"_s, {})),
      catena(azione(padre, u"azCasoCatena", u"Mostra la &storia"_s,
                    u"Mostra il caso con tutta la sua storia"_s, Qt::Key_F8)),
      riconsegna(azione(padre, u"azCasoRiconsegna", u"&Riconsegna"_s, u"Riconsegna il caso al destinatario"_s,
                        Qt::CTRL | Qt::Key_R)),
      reso(azione(padre, u"azCasoReso", u"R&eso"_s, u"Rende il caso al mittente"_s,
                  Qt::CTRL | Qt::SHIFT | Qt::Key_R)),
      avvisa(azione(padre, u"azCasiAvvisa", u"&Avvisa…"_s, u"Emette l'avviso dei casi segnati"_s,
                    Qt::CTRL | Qt::Key_N)),
      ristampa(azione(padre, u"azCasiRistampa", u"Ristam&pa avviso…"_s,
                      u"Ristampa l'avviso dei casi segnati"_s, Qt::CTRL | Qt::Key_P)),
      aggiorna(azione(padre, u"azAggiorna", u"&Aggiorna"_s, u"Rilegge l'elenco"_s, Qt::Key_F5)),
      filtra(azione(padre, u"azFiltra", u"&Filtra"_s, u"Va al filtro dell'elenco"_s, Qt::CTRL | Qt::Key_F)),
      cerca(azione(padre, u"azCerca", u"&Cerca o scansiona"_s, u"Va al campo di ricerca"_s,
                   Qt::CTRL | Qt::Key_L)),
      elenco(azione(padre, u"azElenco", u"&Torna all'elenco"_s, u"Lascia il caso e torna all'elenco"_s,
                    Qt::Key_Escape)),
      colonne(new QMenu(u"C&olonne"_s, padre))
{
    colonne->setObjectName(u"menuColonne"_s);
}

void AzioniDesk::riempiCaso(QMenu* menu) const
{
    menu->addActions({gestione, catena});
    menu->addSeparator();
    menu->addActions({riconsegna, reso});
    menu->addSeparator();
    menu->addActions({avvisa, ristampa});
    if (!altre.isEmpty()) {
        menu->addSeparator();
        menu->addActions(altre);
    }
}

void AzioniDesk::riempiElenco(QMenu* menu) const
{
    menu->addActions({cerca, filtra, aggiorna});
    menu->addMenu(colonne);
    menu->addSeparator();
    menu->addAction(elenco);
}

} // namespace giacenza::desk
