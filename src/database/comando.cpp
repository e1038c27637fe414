#include "database/comando.h"

#include "database/istruzioneodbc.h"

namespace giacenza {

class Comando::Interno
{
public:
    explicit Interno(Connessione& connessione) : istruzione(connessione.collegamento()) {}
    odbc::Istruzione istruzione;
};

Comando::Comando(Connessione& connessione, const QString& istruzione)
    : mInterno(std::make_unique<Interno>(connessione))
{
    mInterno->istruzione.prepara(istruzione);
}

Comando::Comando(Comando&&) noexcept = default;
Comando& Comando::operator=(Comando&&) noexcept = default;
Comando::~Comando() = default;

qint64 Comando::esegui(std::span<const Valore> parametri)
{
    mInterno->istruzione.eseguiPreparata(parametri);
    return mInterno->istruzione.finisci();
}

} // namespace giacenza
