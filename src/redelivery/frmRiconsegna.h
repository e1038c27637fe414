#pragma once

#include "data/riconsegne.h"
#include "screens/schermata.h"

#include <giacenza/Contesto.h>

#include <memory>
#include <optional>

namespace Ui {
class frmRiconsegna;
}

namespace giacenza {

class LdvLetta;
struct SpedizioneScelta;

/// The re-delivery screen: shows a held shipment and has the host issue the waybill that follows it, to the
/// recipient or back to the sender, as the host chose. One screen issues at most once.
class frmRiconsegna : public Schermata
{
    Q_OBJECT

public:
    frmRiconsegna();
    ~frmRiconsegna() override;

protected:
    bool event(QEvent* evento) override;
    QString titoloClienteErrato() const override;

private:
    /// What the shipment search lists; the numbers are those it is told.
    enum class Modo
    {
        riferimento = 1,
        letteraVettura = 7,
        riconsegne = 10,
        giacenze = 11,
    };

    struct Scelte
    {
        QString porto;
        bool controllo = false;
        bool stampa = false;
        bool annullato = true;
    };

    void collega();
    std::function<void()> silenzioso(std::function<void()> azione);
    void prosegui(const std::function<void()>& azione);

    QLineEdit* campo(Modo modo) const;
    CampoData* campoData(Modo modo) const;
    QString cercato(Modo modo) const;
    bool ControlloCampiRicerca(Modo modo);
    std::optional<SpedizioneScelta> RicercaSpedizione(Modo modo);
    void cercaNellElenco(Modo modo);
    void cercaPerNumero();
    void mostraRiconsegne();
    void mostra(const QString& numero, QDate giorno);
    Seguito lascia(Modo modo);
    Seguito convalidaFilialeGia();

    void riconsegna();
    void emetti(const LdvLetta& ldv, bool stampa, const Contesto& contesto);
    void ApriConnessione();
    void leggiLdv(LdvLetta& ldv);
    Scelte chiediPorto();
    std::optional<ContoRiconsegne> contaGiacenza();
    bool accettato(const std::optional<ContoRiconsegne>& conto);
    Contesto contesto(const Scelte& scelte, const std::optional<ContoRiconsegne>& conto) const;

    std::unique_ptr<Ui::frmRiconsegna> mUi;
    bool mModificata[2] = {false, false};
    bool mInCorso = false; ///< the issue is running
};

} // namespace giacenza
