#pragma once

#include <QScrollArea>

/// What stands in the plain program for the component's control of this name.
namespace giacenza {
using AreaForma = QScrollArea;
}
