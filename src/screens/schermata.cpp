#include "screens/schermata.h"

#include "base/impostazioni.h"
#include "base/orologio.h"
#include "base/parti.h"
#include "base/testoerrore.h"
#include "data/istruzioni.h"
#include "data/sosta.h"
#include "dialogs/porto.h"
#include "screens/campi.h"
#include "search/apriricerca.h"
#include "widgets/campodata.h"
#include "widgets/naturamerce.h"
#include "widgets/primopiano.h"
#include "widgets/tasti.h"

#include <giacenza/RicercaTabella.h>

#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

/// What tells a field to type in from one to look at, and a value that counts from one that does not.
constexpr char16_t aspetto[] = uR"(
QLineEdit[readOnly="true"], QPlainTextEdit[readOnly="true"] { background-color: palette(window); }
QLineEdit:disabled { background-color: palette(window); }
QLineEdit[readOnly="true"]:disabled { color: #505050; }
QComboBox:disabled { color: palette(text); }
QLabel[barra="true"] { padding: 3px 4px; }
QLabel#lblGiaInGiacenza { background-color: #a3261b; color: white; font-weight: bold; padding: 3px 10px; }
QLabel#lblStatoCaso { background-color: #1f5c99; color: white; font-weight: bold; padding: 3px 10px; }
QLabel#lblStatoCaso[chiusa="true"] { background-color: #5a5f66; }
*[avanzo="true"] { color: #808080; font-style: italic; }
)";

/// Ends the handlers of a screen that was closed under them; told to nobody.
struct Abbandono
{};

} // namespace

Schermata::Schermata(const QString& nome) : mConvalida(new Convalida(this))
{
    setObjectName(nome);
    setAttribute(Qt::WA_QuitOnClose, false);
    setStyleSheet(QString::fromUtf16(aspetto));
}

Schermata::~Schermata() = default;

template<class Controllo>
Controllo* Schermata::trova(const char* nome) const
{
    auto* controllo = findChild<Controllo*>(QLatin1String(nome));
    if (!controllo)
        throw std::logic_error(std::string("the form has no control of the name ") + nome);
    return controllo;
}

void Schermata::preparaComuni(const MappaSpedizione& mappa)
{
    mMappa = &mappa;
    mCampi = new CampiSchermata(this, mappa);
    txtCodiceCli = trova<QLineEdit>("txtCodiceCli");
    barCliente = trova<QLabel>("barCliente");
    cmdCercaCliente = trova<QPushButton>("cmdCercaCliente");
    txtFilialeGia = trova<QLineEdit>("txtFilialeGia");
    barFilialeGia = trova<QLabel>("barFilialeGia");
    txtDataGia = trova<CampoData>("txtDataGia");
    lblDataLav = trova<QLabel>("lblDataLav");
    lblDataAvviso = trova<QLabel>("lblDataAvviso");
    lblDataBuonFine = trova<QLabel>("lblDataBuonFine");
    lblNrGia = trova<QLabel>("lblNrGia");
    barGiorniSosta = trova<QLabel>("barGiorniSosta");
    cmbNaturaMerce = trova<QComboBox>("cmbNaturaMerce");
    cmbPorto = trova<QComboBox>("cmbPorto");
    mStato = trova<QLabel>("lblStato");

    auto* cmdEsci = trova<QPushButton>("cmdEsci");
    connect(cmdEsci, &QPushButton::clicked, this, &QWidget::close);
    mConvalida->esenta(cmdEsci);
    mConvalida->aggiungi(txtDataGia, [this] { return convalidaDataGia(); });
    collegaCliente();
    collegaTasti();
}

void Schermata::collegaCliente()
{
    mConvalida->aggiungi(txtCodiceCli, [this] { return convalidaCliente(); });
    connect(txtCodiceCli, &QLineEdit::returnPressed, this, [this] { cmdCercaCliente->setFocus(); });
    connect(cmdCercaCliente, &QPushButton::clicked, this, gestore([this] { cercaCliente(); }));
    suTasto(txtCodiceCli, Qt::Key_F12, gestore([this] { cercaCliente(); }));
}

