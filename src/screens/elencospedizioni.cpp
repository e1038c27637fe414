#include "screens/elencospedizioni.h"

#include "database/valori.h"
#include "search/frmRicercaGia.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace giacenza {

/// What the search is told; what a mode does not need stays empty.
struct ElencoSpedizioni::Apertura
{
    ModoRicerca modo;
    QString titolo;
    QString etichetta;
    QString riferimento = {};
    QString numero = {};
    QString annoOData = {};
    QString giacenza = {};
    QString annoGiacenza = {};
};

ElencoSpedizioni::ElencoSpedizioni(Schermata& schermata, const CampoCliente& cliente,
                                   const QLineEdit* filiale)
    : mSchermata(schermata), mCliente(cliente), mFiliale(filiale)
{}

bool ElencoSpedizioni::ControllaImmissione(const ChiaveRicerca& chiave, bool (*numero)(const QString&))
{
    const QString valore = chiave.valore();
    if ((chiave.perNumero() ? numero(valore) : !valore.isEmpty()) && chiave.giorno())
        return true;
    mSchermata.messaggio(chiave.perNumero()
                             ? u"Controllare l'immissione del num. Ldv e/o data Ldv"_s
                             : u"Controllare l'immissione del riferimento cliente e/o data rifer. cliente"_s,
                         Stile::avviso);
    return false;
}

std::optional<SpedizioneScelta> ElencoSpedizioni::RicercaSpedizione(const ChiaveRicerca& chiave)
{
    if (chiave.perNumero())
        return apri({.modo = chiave.modo(),
                     .titolo = u"Ricerca per lettera di vettura"_s,
                     .etichetta = u"Num. LDV"_s,
                     .numero = chiave.valore(),
                     .annoOData = chiave.data()});
    return apri({.modo = chiave.modo(),
                 .titolo = u"Ricerca per riferimento"_s,
                 .etichetta = u"Riferimento"_s,
                 .riferimento = chiave.valore(),
                 .annoOData = chiave.data()});
}

std::optional<SpedizioneScelta> ElencoSpedizioni::giacenze()
{
    return apri({.modo = ModoRicerca::giacenze, .titolo = u"Ricerca Giacenze"_s, .etichetta = u"Num. LDV"_s});
}

void ElencoSpedizioni::riconsegne(const ChiaveGiacenza& caso)
{
    apri({.modo = ModoRicerca::riconsegne,
          .titolo = u"Spedizioni relative alla giacenza selezionata"_s,
          .etichetta = u"Num. LDV"_s,
          .giacenza = caso.numero,
          .annoGiacenza = QString::number(caso.anno)});
}

std::optional<SpedizioneScelta> ElencoSpedizioni::apri(const Apertura& apertura)
{
    auto dialogo = std::make_unique<frmRicercaGia>(&mSchermata);
    dialogo->setTipoRicerca(static_cast<int>(apertura.modo));
    dialogo->setTitolo(apertura.titolo);
    dialogo->setCaptionLabel(apertura.etichetta);
    dialogo->setRagioneSocialeCliente(mCliente.ragioneSociale());
    dialogo->setCodiceCliente(mCliente.codice().trimmed());
    dialogo->setFiliale(mFiliale ? mFiliale->text() : QString());
    dialogo->setRiferimentoCliente(apertura.riferimento);
    dialogo->setNumLetVett(apertura.numero);
    dialogo->setAnnoOdata(apertura.annoOData);
    dialogo->setGiacenza(apertura.giacenza);
    dialogo->setAnnoGiacenza(apertura.annoGiacenza);
    // The list is read before the dialog is on the display.
    mSchermata.attendi();
    return mSchermata.modale(
        std::move(dialogo), [](const frmRicercaGia& d) -> std::optional<SpedizioneScelta> {
            const auto giorno = d.accettato() ? leggiData(d.DataLetVett()) : std::nullopt;
            return giorno ? std::optional(SpedizioneScelta{d.NumLetVett(), *giorno}) : std::nullopt;
        });
}

} // namespace giacenza
