#pragma once

#include "benchmarks/chiave/operazione.h"
#include "benchmarks/quadro/esito.h"
#include "screens/schermata.h"

#include <giacenza/Errore.h>

#include <memory>
#include <optional>

namespace banco {

/// A working screen that is open and shown, driven by its controls' names.
class OperazioneSuSchermata : public Operazione
{
protected:
    explicit OperazioneSuSchermata(std::unique_ptr<giacenza::Schermata> schermata);

    giacenza::Schermata& schermata() const { return *mSchermata; }

    template<class Controllo>
    Controllo* controllo(const QString& nome) const
    {
        auto* trovato = mSchermata->findChild<Controllo*>(nome);
        if (!trovato)
            throw giacenza::Errore(QStringLiteral("There is no control %1.").arg(nome));
        return trovato;
    }

    /// Without a window manager nobody gives the screen the focus back when a dialog over it has closed.
    void attiva() const;
    /// An operator presses what he sees: nothing is left to be painted when the press begins.
    void dipingi() const;
    void scrivi(const QString& nome, const QString& testo) const;
    void premi(const QString& nome, Qt::Key tasto) const;
    /// Fails unless the control shows this.
    void pretendi(const QString& nome, const QString& testo) const;

    /// From the press of a button until the print module is asked for its document, in milliseconds. The
    /// statements are kept up to there too.
    double finoAllaStampa(const QString& bottone) const;

private:
    std::unique_ptr<giacenza::Schermata> mSchermata;
};

std::unique_ptr<Operazione> ricercaSuSchermata();
std::unique_ptr<Operazione> avviso();
std::unique_ptr<Operazione> chiusura();
std::unique_ptr<Operazione> emissione();

} // namespace banco
