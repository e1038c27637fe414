#pragma once

#include <QString>

#include <vector>

class QWidget;

namespace giacenza {

/// The longest value that a control of the working screens can show: what its column holds at most.
struct MisuraCampo
{
    const char* controllo;
    const char16_t* piuLungo;
    bool largo; ///< may grow beyond it
};

/// One for each control whose value must be read whole: codes, numbers, dates, amounts, references.
const std::vector<MisuraCampo>& misureCampi();

/// Makes these controls of a screen as wide as their longest value is in the font that they have now, and the
/// number of the held shipment larger than the rest.
void misuraCampi(QWidget* schermata);

} // namespace giacenza
