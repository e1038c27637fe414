#include "reports/letters/stampamodulo.h"

#include "base/impostazioni.h"
#include "base/servizi.h"
#include "base/spiegazioni.h"
#include "base/testoerrore.h"
#include "reports/letters/fontedocumenti.h"

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

EsitoStampa nonRiuscita(const QString& motivo)
{
    return {.motivo = motivo, .parole = motivo};
}

/// To be called in a handler, of whatever comes.
EsitoStampa interrotta()
{
    try {
        throw;
    } catch (const Errore& errore) {
        return {.motivo = spiega(errore), .parole = errore.testo()};
    } catch (...) {
        return nonRiuscita(testoErrore());
    }
}

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
    EsitoStampa esito;
    try {
        modulo.stampaDocumento(chiave, nonProdotto);
        if (nonProdotto)
            esito = nonRiuscita(u"Il modulo di stampa non ha prodotto il documento."_s);
        esito.prodotto = !nonProdotto;
        esito.raccontato = nonProdotto;
    } catch (...) {
        esito = interrotta();
    }
    // What a module has kept before its printer failed can still be opened.
    esito.file = documentoArchiviato();
    return esito;
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
            return nonRiuscita(modulo.motivo);
        return guida(*modulo.parte, padre, tipo, chiave, didascalie);
    } catch (...) {
        return interrotta();
    }
}

} // namespace giacenza
