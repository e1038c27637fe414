#include "schema/dati/opzioni.h"

#include "data/valori.h"

#include <QLocale>

namespace giacenza::dimostrazione {

namespace {

int leggiSpedizioni(const QString& testo)
{
    bool numero = false;
    const int spedizioni = testo.toInt(&numero);
    if (!numero || !soloCifre(testo) || spedizioni > massimoSpedizioni)
        throw Errore(QStringLiteral("Dopo --spedizioni va un numero intero da 0 a %1, non \"%2\".")
                         .arg(QLocale(QLocale::Italian).toString(massimoSpedizioni), testo));
    return spedizioni;
}

QDate leggiOggi(const QString& testo)
{
    const QDate giorno = QDate::fromString(testo, Qt::ISODate);
    if (!giorno.isValid() || giorno.year() < 1900 || giorno.year() > 9998)
        throw Errore(QStringLiteral("Dopo --oggi va una data aaaa-mm-gg, non \"%1\".").arg(testo));
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
                throw Errore(QStringLiteral("Dopo %1 manca il suo valore.").arg(argomento));
            return argomenti.at(i);
        };
        if (argomento == QLatin1String("--aiuto") || argomento == QLatin1String("--help") ||
            argomento == QLatin1String("-h"))
            opzioni.aiuto = true;
        else if (argomento == QLatin1String("--crea"))
            opzioni.richiesta.crea = true;
        else if (argomento == QLatin1String("--spedizioni"))
            opzioni.richiesta.spedizioni = leggiSpedizioni(valore());
        else if (argomento == QLatin1String("--oggi"))
            opzioni.richiesta.oggi = leggiOggi(valore());
        else if (argomento.startsWith(u'-'))
            throw Errore(QStringLiteral("Opzione sconosciuta: %1.").arg(argomento));
        else if (opzioni.stringa.isEmpty())
            opzioni.stringa = argomento;
        else
            throw Errore(QStringLiteral("La stringa di connessione è una sola: va tra virgolette."));
    }
    if (!opzioni.aiuto && opzioni.stringa.isEmpty())
        throw Errore(QStringLiteral("Manca la stringa di connessione al database."));
    return opzioni;
}

QString testoAiuto()
{
    return QStringLiteral(
        "Uso: genera-dati \"DRIVER=…\" [--crea] [--spedizioni N] [--oggi aaaa-mm-gg]\n"
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
        "3 il database non è nello stato richiesto (non è vuoto, o mancano le tabelle).\n");
}

} // namespace giacenza::dimostrazione
