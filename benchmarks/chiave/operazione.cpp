#include "benchmarks/chiave/operazione.h"

#include "benchmarks/quadro/residente.h"
#include "data/archivio.h"

using namespace Qt::StringLiterals;
using namespace giacenza;

namespace banco {

namespace {

std::string riga(EventoDati evento, const QString& testo)
{
    switch (evento) {
    case EventoDati::apertura:
        return "connect";
    case EventoDati::istruzione:
        return testo.toStdString();
    case EventoDati::inizio:
        return "begin";
    case EventoDati::conferma:
        return "commit";
    case EventoDati::annullo:
        return "rollback";
    case EventoDati::chiusura:
        return "disconnect";
    }
    return {};
}

class Ripristino
{
public:
    void esegui(const Caso& caso)
    {
        mConnessione.apri(qEnvironmentVariable(variabileConnessione));
        for (const QString& istruzione : caso.ripristino)
            mConnessione.esegui(istruzione);
    }

private:
    Connessione mConnessione;
};

} // namespace

void smettiDiRegistrare()
{
    impostaTraccia({});
}

int servi(Operazione& operazione)
{
    Ripristino ripristino;
    return servi([&](const std::vector<std::string>& parti) { operazione.prepara(Caso(parti)); },
                 [&](const std::vector<std::string>& parti) { return operazione.esegui(Caso(parti)); },
                 [&](const std::vector<std::string>& parti) { ripristino.esegui(Caso(parti)); },
                 [&](const std::vector<std::string>& parti) {
                     const Caso caso(parti);
                     operazione.prepara(caso);
                     operazione.registra();
                     std::vector<std::string> inviate;
                     impostaTraccia([&](EventoDati evento, const QString& testo) {
                         inviate.push_back(riga(evento, testo));
                     });
                     operazione.esegui(caso);
                     smettiDiRegistrare();
                     ripristino.esegui(caso);
                     return inviate;
                 });
}

} // namespace banco
