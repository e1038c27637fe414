#include "search/apriricerca.h"

#include "base/forme.h"
#include "base/impostazioni.h"
#include "base/modale.h"
#include "database/valori.h"
#include "search/frmRicerca.h"

namespace giacenza {

RisultatoRicerca ApriRicerca(const QString& clientiFornitori, const QString& nomeTabella, QWidget* padre)
{
    const qint16 tipo = intero16(clientiFornitori);
    auto finestra = std::make_unique<frmRicerca>(padre);
    finestra->setClienti_Fornitori(tipo);
    finestra->setNomeTabella(nomeTabella);
    finestra->setStringaConnessione(impostazioni().percorsoDatabase);
    Forme::delThread()->annota(finestra->objectName(), finestra.get());
    return eseguiModale(std::move(finestra), [](const frmRicerca& chiusa) {
        return RisultatoRicerca{chiusa.trovato(), chiusa.IdRecord(), chiusa.ragioneSociale()};
    });
}

} // namespace giacenza
