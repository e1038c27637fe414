#include "registration/frmGiacenza.h"

#include "database/valori.h"
#include "dialogs/frmCalendario.h"
#include "ui_frmGiacenza.h"
#include "widgets/tasti.h"

using namespace Qt::StringLiterals;

namespace giacenza {

frmGiacenza::frmGiacenza()
    : Schermata(u"frmGiacenza"_s), mUi(creaForma<Ui::frmGiacenza>(this)),
      mParti(*this, ControlliComuni::di(*mUi), mappaRegistrazione(),
             {.cliente = {.cercato = [this] { mUi->cmdData->setEnabled(false); }},
              .rigaMostrata = [this](const Recordset& riga) { mRicerca.rigaMostrata(riga); },
              .avvertenzaFiliale = mUi->lblAvvFilialeGia,
              .avvertenzaData = mUi->lblAvvDataGia}),
      mRicerca(*this, *mUi, mParti),
      mAvviso(*this, mParti, mUi->lblDataAvviso,
              {.chiave = [this](const ChiaveGiacenza&) { return chiaveAvviso(); }}),
      mSalvataggio(*this, *mUi, mParti, mRicerca, mAvviso)
{
    collega();
}

frmGiacenza::~frmGiacenza()
{
    congeda();
}

void frmGiacenza::collega()
{
    connect(mUi->txtDescGia, &CampoTesto::tagliato, this,
            [this] { stato(u"Il testo incollato era troppo lungo: se ne è tenuto l'inizio."_s); });
    connect(mUi->cmdSalva, &QPushButton::clicked, this, gestore([this] { mSalvataggio.salva(); }));
    connect(mUi->cmdAvvisoGia, &QPushButton::clicked, this,
            gestore([this] { mAvviso.EmettiAvvisoGiacenza(false); }));
    const auto calendario = gestore([this] { scegliData(); });
    connect(mUi->cmdData, &QPushButton::clicked, this, calendario);
    suTasto(mUi->txtDataGia, Qt::Key_F12, calendario);
}

void frmGiacenza::carica()
{
    Schermata::carica();
    mParti.riempi();
}

void frmGiacenza::setCodiceCliente(const QString& codice)
{
    mCodiceCliente = codice;
    mConsegna.arrivata();
}

void frmGiacenza::attivata()
{
    mConsegna.attivata();
}

void frmGiacenza::eseguiConsegna()
{
    const auto giorno = leggiData(mDataLdv);
    if (mNLettVett.isEmpty() || mFiliale.isEmpty() || mCodiceCliente.isEmpty() || !giorno)
        return;
    // The code of an earlier hand-over is locked: this one's takes its place.
    const Seguito rifiuto = mParti.cliente.imposta(mCodiceCliente);
    if (rifiuto)
        durante(rifiuto);
    // Without a customer there is nothing to look up in; one that is unknown was told, and the waybill says
    // whose it is.
    if (!eNumero(mCodiceCliente))
        return;
    scrivi(mUi->txtLDV, mNLettVett);
    scrivi(mUi->txtDataLdv, dataBreve(*giorno));
    scrivi(mUi->txtFiliale, mFiliale);
    const bool trovata = mRicerca.perNumero();
    mParti.cliente.ripetiGuasto();
    // Leaving a code that was refused would check it, and tell it, once more.
    if (!rifiuto)
        (trovata ? mUi->txtFilialeGia : mUi->txtDataGia)->setFocus(Qt::TabFocusReason);
}

void frmGiacenza::scegliData()
{
    if (!mUi->cmdData->isEnabled())
        return;
    auto calendario = std::make_unique<frmCalendario>(this);
    calendario->setDataAttuale(leggiData(testo(mUi->lblDataLav)));
    const auto giorno = modale(std::move(calendario), [](const frmCalendario& c) {
        return c.scelta() ? c.DataAttuale() : std::nullopt;
    });
    if (!giorno)
        return;
    const QString scelta = dataBreve(*giorno);
    scrivi(mUi->lblDataLav, scelta);
    scrivi(mUi->txtDataGia, scelta);
    mParti.dataGiacenza.CalcolaGiorniSosta();
}

ChiaveCaso frmGiacenza::chiaveAvviso() const
{
    const auto giorno = leggiData(testo(mUi->txtDataLdv));
    if (!giorno)
        throw ErroreConversione(u"La data della lettera di vettura non è valida."_s);
    return ChiaveSpedizione{mUi->txtFiliale->text(), tag(mUi->txtLDV), giorno->year()};
}

} // namespace giacenza
