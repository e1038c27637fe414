#pragma once

#include "registration/frmGiacenza.h"
#include "screens/schermatadiprova.h"

namespace giacenza::prove {

/// The registration screen under test.
class RegistrazioneDiProva : public SchermataDiProva
{
protected:
    std::unique_ptr<Schermata> crea() const override { return std::make_unique<frmGiacenza>(); }

    /// Opens it, if it is not, with a waybill handed over, and lets it react.
    void consegna(const QString& ldv, const QString& data, const QString& filiale, const QString& cliente);
    /// A waybill of the small depot, of 12/11/2026 and branch MI.
    void consegna(const QString& ldv);
};

} // namespace giacenza::prove
