#include "database/connessione.h"

#include "database/collegamento.h"
#include "database/istruzioneodbc.h"
#include "database/tentativi.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza {

Connessione::Connessione() = default;
Connessione::Connessione(Connessione&&) noexcept = default;

Connessione& Connessione::operator=(Connessione&& altra) noexcept
{
    if (this != &altra) {
        chiudi();
        mCollegamento = std::move(altra.mCollegamento);
    }
    return *this;
}

Connessione::~Connessione()
{
    chiudi();
}

void Connessione::apri(const Accesso& accesso, const Limiti& limiti)
{
    if (aperta())
        return;
    chiudi();
    mCollegamento = std::make_shared<odbc::Collegamento>(accesso, limiti);
}

bool Connessione::aperta() const noexcept
{
    return mCollegamento && mCollegamento->aperto();
}

void Connessione::chiudi() noexcept
{
    if (!mCollegamento)
        return;
    mCollegamento->chiudi();
    mCollegamento.reset();
}

bool Connessione::viva() noexcept
{
    return aperta() && mCollegamento->viva();
}

qint64 Connessione::esegui(const QString& istruzione)
{
    return conTentativi(
        [&] {
            odbc::Istruzione comando(collegamento());
            comando.esegui(istruzione);
            return comando.finisci();
        },
        [this](const ErroreDatabase& errore) {
            return aperta() && !mCollegamento->inTransazione() && perConcorrenza(errore);
        });
}

QStringList Connessione::tabelle()
{
    constexpr int colonnaNome = 2; // TABLE_NAME, of what SQLTables gives
    return conTentativi(
        [&] {
            odbc::Istruzione catalogo(collegamento());
            catalogo.elencaTabelle();
            QStringList nomi;
            for (odbc::Riga riga; catalogo.leggi(riga, colonnaNome + 1);) {
                const auto& cella = riga.celle[colonnaNome];
                nomi << QString::fromUtf8(riga.dati.constData() + cella.inizio, std::max(cella.lunghezza, 0));
            }
            return nomi;
        },
        [this](const ErroreDatabase& errore) {
            return perAttesaVana(errore) && !collegamento()->inTransazione();
        });
}

Dialetto Connessione::dialetto() const noexcept
{
    return mCollegamento ? mCollegamento->dialetto() : Dialetto::altro;
}

const std::shared_ptr<odbc::Collegamento>& Connessione::collegamento() const
{
    if (!aperta())
        throw ErroreDatabase(u"08003"_s, 0, u"La connessione è chiusa."_s);
    return mCollegamento;
}

} // namespace giacenza
