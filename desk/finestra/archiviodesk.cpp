#include "desk/finestra/archiviodesk.h"

#include "base/spiegazioni.h"
#include "base/testoerrore.h"

using namespace Qt::StringLiterals;

namespace giacenza::desk {

void ArchivioDesk::prepara(const Accesso& accesso)
{
    if (mConnessione && accesso.stringa == mStringa && mConnessione->aperta() && mConnessione->viva())
        return;
    mConnessione = std::make_unique<Connessione>();
    mConnessione->apri(accesso);
    mStringa = accesso.stringa;
}

void ArchivioDesk::chiedi(const Accesso& accesso, std::function<std::function<void()>(Connessione&)> domanda)
{
    mSfondo.esegui([this, accesso, domanda = std::move(domanda), questa = ++mDomanda] {
        std::function<void()> risposta;
        try {
            prepara(accesso);
            risposta = domanda(*mConnessione);
        } catch (const Errore& errore) {
            mConnessione.reset();
            risposta = [this, testo = spiega(errore), dettaglio = errore.testo()] {
                Q_EMIT fallito(testo, dettaglio);
            };
        } catch (...) {
            mConnessione.reset();
            risposta = [this, testo = testoErrore()] { Q_EMIT fallito(testo, testo); };
        }
        QMetaObject::invokeMethod(
            this,
            [this, risposta, questa] {
                if (questa == mDomanda)
                    risposta();
            },
            Qt::QueuedConnection);
    });
}

std::function<void()> ArchivioDesk::risposta(const Sguardo& sguardo, const ChiaveGiacenza& chiave,
                                             Connessione& connessione)
{
    const auto catena = leggiCatena(connessione, chiave, sguardo.cartelle, sguardo.oggi, sguardo.giorniFerma);
    if (!catena)
        return [this, nome = nomeGiacenza(chiave)] { Q_EMIT sparito(nome); };
    return [this, letta = *catena] { Q_EMIT letto(letta); };
}

void ArchivioDesk::cerca(const Sguardo& sguardo, const QString& digitato)
{
    chiedi(sguardo.accesso, [this, sguardo, digitato](Connessione& connessione) -> std::function<void()> {
        const EsitoRicerca esito = desk::cerca(connessione, digitato);
        if (esito.trovate.size() == 1 && esito.trovate.front().caso)
            return risposta(sguardo, *esito.trovate.front().caso, connessione);
        return [this, esito] { Q_EMIT trovato(esito); };
    });
}

void ArchivioDesk::leggi(const Sguardo& sguardo, const ChiaveGiacenza& chiave)
{
    chiedi(sguardo.accesso, [this, sguardo, chiave](Connessione& connessione) {
        return risposta(sguardo, chiave, connessione);
    });
}

void ArchivioDesk::leggiCaso(const Sguardo& sguardo, const ChiaveGiacenza& chiave)
{
    mSfondo.esegui([this, sguardo, chiave, questo = ++mCasoChiesto] {
        if (questo != mCasoChiesto)
            return;
        try {
            prepara(sguardo.accesso);
            const auto catena =
                leggiCatena(*mConnessione, chiave, sguardo.cartelle, sguardo.oggi, sguardo.giorniFerma);
            if (catena)
                QMetaObject::invokeMethod(
                    this, [this, caso = catena->riga.caso] { Q_EMIT casoLetto(caso); }, Qt::QueuedConnection);
        } catch (const Errore& errore) {
            mConnessione.reset();
            QMetaObject::invokeMethod(
                this,
                [this, testo = spiega(errore), dettaglio = errore.testo()] {
                    Q_EMIT fallito(testo, dettaglio);
                },
                Qt::QueuedConnection);
        }
    });
}

void ArchivioDesk::leggiFiliali(const Accesso& accesso)
{
    mSfondo.esegui([this, accesso] {
        std::vector<Filiale> filiali;
        try {
            prepara(accesso);
            Recordset riga;
            riga.apri(*mConnessione, istruzioni::elencoFiliali());
            for (; !riga.eof(); riga.successivo())
                filiali.push_back({riga.valore(0).value_or(QString()), riga.valore(1).value_or(QString())});
        } catch (const Errore& errore) {
            mConnessione.reset();
            QMetaObject::invokeMethod(
                this,
                [this, testo = spiega(errore), dettaglio = errore.testo()] {
                    Q_EMIT filialiFallite(testo, dettaglio);
                },
                Qt::QueuedConnection);
            return;
        }
        QMetaObject::invokeMethod(
            this, [this, filiali] { Q_EMIT filialiLette(filiali); }, Qt::QueuedConnection);
    });
}

} // namespace giacenza::desk
