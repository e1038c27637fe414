#pragma once

#include <QLineEdit>

/// What stands in the plain program for the component's control of this name.
namespace giacenza {
using CampoData = QLineEdit;
}
