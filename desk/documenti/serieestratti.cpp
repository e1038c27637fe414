#include "desk/documenti/serieestratti.h"

#include "base/spiegazioni.h"

#include <utility>

namespace giacenza::documenti {

SerieEstratti::SerieEstratti(const Accesso& accesso, std::vector<ClienteAperto> clienti,
                             const RichiestaEstratto& periodo, const Forme& forme, Carta carta,
                             QString cartella)
    : mAccesso(accesso), mClienti(std::move(clienti)), mPeriodo(periodo), mForme(forme),
      mCarta(std::move(carta)), mCartella(std::move(cartella))
{
    mConnessione.apri(mAccesso);
}

void SerieEstratti::avanti()
{
    EsitoEstratto esito{prossimo(), {}, 0, {}};
    try {
        mConnessione.apri(mAccesso); // one that was lost with the customer before
        RichiestaEstratto richiesta = mPeriodo;
        richiesta.cliente = esito.cliente.codice;
        const Estratto estratto = leggiEstratto(mConnessione, richiesta);
        esito.casi = static_cast<int>(estratto.casi.size());
        esito.file = salvaEstratto(estratto, mForme, mCarta, mCartella);
    } catch (const ErroreDatabase& errore) {
        esito.guasto = spiega(errore);
    } catch (const Errore& errore) {
        esito.guasto = errore.testo();
    }
    mEsiti.push_back(std::move(esito));
}

} // namespace giacenza::documenti
