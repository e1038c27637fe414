#pragma once

#include "screens/schermatadiprova.h"

#include <giacenza/Contesto.h>
#include <giacenza/EmittenteLdv.h>

#include <optional>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

/// What an issuer was driven with, and what it is to do.
struct Emissioni
{
    QStringList chiamate; ///< "contesto", "database …", "cartella …", "logo …", "stampa 1", "definitiva 1",
                          ///< "emetti 4711"
    std::vector<Contesto> contesti;
    std::vector<QStringList> colonne; ///< of each record handed over
    std::function<void()> allInizio;  ///< at the first thing handed over; may throw
    std::function<void()> durante;    ///< while it issues; may throw
    std::optional<QString> esito;     ///< what it returns, in place of "Emessa da 4711"
    int vivi = 0;                     ///< issuers not yet released
};

/// An issuer that keeps what it is driven with; an empty record is issued as "emetti (vuota)".
class EmittenteDiProva : public EmittenteLdv, public ParteConContesto
{
public:
    explicit EmittenteDiProva(Emissioni& emissioni) : mEmissioni(emissioni) { ++mEmissioni.vivi; }
    ~EmittenteDiProva() override { --mEmissioni.vivi; }

    void setContesto(const Contesto& contesto) override;
    void setPercorsoDatabase(const QString& percorso) override;
    void setCartellaStampa(const QString& cartella) override;
    void setPercorsoLogo(const QString& percorso) override;
    void setStampa(bool stampa) override;
    void setDefinitiva(bool definitiva) override;
    QString emetti(const RecordLdv& ldv) override;

private:
    Emissioni& mEmissioni;
};

/// What the operator does in the freight-terms dialog.
struct Porto
{
    int riga = -1; ///< chosen with the keyboard; -1: what was preset
    bool controllo = true;
    bool stampa = true;
    enum class Chiude
    {
        conferma,
        annulla,
        esc,
        casella
    } chiude = Chiude::conferma;
};

/// The re-delivery screen on a database with the small depot and these held shipments of 2026, each of a
/// waybill of branch MI, of 12/11/2026, whose number is 9 and the held shipment's: 50 with its first waybill
/// alone, 51 with two more, 52 with none linked, 53 closed with two more, 54 with 300.
class RiconsegnaDiProva : public SchermataDiProva
{
protected:
    RiconsegnaDiProva();
    ~RiconsegnaDiProva() override;

    std::unique_ptr<Schermata> crea() const override;

    /// Without a window manager nobody gives the window the focus back when a dialog over it has closed.
    void attiva();
    /// Types number and date and has the waybill shown.
    void cerca(const QString& ldv, const QString& data = u"12112026"_s);
    /// Presses the button, answers the freight terms, and gives back the calls that the issuer got.
    QStringList emetti(const Porto& porto = {});
    bool bottoneAcceso() const;
    QLabel* stato() const;

    Emissioni mEmissioni;
};

} // namespace giacenza::prove
