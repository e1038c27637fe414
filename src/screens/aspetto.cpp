#include "screens/aspetto.h"

using namespace Qt::StringLiterals;

namespace giacenza {

QString aspettoSchermata()
{
    return uR"(
QLineEdit[readOnly="true"], QPlainTextEdit[readOnly="true"] { background-color: palette(window); }
QLineEdit:disabled { background-color: palette(window); }
QLineEdit[readOnly="true"]:disabled { color: #505050; }
QComboBox:disabled { color: palette(text); }
QLabel[barra="true"] { padding: 3px 4px; }
QLabel#lblGiaInGiacenza { background-color: #a3261b; color: white; font-weight: bold; padding: 3px 10px; }
QLabel#lblClienteLdv { background-color: #a3261b; color: white; font-weight: bold; padding: 3px 10px; }
QLabel[avvertenza="true"] { color: #b35900; font-weight: bold; }
QLineEdit[avvertenza="true"], QPlainTextEdit[avvertenza="true"] { border: 2px solid #d98200; }
QLabel#lblStatoCaso { background-color: #1f5c99; color: white; font-weight: bold; padding: 3px 10px; }
QLabel#lblStatoCaso[chiusa="true"] { background-color: #5a5f66; }
*[avanzo="true"] { color: #808080; font-style: italic; }
)"_s;
}

} // namespace giacenza
