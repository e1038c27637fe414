#pragma once

#include <giacenza/cGiacenza.h>

#include <QStringList>

#include <exception>

/// What the stand-in for the component was asked, and what it answers.
struct GiacenzaFinta
{
    QStringList chiamate;                   ///< each call with its arguments, in order
    std::exception_ptr errore;              ///< what opening a screen throws, if anything
    giacenza::cGiacenza* attuale = nullptr; ///< the object that the window made
};

/// The one of the running test; each test empties it first.
GiacenzaFinta& giacenzaFinta();
