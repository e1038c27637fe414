#pragma once

#include <QList>
#include <QPointer>
#include <QScrollArea>

class QBoxLayout;

namespace giacenza {

/// Holds the content of a form that may be larger than its window: scrolls it, follows the focus, and puts
/// the two columns of the content one above the other where they do not fit side by side.
class AreaForma : public QScrollArea
{
    Q_OBJECT

public:
    explicit AreaForma(QWidget* parent = nullptr);

    /// The layout of the two columns. The right one, where the operator types, comes first when they are
    /// stacked.
    void setColonne(QBoxLayout* colonne);

    /// Rows of the content whose second half goes below the first where they do not fit side by side.
    void setRigheDivisibili(const QList<QBoxLayout*>& righe);

    /// What the content needs with its columns side by side.
    QSize ingombro() const;

    QSize sizeHint() const override { return ingombro(); }

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;

private:
    void disponi();
    void disponiRiga(QBoxLayout& riga, int spazio);
    int larghezzaAffiancate() const;
    void segui(QWidget* conFuoco);

    QPointer<QBoxLayout> mColonne;
    QList<QPointer<QBoxLayout>> mRighe;
};

} // namespace giacenza
