#pragma once

#include <QComboBox>

namespace giacenza {

/// A drop-down list that tells when it is about to open, so that its rows can be read anew.
class ElencoPorto : public QComboBox
{
    Q_OBJECT

public:
    using QComboBox::QComboBox;

    void showPopup() override
    {
        Q_EMIT inApertura();
        QComboBox::showPopup();
    }

Q_SIGNALS:
    void inApertura();
};

} // namespace giacenza
