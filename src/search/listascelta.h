#pragma once

#include <QListWidget>

namespace giacenza {

/// A list out of which the operator takes one row, by a click or by Enter. Coming to it by key takes and
/// marks nothing; the first arrow marks the row that the list starts from.
class ListaScelta : public QListWidget
{
    Q_OBJECT

public:
    explicit ListaScelta(QWidget* parent = nullptr);

    /// How many rows fit into the list as it stands, at least one.
    int righeVisibili() const;

    /// Brings the focus here by an arrow, which marks the row that the list starts from; nothing without
    /// rows.
    void entraDaTasto();

Q_SIGNALS:
    /// The operator took the marked row.
    void scelta(QListWidgetItem* voce);
    /// The end of the rows can be seen, or is about to be: more may be added.
    void finePagina();

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;

private:
    void guardaFine();
};

} // namespace giacenza
