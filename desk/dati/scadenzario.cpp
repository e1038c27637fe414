#include "desk/dati/scadenzario.h"

#include "base/testoerrore.h"
#include "data/istruzionidesk.h"
#include "database/limiterighe.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace giacenza::desk {

namespace {

/// Milliseconds.
constexpr unsigned long respiro = 2;

/// One reading: row by row, handed over in batches.
class Lettura
{
public:
    using Consegna = std::function<void(std::vector<RigaCaso>)>;

    Lettura(const RichiestaElenco& richiesta, const std::atomic<bool>& annullata, Consegna consegna)
        : mRichiesta(richiesta), mAnnullata(annullata), mConsegna(std::move(consegna))
    {}

    /// Throws what reading throws.
    void svolgi()
    {
        mConnessione.apri(mRichiesta.accesso);
        // MariaDB's driver gives no row before it has them all: the first batch is asked for by itself.
        if (mConnessione.dialetto() == Dialetto::mariadb) {
            const LimiteRighe prime(mConnessione, static_cast<int>(Scadenzario::primoLotto));
            leggi();
            // Fewer than were asked for are all that there are.
            if (mViste.size() < static_cast<qsizetype>(Scadenzario::primoLotto))
                return;
        }
        leggi();
    }

private:
    void leggi()
    {
        Recordset riga;
        if (mRichiesta.filiale.isEmpty())
            riga.apri(mConnessione, istruzioni::casiAperti(), Recordset::Cursore::soloAvanti);
        else
            riga.apri(mConnessione, istruzioni::casiApertiFiliale(), Recordset::Cursore::soloAvanti,
                      std::vector<Valore>{mRichiesta.filiale, mRichiesta.filiale});
        const QSet<QString> prima = mViste;
        for (; !riga.eof() && !mAnnullata; riga.successivo()) {
            Caso caso = leggiCaso(riga, mConnessione);
            if (mPrimoLotto)
                mViste.insert(nomeGiacenza(caso.chiave));
            else if (prima.contains(nomeGiacenza(caso.chiave)))
                continue;
            mRighe.push_back(rigaDi(std::move(caso), mRichiesta.oggi, mRichiesta.giorniFerma, &mNoti));
            if (mRighe.size() == (mPrimoLotto ? Scadenzario::primoLotto : Scadenzario::lotto))
                consegna();
        }
        if (!mRighe.empty())
            consegna();
    }

    void consegna()
    {
        mConsegna(std::exchange(mRighe, {}));
        // Whoever shows the first rows goes before: the rest is not in view.
        if (std::exchange(mPrimoLotto, false))
            QThread::msleep(respiro);
    }

    const RichiestaElenco& mRichiesta;
    const std::atomic<bool>& mAnnullata;
    Consegna mConsegna;
    Connessione mConnessione;
    ImportiNoti mNoti;
    std::vector<RigaCaso> mRighe;
    QSet<QString> mViste; ///< names of the cases of the first batch
    bool mPrimoLotto = true;
};

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
        const auto porta = [&](std::vector<RigaCaso> righe) {
            const auto portate = std::make_shared<std::vector<RigaCaso>>(std::move(righe));
            consegna(annullata, [this, portate] { Q_EMIT arrivate(*portate); });
        };
        Lettura(richiesta, *annullata, porta).svolgi();
        consegna(annullata, [this] {
            mInCorso = false;
            Q_EMIT finito();
        });
    } catch (...) {
        const QString testo = testoErrore();
        QString dettaglio = testo;
        try {
            throw;
        } catch (const Errore& errore) {
            dettaglio = errore.testo();
        } catch (...) { // the words of what is not ours stand as they are
        }
        consegna(annullata, [this, testo, dettaglio] {
            mInCorso = false;
            Q_EMIT fallito(testo, dettaglio);
        });
    }
}

} // namespace giacenza::desk
