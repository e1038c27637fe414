#pragma once

#include <QString>

namespace giacenza {

/// What the exception that is being handled says, for the operator; of the database in Italian (spiega). To
/// be called in a handler, also in one of whatever comes: parts of the host's throw what they like.
QString testoErrore();

} // namespace giacenza
