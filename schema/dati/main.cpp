#include "database/valori.h"
#include "schema/dati/opzioni.h"

#include <QElapsedTimer>
#include <QLocale>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

using namespace giacenza;
using namespace giacenza::dimostrazione;

/// Exit codes, as the help lists them.
enum Uscita
{
    fatto = 0,
    databaseInErrore = 1,
    comandoErrato = 2,
    rifiutato = 3
};

void scrivi(std::FILE* dove, const QString& testo)
{
    std::fputs(testo.toUtf8().constData(), dove);
    std::fflush(dove);
}

QString cifra(qint64 numero)
{
    return QLocale(QLocale::Italian).toString(numero);
}

/// One line every two seconds: a short filling says nothing.
Avanzamento racconto()
{
    QElapsedTimer ultima;
    ultima.start();
    return [ultima](qsizetype fatte, qsizetype totali) mutable {
        constexpr qint64 millisecondi = 2000;
        if (ultima.elapsed() < millisecondi)
            return;
        ultima.restart();
        scrivi(stderr, u"Righe scritte: %1 di %2 (%3%)\n"_s.arg(cifra(fatte), cifra(totali),
                                                                cifra(fatte * 100 / totali)));
    };
}

Uscita genera(const Opzioni& opzioni)
{
    // Making an index over millions of rows takes longer than any statement of an operator.
    constexpr int secondiLavoro = 1800;
    Connessione connessione;
    connessione.apri(opzioni.stringa, {.comando = secondiLavoro});
    const Riepilogo riepilogo = riempi(connessione, opzioni.richiesta, racconto());
    scrivi(stdout, u"Creati %1 clienti, %2 spedizioni e %3 giacenze fino al %4.\n"_s.arg(
                       cifra(riepilogo.clienti), cifra(riepilogo.spedizioni), cifra(riepilogo.giacenze),
                       dataBreve(opzioni.richiesta.oggi)));
    return fatto;
}

} // namespace

int main(int argc, char* argv[])
{
    QStringList argomenti;
    for (int i = 1; i < argc; ++i)
        argomenti << QString::fromLocal8Bit(argv[i]);
    Opzioni opzioni;
    try {
        opzioni = leggiOpzioni(argomenti, QDate::currentDate());
    } catch (const Errore& errore) {
        scrivi(stderr, errore.testo() + u" L'uso si legge con genera-dati --aiuto\n"_s);
        return comandoErrato;
    }
    if (opzioni.aiuto) {
        scrivi(stdout, testoAiuto());
        return fatto;
    }
    try {
        return genera(opzioni);
    } catch (const Rifiuto& rifiuto) {
        scrivi(stderr, rifiuto.testo() + u" Non è stato scritto nulla.\n"_s);
        return rifiutato;
    } catch (const ErroreDatabase& errore) {
        scrivi(stderr, u"I dati non sono stati creati: il database ha risposto con l'errore %1.\n%2\n"_s.arg(
                           errore.sqlstate(), errore.testo()));
        return databaseInErrore;
    }
}
