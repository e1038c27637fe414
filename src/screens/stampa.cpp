#include "screens/stampa.h"

#include "component/impostazioni.h"
#include "component/servizi.h"
#include "component/testoerrore.h"
#include "reports/fontedocumenti.h"
#include "widgets/attesa.h"

#include <QPointer>
#include <QWidget>

namespace giacenza {

namespace {

/// The screen out of the always-on-top state, while a document is made.
class SottoLeAltre
{
public:
    explicit SottoLeAltre(QWidget* schermata) : mSchermata(schermata)
    {
        SempreInPrimoPiano(mSchermata, false);
    }
    SottoLeAltre(const SottoLeAltre&) = delete;
    SottoLeAltre& operator=(const SottoLeAltre&) = delete;
    ~SottoLeAltre()
    {
        if (mSchermata)
            SempreInPrimoPiano(mSchermata, true);
    }

private:
    QPointer<QWidget> mSchermata;
};

std::optional<QString> guida(ModuloStampa& modulo, QWidget* schermata, TipoDocumento tipo,
                             const QString& chiave, const std::array<QString, 4>& didascalie)
{
    collegaFonte(modulo, schermata);
    modulo.setPercorsoDatabase(impostazioni().percorsoDatabase);
    modulo.setPercorsoLogo(impostazioni().percorsoLogoIntestazione);
    modulo.setDidascalie(didascalie);
    modulo.setStampa(true);
    modulo.setTipoDocumento(tipo);
    bool nonProdotto = false;
    modulo.stampaDocumento(chiave, nonProdotto);
    if (nonProdotto)
        return QStringLiteral("Il modulo di stampa non ha prodotto il documento.");
    return std::nullopt;
}

} // namespace

std::array<QString, 4> leggiDidascalie()
{
    std::array<QString, 4> didascalie;
    for (std::size_t i = 0; i < didascalie.size(); ++i)
        didascalie[i] = LeggiIni(QStringLiteral("Bord"), QStringLiteral("CaptionLbl%1").arg(i + 1));
    return didascalie;
}

std::optional<QString> stampaDocumento(QWidget* schermata, TipoDocumento tipo, const QString& chiave,
                                       const std::array<QString, 4>& didascalie)
{
    const SottoLeAltre sotto(schermata);
    const Attesa attesa;
    try {
        const auto modulo = CaricaModuloStampa();
        if (!modulo.parte)
            return modulo.motivo;
        return guida(*modulo.parte, schermata, tipo, chiave, didascalie);
    } catch (...) {
        return testoErrore();
    }
}

} // namespace giacenza
