#include "riga.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace registra {

namespace {

const QString nomeUtente = u"utente"_s;
const QString nomeSistema = u"sistema"_s;
const QString nomeMostra = u"mostra"_s;
const QString nomeVerifica = u"verifica"_s;
const QString nomeTogli = u"togli"_s;
const QString nomeLibreria = u"libreria"_s;
const QString nomeAiuto = u"help"_s;
const QString nomeVersione = u"version"_s;

const QString spiegazione = uR"(Uso: giacenza-registra [--utente | --sistema] [--libreria FILE]
     giacenza-registra --mostra | --verifica [--utente | --sistema]
     giacenza-registra --togli [--utente | --sistema]

Registra la classe giacenza.cGiacenza: scrive il descrittore da cui i programmi
trovano la libreria del componente.

  --utente         Per questo utente; vale se non si dice altro.
  --sistema        Per tutti gli utenti di questa macchina.
  --libreria FILE  La libreria da registrare; altrimenti quella installata.
  --mostra         Mostra il descrittore che i programmi trovano.
  --verifica       Controlla che il descrittore e la sua libreria siano in ordine.
  --togli          Toglie la registrazione.
  -h, --help       Mostra queste righe.
  -v, --version    Mostra la versione.

Codici d'uscita: 0 fatto; 1 riga di comando sbagliata; 2 classe non registrata;
3 descrittore non in ordine; 4 libreria che manca o che non è il componente;
5 libreria di un'altra versione; 6 descrittore non scritto o non tolto;
7 uscita non scritta.)"_s;

[[noreturn]] void rifiuta(const QString& motivo)
{
    lamenta(motivo + u"\nSi veda giacenza-registra --help."_s);
    std::exit(static_cast<int>(Codice::rigaSbagliata));
}

Azione azione(const QCommandLineParser& riga)
{
    const bool mostra = riga.isSet(nomeMostra);
    const bool verifica = riga.isSet(nomeVerifica);
    const bool togli = riga.isSet(nomeTogli);
    if (int{mostra} + int{verifica} + int{togli} > 1)
        rifiuta(u"--mostra, --verifica e --togli non vanno insieme."_s);
    return mostra ? Azione::mostra : verifica ? Azione::verifica : togli ? Azione::togli : Azione::scrivi;
}

} // namespace

void dice(const QString& testo)
{
    std::fprintf(stdout, "%s\n", qUtf8Printable(testo));
}

void lamenta(const QString& testo)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(testo));
}

bool uscitaScritta()
{
    // A full disk is told when the text leaves the buffer, not when it enters it.
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0)
        return true;
    lamenta(u"L'uscita non si scrive."_s);
    return false;
}

Richiesta leggiRiga(const QCoreApplication& applicazione)
{
    QCommandLineParser riga;
    riga.addOptions({{{u"h"_s, nomeAiuto}, {}},
                     {{u"v"_s, nomeVersione}, {}},
                     {nomeUtente, {}},
                     {nomeSistema, {}},
                     {nomeMostra, {}},
                     {nomeVerifica, {}},
                     {nomeTogli, {}},
                     {nomeLibreria, {}, u"file"_s}});
    const bool capita = riga.parse(applicazione.arguments());
    if (!capita && !riga.unknownOptionNames().isEmpty())
        rifiuta(u"Opzione sconosciuta: %1."_s.arg(riga.unknownOptionNames().constFirst()));
    if (!capita)
        rifiuta(u"Le opzioni non si capiscono: dopo --libreria ci vuole un file, dopo le altre niente."_s);
    if (riga.isSet(nomeAiuto) || riga.isSet(nomeVersione)) {
        dice(riga.isSet(nomeAiuto) ? spiegazione : QStringLiteral("giacenza-registra " REGISTRA_VERSIONE));
        std::exit(static_cast<int>(uscitaScritta() ? Codice::fatto : Codice::senzaUscita));
    }
    if (!riga.positionalArguments().isEmpty())
        rifiuta(u"Di troppo: %1."_s.arg(riga.positionalArguments().constFirst()));
    if (riga.isSet(nomeUtente) && riga.isSet(nomeSistema))
        rifiuta(u"--utente e --sistema non vanno insieme."_s);
    const Richiesta richiesta{azione(riga),
                              riga.isSet(nomeSistema)  ? Chi::sistema
                              : riga.isSet(nomeUtente) ? Chi::utente
                                                       : Chi::nonDetto,
                              riga.value(nomeLibreria)};
    if (riga.isSet(nomeLibreria) && (richiesta.azione != Azione::scrivi || richiesta.libreria.isEmpty()))
        rifiuta(u"--libreria vale soltanto per registrare, e vuole un file."_s);
    return richiesta;
}

} // namespace registra
