#pragma once

#include <QPlainTextEdit>

namespace giacenza {

/// A text box that takes in no more than so much at a time from outside, so that a paste or a drop of
/// anything leaves the screen in use. What the program writes into it is not cut.
class CampoTesto : public QPlainTextEdit
{
    Q_OBJECT

public:
    static constexpr qsizetype massimoIncollato = 20'000; ///< characters; the rest of a paste is left out

    explicit CampoTesto(QWidget* padre = nullptr) : QPlainTextEdit(padre) {}

Q_SIGNALS:
    /// A paste or a drop was cut.
    void tagliato();

protected:
    void insertFromMimeData(const QMimeData* dati) override;
};

} // namespace giacenza
