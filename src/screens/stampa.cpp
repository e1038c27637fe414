#include "screens/stampa.h"

#include "base/impostazioni.h"
#include "base/servizi.h"
#include "base/spiegazioni.h"
#include "base/testoerrore.h"
#include "reports/letters/fontedocumenti.h"
#include "widgets/attesa.h"
#include "widgets/primopiano.h"

#include <QPointer>
#include <QWidget>

using namespace Qt::StringLiterals;

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

EsitoStampa guida(ModuloStampa& modulo, QWidget* schermata, TipoDocumento tipo, const QString& chiave,
                  const std::array<QString, 4>& didascalie)
{
    collegaFonte(modulo, schermata);
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
    std::array<QString, 4> didascalie;
    for (std::size_t i = 0; i < didascalie.size(); ++i)
        didascalie[i] = LeggiIni(u"Bord"_s, u"CaptionLbl%1"_s.arg(i + 1));
    return didascalie;
}

EsitoStampa stampaDocumento(QWidget* schermata, TipoDocumento tipo, const QString& chiave,
                            const std::array<QString, 4>& didascalie)
{
    const SottoLeAltre sotto(schermata);
    const Attesa attesa;
    try {
        const auto modulo = CaricaModuloStampa();
        if (!modulo.parte)
            return nonRiuscita(modulo.motivo);
        return guida(*modulo.parte, schermata, tipo, chiave, didascalie);
    } catch (...) {
        return interrotta();
    }
}

} // namespace giacenza
