#include "reports/letters/letteravettura.h"

#include "data/istruzioni.h"
#include "data/istruzioniemissione.h"
#include "database/indirizzo.h"
#include "database/recordset.h"
#include "reports/engine/composizione.h"
#include "reports/engine/documentoreport.h"
#include "reports/engine/formati.h"
#include "reports/engine/logo.h"
#include "reports/letters/blocchi.h"

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

using report::Contesto;
using report::Controllo;
using report::RigaReport;
using report::Sezione;
namespace blocchi = report::blocchi;
namespace formati = report::formati;
using blocchi::Posto;

/// The blocks of the letters number a held shipment and its waybill; here both are the waybill's own.
void numeraConLdv(Sezione& sezione)
{
    for (const char16_t* nome : {u"txtNumero", u"txtLDV"})
        sezione.controllo(QString::fromUtf16(nome)).colonna = u"lenrlv"_s;
    sezione.controllo(u"txtNumero"_s).formato = [](const Contesto& contesto) {
        return u"n. %1 / %2"_s.arg(contesto.valore.value_or(QString()), contesto.riga.testo(u"leanlv"_s));
    };
    sezione.controllo(u"lblRifMitt"_s).testo = u"Rif. mittente"_s;
}

Controllo localita()
{
    Controllo campo = report::campo(u"txtLocalitaMitt"_s, {}, u"Localita"_s);
    campo.formato = formati::localita(u"CLCAP"_s, u"Localita"_s, u"Provincia"_s);
    return campo;
}

/// A return is sent by who would not have the goods; the customer stays the one who pays.
double mittente(Sezione& sezione, double y, bool reso)
{
    y = blocchi::capitolo(sezione, y, u"lblMittenti"_s, u"Mittente"_s);
    if (reso) {
        blocchi::luogo(sezione, y, Posto::sinistro, u"Reso da"_s,
                       {report::campo(u"txtResoDa"_s, {}, u"resoDa0"_s),
                        report::campo(u"txtIndResoDa"_s, {}, u"resoDa1"_s),
                        report::campo(u"txtLocalitaResoDa"_s, {}, u"resoDa2"_s)});
    }
    y = blocchi::luogo(sezione, y, reso ? Posto::destro : Posto::sinistro, reso ? u"Cliente"_s : QString(),
                       {report::campo(u"txtMittente"_s, {}, u"RagioneSociale"_s),
                        report::campo(u"txtIndMittente"_s, {}, u"Indirizzo"_s), localita()});
    return y + blocchi::dopoCapitolo;
}

double consegna(Sezione& sezione, double y)
{
    y = blocchi::capitolo(sezione, y, u"lblConsegna"_s, u"Consegna"_s,
                          {u"txtVettore"_s, u"txtLinea"_s, u"txtPorto"_s, u"txtAnticipo"_s});
    blocchi::voce(sezione, y, Posto::sinistro, u"Vettore"_s,
                  report::campo(u"txtVettore"_s, {}, u"vettore"_s));
    blocchi::voce(sezione, y, Posto::destro, u"Linea"_s, report::campo(u"txtLinea"_s, {}, u"linea"_s));
    y += blocchi::passoVoce;
    blocchi::voce(sezione, y, Posto::sinistro, u"Porto"_s, report::campo(u"txtPorto"_s, {}, u"porto"_s));
    Controllo anticipo = report::campo(u"txtAnticipo"_s, {}, u"leanpc"_s);
    anticipo.formato = formati::importo;
    blocchi::voceNumero(sezione, y, Posto::destro, u"Anticipo"_s, std::move(anticipo));
    return y + blocchi::passoVoce + blocchi::dopoCapitolo;
}

