#pragma once

#include "desk/dati/catena.h"
#include "desk/dati/ricerca.h"
#include "desk/dati/sfondo.h"

#include <QObject>

#include <atomic>
#include <memory>

namespace giacenza::desk {

/// A branch as the list of branches has it.
struct Filiale
{
    QString codice;
    QString nome;
};

/// What the desk looks up besides the list, in a thread of its own, on a connection that stays open between
/// one scan and the next. Of several questions only the last one's answer comes.
class ArchivioDesk : public QObject
{
    Q_OBJECT

public:
    explicit ArchivioDesk(QObject* padre = nullptr) : QObject(padre) {}

    /// What a case is looked at with.
    struct Sguardo
    {
        Accesso accesso{QString()};
        Cartelle cartelle;
        QDate oggi;
        int giorniFerma = 7;
    };

    /// A number: trovato() comes, or, for a single case, letto(). From then on what comes is this question's.
    void cerca(const Sguardo& sguardo, const QString& digitato);
    /// A case: letto() comes. chiesto: as what it was found, for letto().
    void leggi(const Sguardo& sguardo, const ChiaveGiacenza& chiave);
    /// A case that the operator may act on: casoLetto() comes, nothing when there is none. A later question
    /// of these takes the place of one that has not begun; cerca() and leggi() stand beside it.
    void leggiCaso(const Sguardo& sguardo, const ChiaveGiacenza& chiave);
    /// The branches: filialiLette() comes, or filialiFallite().
    void leggiFiliali(const Accesso& accesso);

Q_SIGNALS:
    void trovato(const giacenza::desk::EsitoRicerca& esito);
    void letto(const giacenza::desk::Catena& catena);
    void casoLetto(const giacenza::desk::Caso& caso);
    void sparito(const QString& nomeGiacenza);
    void fallito(const QString& testo, const QString& dettaglio);
    void filialiLette(const std::vector<giacenza::desk::Filiale>& filiali);
    void filialiFallite(const QString& testo, const QString& dettaglio);

private:
    /// In the thread: an open connection to that archive, the one of before when it still answers.
    void prepara(const Accesso& accesso);
    void chiedi(const Accesso& accesso, std::function<std::function<void()>(Connessione&)> domanda);
    std::function<void()> risposta(const Sguardo& sguardo, const ChiaveGiacenza& chiave,
                                   Connessione& connessione);

    quint64 mDomanda = 0;
    std::atomic<quint64> mCasoChiesto = 0;
    std::unique_ptr<Connessione> mConnessione; ///< of the thread's
    QString mStringa;                          ///< that it was opened with
    Sfondo mSfondo;                            ///< last: it ends before what its work uses
};

} // namespace giacenza::desk
