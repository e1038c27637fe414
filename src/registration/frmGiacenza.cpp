#include "registration/frmGiacenza.h"

#include "component/impostazioni.h"
#include "component/orologio.h"
#include "data/avviso.h"
#include "registration/salvataggio.h"
#include "registration/ui_frmGiacenza.h"
#include "screens/campi.h"
#include "screens/stampa.h"
#include "widgets/tasti.h"

#include <utility>

namespace giacenza {

using istruzioni::Giunzione;

frmGiacenza::frmGiacenza()
    : Schermata(QStringLiteral("frmGiacenza")), mUi(std::make_unique<Ui::frmGiacenza>())
{
    mUi->setupUi(this);
    preparaComuni(mappaRegistrazione());
    collega();
    segnaGiacenza(false);
}

frmGiacenza::~frmGiacenza() = default;

void frmGiacenza::collega()
{
    connect(mUi->cmdSalva, &QPushButton::clicked, this, gestore([this] { salva(); }));
    connect(mUi->cmdAvvisoGia, &QPushButton::clicked, this, gestore([this] { EmettiAvvisoGiacenza(); }));
    connect(mCampi, &CampiSchermata::giacenzaLetta, this, &frmGiacenza::segnaGiacenza);

    const auto campi = {std::pair{Chiave::numero, std::pair{mUi->txtLDV, mUi->txtDataLdv}},
                        std::pair{Chiave::riferimento, std::pair{mUi->txtRiferimento, mUi->txtDataRif}}};
    for (const auto& [chiave, coppia] : campi) {
        const auto modificata = [this, chiave = chiave] { mModificata[static_cast<int>(chiave)] = true; };
        connect(coppia.first, &QLineEdit::textEdited, this, modificata);
        connect(coppia.second, &QLineEdit::textEdited, this, modificata);
        suTasto(coppia.first, Qt::Key_F12, gestore([this, chiave = chiave] { ricerca(chiave); }));
        mConvalida->aggiungi(coppia.second, [this, chiave = chiave] { return lascia(chiave); });
    }
}

void frmGiacenza::setCodiceCliente(const QString& codice)
{
    mCodiceCliente = codice;
    mConsegnaPendente = true;
    // A screen that is active already gets no activation when it is shown again.
    QMetaObject::invokeMethod(this, gestore([this] { eseguiConsegna(); }), Qt::QueuedConnection);
}

void frmGiacenza::attivata()
{
    Schermata::attivata();
    if (mConsegnaPendente)
        QMetaObject::invokeMethod(this, gestore([this] { eseguiConsegna(); }), Qt::QueuedConnection);
}

void frmGiacenza::eseguiConsegna()
{
    if (!isVisible() || !std::exchange(mConsegnaPendente, false))
        return;
    const auto giorno = leggiData(mDataLdv);
    if (mNLettVett.isEmpty() || mFiliale.isEmpty() || mCodiceCliente.isEmpty() || !giorno)
        return;
    // The code of an earlier hand-over is locked: this one's takes its place.
    bloccaCliente(false);
    scrivi(txtCodiceCli, mCodiceCliente);
    if (const Seguito seguito = convalidaCliente())
        seguito();
    scrivi(mUi->txtLDV, mNLettVett);
    scrivi(mUi->txtDataLdv, dataBreve(*giorno));
    scrivi(mUi->txtFiliale, mFiliale);
    ricerca(Chiave::numero);
    mUi->txtDataGia->setFocus();
}

void frmGiacenza::PulisciCampi()
{
    const auto righe = mUi->Frame2->findChildren<QLineEdit*>();
    for (QLineEdit* riga : righe)
        if (!qobject_cast<CampoData*>(riga) && !qobject_cast<QComboBox*>(riga->parentWidget()))
            scrivi(riga, {});
    const auto blocchi = mUi->Frame2->findChildren<QPlainTextEdit*>();
    for (QPlainTextEdit* blocco : blocchi)
        scrivi(blocco, {});
    for (QLabel* etichetta : {mUi->barFilSped, mUi->barVettore, mUi->barLineaCli, mUi->barFilialeGia,
                              mUi->barGiorniSosta, mUi->lblNrGia, mUi->barLdv})
        scrivi(etichetta, {});
    segnaGiacenza(false);
    stato({});
}

bool frmGiacenza::clienteScelto()
{
    if (!txtCodiceCli->text().isEmpty())
        return true;
    messaggio(QStringLiteral("Selezionare il codice cliente."), Stile::avviso);
    txtCodiceCli->setFocus();
    return false;
}

Seguito frmGiacenza::lascia(Chiave chiave)
{
    const QWidget* campo = chiave == Chiave::numero ? mUi->txtDataLdv : mUi->txtDataRif;
    if (!mModificata[static_cast<int>(chiave)] || testo(campo).isEmpty())
        return {};
    if (txtCodiceCli->text().isEmpty() || mUi->txtFiliale->text().isEmpty())
        return gestore([this, chiave] { ricerca(chiave); });
    gestore([this, chiave] { ricerca(chiave); })();
    return {};
}

void frmGiacenza::ricerca(Chiave chiave)
{
    if (!clienteScelto())
        return;
    const bool perNumero = chiave == Chiave::numero;
    const QString numero = perNumero ? numeroLdv(mUi->txtLDV) : mUi->txtRiferimento->text();
    const QString dataScritta = testo(perNumero ? mUi->txtDataLdv : mUi->txtDataRif);
    const QString filiale = mUi->txtFiliale->text();
    const auto giorno = leggiData(dataScritta);
    mModificata[static_cast<int>(chiave)] = false;
    PulisciCampi();
    if (!giorno)
        return stato(QStringLiteral("La data non è completa o non è valida: nessuna ricerca."));
    const QString cercata =
        perNumero ? QStringLiteral("LDV %1").arg(numero) : QStringLiteral("Riferimento %1").arg(numero);
    const QString istruzione = perNumero
                                   ? istruzioni::spedizionePerNumeroDataFiliale(numero, *giorno, filiale)
                                   : istruzioni::spedizionePerRiferimento(numero, *giorno, filiale);
    mostra(istruzione,
           QStringLiteral("%1 del %2, filiale %3: non trovata.").arg(cercata, dataScritta, filiale));
}

void frmGiacenza::mostra(const QString& istruzione, const QString& nonTrovata)
{
    if (!mostraSpedizione(istruzione))
        return stato(nonTrovata);
    scrivi(mUi->barLdv, QStringLiteral("%1 del %2").arg(tag(mUi->txtLDV), testo(mUi->txtDataLdv)));
}

void frmGiacenza::segnaGiacenza(bool giacente)
{
    mUi->lblGiaInGiacenza->setVisible(giacente);
}

void frmGiacenza::salva()
{
    // A shortcut moves no focus: the field that has it is checked first.
    if (const Seguito seguito = mConvalida->verificaCorrente())
        return seguito();
    if (txtCodiceCli->text().isEmpty() || testo(mUi->txtRifMitt).isEmpty())
        return stato(
            QStringLiteral("Niente da salvare: mancano il cliente o una spedizione con il suo riferimento."));
    CalcolaGiorniSosta();
    Ammissione ammissione;
    try {
        const auto giorno = leggiData(testo(mUi->txtDataLdv));
        if (!giorno)
            return stato(QStringLiteral("La data della lettera di vettura non è valida."));
        ammissione = ControlloInserimento(connessione(), tag(mUi->txtLDV), *giorno);
    } catch (const Errore& errore) {
        return stato(errore.testo());
    }
    switch (ammissione) {
    case Ammissione::ammessa:
        return inserisci();
    case Ammissione::giaInGiacenza:
        messaggio(QStringLiteral("Giacenza esistente impossibile inserirla in database."), Stile::avviso);
        break;
    case Ammissione::riconsegna:
        messaggio(QStringLiteral(
                      "La spedizione selezionata è una riconsegna relativa ad una giacenza già esistente."),
                  Stile::avviso);
        break;
    case Ammissione::sconosciuta:
        messaggio(QStringLiteral("Lettera di vettura non presente in database."), Stile::avviso);
        break;
    }
}

void frmGiacenza::inserisci()
{
    const DatiGiacenza dati = {
        .filiale = mUi->txtFiliale->text(),
        .numeroLdv = tag(mUi->txtLDV),
        .dataLdv = testo(mUi->txtDataLdv),
        .cliente = txtCodiceCli->text(),
        .filialeGiacenza = testo(txtFilialeGia),
        .giorniSosta = testo(barGiorniSosta),
        .dataAvviso = testo(mUi->lblDataAvviso),
        .dataBuonFine = testo(lblDataBuonFine),
        .imponibile = testo(mUi->txtImponibile),
        .giacenzaPrecedente = testo(mUi->txtGiaOld),
        .dataPrecedente = testo(mUi->txtDataGiaOld),
        .dataGiacenza = testo(txtDataGia),
        .motivo = testo(mUi->txtDescGia),
    };
    try {
        scrivi(lblNrGia, InserisciGiacenza(connessione(), impostazioni().percorsoDatabase, dati));
    } catch (const Errore& errore) {
        stato(errore.testo());
        messaggio(QStringLiteral("Impossibile aggiungere la nuova giacenza."), Stile::critico);
        return;
    }
    segnaGiacenza(true);
    messaggio(QStringLiteral("Giacenza aggiunta in database."), Stile::informazione);
    try {
        EmettiAvvisoGiacenza();
    } catch (const Errore& errore) {
        // What follows a save that succeeded ends without a message: the held shipment is there.
        stato(QStringLiteral("L'avviso non è stato emesso: %1").arg(errore.testo()));
    }
}

ChiaveSpedizione frmGiacenza::chiaveCaso() const
{
    const auto giorno = leggiData(testo(mUi->txtDataLdv));
    if (!giorno)
        throw ErroreConversione(QStringLiteral("La data della lettera di vettura non è valida."));
    return {mUi->txtFiliale->text(), numeroLdv(mUi->txtLDV), giorno->year()};
}

void frmGiacenza::EmettiAvvisoGiacenza()
{
    const auto dataGiacenza = leggiData(testo(txtDataGia));
    const QString numero = testo(lblNrGia);
    if (numero.isEmpty() || !dataGiacenza)
        return stato(QStringLiteral("Nessuna giacenza sullo schermo: non c'è un avviso da emettere."));
    const auto didascalie = leggiDidascalie();
    const QDate giorno = oggi();
    if (contaAvviso(connessione(), impostazioni().percorsoDatabase, chiaveCaso(), giorno) !=
        ContoAvviso::stessoGiorno)
        scrivi(mUi->lblDataAvviso, dataSql(giorno));
    const QString chiave = QStringLiteral("%1_%2").arg(numero).arg(dataGiacenza->year());
    const QPointer<const Schermata> io(this);
    const auto motivo = stampaDocumento(this, TipoDocumento::avviso, chiave, didascalie);
    restaAperta(io);
    if (!motivo)
        return stato(QStringLiteral("Avviso di giacenza %1 prodotto.").arg(chiave));
    stato(*motivo);
    messaggio(QStringLiteral("L'avviso di giacenza non è stato stampato; la giacenza resta registrata.\n\n%1")
                  .arg(*motivo),
              Stile::avviso);
}

} // namespace giacenza
