// The management screen: the closure.

#include "benchmarks/chiave/schermata.h"
#include "database/valori.h"
#include "management/frmGestGia.h"

#include <QPushButton>

using namespace Qt::StringLiterals;
using namespace giacenza;

namespace banco {

namespace {

class Chiusura : public OperazioneSuSchermata
{
public:
    Chiusura() : OperazioneSuSchermata(std::make_unique<frmGestGia>()) {}

    void prepara(const Caso& caso) override
    {
        scrivi(u"txtNGiace"_s, caso.giacenza);
        scrivi(u"txtDataGiace"_s, dataBreve(caso.dataGiacenza));
        controllo<QPushButton>(u"cmdRicGiac"_s)->click();
        dipingi();
        pretendi(u"lblNrGia"_s, caso.giacenza);
    }
    double esegui(const Caso&) override { return finoAllaStampa(u"cmdBuonFine"_s); }
};

} // namespace

std::unique_ptr<Operazione> chiusura()
{
    return std::make_unique<Chiusura>();
}

} // namespace banco
