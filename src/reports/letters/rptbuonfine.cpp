#include "reports/letters/rptbuonfine.h"

#include "reports/engine/formati.h"
#include "reports/letters/blocchi.h"

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

using report::Allineamento;
using report::Altezza;
using report::Carattere;
using report::Contesto;
using report::Controllo;
using report::Sezione;
namespace blocchi = report::blocchi;
namespace formati = report::formati;

constexpr double colonnaImporti = 148;
constexpr double inizioCosti = 108;
constexpr double passo = 6;

/// Closing words and costs stand beside each other, and what is missing in one moves nothing in the other.
constexpr int gruppoSaluti = 1;
constexpr int gruppoCosti = 2;

void aggiungi(Sezione& sezione, Controllo controllo, int gruppo = 0,
              Allineamento allineamento = Allineamento::sinistra)
{
    controllo.gruppo = gruppo;
    controllo.allineamento = allineamento;
    sezione.controlli.push_back(std::move(controllo));
}

/// The costs in a frame of their own, in the right half: hidden, they leave the left half as it is.
double costi(Sezione& sezione, double y)
{
    const auto riquadro = [&](double riga, double x, double fino) {
        return QRectF(x, y + 3 + riga * passo, fino - x, passo);
    };
    const auto nome = [&](double riga) { return riquadro(riga, inizioCosti + 4, colonnaImporti); };
    const auto importo = [&](double riga) { return riquadro(riga, colonnaImporti, blocchi::destra - 4); };
    constexpr Carattere totale{10, true};

    aggiungi(sezione,
             report::cornice(u"corTot"_s, {inizioCosti, y, blocchi::destra - inizioCosti, 4 * passo + 5},
                             blocchi::scuro),
             gruppoCosti);
    const auto etichetta = [&](const QString& quale, const QRectF& area, const QString& testo,
                               const QStringList& con) {
        Controllo controllo = report::etichetta(quale, area, testo);
        controllo.con = con;
        aggiungi(sezione, std::move(controllo), gruppoCosti);
    };
    const auto valore = [&](const QString& quale, const QRectF& area, const QString& colonna) {
        Controllo controllo = report::campo(quale, area, colonna);
        controllo.altezza = Altezza::elastica;
        aggiungi(sezione, std::move(controllo), gruppoCosti, Allineamento::destra);
    };
    etichetta(u"lblsosta"_s, riquadro(0, inizioCosti + 4, 140), u"Giorni di sosta"_s,
              {u"txtGIGGSO"_s, u"txtGIIMGI"_s});
    valore(u"txtGIGGSO"_s, riquadro(0, 140, 152), u"GIGGSO"_s);
    valore(u"txtGIIMGI"_s, riquadro(0, 153, blocchi::destra - 4), u"GIIMGI"_s);
    etichetta(u"lblDossier"_s, nome(1), u"Apertura dossier"_s, {u"txtDossier"_s});
    valore(u"txtDossier"_s, importo(1), u"FissoGiacenza"_s);
    etichetta(u"lblRiconsegna"_s, nome(2), u"Riconsegna"_s, {u"txtRicons"_s});
    valore(u"txtRicons"_s, importo(2), u"GINRGI"_s);
    aggiungi(sezione, report::etichetta(u"lblTot"_s, nome(3), u"Totale"_s, totale), gruppoCosti);
    aggiungi(sezione, report::campo(u"txtTot"_s, importo(3), u"GIIMGI"_s, totale), gruppoCosti,
             Allineamento::destra);
    return y + 4 * passo + 5;
}

double giacenza(Sezione& sezione, double y)
{
    using blocchi::passoVoce;
    using blocchi::Posto;
    y = blocchi::capitolo(sezione, y, u"lblGiacenza"_s, u"Giacenza"_s);
    const auto data = [](const QString& nome, const QString& colonna) {
        Controllo controllo = report::campo(nome, {}, colonna);
        controllo.formato = formati::data;
        return controllo;
    };
    blocchi::voce(sezione, y, Posto::sinistro, u"Numero"_s,
                  report::campo(u"txtNrGia"_s, {}, u"GINRGI"_s, {10, true}));
    blocchi::voce(sezione, y, Posto::destro, u"In deposito dal"_s, data(u"txtDataGia"_s, u"GIDTGI"_s));
    y += passoVoce;
    blocchi::voce(sezione, y, Posto::sinistro, u"Ultimo avviso"_s, data(u"txtDataAvviso"_s, u"GIDTAV"_s));
    blocchi::voce(sezione, y, Posto::destro, u"Chiusa il"_s, data(u"txtDataBuonFine"_s, u"GIDTBF"_s));
    return y + passoVoce + blocchi::dopoCapitolo;
}

report::Definizione definizione()
{
    report::Definizione lettera = blocchi::lettera(u"rptBuonFine"_s);
    Sezione& sezione = lettera.dettaglio;
    double y = blocchi::indirizzo(lettera, u"GIDTBF"_s);
    y = blocchi::titolo(sezione, y, u"Buon fine giacenza"_s);
    constexpr double larghezza = blocchi::destra - blocchi::sinistra;
    aggiungi(sezione,
             report::etichetta(u"lblApertura"_s, {blocchi::sinistra, y, larghezza, 5},
                               u"Vi confermiamo che la giacenza della spedizione qui descritta è chiusa."_s));
    y = blocchi::spedizione(sezione, y + 8.6);
    y = blocchi::merce(sezione, y);
    y = giacenza(sezione, y);
    y = blocchi::testoLibero(sezione, y, u"Descrizione"_s, u"Annotazioni"_s, u"GIDES1"_s);
    aggiungi(sezione,
             report::etichetta(u"lblSaluti"_s, {blocchi::sinistra, y + 3, 80, 4.6}, u"Distinti saluti"_s),
             gruppoSaluti);
    sezione.altezza = costi(sezione, y) + 2;
    return lettera;
}

/// Storage amount and fixed fee; null counts as nothing.
QString totale(const Contesto& contesto)
{
    return valuta(somma(contesto.riga.valore(u"GIIMGI"_s).value_or(u"0"_s),
                        contesto.riga.valore(u"FissoGiacenza"_s).value_or(u"0"_s)));
}

/// The re-delivery has a waybill of its own, on which it is charged; the total does not hold it.
QString riconsegna(const Contesto&)
{
    return u"a parte"_s;
}

QString importo(const Contesto& contesto)
{
    return contesto.valore ? valuta(*contesto.valore) : QString();
}

} // namespace

RptBuonFine::RptBuonFine() : Report(definizione())
{
    attaccaFormato(u"txtGIGGSO"_s,
                   [](const Contesto& contesto) { return contesto.valore.value_or(QString()); });
    attaccaFormato(u"txtGIIMGI"_s, importo);
    attaccaFormato(u"txtDossier"_s, importo);
    attaccaFormato(u"txtRicons"_s, riconsegna);
    attaccaFormato(u"txtTot"_s, totale);
}

QString RptBuonFine::titolo(const QString& numero, const QString& anno) const
{
    return u"Buon fine della giacenza %1/%2"_s.arg(numero, anno);
}

} // namespace giacenza
