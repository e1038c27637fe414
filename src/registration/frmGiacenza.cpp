#include "registration/frmGiacenza.h"

#include "base/impostazioni.h"
#include "base/orologio.h"
#include "data/salvataggio.h"
#include "dialogs/frmCalendario.h"
#include "screens/campi.h"
#include "screens/ricercaspedizione.h"
#include "ui_frmGiacenza.h"
#include "widgets/tasti.h"

#include <QApplication>

#include <exception>
#include <utility>

using namespace Qt::StringLiterals;

namespace giacenza {

using istruzioni::Giunzione;

frmGiacenza::frmGiacenza() : SchermataCaso(u"frmGiacenza"_s), mUi(std::make_unique<Ui::frmGiacenza>())
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
    connect(mUi->cmdAvvisoGia, &QPushButton::clicked, this, gestore([this] { EmettiAvvisoGiacenza(false); }));
    connect(mCampi, &CampiSchermata::giacenzaLetta, this, &frmGiacenza::segnaGiacenza);

    connect(mUi->cmdData, &QPushButton::clicked, this, gestore([this] { scegliData(); }));
    suTasto(txtDataGia, Qt::Key_F12, gestore([this] { scegliData(); }));
    connect(mUi->cmdCercaLdv, &QPushButton::clicked, this,
            gestore([this] { RicercaSpedizione(Chiave::numero); }));
    connect(mUi->cmdCercaRif, &QPushButton::clicked, this,
            gestore([this] { RicercaSpedizione(Chiave::riferimento); }));
    suTasto(mUi->txtFiliale, Qt::Key_F9, gestore([this] { RicercaSpedizione(Chiave::numero); }));

    for (const Chiave chiave : {Chiave::numero, Chiave::riferimento}) {
        const auto modificata = [this, chiave] { mModificata[static_cast<std::size_t>(chiave)] = true; };
        const auto elenco = gestore([this, chiave] { RicercaSpedizione(chiave); });
        for (QLineEdit* riga : {campo(chiave), static_cast<QLineEdit*>(campoData(chiave))}) {
            connect(riga, &QLineEdit::textEdited, this, modificata);
            suTasto(riga, Qt::Key_F9, elenco);
        }
        suTasto(campo(chiave), Qt::Key_F12, gestore([this, chiave] { ricerca(chiave); }));
        mConvalida->aggiungi(campoData(chiave), [this, chiave] { return lascia(chiave); });
    }
}

QLineEdit* frmGiacenza::campo(Chiave chiave) const
{
    return chiave == Chiave::numero ? mUi->txtLDV : mUi->txtRiferimento;
}

CampoData* frmGiacenza::campoData(Chiave chiave) const
{
    return chiave == Chiave::numero ? mUi->txtDataLdv : mUi->txtDataRif;
}

