#include "reports/letters/report.h"

#include "base/messaggi.h"
#include "base/servizi.h"
#include "data/archivio.h"
#include "reports/engine/composizione.h"
#include "reports/engine/logo.h"
#include "reports/letters/blocchi.h"
#include "reports/letters/righereport.h"

#include "database/connessione.h"

#include <QElapsedTimer>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace giacenza::report {

namespace {

constexpr int secondiFraDomande = 20;
constexpr int ultimoCodiceIgnorato = 2;

Cronometro cronometroVero()
{
    QElapsedTimer orologio;
    orologio.start();
    return [orologio] { return static_cast<int>(orologio.elapsed() / 1000); };
}

} // namespace

Report::Report(Definizione definizione) : mDefinizione(std::move(definizione)) {}

void Report::mostraTutto()
{
    for (Sezione* sezione :
         {&mDefinizione.intestazione, &mDefinizione.dettaglio, &mDefinizione.pie, &mDefinizione.finestra}) {
        for (Controllo& controllo : sezione->controlli)
            controllo.visibile = true;
    }
}

void Report::attaccaFormato(const QString& campo, Formato formato)
{
    mDefinizione.dettaglio.controllo(campo).formato = std::move(formato);
}

void Report::ProcessingTimeout(int secondi, bool& annulla)
{
    if (secondi < mUltimaDomanda) {
        mUltimaDomanda = 0;
        return;
    }
    if (mUltimaDomanda + secondiFraDomande > secondi)
        return;
    mUltimaDomanda = secondi;
    const QString testo = u"Sono trascorsi circa %1 secondi dall'inizio dell'operazione di stampa\r"
                          "Annullare l'operazione?"_s.arg(secondi);
    if (mostraMessaggio(mPadre, {testo, Stile::domandaAvviso, titoloApplicazione()}) == Risposta::si)
        annulla = true;
}

void Report::Error(int codice, bool& mostra)
{
    mostra = false;
    if (codice >= 0 && codice <= ultimoCodiceIgnorato)
        return;
    mostraMessaggio(mPadre, {u"Error #%1\r%2"_s.arg(QString::number(codice), mDescrizioneErrore),
                             Stile::critico, titoloApplicazione()});
}

void Report::notifica(int codice, const QString& descrizione)
{
    bool mostra = true;
    setDescrizioneErrore(descrizione);
    Error(codice, mostra);
}

/// To be called in a handler.
void Report::notificaQuesto()
{
    try {
        throw;
    } catch (const ErroreDatabase& errore) {
        notifica(erroreDatabase, errore.testo());
    } catch (const ErroreConversione& errore) {
        notifica(erroreConversione, errore.testo());
    } catch (const Errore& errore) {
        notifica(erroreFormato, errore.testo());
    }
}

void Report::ricomincia()
{
    mCronometro = mFabbricaCronometro ? mFabbricaCronometro() : cronometroVero();
}

bool Report::prosegue()
{
    bool annulla = false;
    ProcessingTimeout(mCronometro(), annulla);
    return !annulla;
}

std::unique_ptr<DocumentoReport> Report::componi(const RichiestaDocumento& richiesta, QDate oggi,
                                                 QWidget* padre, Guasti guasti)
{
    mPadre = padre;
    ricomincia();
    if (!prosegue())
        return nullptr;
    Connessione connessione;
    connessione.apri(accessoTracciato(richiesta.percorsoDatabase));
    const std::vector<RigaReport> righe = leggiRighe(connessione, richiesta.chiave);

    const ParteChiave parti = separaChiave(richiesta.chiave);
    const QString nome = titolo(parti.numero, parti.anno);
    const QImage logo = leggiLogo(richiesta.percorsoLogo);
    Definizione definizione = mDefinizione;
    blocchi::completaIntestazione(definizione.intestazione, richiesta.didascalie, !logo.isNull());
    blocchi::completaPie(definizione.pie, LeggiPiede());
    Composizione composizione(definizione, nome, logo, oggi);
    try {
        for (const RigaReport& riga : righe) {
            if (!prosegue())
                return nullptr;
            composizione.aggiungi(riga, connessione);
        }
    } catch (const Errore&) {
        if (guasti == Guasti::lanciati)
            throw;
        notificaQuesto();
        return nullptr;
    }
    return std::make_unique<DocumentoReport>(
        nome, definizione.carta, composizione.pagine(),
        Ascoltatore{[this] { return prosegue(); }, [this] { ricomincia(); }});
}

} // namespace giacenza::report
