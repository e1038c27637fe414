#pragma once

#include <giacenza/esporta.h>

#include <QDate>
#include <QString>
#include <QStringList>

#include <functional>

class QWidget;

namespace giacenza {

/// How something that a part tells the operator is meant: by the icon of the box.
enum class Tono : int
{
    rifiuto = 0, ///< the part would not do it: warning
    guasto = 1,  ///< something broke: stop
};

/// What a part tells the operator.
struct Racconto
{
    QString testo;             ///< plain text, as many lines as it needs
    Tono tono = Tono::rifiuto; ///< how it is meant
    QString dettaglio{}; ///< for whoever mends it, such as a driver's words: not in the box, may be empty
};

/// What the component knows of the movement that is being issued, beyond what it hands over with it.
struct Contesto
{
    QString lavoro;             ///< "Riconsegna a Destinatario", "Reso a Mittente", empty before any choice
    bool resoAMittente = false; ///< the goods go back to the sender
    qint32 porto = 0;           ///< idPorto of the freight terms chosen, 0: none
    QString numeroGiacenza;     ///< the held shipment on the screen, empty: none
    int annoGiacenza = 0;       ///< its year, 0: none
    bool controlloGiacenza = false; ///< the operator had the held shipment checked before the issue
    int riconsegne = 0;             ///< earlier re-deliveries that the check found, and the operator accepted
    QDate oggi;                     ///< the component's today
    QStringList piede{};            ///< lines for the foot of a printed document, none empty, at most three
    QWidget* finestra = nullptr;    ///< over which the part's windows open; may go while one of them is open

    /// Tells the operator something in the component's own box, over finestra, and returns when he has read
    /// it. Empty where the host that made the context has none: the part must look. A part shows no box of
    /// its own.
    std::function<void(const Racconto& racconto)> racconta{};

    /// Tells the component which file holds the document that the part has made (absolute): the screen opens
    /// it when the operator asks. May be empty, as above.
    std::function<void(const QString& file)> documento{};
};

/// What a part from outside also implements when it wants the context. The component hands it over right
/// after making the part and before everything else.
class GIACENZA_EXPORT ParteConContesto
{
public:
    ParteConContesto() = default;
    ParteConContesto(const ParteConContesto&) = delete;
    ParteConContesto& operator=(const ParteConContesto&) = delete;
    virtual ~ParteConContesto() = default;

    /// contesto: what the component knows now; valid as long as the part.
    virtual void setContesto(const Contesto& contesto) = 0;
};

} // namespace giacenza
