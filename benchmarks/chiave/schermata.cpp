#include "benchmarks/chiave/schermata.h"

#include "screens/campi.h"

#include <giacenza/ModuloStampa.h>

#include <QApplication>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace giacenza;

namespace banco {

namespace {

/// A print module that is done at once.
class ModuloPronto : public ModuloStampa
{
public:
    explicit ModuloPronto(std::function<void()> chiamato) : mChiamato(std::move(chiamato)) {}

    void setPercorsoDatabase(const QString&) override {}
    void setPercorsoLogo(const QString&) override {}
    void setDidascalie(const std::array<QString, 4>&) override {}
    void setStampa(bool) override {}
    void setTipoDocumento(TipoDocumento) override {}
    void stampaDocumento(const QString&, bool&) override { mChiamato(); }

private:
    std::function<void()> mChiamato;
};

} // namespace

OperazioneSuSchermata::OperazioneSuSchermata(std::unique_ptr<Schermata> schermata)
    : mSchermata(std::move(schermata))
{
    mSchermata->carica();
    mSchermata->show();
    attiva();
}

void OperazioneSuSchermata::attiva() const
{
    mSchermata->activateWindow();
    if (!QTest::qWaitForWindowActive(mSchermata.get()))
        throw Errore(u"The screen did not become active."_s);
}

void OperazioneSuSchermata::dipingi() const
{
    QApplication::processEvents();
    // Texts in several lines find their scroll bars only after the first painting.
    mSchermata->repaint();
}

void OperazioneSuSchermata::scrivi(const QString& nome, const QString& testo) const
{
    giacenza::scrivi(controllo<QWidget>(nome), testo);
}

void OperazioneSuSchermata::premi(const QString& nome, Qt::Key tasto) const
{
    auto* dove = controllo<QWidget>(nome);
    dove->setFocus();
    QTest::keyClick(dove, tasto);
}

void OperazioneSuSchermata::pretendi(const QString& nome, const QString& testo) const
{
    const QString mostrato = testoMostrato(controllo<QWidget>(nome));
    if (mostrato != testo)
        throw Errore(u"%1 shows \"%2\" and not \"%3\"; the screen says: %4"_s.arg(
            nome, mostrato, testo, testoMostrato(controllo<QWidget>(u"lblStato"_s))));
}

double OperazioneSuSchermata::finoAllaStampa(const QString& bottone) const
{
    auto* premuto = controllo<QPushButton>(bottone);
    std::optional<double> millisecondi;
    const Cronometro cronometro;
    registraParte(u"ReportDocBanco.cModuliStampa"_s, [&] {
        return std::make_unique<ModuloPronto>([&] {
            millisecondi = cronometro.millisecondi();
            smettiDiRegistrare();
        });
    });
    const double prima = cronometro.millisecondi();
    premuto->click();
    registraParte(u"ReportDocBanco.cModuliStampa"_s, {});
    if (!millisecondi)
        throw Errore(u"Nothing was printed: %1"_s.arg(testoMostrato(controllo<QWidget>(u"lblStato"_s))));
    QApplication::processEvents();
    return *millisecondi - prima;
}

} // namespace banco
