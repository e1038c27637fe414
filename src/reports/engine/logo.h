#pragma once

#include <QImage>
#include <QString>

namespace giacenza::report {

/// The letterhead logo, opaque on white and no larger than paper needs.
///
/// percorso: a file, or a folder that holds "logo.gif". A null image when there is none or it is no
/// picture. Throws Errore for what is no plain file, more than limiteLogo or more than 50 million points.
QImage leggiLogo(const QString& percorso);

} // namespace giacenza::report
