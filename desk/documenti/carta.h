#pragma once

#include <QStringList>

#include <array>

namespace giacenza::documenti {

/// What the depot's paper carries besides its text, and where documents go.
struct Carta
{
    QString logo = {};                      ///< a file, or a folder that holds "logo.gif"; empty: no logo
    std::array<QString, 4> didascalie = {}; ///< the letterhead's lines, any may be empty
    QStringList piede = {};                 ///< lines for the foot
    QString cartella = {};                  ///< where documents are kept, absolute
};

/// The paper of the letters, as the settings file has it. logo: as the host hands it to the component. Throws
/// what reading the settings throws.
Carta cartaDelleLettere(const QString& logo);

} // namespace giacenza::documenti
