#include "management/chiusuracaso.h"

#include "base/orologio.h"
#include "data/archivio.h"
#include "reports/letters/costibuonfine.h"
#include "screens/stampa.h"

#include "ui_frmGestGia.h"

using namespace Qt::StringLiterals;

namespace giacenza {

ChiusuraCaso::ChiusuraCaso(Schermata& schermata, const Ui::frmGestGia& forma, PartiComuni& parti,
                           std::function<void()> scritta)
    : mSchermata(schermata), mUi(forma), mParti(parti), mScritta(std::move(scritta))
{}

void ChiusuraCaso::ChiudiGiacenza()
{
    MostraCostiBuonFine();
    const auto caso = mParti.caso.chiave();
    if (!caso)
        return;
    if (!eData(testo(mUi.lblDataAvviso))) {
        mSchermata.messaggio(u"Non è stato ancora emesso un avviso di giacenza."_s, Stile::avviso);
        return;
    }
    scrivi(*caso);
    CalcolaCostiGiacenza();
    nascondiCosti();
    mParti.stampa.stampa(
        TipoDocumento::buonFine, *caso, leggiDidascalie(),
        {u"Giacenza %1 chiusa, documento di buon fine prodotto. Si può ristampare l'avviso e ripetere la "
         "chiusura, con o senza i costi."_s,
         u"Il documento di buon fine non è stato stampato; la giacenza resta chiusa."_s});
}

void ChiusuraCaso::nascondiCosti() const
{
    if (mUi.optCostiNo->isChecked())
        NascondiCostiBuonFine();
}

void ChiusuraCaso::scrivi(const ChiaveGiacenza& caso)
{
    const QString giorni = testo(mUi.barGiorniSosta);
    // Before the date is read, on a connection of its own: the wait is shown from here on.
    mSchermata.attendi();
    // The first date stays, also one that another workstation wrote since the case was brought up.
    const auto prima = LeggiDataBuonFine(accessoHost(), caso);
    if (prima)
        nascondiCosti();
    const QDate giorno = prima.value_or(oggi());
    mSchermata.connessione().esegui(prima ? istruzioni::chiusuraRipetuta(caso, giorni)
                                          : istruzioni::chiusura(caso, giorno, giorni));
    scriviDelCaso(mUi.lblDataBuonFine, dataBreve(giorno));
    mScritta();
}

void ChiusuraCaso::CalcolaCostiGiacenza()
{
    bool intero = false;
    const ChiaveSpedizione ldv = {testo(mUi.txtFiliale), testo(mUi.txtLDV),
                                  testo(mUi.txtAnnoLdv).toInt(&intero)};
    if (!intero)
        throw ErroreConversione(u"Manca l'anno della lettera di vettura."_s);
    const auto condizioni = leggiCondizioni(mSchermata.connessione(), ldv.numero, ldv.anno);
    if (condizioni)
        SalvaCostiGiacenza(ldv, calcolaImporti(*condizioni, testo(mUi.barGiorniSosta)));
}

void ChiusuraCaso::SalvaCostiGiacenza(const ChiaveSpedizione& ldv, const ImportiGiacenza& importi)
{
    Connessione& schermo = mSchermata.connessione();
    schermo.esegui(istruzioni::salvaCosti(ldv, importi.fisso, importi.sosta));
    QString mostrato = importi.sosta.testo();
    FormattaNumero(mostrato);
    scriviDelCaso(mUi.txtImponibile, mostrato);
    schermo.chiudi();
    for (QWidget* campo : {mUi.txtRiferimento, mUi.txtAnnoRif, mUi.txtFiliale, mUi.txtLDV})
        campo->setEnabled(false);
}

} // namespace giacenza
