#pragma once

#include "regista.h"

#include <QCommandLineParser>

/// The options that say how the windows look: the size of the writing and dark colours.
void aggiungiAspetto(QCommandLineParser& opzioni);

/// Gives the application the look that the options ask for; before the first window. Throws
/// std::runtime_error for a size that is none.
void impostaAspetto(const QCommandLineParser& opzioni);

/// Keeps two pictures of a window under one number: as it is, and "…-scuro.png" in dark colours.
void fotografaNeiDueColori(Regista& regista, QWidget* finestra, const QString& nome);
