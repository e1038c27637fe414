#include "grappolo/controllo.h"

#include "data/archivio.h"
#include "database/connessione.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>

namespace giacenza::prove {

void controllaArchivio(const QString& nome, const QString& dove, const QList<Voce>& voci)
{
    Connessione connessione;
    connessione.apri(accessoTracciato(dove));
    const Fotografia archivio = fotografa(connessione);
    for (const QString& difetto : difetti(archivio))
        ADD_FAILURE() << nome.toStdString() << ": " << difetto.toStdString();
    for (const QString& smentita : smentite(archivio, voci))
        ADD_FAILURE() << nome.toStdString() << ": " << smentita.toStdString();
}

void raccontaTurno(const QList<Voce>& voci, int postazioni, int secondi)
{
    std::printf("%d postazioni, %d secondi\n%s%s", postazioni, secondi, qPrintable(riassunto(voci)),
                qPrintable(guasti(voci)));
    std::fflush(stdout);
    const auto riusciti = std::ranges::count(voci, Esito::riuscito, &Voce::esito);
    // An action each second and a half, and at least a fifth of them in spite of everything.
    EXPECT_GT(riusciti, postazioni * secondi / 8) << "too little was done to prove anything";
}

} // namespace giacenza::prove
