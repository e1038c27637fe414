#pragma once

#include "base/messaggi.h"

#include <QStringList>

#include <deque>
#include <functional>
#include <ostream>
#include <vector>

namespace giacenza::prove {

/// Stands behind the message door while it lives, and keeps what was shown.
///
/// The test fails on a question (Yes and No) for which no answer was prepared, and, when the recorder goes,
/// on an answer that nobody asked for and on a message that the test never looked at.
class RegistroMessaggi
{
public:
    RegistroMessaggi();
    RegistroMessaggi(const RegistroMessaggi&) = delete;
    RegistroMessaggi& operator=(const RegistroMessaggi&) = delete;
    ~RegistroMessaggi();

    /// The answer to the next question that has none yet.
    void rispondi(Risposta risposta);

    /// Called for each message, while its box would be on screen.
    void mentreAperto(std::function<void(QWidget* padre, const Messaggio& messaggio)> azione);

    /// What was shown, in order; looking at it counts as having expected it.
    const std::vector<Messaggio>& messaggi();
    QStringList testi();

    /// The same, and forgets them: for the next step of a test.
    std::vector<Messaggio> prendi();

private:
    Risposta mostra(QWidget* padre, const Messaggio& messaggio);

    PortaMessaggi mPrima;
    std::deque<Risposta> mRisposte;
    std::function<void(QWidget*, const Messaggio&)> mAzione;
    std::vector<Messaggio> mMessaggi;
    std::size_t mGuardati = 0;
};

} // namespace giacenza::prove

namespace giacenza {

inline bool operator==(const Messaggio& uno, const Messaggio& altro)
{
    return uno.testo == altro.testo && uno.stile == altro.stile && uno.titolo == altro.titolo;
}

inline void PrintTo(const Messaggio& messaggio, std::ostream* uscita)
{
    *uscita << '"' << messaggio.testo.toStdString() << "\" (" << static_cast<int>(messaggio.stile) << ", \""
            << messaggio.titolo.toStdString() << "\")";
}

} // namespace giacenza
