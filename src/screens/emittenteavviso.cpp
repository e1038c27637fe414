#include "screens/emittenteavviso.h"

#include "base/orologio.h"
#include "data/archivio.h"
#include "data/avviso.h"
#include "database/valori.h"
#include "screens/campi.h"
#include "screens/stampa.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

const TestiStampa soloStampato = {
    .prodotto = u"Avviso di giacenza %1 prodotto."_s,
    .nonProdotto = u"L'avviso di giacenza non è stato stampato; la giacenza resta registrata."_s};

/// numero: as which the notice was counted; nothing when it was not. scritta, taciuta: whether the database
/// has got the description, and whether one was given that it has not got.
TestiStampa testi(std::optional<qint16> numero, bool scritta, bool taciuta)
{
    TestiStampa detto = soloStampato;
    if (numero) {
        detto.rimasto = u"Avviso di giacenza %1 contato (n. "_s + QString::number(*numero) +
                        u") ma non stampato: ristamparlo oggi non lo conta di nuovo."_s;
    } else {
        detto.prodotto = u"Avviso di giacenza %1 stampato, non contato: oggi lo era già."_s;
        detto.rimasto = u"Avviso di giacenza %1 non stampato e non contato: oggi lo era già."_s;
    }
    if (scritta)
        detto.rimasto += u" La descrizione è registrata."_s;
    if (taciuta)
        for (QString* testo : {&detto.prodotto, &detto.rimasto})
            *testo += u" Il motivo scritto ora non è stato registrato."_s;
    return detto;
}

} // namespace

EmittenteAvviso::EmittenteAvviso(Schermata& schermata, PartiComuni& parti, QLabel* dataAvviso,
                                 Differenze differenze)
    : mSchermata(schermata), mParti(parti), mDataAvviso(dataAvviso), mDifferenze(std::move(differenze))
{}

void EmittenteAvviso::EmettiAvvisoGiacenza(bool ristampa, const QString& descrizione)
{
    const auto didascalie = leggiDidascalie();
    const auto caso = mParti.caso.chiave();
    if (!caso)
        return;
    const auto detto = ristampa ? std::optional(soloStampato) : conta(*caso, descrizione);
    if (detto)
        mParti.stampa.stampa(TipoDocumento::avviso, *caso, didascalie, *detto);
}

std::optional<TestiStampa> EmittenteAvviso::conta(const ChiaveGiacenza& caso, const QString& descrizione)
{
    if (!mDifferenze.ammesso())
        return std::nullopt;
    const QDate giorno = oggi();
    const auto numero =
        contaAvviso(mSchermata.connessione(), accessoHost(), mDifferenze.chiave(caso), giorno, descrizione);
    if (numero) {
        scriviDelCaso(mDataAvviso, dataSql(giorno));
        mDifferenze.contato(*numero);
    }
    // From the second notice on the description replaces the one in the database; before, it stays on the
    // screen.
    const bool scritta = numero.value_or(1) > 1;
    return testi(numero, scritta && !descrizione.isEmpty(), !scritta && !descrizione.isEmpty());
}

} // namespace giacenza
