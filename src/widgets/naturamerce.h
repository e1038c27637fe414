#pragma once

#include <QString>

class QComboBox;

namespace giacenza {

/// The goods-type list file: the settings file's folder (up to its last "\" or "/") followed by
/// "listbox.dat".
QString percorsoNaturaMerce();

/// Fills the list from the goods-type file and puts the text back; nothing when there is no file. A failure
/// leaves the list as it was and shows "Impossibile caricare i dati nel controllo Natura merce".
void CaricaNaturaMerce(QComboBox* elenco);
/// The same without the message: returns false after a failure. For a screen that is not there yet.
bool leggiNaturaMerce(QComboBox* elenco);
void diciNaturaMerceNonLetta(QComboBox* elenco);

/// Appends the list's text, in upper case, to the goods-type file. A line that is there already, and every
/// failure, a blank text too, is told by "Impossibile aggiungere il valore nella lista del controllo Natura
/// merce".
void AggiungiNaturaMerce(QComboBox* elenco);

} // namespace giacenza
