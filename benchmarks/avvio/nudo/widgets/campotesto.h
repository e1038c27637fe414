#pragma once

#include <QPlainTextEdit>

/// What stands in the plain program for the component's control of this name.
namespace giacenza {
using CampoTesto = QPlainTextEdit;
}
