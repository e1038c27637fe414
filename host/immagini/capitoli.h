#pragma once

#include "host/immagini/album.h"

/// The chapters of the guide, in the order in which they are played: each leaves the pictures of its screens
/// and dialogs. They throw Imprevisto when a screen is not as the chapter wants it.
void fotografaProgramma(Album& album);
void fotografaRegistrazione(Album& album);
void fotografaGestione(Album& album);
void fotografaRiconsegna(Album& album);
void fotografaBanco(Album& album);
