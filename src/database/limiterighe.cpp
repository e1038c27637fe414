#include "database/limiterighe.h"

#include "database/collegamento.h"
#include "database/sessione.h"

namespace giacenza {

namespace {

void limita(odbc::Collegamento& collegamento, std::optional<int> righe)
{
    collegamento.sorveglia([&] { odbc::limitaRighe(collegamento.maniglia(), righe); });
}

} // namespace

LimiteRighe::LimiteRighe(Connessione& connessione, int righe)
{
    const auto& collegamento = connessione.collegamento();
    if (collegamento->dialetto() != Dialetto::mariadb)
        return;
    limita(*collegamento, righe);
    mCollegamento = collegamento;
}

LimiteRighe::~LimiteRighe()
{
    if (!mCollegamento || !mCollegamento->aperto())
        return;
    try {
        limita(*mCollegamento, std::nullopt);
    } catch (...) {
        mCollegamento->chiudi();
    }
}

} // namespace giacenza