double firme(Sezione& sezione, double y)
{
    constexpr double larghezza = 76;
    constexpr double spazioFirma = 14;
    for (const auto& [x, chi] : {std::pair{blocchi::sinistra, u"Firma del vettore"_s},
                                 std::pair{blocchi::destra - larghezza, u"Firma del destinatario"_s}}) {
        const QString nome = chi.section(u' ', -1);
        sezione.controlli.push_back(
            report::cornice(u"linFirma"_s + nome, {x, y + spazioFirma, larghezza, 0}, blocchi::scuro));
        sezione.controlli.push_back(
            report::etichetta(u"lblFirma"_s + nome, {x, y + spazioFirma + 1, larghezza, 4}, chi, {8}));
    }
    return y + spazioFirma + 6;
}

report::Definizione definizione(bool reso)
{
    report::Definizione lettera = blocchi::lettera(u"letteraVettura"_s);
    Sezione& sezione = lettera.dettaglio;
    double y = blocchi::titolo(sezione, 4, u"Lettera di vettura"_s);
    constexpr double larghezzaBarre = 87;
    blocchi::barreLdv(sezione, {blocchi::destra - larghezzaBarre, 4, larghezzaBarre, 0},
                      {u"lefili"_s, u"lenrlv"_s, u"leanlv"_s}, report::Allineamento::destra);
    y = mittente(sezione, y + 2, reso);
    y = blocchi::spedizione(sezione, y);
    y = blocchi::merce(sezione, y);
    y = consegna(sezione, y);
    y = blocchi::testoLibero(sezione, y, u"Note"_s, u"Note"_s, u"lenote"_s);
    numeraConLdv(sezione);
    sezione.altezza = firme(sezione, y) + 2;
    return lettera;
}

void aggiungiColonne(RigaReport& riga, const Recordset& righe)
{
    if (righe.eof())
        return;
    for (int i = 0; i < righe.colonne(); ++i)
        riga.aggiungi(righe.nomeColonna(i), righe.valore(i));
}

/// The waybill with the names behind its codes; a name that is not there leaves its place empty.
RigaReport leggi(Connessione& connessione, const LdvEmessa& ldv)
{
    RigaReport riga;
    const QStringList resoDa = ldv.mittente.split(u'\n');
    for (qsizetype i = 0; i < resoDa.size(); ++i)
        riga.aggiungi(u"resoDa%1"_s.arg(i), resoDa[i]);
    Recordset righe;
    righe.apri(connessione, istruzioni::spedizionePerNumeroDataFiliale(ldv.numero, ldv.data, ldv.filiale));
    if (righe.eof())
        throw Errore(u"La lettera di vettura %1 non si rilegge dall'archivio."_s.arg(ldv.numero));
    aggiungiColonne(riga, righe);
    righe.apri(connessione, istruzioni::indirizzoCliente(), Recordset::Cursore::soloAvanti,
               {{riga.valore(u"lecodi"_s)}});
    aggiungiColonne(riga, righe);
    righe.apri(connessione, istruzioni::portoPerNumero(), Recordset::Cursore::soloAvanti,
               {{riga.valore(u"leport"_s)}});
    riga.aggiungi(u"porto"_s, righe.eof() || righe.colonne() < 2 ? Valore() : righe.valore(1));
    return riga;
}

} // namespace

std::unique_ptr<Documento> componiLdv(Connessione& connessione, const LdvEmessa& ldv, const QString& logo,
                                      const QStringList& piede)
{
    const QString titolo = u"Lettera di vettura %1/%2"_s.arg(ldv.numero, QString::number(ldv.anno));
    const QImage immagine = report::leggiLogo(logo);
    report::Definizione lettera = definizione(!ldv.mittente.isEmpty());
    blocchi::completaIntestazione(lettera.intestazione, {}, !immagine.isNull());
    blocchi::completaPie(lettera.pie, piede);
    report::Composizione composizione(lettera, titolo, immagine, ldv.data);
    composizione.aggiungi(leggi(connessione, ldv), connessione);
    return std::make_unique<report::DocumentoReport>(titolo, lettera.carta, composizione.pagine(),
                                                     report::Ascoltatore{[] { return true; }});
}

} // namespace giacenza
