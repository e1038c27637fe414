#pragma once

#include <QStringList>

#include <vector>

namespace banco {

/// A program that makes one run of a measurement; see esito.h. It lies beside this one.
struct Programma
{
    QString nome;
    QStringList argomenti;
};

/// One figure to find: a program of ours beside a plain one that does the same.
struct Confronto
{
    QString nome;
    QString database; ///< "sqlite" or "mariadb"
    qint64 righe;
    QString stringa; ///< connection string
    Programma nostro;
    Programma riferimento;
    double obiettivo; ///< how many times the other's time ours may take; 0: no goal
};

struct Misura
{
    Confronto confronto;
    int corse;
    double nostroMs;
    double riferimentoMs;
    double rapporto;
    double piccoMb;
    double piccoRiferimentoMb;
};

/// Runs both programs in turns, once to warm up and then corse times, one time this first and one time that,
/// and takes the medians. Throws giacenza::Errore when a run fails.
Misura misura(const Confronto& confronto, int corse);

/// The middle of an odd number of values, the mean of the two in the middle of an even one.
double mediana(std::vector<double> valori);

} // namespace banco
