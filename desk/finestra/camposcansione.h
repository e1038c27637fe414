#pragma once

#include <QLineEdit>

namespace giacenza::desk {

/// Whether a key puts a character where there is a field for it: no command, no arrow, no Enter.
bool scriveUnCarattere(const QKeyEvent& tasto);

/// The one field: it takes what a scanner or a hand gives, wherever in its window the focus is, unless
/// another field has it.
class CampoScansione : public QLineEdit
{
    Q_OBJECT

public:
    explicit CampoScansione(QWidget* padre = nullptr);
    ~CampoScansione() override;

    /// What it holds was looked for: the next character begins anew.
    void cercato();
    /// Takes a key that somebody else was given, and the focus.
    void prendi(const QKeyEvent& tasto);

Q_SIGNALS:
    void chiesto(const QString& testo);

protected:
    /// Of the whole program: characters that nobody in the window has asked for.
    bool eventFilter(QObject* oggetto, QEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;

private:
    bool miSpetta(const QWidget* destinatario, const QKeyEvent& tasto) const;

    bool mDaCapo = false;
};

} // namespace giacenza::desk
