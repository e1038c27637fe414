#pragma once

#include <QString>

class QLabel;
class QWidget;

namespace giacenza {

/// A hint beside a field: a sign and words, and the field's frame in the colour of a warning. Nothing is
/// asked, nothing refused.
class Avvertenza
{
public:
    /// etichetta: where the words stand; null on a screen that gives no such hint.
    Avvertenza(QWidget* campo, QLabel* etichetta);

    /// parole: empty takes the hint away.
    void mostra(const QString& parole);

private:
    QWidget* mCampo;
    QLabel* mEtichetta;
};

} // namespace giacenza
