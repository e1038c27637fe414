#include "reports/letters/stampamodulo.h"

#include "base/impostazioni.h"
#include "base/servizi.h"
#include "base/testoerrore.h"
#include "reports/letters/fontedocumenti.h"

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

EsitoStampa guida(ModuloStampa& modulo, QWidget* padre, TipoDocumento tipo, const QString& chiave,
                  const std::array<QString, 4>& didascalie)
{
    collegaFonte(modulo, padre);
    modulo.setPercorsoDatabase(impostazioni().percorsoDatabase);
    modulo.setPercorsoLogo(impostazioni().percorsoLogoIntestazione);
    modulo.setDidascalie(didascalie);
    modulo.setStampa(true);
    modulo.setTipoDocumento(tipo);
    bool nonProdotto = false;
    try {
        modulo.stampaDocumento(chiave, nonProdotto);
    } catch (...) {
        return {.motivo = testoErrore(), .file = documentoArchiviato()};
    }
    // What a module has kept before its printer failed can still be opened.
    if (nonProdotto)
        return {.raccontato = true,
                .motivo = u"Il modulo di stampa non ha prodotto il documento."_s,
                .file = documentoArchiviato()};
    return {.prodotto = true, .file = documentoArchiviato()};
}

} // namespace

std::array<QString, 4> leggiDidascalie()
{
    const QStringList lette = LeggiIni(
        u"Bord"_s, QStringList{u"CaptionLbl1"_s, u"CaptionLbl2"_s, u"CaptionLbl3"_s, u"CaptionLbl4"_s});
    return {lette[0], lette[1], lette[2], lette[3]};
}

EsitoStampa stampaConModulo(QWidget* padre, TipoDocumento tipo, const QString& chiave,
                            const std::array<QString, 4>& didascalie)
{
    try {
        const auto modulo = CaricaModuloStampa();
        if (!modulo.parte)
            return {.motivo = modulo.motivo};
        return guida(*modulo.parte, padre, tipo, chiave, didascalie);
    } catch (...) {
        return {.motivo = testoErrore()};
    }
}

} // namespace giacenza
