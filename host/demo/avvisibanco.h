#pragma once

#include "archivio.h"
#include "regista.h"

class QTableView;

/// What a cell of a table shows.
QString testoCella(const QTableView* tabella, int riga, int colonna);

/// Waits until the desk's list was read to its end; throws Imprevisto when it is not.
void attendeLettura(QWidget* finestra);

/// Marks three cases that nobody was told of, has their notices made together, and once more, when all three
/// are left out. cartella: where the documents are kept. Throws Imprevisto.
void avvisaTre(Regista& regista, Archivio& archivio, QWidget* finestra, const QString& cartella);
