#include "reports/letters/rptavviso.h"

#include "data/istruzioni.h"
#include "database/indirizzo.h"
#include "database/recordset.h"
#include "reports/engine/formati.h"
#include "reports/letters/blocchi.h"

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

using report::Contesto;
using report::Controllo;
using report::Sezione;
namespace blocchi = report::blocchi;
namespace formati = report::formati;

constexpr report::Carattere normale;

/// Days from the arrival in the depot to the day of the notice; nothing before the first whole day.
QString giorniDiSosta(const Contesto& contesto)
{
    const auto arrivo = leggiGiorno(contesto.valore.value_or(QString()));
    if (!arrivo)
        return {};
    const auto avviso = leggiGiorno(contesto.riga.testo(u"GIDTAV"_s)).value_or(contesto.oggi);
    const qint64 giorni = arrivo->daysTo(avviso);
    return giorni > 0 ? QString::number(giorni) : QString();
}

QString numeroAvviso(const Contesto& contesto)
{
    const QString numero = contesto.valore.value_or(QString());
    const QString data = formati::data(
        {contesto.riga.valore(u"GIDTAV"_s), contesto.riga, contesto.connessione, contesto.oggi});
    return data.isEmpty() || numero.isEmpty() ? numero : u"%1 del %2"_s.arg(numero, data);
}

double giacenza(Sezione& sezione, double y)
{
    using blocchi::passoVoce;
    using blocchi::Posto;
    y = blocchi::capitolo(sezione, y, u"lblGiacenza"_s, u"Giacenza"_s);
    Controllo data = report::campo(u"txtDataGia"_s, {}, u"GIDTGI"_s, normale);
    data.formato = formati::data;
    blocchi::voce(sezione, y, Posto::sinistro, u"Numero"_s,
                  report::campo(u"txtNrGia"_s, {}, u"GINRGI"_s, {10, true}));
    blocchi::voce(sezione, y, Posto::destro, u"In deposito dal"_s, data);
    y += passoVoce;
    Controllo avviso = report::campo(u"txtNrAvviso"_s, {}, u"GINRAV"_s, normale);
    avviso.formato = numeroAvviso;
    Controllo giorni = report::campo(u"txtGiorniSosta"_s, {}, u"GIDTGI"_s, normale);
    giorni.formato = giorniDiSosta;
    blocchi::voce(sezione, y, Posto::sinistro, u"Avviso numero"_s, avviso);
    blocchi::voce(sezione, y, Posto::destro, u"Giorni di sosta"_s, giorni);
    y += passoVoce;
    blocchi::voce(sezione, y, Posto::intero, u"Magazzino"_s,
                  report::campo(u"txtMagazzino"_s, {}, u"GIFIGI"_s, normale));
    return y + passoVoce + blocchi::dopoCapitolo;
}

report::Definizione definizione()
{
    report::Definizione lettera = blocchi::lettera(u"rptAvviso"_s);
    Sezione& sezione = lettera.dettaglio;
    double y = blocchi::indirizzo(lettera, u"GIDTAV"_s);
    y = blocchi::titolo(sezione, y, u"Avviso di giacenza"_s);
    constexpr double larghezza = blocchi::destra - blocchi::sinistra;
    sezione.controlli.push_back(report::etichetta(
        u"lblApertura"_s, {blocchi::sinistra, y, larghezza, 9},
        u"Vi informiamo che la spedizione qui descritta non è stata consegnata ed è in giacenza "
        "nel nostro magazzino. Restiamo in attesa delle Vostre istruzioni."_s,
        normale));
    y = blocchi::spedizione(sezione, y + 12.6);
    y = blocchi::merce(sezione, y);
    y = giacenza(sezione, y);
    y = blocchi::testoLibero(sezione, y, u"Descrizione"_s, u"Motivo della giacenza"_s, u"GIDES1"_s);
    y = blocchi::testoLibero(sezione, y, u"Istruzioni"_s, u"Istruzioni"_s, u"GINRGI"_s);
    sezione.controlli.push_back(report::etichetta(u"lblSaluti"_s, {blocchi::sinistra, y + 1, larghezza, 4.6},
                                                  u"Distinti saluti"_s, normale));
    sezione.altezza = y + 6;
    return lettera;
}

/// The instructions of the general settings, wherever the held shipment has a number.
QString istruzioniPerMittente(const Contesto& contesto)
{
    if (contesto.valore.value_or(QString()).isEmpty())
        return {};
    Recordset recordset;
    recordset.apri(contesto.connessione, istruzioni::istruzioniAvviso(), Recordset::Cursore::soloAvanti);
    return recordset.eof() ? QString() : recordset.valore(u"IstrSuAvvGiac"_s).value_or(QString());
}

/// The address line of the branch that holds the goods; its code where the branch is not known.
QString indirizzoFiliale(const Contesto& contesto)
{
    const QString codice = contesto.valore.value_or(QString());
    if (codice.isEmpty())
        return {};
    Recordset recordset;
    recordset.apri(contesto.connessione, istruzioni::filialeIntera(codice), Recordset::Cursore::soloAvanti);
    if (recordset.eof())
        return codice;
    const auto testo = [&](const QString& colonna) { return recordset.valore(colonna).value_or(QString()); };
    return inUnaRiga({testo(u"Indirizzo"_s), testo(u"Località"_s)}, testo(u"Provincia"_s));
}

} // namespace

RptAvviso::RptAvviso() : Report(definizione())
{
    attaccaFormato(u"txtMagazzino"_s, indirizzoFiliale);
    attaccaFormato(u"txtIstruzioni"_s, istruzioniPerMittente);
}

QString RptAvviso::titolo(const QString& numero, const QString& anno) const
{
    return u"Avviso di giacenza %1/%2"_s.arg(numero, anno);
}

} // namespace giacenza
