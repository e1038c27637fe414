#pragma once

#include "data/nuovaldv.h"

#include <giacenza/Contesto.h>
#include <giacenza/EmittenteLdv.h>

namespace giacenza::emissione {

/// The depot's own waybill issuer: adds the waybill of a re-delivery or of a return to the host's waybills,
/// and prints it as a PDF into the print folder. Whatever fails is told once, through the context, a failure
/// of the database by its class with the driver's words as detail; without one it is written to the log.
class EmittenteDeposito : public EmittenteLdv, public ParteConContesto
{
public:
    /// traccia: told of what the issuer's own connection does; may be empty.
    explicit EmittenteDeposito(Traccia traccia = {}) : mTraccia(std::move(traccia)) {}

    void setContesto(const Contesto& contesto) override { mContesto = contesto; }
    void setPercorsoDatabase(const QString& percorso) override { mPercorsoDatabase = percorso; }
    void setCartellaStampa(const QString& cartella) override { mCartellaStampa = cartella; }
    void setPercorsoLogo(const QString& percorso) override { mPercorsoLogo = percorso; }
    void setStampa(bool stampa) override { mStampa = stampa; }
    void setDefinitiva(bool definitiva) override { mDefinitiva = definitiva; }
    QString emetti(const RecordLdv& ldv) override;

private:
    QString emettiOLancia(const RecordLdv& ldv) const;
    QString stampaLdv(Connessione& connessione, const LdvEmessa& emessa) const;
    void controllaCartella() const;
    void racconta(const Racconto& racconto) const;

    Traccia mTraccia;
    Contesto mContesto;
    QString mPercorsoDatabase;
    QString mCartellaStampa;
    QString mPercorsoLogo;
    bool mStampa = false;
    bool mDefinitiva = false;
};

} // namespace giacenza::emissione
