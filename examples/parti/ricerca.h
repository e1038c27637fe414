#pragma once

#include <giacenza/RicercaTabella.h>

/// A table search: a plain list of the rows; a double click or Enter takes one.
class RicercaEsempio : public giacenza::RicercaTabella
{
public:
    void setPercorsoDatabase(const QString& percorso) override { mPercorso = percorso; }
    void setScelta(Scelta scelta) override { mScelta = std::move(scelta); }
    void mostra(const QString& istruzione, const QString& titolo, QWidget* padre) override;

private:
    QString mPercorso;
    Scelta mScelta;
};
