#pragma once

#include "component/parti.h"
#include "component/percorsi.h"

#include <giacenza/ModuloStampa.h>

class QComboBox;
class QWidget;

namespace giacenza {

/// Keeps the screen's window above all others, or puts it back to normal stacking, without moving, resizing
/// or activating it. finestra: a top-level window; one without a native window is left alone.
void SempreInPrimoPiano(QWidget* finestra, bool primoPiano);

/// The goods-type list file: the settings file's folder (up to its last "\" or "/") followed by
/// "listbox.dat".
QString percorsoNaturaMerce();

/// Fills the list from the goods-type file and puts the text back; nothing when there is no file. A failure
/// leaves the list as it was and shows "Impossibile caricare i dati nel controllo Natura merce".
void CaricaNaturaMerce(QComboBox* elenco);

/// Appends the list's text, in upper case, to the goods-type file. A line that is there already, and every
/// failure, a blank text too, is told by "Impossibile aggiungere il valore nella lista del controllo Natura
/// merce".
void AggiungiNaturaMerce(QComboBox* elenco);

/// One value of the settings file, read anew at each call, empty when absent. Throws what a reader from
/// outside throws; the component's own throws nothing.
QString LeggiIni(const QString& sezione, const QString& chiave);

/// The print module that the settings file names (section "DLLStampe", key "IdentificativoDll"); an empty
/// reference with the reason when it cannot be made.
ParteDi<ModuloStampa> CaricaModuloStampa();

} // namespace giacenza
