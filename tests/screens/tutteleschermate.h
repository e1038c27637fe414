#pragma once

#include "management/frmGestGia.h"
#include "redelivery/frmRiconsegna.h"
#include "registration/frmGiacenza.h"

#include <QApplication>

#include <memory>
#include <string>

namespace giacenza::prove {

/// One of the three working screens, not loaded: its form without a database. nome: its class.
inline std::unique_ptr<Schermata> creaSchermata(const std::string& nome)
{
    if (nome == "frmGiacenza")
        return std::make_unique<frmGiacenza>();
    if (nome == "frmGestGia")
        return std::make_unique<frmGestGia>();
    return std::make_unique<frmRiconsegna>();
}

/// The application's font in another size, while this lives.
class CorpoCarattere
{
public:
    explicit CorpoCarattere(qreal punti)
    {
        QFont font = mPrima;
        font.setPointSizeF(punti);
        QApplication::setFont(font);
    }
    CorpoCarattere(const CorpoCarattere&) = delete;
    CorpoCarattere& operator=(const CorpoCarattere&) = delete;
    ~CorpoCarattere() { QApplication::setFont(mPrima); }

private:
    QFont mPrima = QApplication::font();
};

} // namespace giacenza::prove
