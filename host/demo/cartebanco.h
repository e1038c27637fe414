#pragma once

#include "regista.h"

/// From the case that is shown: its diary with a note, and its dossier. caso: its number, "231/2026".
/// cartella: where the documents are kept. They throw Imprevisto.
void fascicolo(Regista& regista, QWidget* finestra, const QString& caso, const QString& cartella);

/// From the list: the charge sheet of a case that has some days charged.
void conto(Regista& regista, QWidget* finestra, const QString& cartella);

/// From the list: the statement of the marked case's customer, as document, table of values and workbook.
void estratto(Regista& regista, QWidget* finestra, const QString& cartella);
