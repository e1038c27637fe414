#pragma once

#include "desk/dati/regole.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QToolButton;

namespace giacenza::desk {

class ModelloCasi;
class TabellaCasi;
struct Filiale;

/// The list of the open cases with its filter, its branch and its totals.
class PaginaElenco : public QWidget
{
    Q_OBJECT

public:
    explicit PaginaElenco(QWidget* padre = nullptr);

    TabellaCasi* tabella() const { return mTabella; }
    ModelloCasi* modello() const { return mModello; }

    /// The branch whose cases are wanted; empty: all.
    QString filiale() const;
    /// Of a branch that is no longer there, all are wanted instead, and filialeScelta() says so.
    void setFiliali(const std::vector<Filiale>& filiali);
    /// The branches stay those that are known, and their list says why; empty: no more.
    void diciGuastoFiliali(const QString& testo, const QString& dettaglio = {});
    /// Wants a branch's cases before the branches are known; says nothing. codice: empty: all.
    void scegliFiliale(const QString& codice);

    /// The list was read to its end: until then, an empty one has no totals.
    void letta();
    /// What stands beside the totals: when it was read, or that it is being read.
    void setLettura(const QString& testo);
    /// The cases that are marked.
    std::vector<Caso> marcati() const;
    /// Puts the focus into the filter.
    void filtra();
    QLineEdit* filtro() const { return mFiltro; }

Q_SIGNALS:
    void filialeScelta();
    /// Enter or a double click on a case.
    void preso(const giacenza::desk::Caso& caso);

private:
    void componi();
    void mostraTotali();
    void mostraSeFiltra();

    // In the order of the keyboard.
    ModelloCasi* mModello;
    QLineEdit* mFiltro;
    QToolButton* mTogliFiltro; ///< there while it filters
    QComboBox* mFiliale;
    TabellaCasi* mTabella;
    QLabel* mTotali;
    QLabel* mLettura;
    bool mLetta = false;
};

} // namespace giacenza::desk
