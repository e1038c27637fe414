#pragma once

#include <QString>

class QWidget;

namespace giacenza {

/// The party that the operator took, or none.
struct RisultatoRicerca
{
    bool trovato = false; ///< false when the dialog was closed without a choice: the rest is empty
    qint32 codice = 0;
    QString ragioneSociale;
};

/// Opens the party search, modal over padre, on the shared connection string.
///
/// clientiFornitori: what is sought: "1" customer, "2" supplier, "3" recipient. nomeTabella: the table to
/// search. Throws ErroreConversione when clientiFornitori is no 16-bit integer. padre may be destroyed while
/// the dialog is open; nothing was then found.
RisultatoRicerca ApriRicerca(const QString& clientiFornitori, const QString& nomeTabella, QWidget* padre);

} // namespace giacenza
