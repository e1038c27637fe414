#include "registration/salvagiacenza.h"

#include "base/spiegazioni.h"
#include "data/archivio.h"
#include "ui_frmGiacenza.h"

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

/// manca: what is said of an empty one.
QDate giornoDi(const QString& testo, const QString& manca = {})
{
    if (const auto giorno = leggiData(testo))
        return *giorno;
    if (testo.isEmpty() && !manca.isEmpty())
        throw ErroreConversione(manca);
    throw ErroreConversione(u"Manca una data, o non è valida: \"%1\"."_s.arg(testo));
}

std::optional<QDate> giornoSePresente(const QString& testo)
{
    return testo.isEmpty() ? std::nullopt : std::optional(giornoDi(testo));
}

} // namespace

SalvaGiacenza::SalvaGiacenza(Schermata& schermata, const Ui::frmGiacenza& forma, PartiComuni& parti,
                             RicercaLdv& ricerca, EmittenteAvviso& avviso)
    : mSchermata(schermata), mUi(forma), mParti(parti), mRicerca(ricerca), mAvviso(avviso)
{}

void SalvaGiacenza::salva()
{
    // A shortcut moves no focus: the field that has it is checked first.
    if (const Seguito seguito = mSchermata.convalida().verificaCorrente())
        return seguito();
    if (mParti.cliente.codice().isEmpty() || testo(mUi.txtRifMitt).isEmpty())
        return mSchermata.stato(
            u"Niente da salvare: mancano il cliente o una spedizione con il suo riferimento."_s);
    if (mParti.dataGiacenza.rifiutata())
        return;
    mParti.dataGiacenza.CalcolaGiorniSosta();
    Ammissione ammissione{};
    try {
        const auto giorno = leggiData(testo(mUi.txtDataLdv));
        if (!giorno)
            return mSchermata.stato(u"La data della lettera di vettura non è valida."_s);
        ammissione = ControlloInserimento(mSchermata.connessione(), tag(mUi.txtLDV), *giorno);
    } catch (const Errore& errore) {
        return mSchermata.statoGuasto(errore, u"Niente è stato salvato; riprovare con Salva. "_s);
    }
    if (ammessa(ammissione))
        inserisci();
}

bool SalvaGiacenza::ammessa(Ammissione ammissione)
{
    const auto rifiuto = [this](const QString& testo) {
        mSchermata.messaggio(testo, Stile::avviso);
        return false;
    };
    switch (ammissione) {
    case Ammissione::ammessa:
        return true;
    case Ammissione::giaInGiacenza:
        return rifiuto(rifiutoGiaInGiacenza());
    case Ammissione::riconsegna:
        return rifiuto(
            u"La spedizione selezionata è una riconsegna relativa ad una giacenza già esistente."_s);
    case Ammissione::sconosciuta:
        return rifiuto(u"Lettera di vettura non presente in database."_s);
    }
    return false;
}

DatiGiacenza SalvaGiacenza::dati() const
{
    const QString imponibile = testo(mUi.txtImponibile);
    return {
        .filiale = mUi.txtFiliale->text(),
        .numeroLdv = tag(mUi.txtLDV),
        .dataLdv = giornoDi(testo(mUi.txtDataLdv)),
        .cliente = mParti.cliente.codice(),
        .filialeGiacenza = testo(mUi.txtFilialeGia),
        .giorniSosta = testo(mUi.barGiorniSosta),
        .dataAvviso = giornoSePresente(testo(mUi.lblDataAvviso)),
        .dataBuonFine = giornoSePresente(testo(mUi.lblDataBuonFine)),
        .imponibile = imponibile.isEmpty() ? std::nullopt : std::optional(Decimale(imponibile)),
        .giacenzaPrecedente = testo(mUi.txtGiaOld).trimmed(),
        .dataPrecedente = giornoSePresente(testo(mUi.txtDataGiaOld)),
        .dataGiacenza = giornoDi(testo(mUi.txtDataGia), u"Manca la data della giacenza."_s),
        .motivo = testo(mUi.txtDescGia),
    };
}

void SalvaGiacenza::inserisci()
{
    try {
        scrivi(mUi.lblNrGia, InserisciGiacenza(mSchermata.connessione(), accessoHost(), dati()));
    } catch (const Errore& errore) {
        mSchermata.statoGuasto(errore);
        mSchermata.messaggio(u"Impossibile aggiungere la nuova giacenza."_s, Stile::critico);
        return;
    }
    mRicerca.registrata();
    const QString altrui = mRicerca.diAltroCliente();
    mSchermata.stato(altrui);
    mSchermata.messaggio(u"Giacenza aggiunta in database."_s, Stile::informazione);
    avvisa();
    if (!altrui.isEmpty())
        mSchermata.stato(altrui + u". "_s + mUi.lblStato->text(), altrui + u". "_s + mUi.lblStato->toolTip());
}

void SalvaGiacenza::avvisa()
{
    try {
        mAvviso.EmettiAvvisoGiacenza(false);
    } catch (const Errore& errore) {
        // What follows a save that succeeded ends without a message: the held shipment is there.
        const QString detto =
            forseScritto(errore)
                ? u"La giacenza %1 è registrata, non si sa se l'avviso è contato: emetterlo con il suo bottone. "_s
                : u"La giacenza %1 è registrata, l'avviso no: emetterlo con il suo bottone. "_s;
        mSchermata.statoGuasto(errore, detto.arg(mParti.caso.numero()));
    }
}

} // namespace giacenza
