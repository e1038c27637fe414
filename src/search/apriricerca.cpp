#include "search/apriricerca.h"

#include "base/forme.h"
#include "base/impostazioni.h"
#include "database/valori.h"
#include "search/frmRicerca.h"

#include <QPointer>

namespace giacenza {

RisultatoRicerca ApriRicerca(const QString& clientiFornitori, const QString& nomeTabella, QWidget* padre)
{
    const qint16 tipo = intero16(clientiFornitori);
    const QPointer<frmRicerca> finestra = new frmRicerca(padre);
    finestra->setClienti_Fornitori(tipo);
    finestra->setNomeTabella(nomeTabella);
    finestra->setStringaConnessione(impostazioni().percorsoDatabase);
    Forme::delThread()->annota(finestra->objectName(), finestra);
    finestra->exec();
    if (!finestra)
        return {};
    const RisultatoRicerca risultato{finestra->trovato(), finestra->IdRecord(), finestra->ragioneSociale()};
    delete finestra.data();
    return risultato;
}

} // namespace giacenza