QString frmGiacenza::cercato(Chiave chiave) const
{
    return chiave == Chiave::numero ? numeroLdv(mUi->txtLDV) : mUi->txtRiferimento->text();
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
    // Under an open message or dialog it waits: whoever opened it goes on with what is on the screen.
    if (!isVisible() || QApplication::activeModalWidget() || !std::exchange(mConsegnaPendente, false))
        return;
    const auto giorno = leggiData(mDataLdv);
    if (mNLettVett.isEmpty() || mFiliale.isEmpty() || mCodiceCliente.isEmpty() || !giorno)
        return;
    // The code of an earlier hand-over is locked: this one's takes its place.
    bloccaCliente(false);
    scrivi(txtCodiceCli, mCodiceCliente);
    const Seguito rifiuto = convalidaCliente();
    if (rifiuto) {
        const QPointer<const Schermata> io(this);
        rifiuto();
        restaAperta(io);
    }
    scrivi(mUi->txtLDV, mNLettVett);
    scrivi(mUi->txtDataLdv, dataBreve(*giorno));
    scrivi(mUi->txtFiliale, mFiliale);
    ricerca(Chiave::numero);
    // Leaving a code that was refused would check it, and tell it, once more.
    if (!rifiuto)
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

Seguito frmGiacenza::lascia(Chiave chiave)
{
    const QString scritta = testo(campoData(chiave));
    if (!mModificata[static_cast<std::size_t>(chiave)] || scritta.isEmpty())
        return {};
    const bool conCliente = !txtCodiceCli->text().isEmpty();
    // A date typed first is no search yet.
    if (conCliente && cercato(chiave).isEmpty())
        return {};
    const bool conDialogo = mUi->txtFiliale->text().isEmpty() && eData(scritta);
    if (!conCliente || conDialogo)
        return gestore([this, chiave] { ricerca(chiave); });
    try {
        ricerca(chiave);
        return {};
    } catch (...) {
        // Told, like a refusal, once the focus has moved: the click that moved it saves nothing.
        return gestore([errore = std::current_exception()] { std::rethrow_exception(errore); });
    }
}

void frmGiacenza::ricerca(Chiave chiave)
{
    if (!clienteScelto())
        return;
    const auto giorno = leggiData(testo(campoData(chiave)));
    if (!giorno)
        return stato(u"La data non è completa o non è valida: nessuna ricerca."_s);
    if (mUi->txtFiliale->text().isEmpty())
        return RicercaSpedizione(chiave);
    ricercaDiretta(chiave, *giorno);
}

void frmGiacenza::ricercaDiretta(Chiave chiave, QDate giorno)
{
    const QString numero = cercato(chiave);
    const QString filiale = mUi->txtFiliale->text();
    mModificata.fill(false);
    PulisciCampi();
    if (chiave == Chiave::numero)
        mostra(istruzioni::spedizionePerNumeroDataFiliale(numero, giorno, filiale),
               u"LDV %1 del %2, filiale %3: non trovata."_s.arg(numero, dataBreve(giorno), filiale));
    else
        mostra(istruzioni::spedizionePerRiferimento(numero, giorno, filiale),
               u"Riferimento %1 del %2, filiale %3: non trovato."_s.arg(numero, dataBreve(giorno), filiale));
}

bool frmGiacenza::ControllaImmissione(Chiave chiave)
{
    if (!cercato(chiave).isEmpty() && eData(testo(campoData(chiave))))
        return true;
    messaggio(chiave == Chiave::numero
                  ? u"Controllare l'immissione del num. Ldv e/o data Ldv"_s
                  : u"Controllare l'immissione del riferimento cliente e/o data rifer. cliente"_s,
              Stile::avviso);
    return false;
}

void frmGiacenza::RicercaSpedizione(Chiave chiave)
{
    if (!clienteScelto() || !ControllaImmissione(chiave))
        return;
    const bool perNumero = chiave == Chiave::numero;
    const QPointer<const Schermata> io(this);
    const auto scelta = apriRicercaSpedizione(
        this, {.tipoRicerca = perNumero ? 7 : 1,
               .titolo = perNumero ? u"Ricerca per lettera di vettura"_s : u"Ricerca per riferimento"_s,
               .captionLabel = perNumero ? u"Num. LDV"_s : u"Riferimento"_s,
               .ragioneSocialeCliente = barCliente->text(),
               .cliente = txtCodiceCli->text(),
               .filiale = mUi->txtFiliale->text(),
               .riferimento = perNumero ? QString() : cercato(chiave),
               .numero = perNumero ? cercato(chiave) : QString(),
               .annoOdata = testo(campoData(chiave))});
    restaAperta(io);
    mModificata.fill(false);
    if (!scelta) {
        if (mUi->txtFiliale->text().isEmpty())
            stato(u"L'elenco mostra solo le spedizioni della filiale scritta: scrivere la filiale."_s);
        return;
    }
    const auto giorno = leggiData(scelta->data);
    if (!giorno)
        return;
    PulisciCampi();
    mostra(istruzioni::spedizionePerNumeroData(scelta->numero, *giorno,
                                               perNumero ? Giunzione::esternaMinuscola : Giunzione::esterna),
           u"LDV %1 del %2: non trovata."_s.arg(scelta->numero, scelta->data));
}

void frmGiacenza::clienteCercato()
{
    mUi->cmdData->setEnabled(false);
}

void frmGiacenza::scegliData()
{
    if (!mUi->cmdData->isEnabled())
        return;
    const QPointer<const Schermata> io(this);
    const QPointer<frmCalendario> calendario = new frmCalendario(this);
    calendario->setDataAttuale(leggiData(testo(lblDataLav)));
    calendario->exec();
    restaAperta(io);
    const auto giorno = calendario->scelta() ? calendario->DataAttuale() : std::nullopt;
    delete calendario;
    if (!giorno)
        return;
    const QString scelta = dataBreve(*giorno);
    scrivi(lblDataLav, scelta);
    scrivi(txtDataGia, scelta);
    CalcolaGiorniSosta();
}

void frmGiacenza::mostra(const QString& istruzione, const QString& nonTrovata)
{
    if (!mostraSpedizione(istruzione))
        return stato(nonTrovata);
    scrivi(mUi->barLdv, u"%1 del %2"_s.arg(tag(mUi->txtLDV), testo(mUi->txtDataLdv)));
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
        return stato(u"Niente da salvare: mancano il cliente o una spedizione con il suo riferimento."_s);
    CalcolaGiorniSosta();
    Ammissione ammissione;
    try {
        const auto giorno = leggiData(testo(mUi->txtDataLdv));
        if (!giorno)
            return stato(u"La data della lettera di vettura non è valida."_s);
        ammissione = ControlloInserimento(connessione(), tag(mUi->txtLDV), *giorno);
    } catch (const Errore& errore) {
        return stato(errore.testo());
    }
    switch (ammissione) {
    case Ammissione::ammessa:
        return inserisci();
    case Ammissione::giaInGiacenza:
        messaggio(u"Giacenza esistente impossibile inserirla in database."_s, Stile::avviso);
        break;
    case Ammissione::riconsegna:
        messaggio(u"La spedizione selezionata è una riconsegna relativa ad una giacenza già esistente."_s,
                  Stile::avviso);
        break;
    case Ammissione::sconosciuta:
        messaggio(u"Lettera di vettura non presente in database."_s, Stile::avviso);
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
        .dataAvviso = testo(lblDataAvviso),
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
        messaggio(u"Impossibile aggiungere la nuova giacenza."_s, Stile::critico);
        return;
    }
    segnaGiacenza(true);
    messaggio(u"Giacenza aggiunta in database."_s, Stile::informazione);
    try {
        EmettiAvvisoGiacenza(false);
    } catch (const Errore& errore) {
        // What follows a save that succeeded ends without a message: the held shipment is there.
        stato(u"L'avviso non è stato emesso: %1"_s.arg(errore.testo()));
    }
}

ChiaveCaso frmGiacenza::chiaveAvviso(const ChiaveGiacenza&) const
{
    const auto giorno = leggiData(testo(mUi->txtDataLdv));
    if (!giorno)
        throw ErroreConversione(u"La data della lettera di vettura non è valida."_s);
    return ChiaveSpedizione{mUi->txtFiliale->text(), numeroLdv(mUi->txtLDV), giorno->year()};
}

} // namespace giacenza
