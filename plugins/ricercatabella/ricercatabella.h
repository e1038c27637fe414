#pragma once

#include <giacenza/RicercaTabella.h>

/// The table search of class "RicercaTabella.cRicerca".
class RicercaTabellaElenco : public giacenza::RicercaTabella
{
public:
    void setPercorsoDatabase(const QString& percorso) override { mPercorsoDatabase = percorso; }
    void setScelta(Scelta scelta) override { mScelta = std::move(scelta); }

    /// The event is raised when the list has closed, and not at all when padre went meanwhile.
    void mostra(const QString& istruzione, const QString& titolo, QWidget* padre) override;

private:
    QString mPercorsoDatabase;
    Scelta mScelta;
};
