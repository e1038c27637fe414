#include "support/registromessaggi.h"

#include "support/stampa.h"

#include <gmock/gmock.h>

#include <utility>

namespace giacenza::prove {

namespace {

bool eDomanda(Stile stile)
{
    return stile == Stile::domandaAvviso || stile == Stile::domandaInformazione;
}

} // namespace

RegistroMessaggi::RegistroMessaggi()
    : mPrima(impostaPortaMessaggi(
          [this](QWidget* padre, const Messaggio& messaggio) { return mostra(padre, messaggio); }))
{}

RegistroMessaggi::~RegistroMessaggi()
{
    impostaPortaMessaggi(std::move(mPrima));
    if (!mRisposte.empty())
        ADD_FAILURE() << "Risposte preparate e mai chieste: " << mRisposte.size();
    for (; mGuardati < mMessaggi.size(); ++mGuardati)
        ADD_FAILURE() << "Messaggio che nessuno aspettava: " << testing::PrintToString(mMessaggi[mGuardati]);
}

void RegistroMessaggi::rispondi(Risposta risposta)
{
    mRisposte.push_back(risposta);
}

void RegistroMessaggi::mentreAperto(std::function<void(QWidget* padre, const Messaggio& messaggio)> azione)
{
    mAzione = std::move(azione);
}

const std::vector<Messaggio>& RegistroMessaggi::messaggi()
{
    mGuardati = mMessaggi.size();
    return mMessaggi;
}

QStringList RegistroMessaggi::testi()
{
    QStringList testi;
    for (const Messaggio& messaggio : messaggi())
        testi += messaggio.testo;
    return testi;
}

std::vector<Messaggio> RegistroMessaggi::prendi()
{
    mGuardati = 0;
    return std::exchange(mMessaggi, {});
}

Risposta RegistroMessaggi::mostra(QWidget* padre, const Messaggio& messaggio)
{
    mMessaggi.push_back(messaggio);
    if (mAzione)
        mAzione(padre, messaggio);
    if (!eDomanda(messaggio.stile))
        return Risposta::ok;
    if (mRisposte.empty()) {
        ADD_FAILURE() << "Domanda senza una risposta preparata: " << testing::PrintToString(messaggio);
        return Risposta::no;
    }
    const Risposta risposta = mRisposte.front();
    mRisposte.pop_front();
    return risposta;
}

} // namespace giacenza::prove
