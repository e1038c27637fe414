#pragma once

#include "opzioni.h"

#include <functional>

namespace giacenza::desk {
class FinestraDesk;
}

namespace deposito {

/// Adds to the desk's actions what concerns a case's money, paper and history: charge sheet (Ctrl+K),
/// timeline with notes and dossier (Ctrl+D), statements (Ctrl+E). Before the menus are made.
///
/// messaggio: shows a text in the window, when something cannot be opened.
void aggiungiSchede(giacenza::desk::FinestraDesk& desk, const Opzioni& opzioni,
                    const std::function<void(const QString& testo)>& messaggio);

} // namespace deposito
