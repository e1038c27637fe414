#include "desk/schede/lavoroestratti.h"

#include "base/spiegazioni.h"
#include "base/testoerrore.h"

namespace giacenza::schede {

LavoroEstratti::~LavoroEstratti()
{
    ferma();
}

void LavoroEstratti::ferma()
{
    mFermata = true;
}

void LavoroEstratti::comincia(const OrdineEstratti& ordine)
{
    mFermata = false;
    mInCorso = true;
    mSfondo.esegui([this, ordine] { lavora(ordine); });
}

void LavoroEstratti::consegna(const std::function<void()>& azione)
{
    QMetaObject::invokeMethod(this, azione, Qt::QueuedConnection);
}

QString LavoroEstratti::prova(const std::function<void()>& azione)
{
    try {
        azione();
    } catch (const ErroreDatabase& errore) {
        return spiega(errore);
    } catch (...) {
        return testoErrore();
    }
    return {};
}

/// In the thread, out of which nothing may be thrown.
void LavoroEstratti::lavora(const OrdineEstratti& ordine)
{
    const QString guasto = prova([&] {
        documenti::SerieEstratti serie(ordine.accesso, ordine.clienti, ordine.periodo, ordine.forme,
                                       ordine.carta, ordine.cartella);
        while (!serie.finita() && !mFermata) {
            consegna([this, cliente = serie.prossimo()] { Q_EMIT cominciato(cliente); });
            serie.avanti();
            consegna([this, esito = serie.esiti().back()] { Q_EMIT fatto(esito); });
        }
    });
    consegna([this, guasto] {
        mInCorso = false;
        Q_EMIT finito(guasto);
    });
}

} // namespace giacenza::schede
