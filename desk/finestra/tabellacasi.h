#pragma once

#include "desk/finestra/tabelladesk.h"

#include <QSet>

namespace giacenza::desk {

class ColonneScelte;
class ModelloCasi;

/// The list of the open cases. Whatever the model does, the marked rows stay marked, the current one stays
/// current, and the list stays where it was scrolled to, both ways, as long as their cases are there.
class TabellaCasi : public TabellaDesk
{
    Q_OBJECT

public:
    explicit TabellaCasi(ModelloCasi* modello, QWidget* padre = nullptr);

    ColonneScelte* colonneScelte() const { return mColonneScelte; }

    /// The rows that are marked, from the top; else the current one.
    QList<int> marcate() const;
    /// Makes a row the current and only marked one, and shows it.
    void mostraRiga(int riga);

private:
    void ricorda();
    void rimetti();
    void rimettiRighe();

    ModelloCasi* mModello;
    ColonneScelte* mColonneScelte;
    QSet<QString> mMarcate; ///< names of cases
    QString mCorrente;
    int mColonna = 0;
    QString mPrima;  ///< the first that is in view
    int mScorsa = 0; ///< how far it is scrolled to the right, in pixels
};

} // namespace giacenza::desk
