#pragma once

#include <QTableView>

namespace giacenza::desk {

/// A table of the desk: whole rows, one height, titles that sort or not, Enter and double click the same.
/// Letters typed in it belong to the one field, not to a search in its rows.
class TabellaDesk : public QTableView
{
    Q_OBJECT

public:
    /// nome: what a screen reader calls it.
    explicit TabellaDesk(const QString& nome, QWidget* padre = nullptr);

    /// The widths that show these texts whole, in the font of the table.
    void setMisure(const QStringList& testi);
    /// Those widths again, whatever the user made of them.
    void larghezzeSolite();
    /// The first column that is seen, from the left.
    int primaVista() const;

    void keyboardSearch(const QString&) override {}

Q_SIGNALS:
    /// Enter, or a double click, on a row.
    void presa(int riga);

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void changeEvent(QEvent* evento) override;

private:
    int solita(int colonna) const;
    void nuovoCarattere();

    QStringList mMisure;
    QList<int> mSolite; ///< pixels, in the font that they were measured in
    int mCarattere = 0; ///< that font's width
};

} // namespace giacenza::desk