void Schermata::cercaCliente()
{
    const QPointer<const Schermata> io(this);
    const RisultatoRicerca trovato = ApriRicerca(u"1"_s, u"Clien"_s, this);
    restaAperta(io);
    if (!trovato.trovato)
        return;
    scrivi(txtCodiceCli, QString::number(trovato.codice));
    scrivi(barCliente, trovato.ragioneSociale);
    clienteCercato();
}

void Schermata::collegaTasti()
{
    suTasto(txtFilialeGia, Qt::Key_F12, gestore([this] { cercaFiliale(); }));
    // The name belongs to the code that was there.
    connect(txtFilialeGia, &QLineEdit::textEdited, this, [this] { scrivi(barFilialeGia, {}); });
    suTasto(cmbNaturaMerce, Qt::Key_F11, gestore([this] {
                const QPointer<const Schermata> io(this);
                AggiungiNaturaMerce(cmbNaturaMerce);
                restaAperta(io);
                CaricaNaturaMerce(cmbNaturaMerce);
            }));
}

void Schermata::carica()
{
    connessione();
    CaricaNaturaMerce(cmbNaturaMerce);
    caricaPorto();
    const QString oggiBreve = dataBreve(oggi());
    scrivi(txtDataGia, oggiBreve);
    scrivi(lblDataLav, oggiBreve);
}

void Schermata::caricaPorto()
{
    try {
        CaricaPorto(cmbPorto, connessione());
    } catch (const ErroreDatabase& errore) {
        stato(u"I termini di porto non si leggono: %1"_s.arg(errore.testo()));
    }
}

Connessione& Schermata::connessione()
{
    mConnessione.apri(impostazioni().percorsoDatabase);
    return mConnessione;
}

void Schermata::rilasciaConnessione()
{
    ChiudiOggettiDB(nullptr, &mConnessione, true, false);
}

void Schermata::stato(const QString& testo)
{
    mStato->setText(testo.section(u'\n', 0, 0));
    mStato->setToolTip(testo);
}

std::function<void()> Schermata::gestore(std::function<void()> azione)
{
    return [this, azione = std::move(azione)] {
        try {
            try {
                azione();
            } catch (const Abbandono&) {
                throw;
            } catch (const ErroreDatabase& errore) {
                guasto(u"Operazione non riuscita: il database o un suo dato non risponde come "
                       "dovrebbe."_s,
                       errore.testo());
            } catch (...) {
                // A part of the host's throws what it likes, and nothing may pass through Qt's loop.
                guasto(u"Operazione non riuscita."_s, testoErrore());
            }
        } catch (const Abbandono&) {
            // The screen is gone: there is nobody to tell.
        }
    };
}

void Schermata::restaAperta(const QPointer<const Schermata>& io) const
{
    if (!io || io->mUscita)
        throw Abbandono{};
}

Risposta Schermata::messaggio(const QString& testo, Stile stile, const QString& titolo)
{
    const QPointer<const Schermata> io(this);
    const Risposta risposta = mostraMessaggio(this, {testo, stile, titolo});
    restaAperta(io);
    return risposta;
}

void Schermata::guasto(const QString& cheCosa, const QString& perche)
{
    stato(perche);
    messaggio(cheCosa + u"\n\n"_s + perche, Stile::critico, titoloGestione());
}

Seguito Schermata::rifiuta(QWidget* campo, const QString& testo, Stile stile, const QString& titolo)
{
    return gestore([this, campo, testo, stile, titolo] {
        messaggio(testo, stile, titolo);
        campo->setFocus();
    });
}

bool Schermata::event(QEvent* evento)
{
    // Not every system activates the screen anew when a box over it has closed.
    if (evento->type() == QEvent::WindowActivate || evento->type() == QEvent::WindowUnblocked)
        attivata();
    return QWidget::event(evento);
}

void Schermata::attivata()
{
    SempreInPrimoPiano(this, true);
}

void Schermata::closeEvent(QCloseEvent* evento)
{
    evento->accept();
    if (mUscita)
        return;
    mUscita = true;
    mConvalida->sospendi();
    mConnessione.chiudi();
    hide();
    deleteLater();
    Q_EMIT Uscita();
}

