#pragma once

#include <QAction>
#include <QMenu>

namespace giacenza::desk {

/// What can be done on the desk, by key, from the menus and from a row's own menu. Every key needs Ctrl or is
/// a function key, since characters belong to the one field; Enter is the row's.
struct AzioniDesk
{
    /// padre: the desk; the actions work while the focus is in its window.
    explicit AzioniDesk(QWidget* padre);

    QAction* gestione;   ///< azCasoGestione, Enter
    QAction* catena;     ///< azCasoCatena, F8
    QAction* riconsegna; ///< azCasoRiconsegna, Ctrl+R
    QAction* reso;       ///< azCasoReso, Ctrl+Shift+R
    QAction* avvisa;     ///< azCasiAvvisa, Ctrl+N
    QAction* ristampa;   ///< azCasiRistampa, Ctrl+P
    QAction* aggiorna;   ///< azAggiorna, F5
    QAction* filtra;     ///< azFiltra, Ctrl+F
    QAction* cerca;      ///< azCerca, Ctrl+L
    QAction* elenco;     ///< azElenco, Esc

    QMenu* colonne; ///< menuColonne: which of the list's columns are shown; the list fills it

    /// What concerns the cases that are marked: for the menu bar and for a row.
    void riempiCaso(QMenu* menu) const;
    /// What concerns the list.
    void riempiElenco(QMenu* menu) const;

    /// More that can be done with a case (its charge sheet, its register, its dossier, a customer's
    /// statement): whoever brings them adds them here, before the menus are made; they take their case from
    /// FinestraDesk::casi().
    QList<QAction*> altre;
};

} // namespace giacenza::desk
