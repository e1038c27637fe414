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

const QString avvisoProdotto = u"Avviso di giacenza %1 prodotto."_s;

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
    const auto detto = ristampa ? std::optional(avvisoProdotto) : conta(*caso, descrizione);
    if (detto)
        mParti.stampa.stampa(
            TipoDocumento::avviso, *caso, didascalie,
            {*detto, u"L'avviso di giacenza non è stato stampato; la giacenza resta registrata."_s});
}

std::optional<QString> EmittenteAvviso::conta(const ChiaveGiacenza& caso, const QString& descrizione)
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
    QString detto =
        numero ? avvisoProdotto : u"Avviso di giacenza %1 stampato, non contato: oggi lo era già."_s;
    // From the second notice on the description replaces the one in the database; before, it stays on the
    // screen.
    if (!descrizione.isEmpty() && numero.value_or(1) == 1)
        detto += u" Il motivo scritto ora non è stato registrato."_s;
    return detto;
}

} // namespace giacenza
