#pragma once

#include <QLineEdit>

namespace giacenza {

/// A masked date field: "dd/mm/yyyy" is typed into "__/__/____", which stands while the field has the focus.
/// Left untouched it reads empty.
class CampoData : public QLineEdit
{
    Q_OBJECT

public:
    explicit CampoData(QWidget* parent = nullptr);

    /// What the field holds: empty when nothing was typed, else as displayed; a half-filled mask keeps its
    /// blanks ("12/__/2026"), so that it is no date.
    QString testo() const;

    /// Shows a date, "dd/mm/yyyy"; giorno empty clears the field.
    void imposta(const QString& giorno);

    /// Whether the field asks for a date, as it does at first; else it is a plain one, for a year. Clears it.
    void chiediData(bool perData);

protected:
    bool event(QEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;

private:
    void mostraEsempio();
    bool intera() const;

    bool mData = true;
    bool mEntratoColMouse = false;
};

} // namespace giacenza
