#include "schema/dati/opzioni.h"

#include "database/valori.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace giacenza::dimostrazione {

namespace {

int leggiSpedizioni(const QString& testo)
{
    bool numero = false;
    const int spedizioni = testo.toInt(&numero);
    if (!numero || !soloCifre(testo) || spedizioni > massimoSpedizioni)
        throw Errore(u"Dopo --spedizioni va un numero intero da 0 a %1, non \"%2\"."_s.arg(
            QLocale(QLocale::Italian).toString(massimoSpedizioni), testo));
    return spedizioni;
}

QDate leggiOggi(const QString& testo)
{
    const QDate giorno = QDate::fromString(testo, Qt::ISODate);
    if (!giorno.isValid() || giorno.year() < 1900 || giorno.year() > 9998)
        throw Errore(u"Dopo --oggi va una data aaaa-mm-gg, non \"%1\"."_s.arg(testo));
    return giorno;
}

} // namespace

Opzioni leggiOpzioni(const QStringList& argomenti, QDate oggi)
{
    Opzioni opzioni;
    opzioni.richiesta.oggi = oggi;
    for (qsizetype i = 0; i < argomenti.size(); ++i) {
        const QString& argomento = argomenti.at(i);
        const auto valore = [&] {
            if (++i == argomenti.size())
                throw Errore(u"Dopo %1 manca il suo valore."_s.arg(argomento));
            return argomenti.at(i);
        };
        if (argomento == "--aiuto"_L1 || argomento == "--help"_L1 || argomento == "-h"_L1)
            opzioni.aiuto = true;
        else if (argomento == "--crea"_L1)
            opzioni.richiesta.crea = true;
        else if (argomento == "--spedizioni"_L1)
            opzioni.richiesta.spedizioni = leggiSpedizioni(valore());
        else if (argomento == "--oggi"_L1)
            opzioni.richiesta.oggi = leggiOggi(valore());
        else if (argomento.startsWith(u'-'))
            throw Errore(u"Opzione sconosciuta: %1."_s.arg(argomento));
        else if (opzioni.stringa.isEmpty())
            opzioni.stringa = argomento;
        else
            throw Errore(u"La stringa di connessione è una sola: va tra virgolette."_s);
    }
    if (!opzioni.aiuto && opzioni.stringa.isEmpty())
        throw Errore(u"Manca la stringa di connessione al database."_s);
    return opzioni;
}

QString testoAiuto()
{
    return u"Uso: genera-dati \"DRIVER=…\" [--crea] [--spedizioni N] [--oggi aaaa-mm-gg]\n"
           "\n"
           "Riempie di dati dimostrativi un database vuoto, MariaDB o SQLite: filiali, clienti, vettori,\n"
           "spedizioni degli ultimi anni e le loro giacenze. O scrive tutto, o non scrive nulla.\n"
           "\n"
           "  --crea             crea prima le tabelle\n"
           "  --spedizioni N     quante spedizioni (2.000 se non è detto)\n"
           "  --oggi aaaa-mm-gg  l'ultimo giorno dei dati (oggi se non è detto)\n"
           "  --aiuto            mostra queste righe\n"
           "\n"
           "Gli stessi numeri e la stessa data danno sempre le stesse righe.\n"
           "\n"
           "Codici di uscita: 0 fatto, 1 il database non risponde o rifiuta, 2 riga di comando errata,\n"
           "3 il database non è nello stato richiesto (non è vuoto, o mancano le tabelle).\n"_s;
}

} // namespace giacenza::dimostrazione