bool Schermata::mostraSpedizione(const QString& istruzione)
{
    Recordset riga;
    riga.apri(connessione(), istruzione);
    if (riga.bof() || riga.eof())
        return false;
    CaricaDatiSpedizione(riga, *mMappa, *mCampi);
    rigaMostrata(riga);
    riga.chiudi();
    leggiFilialeGia();
    CalcolaGiorniSosta();
    return true;
}

void Schermata::CalcolaGiorniSosta()
{
    if (const auto inizio = leggiData(testo(txtDataGia)))
        scrivi(barGiorniSosta, QString::number(giorniSosta(*inizio, testo(lblDataBuonFine), oggi())));
}

Seguito Schermata::convalidaDataGia()
{
    const QString digitata = testo(txtDataGia);
    if (!digitata.isEmpty() && !eData(digitata))
        return rifiuta(txtDataGia, u"Controllare l'immissione della data giacenza."_s, Stile::avviso);
    CalcolaGiorniSosta();
    return {};
}

Seguito Schermata::verificaCliente(const QString& codice, const Seguito& errato,
                                   const std::function<void(const QString&)>& trovato)
{
    if (codice.isEmpty())
        return {};
    if (!eNumero(codice))
        return errato;
    try {
        Recordset cliente;
        cliente.apri(connessione(), istruzioni::clientePerCodice(codice));
        if (cliente.eof())
            return gestore([this] {
                messaggio(u"Codice Cliente Inesistente"_s, Stile::informazione, titoloGestione());
            });
        if (trovato)
            trovato(cliente.valore(0).value_or(QString()));
    } catch (const ErroreDatabase& errore) {
        stato(errore.testo());
    }
    return {};
}

Seguito Schermata::convalidaCliente()
{
    if (txtCodiceCli->isReadOnly())
        return {};
    const QString codice = txtCodiceCli->text().trimmed();
    return verificaCliente(codice,
                           rifiuta(txtCodiceCli, clienteErrato(), Stile::avviso, titoloClienteErrato()),
                           [&](const QString& ragioneSociale) {
                               scrivi(barCliente, ragioneSociale);
                               txtCodiceCli->setText(codice);
                               bloccaCliente(true);
                           });
}

QString Schermata::clienteErrato()
{
    return u"Codice cliente assente o errato"_s;
}

QString Schermata::titoloClienteErrato() const
{
    return titoloApplicazione();
}

bool Schermata::clienteScelto()
{
    if (!txtCodiceCli->text().isEmpty())
        return true;
    messaggio(u"Selezionare il codice cliente."_s, Stile::avviso);
    txtCodiceCli->setFocus();
    return false;
}

void Schermata::bloccaCliente(bool bloccato)
{
    txtCodiceCli->setReadOnly(bloccato);
    rinnovaAspetto(txtCodiceCli);
}

void Schermata::cercaFiliale()
{
    const auto ricerca = creaParteDi<RicercaTabella>(QString::fromUtf16(classeRicercaTabella));
    if (!ricerca.parte)
        return stato(ricerca.motivo);
    ricerca.parte->setPercorsoDatabase(impostazioni().percorsoDatabase);
    ricerca.parte->setScelta([this](const QStringList& valori) {
        scrivi(txtFilialeGia, valori.value(0));
        scrivi(barFilialeGia, valori.value(1));
    });
    const QPointer<const Schermata> io(this);
    ricerca.parte->mostra(istruzioni::elencoFiliali(), u"Ricerca Filiale"_s, this);
    restaAperta(io);
}

void Schermata::leggiFilialeGia()
{
    const QString codice = testo(txtFilialeGia);
    if (codice.isEmpty())
        return;
    try {
        Recordset filiale;
        filiale.apri(connessione(), istruzioni::descrizioneFiliale(codice));
        if (!filiale.eof())
            scrivi(barFilialeGia, filiale.valore(0).value_or(QString()));
    } catch (const ErroreDatabase& errore) {
        stato(errore.testo());
    }
}

} // namespace giacenza
