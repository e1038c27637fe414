// The registration screen: its lookup and its storage notice.

#include "benchmarks/chiave/schermata.h"
#include "database/valori.h"
#include "registration/frmGiacenza.h"

#include <QApplication>

using namespace Qt::StringLiterals;
using namespace giacenza;

namespace banco {

namespace {

class Registrazione : public OperazioneSuSchermata
{
protected:
    Registrazione() : OperazioneSuSchermata(std::make_unique<frmGiacenza>()) {}

    /// Has the waybill looked up, as a host does.
    void consegna(const Caso& caso) const
    {
        schermata().setProperty("NLettVett", caso.numero);
        schermata().setProperty("DataLdv", dataBreve(caso.data));
        schermata().setProperty("Filiale", caso.filiale);
        schermata().setProperty("CodiceCliente", caso.cliente);
        QApplication::processEvents();
        pretendi(u"barLdv"_s, u"%1 del %2"_s.arg(caso.numero, dataBreve(caso.data)));
    }
};

/// From F12 in the number until the screen is painted.
class RicercaSuSchermata : public Registrazione
{
public:
    void prepara(const Caso& caso) override
    {
        // The customer comes with the first one; another waybill is looked up before each, so that this one
        // is not on the screen.
        if (mPrima)
            consegna(*mPrima);
        else
            consegna(caso);
        mPrima = caso;
        scrivi(u"txtLDV"_s, caso.numero);
        scrivi(u"txtDataLdv"_s, dataBreve(caso.data));
        scrivi(u"txtFiliale"_s, caso.filiale);
        QApplication::processEvents();
    }

    double esegui(const Caso& caso) override
    {
        const Cronometro cronometro;
        premi(u"txtLDV"_s, Qt::Key_F12);
        smettiDiRegistrare();
        QApplication::processEvents();
        const double millisecondi = cronometro.millisecondi();
        pretendi(u"barLdv"_s, u"%1 del %2"_s.arg(caso.numero, dataBreve(caso.data)));
        return millisecondi;
    }

private:
    std::optional<Caso> mPrima;
};

class Avviso : public Registrazione
{
public:
    void prepara(const Caso& caso) override
    {
        consegna(caso);
        dipingi();
        pretendi(u"lblNrGia"_s, caso.giacenza);
    }
    double esegui(const Caso&) override { return finoAllaStampa(u"cmdAvvisoGia"_s); }
};

} // namespace

std::unique_ptr<Operazione> ricercaSuSchermata()
{
    return std::make_unique<RicercaSuSchermata>();
}

std::unique_ptr<Operazione> avviso()
{
    return std::make_unique<Avviso>();
}

} // namespace banco
