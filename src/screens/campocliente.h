#pragma once

#include "screens/schermata.h"

class QLineEdit;
class QPushButton;

namespace giacenza {

/// The customer of a screen: code, name, and the button that searches. A code that was found is locked.
class CampoCliente
{
public:
    struct Controlli
    {
        QLineEdit* codice;
        QLabel* barra;
        QPushButton* cerca;
    };

    /// What differs between the screens.
    struct Differenze
    {
        /// The caption of the message for a code that is no number.
        QString (*titoloErrato)() = titoloApplicazione;
        /// A customer was taken from the party search.
        std::function<void()> cercato = [] {};
    };

    CampoCliente(Schermata& schermata, const Controlli& controlli, Differenze differenze);

    /// The code as it stands; the customer's name.
    QString codice() const;
    QString ragioneSociale() const;

    /// Whether there is a code; without one says so.
    bool scelto();

    /// Finds the customer of the field and locks it; without one says so.
    Seguito convalida();

    /// Puts a code in the place of the one that is there, locked or not, and finds its customer.
    Seguito imposta(const QString& codice);

    /// Adds to the status line that the customer of the last code could not be read, when that is so.
    void ripetiGuasto() const;

    /// Looks a code up as the field does; the empty one is nothing to look up. errato: what is to be done
    /// when it is no number. trovato: given the customer's name, may be empty. A customer that is not there
    /// is told.
    Seguito verifica(const QString& codice, const Seguito& errato,
                     const std::function<void(const QString&)>& trovato = {});
    /// The message for a code that is no number, in a box, with this screen's caption.
    void diciErrato();

    /// Locks the code, once it is known to be good, or opens it again.
    void blocca(bool bloccato);
    void pulisci();
    void abilita(bool abilitato);

private:
    void cerca();

    Schermata& mSchermata;
    Controlli mControlli;
    Differenze mDifferenze;
    /// The code that was told last as not being there.
    QString mInesistente;
    /// Why the customer of the last code could not be read.
    std::optional<ErroreDatabase> mGuasto;
};

} // namespace giacenza
