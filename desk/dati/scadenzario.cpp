#include "desk/dati/scadenzario.h"

#include "base/spiegazioni.h"
#include "base/testoerrore.h"
#include "data/istruzionidesk.h"

using namespace Qt::StringLiterals;

namespace giacenza::desk {

namespace {

/// Milliseconds.
constexpr unsigned long respiro = 2;

/// Reads row by row; consegna: given each batch. Throws what reading throws.
void leggiRighe(const RichiestaElenco& richiesta, const std::atomic<bool>& annullata,
                const std::function<void(std::vector<RigaCaso>)>& consegna)
{
    Connessione connessione;
    connessione.apri(richiesta.accesso);
    Recordset riga;
    if (richiesta.filiale.isEmpty())
        riga.apri(connessione, istruzioni::casiAperti(), Recordset::Cursore::soloAvanti);
    else
        riga.apri(connessione, istruzioni::casiApertiFiliale(), Recordset::Cursore::soloAvanti,
                  std::vector<Valore>{richiesta.filiale, richiesta.filiale});
    ImportiNoti noti;
    std::vector<RigaCaso> righe;
    std::size_t quante = Scadenzario::primoLotto;
    for (; !riga.eof() && !annullata; riga.successivo()) {
        righe.push_back(rigaDi(leggiCaso(riga), richiesta.oggi, richiesta.giorniFerma, &noti));
        if (righe.size() == quante) {
            consegna(std::exchange(righe, {}));
            // Whoever shows the first rows goes before: the rest is not in view.
            if (std::exchange(quante, Scadenzario::lotto) != Scadenzario::lotto)
                QThread::msleep(respiro);
            righe.reserve(quante);
        }
    }
    if (!righe.empty())
        consegna(std::move(righe));
}

} // namespace

Scadenzario::Scadenzario(QObject* padre) : QObject(padre) {}

Scadenzario::~Scadenzario()
{
    annulla();
}

void Scadenzario::annulla()
{
    if (mCorrente)
        *mCorrente = true;
    mInCorso = false;
}

void Scadenzario::leggi(const RichiestaElenco& richiesta)
{
    annulla();
    mCorrente = std::make_shared<std::atomic<bool>>(false);
    mInCorso = true;
    mSfondo.esegui([this, richiesta, annullata = mCorrente] { leggiLaggiu(richiesta, annullata); });
}

void Scadenzario::consegna(const Annullata& annullata, const std::function<void()>& azione)
{
    QMetaObject::invokeMethod(
        this,
        [annullata, azione] {
            if (!*annullata)
                azione();
        },
        Qt::QueuedConnection);
}

void Scadenzario::leggiLaggiu(const RichiestaElenco& richiesta, const Annullata& annullata)
{
    try {
        if (*annullata)
            return;
        leggiRighe(richiesta, *annullata, [&](std::vector<RigaCaso> righe) {
            const auto portate = std::make_shared<std::vector<RigaCaso>>(std::move(righe));
            consegna(annullata, [this, portate] { Q_EMIT arrivate(*portate); });
        });
        consegna(annullata, [this] {
            mInCorso = false;
            Q_EMIT finito();
        });
    } catch (...) {
        QString testo = testoErrore();
        const QString dettaglio = testo;
        try {
            throw;
        } catch (const Errore& errore) {
            testo = spiega(errore);
        } catch (...) { // the words of what is not ours stand as they are
        }
        consegna(annullata, [this, testo, dettaglio] {
            mInCorso = false;
            Q_EMIT fallito(testo, dettaglio);
        });
    }
}

} // namespace giacenza::desk
