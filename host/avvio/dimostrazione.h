#pragma once

#include <QString>

class QWidget;

namespace deposito {

/// Makes the embedded archive of invented data where there is none yet, with a progress that can be
/// cancelled. It takes its name only once it is whole.
///
/// Returns why there is none, in Italian; empty when it is there. "Annullato" is a reason too.
QString preparaDimostrazione(const QString& file, QWidget* padre);

} // namespace deposito
