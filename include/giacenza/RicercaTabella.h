#pragma once

#include <giacenza/ParteEsterna.h>

class QWidget;

namespace giacenza {

/// The table search, class name "RicercaTabella.cRicerca": lets the operator pick one row of a statement's
/// result.
class GIACENZA_EXPORT RicercaTabella : public ParteEsterna
{
public:
    /// What is called when a row was chosen: its values as text, in the order of the select list, null as
    /// empty.
    using Scelta = std::function<void(const QStringList& valori)>;

    /// percorso: the connection string of the host's database, as the host gave it.
    virtual void setPercorsoDatabase(const QString& percorso) = 0;
    /// scelta: who is told of the row that was chosen.
    virtual void setScelta(Scelta scelta) = 0;

    /// Shows the list, modal over padre, and returns when it has closed; without a choice the event is not
    /// raised. Throws giacenza::Errore when the statement cannot be run.
    virtual void mostra(const QString& istruzione, const QString& titolo, QWidget* padre) = 0;
};

/// The class name under which a table search is asked for.
inline constexpr char16_t classeRicercaTabella[] = u"RicercaTabella.cRicerca";

} // namespace giacenza
