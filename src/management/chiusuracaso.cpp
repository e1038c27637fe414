// What the management screen does with the case that it shows: the notice and the closure.

#include "base/impostazioni.h"
#include "base/orologio.h"
#include "data/chiusura.h"
#include "dialogs/frmRifiuto.h"
#include "management/frmGestGia.h"
#include "screens/campi.h"
#include "screens/costibuonfine.h"
#include "screens/stampa.h"
#include "ui_frmGestGia.h"

using namespace Qt::StringLiterals;

namespace giacenza {

void frmGestGia::emettiAvviso()
{
    if (!casoMostrato())
        return;
    const QString chiusura = testo(lblDataBuonFine);
    if (eData(chiusura)) {
        messaggio(u"La giacenza risulta chiusa,in data: %1."_s.arg(chiusura), Stile::informazione,
                  titoloGestione());
        return;
    }
    const QPointer<const Schermata> io(this);
    // The screen, and the dialog with it, may be destroyed while the dialog is open.
    const QPointer<frmRifiuto> rifiuto = new frmRifiuto(this);
    rifiuto->exec();
    restaAperta(io);
    const bool confermato = rifiuto->Confermato();
    const QString riga = u"\n%1 - %2"_s.arg(dataBreve(rifiuto->DataRifiuto()), rifiuto->MotivazioneRifiuto());
    delete rifiuto;
    if (!confermato)
        return;
    scrivi(mUi->txtDescGia, testo(mUi->txtDescGia) + riga);
    EmettiAvvisoGiacenza(false, testo(mUi->txtDescGia));
}

void frmGestGia::ristampa()
{
    EmettiAvvisoGiacenza(true);
}

bool frmGestGia::avvisoAmmesso()
{
    if (!eData(testo(lblDataBuonFine)))
        return true;
    messaggio(u"E' già stato rilasciato il buon fine per questa giacenza."_s, Stile::avviso);
    return false;
}

void frmGestGia::avvisoContato(int numero)
{
    mAvvisi = QString::number(numero);
    mostraStatoCaso();
}

void frmGestGia::ChiudiGiacenza()
{
    MostraCostiBuonFine();
    const auto caso = casoMostrato();
    if (!caso)
        return;
    if (!eData(testo(lblDataAvviso))) {
        messaggio(u"Non è stato ancora emesso un avviso di giacenza."_s, Stile::avviso);
        return;
    }
    scriviChiusura(*caso);
    CalcolaCostiGiacenza();
    if (mUi->optCostiNo->isChecked())
        NascondiCostiBuonFine(CostiNascosti::tutti);
    stampaCaso(TipoDocumento::buonFine, *caso, leggiDidascalie(),
               {u"Giacenza %1 chiusa, documento di buon fine prodotto."_s,
                u"Il documento di buon fine non è stato stampato; la giacenza resta chiusa."_s});
}

void frmGestGia::scriviChiusura(const ChiaveGiacenza& caso)
{
    const QString giorni = testo(barGiorniSosta);
    // The first date stays, also one that another workstation wrote since the case was brought up.
    const auto prima = leggiData(LeggiDataBuonFine(impostazioni().percorsoDatabase, caso));
    const QDate giorno = prima.value_or(oggi());
    connessione().esegui(prima ? istruzioni::chiusuraRipetuta(caso, giorni)
                               : istruzioni::chiusura(caso, giorno, giorni));
    scrivi(lblDataBuonFine, dataBreve(giorno));
    mostraStatoCaso();
}

void frmGestGia::CalcolaCostiGiacenza()
{
    bool intero = false;
    const ChiaveSpedizione ldv = {testo(mUi->txtFiliale), testo(mUi->txtLDV),
                                  testo(mUi->txtAnnoLdv).toInt(&intero)};
    if (!intero)
        throw ErroreConversione(u"Manca l'anno della lettera di vettura."_s);
    const auto condizioni = leggiCondizioni(connessione(), ldv.numero, ldv.anno);
    if (!condizioni)
        return;
    const ImportiGiacenza importi = calcolaImporti(*condizioni, testo(barGiorniSosta));
    SalvaCostiGiacenza(ldv, importi.fisso, importi.sosta);
}

void frmGestGia::SalvaCostiGiacenza(const ChiaveSpedizione& ldv, const QString& fisso, const QString& importo)
{
    Connessione& schermo = connessione();
    schermo.esegui(istruzioni::salvaCosti(ldv, fisso, importo));
    QString mostrato = importo;
    FormattaNumero(mostrato);
    scrivi(mUi->txtImponibile, mostrato);
    schermo.chiudi();
    for (QWidget* campo : {mUi->txtRiferimento, mUi->txtAnnoRif, mUi->txtFiliale, mUi->txtLDV})
        campo->setEnabled(false);
}

} // namespace giacenza
