#pragma once

#include "opzioni.h"

#include <functional>

class QMainWindow;
class QMenu;

namespace deposito {

/// The entries of the menus that concern the program and not the cases: archive, settings, guide, what
/// whoever helps needs to know.
class Aiuto
{
public:
    using Messaggio = std::function<void(const QString& testo)>;

    /// finestra: outlives this object. messaggio: shows a text in the window.
    Aiuto(QMainWindow& finestra, const Opzioni& opzioni, Messaggio messaggio);

    void riempi(QMenu* menuFile, QMenu* menuAiuto);

private:
    void cambiaArchivio();
    void mostraGuida();
    void copiaInformazioni();

    QMainWindow& mFinestra;
    Opzioni mOpzioni;
    Messaggio mMessaggio;
};

} // namespace deposito
