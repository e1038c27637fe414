#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace giacenza {

/// Icon and buttons of a message box, by the numbers the depot's applications have always used.
enum class Stile : int
{
    critico = 16,             ///< stop, OK
    avviso = 48,              ///< warning, OK
    informazione = 64,        ///< information, OK
    domandaAvviso = 52,       ///< warning, Yes and No
    domandaInformazione = 68, ///< information, Yes and No
};

enum class Risposta : int
{
    ok = 1,
    si = 6,
    no = 7
};

struct Messaggio
{
    QString testo;
    Stile stile;
    QString titolo;
};

/// "Gestione Trasporti", the caption that most messages quote.
QString titoloGestione();

/// The component's, the application's, the host application's title: the application's display name.
QString titoloApplicazione();

/// Shows a message box, modal over padre, and gives the answer. Closing a question's box answers no.
/// The one door: no other file names the toolkit's message box.
Risposta mostraMessaggio(QWidget* padre, const Messaggio& messaggio);

/// A stand-in for the box, for tests; gives back the one before. An empty one shows real boxes.
using PortaMessaggi = std::function<Risposta(QWidget* padre, const Messaggio& messaggio)>;
PortaMessaggi impostaPortaMessaggi(PortaMessaggi porta);

} // namespace giacenza
