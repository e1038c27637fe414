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

    void keyboardSearch(const QString&) override {}

Q_SIGNALS:
    /// Enter, or a double click, on a row.
    void presa(int riga);

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void changeEvent(QEvent* evento) override;

private:
    void misura();

    QStringList mMisure;
};

} // namespace giacenza::desk
