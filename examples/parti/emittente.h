#pragma once

#include <giacenza/Contesto.h>
#include <giacenza/EmittenteLdv.h>

/// A waybill issuer that hands the movement on to the depot's own system. Here it only says what it would
/// hand on.
class EmittenteEsempio : public giacenza::EmittenteLdv, public giacenza::ParteConContesto
{
public:
    void setContesto(const giacenza::Contesto& contesto) override { mContesto = contesto; }
    void setPercorsoDatabase(const QString&) override {}
    void setCartellaStampa(const QString&) override {}
    void setPercorsoLogo(const QString&) override {}
    void setStampa(bool) override {}
    void setDefinitiva(bool) override {}

    QString emetti(const giacenza::RecordLdv& ldv) override
    {
        if (ldv.vuoto()) {
            // Empty where a host made the context without one.
            if (mContesto.racconta)
                mContesto.racconta(
                    {QStringLiteral("La lettera di vettura non c'è più."), giacenza::Tono::rifiuto});
            return {};
        }
        return QStringLiteral("%1: LDV %2, giacenza %3/%4")
            .arg(mContesto.lavoro, ldv.valore(QStringLiteral("lenrlv")).value_or(QString()),
                 mContesto.numeroGiacenza)
            .arg(mContesto.annoGiacenza);
    }

private:
    giacenza::Contesto mContesto;
};
