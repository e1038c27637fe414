#pragma once

#include <QStringList>

#include <vector>

namespace banco {

/// A program that makes runs of a measurement; see esito.h. It lies beside this one.
struct Programma
{
    QString nome;
    QStringList argomenti;
    QString stringa; ///< connection string
    /// Empty: the program is started anew for each run. Else it is started once and given one of these lines
    /// for each run, in turn: what is to be worked on.
    QStringList richieste = {};
};

/// What a figure has to reach; 0: does not matter.
struct Obiettivo
{
    double rapporto = 0;   ///< at most so many times the reference's time
    double inPiu = 0;      ///< at most so many milliseconds more than the reference
    double picco = 0;      ///< at most so many megabytes of memory
    double piccoInPiu = 0; ///< at most so many megabytes more than the reference
};

/// One figure to find: a program of ours beside a plain one that does the same.
struct Confronto
{
    QString nome;
    QString database; ///< "sqlite" or "mariadb"
    qint64 righe;
    Programma nostro;
    Programma riferimento;
    Obiettivo obiettivo = {};
    /// Both send the same statements, to the letter, which is looked at before measuring. Only for programs
    /// that stay.
    bool stesseIstruzioni = false;
};

/// How many pairs of runs are made.
struct Corse
{
    int lunghe; ///< where a run of ours takes 20 ms or more
    int brevi;  ///< where it takes less, as the first `lunghe` pairs show
};

struct Misura
{
    Confronto confronto;
    int corse;
    double nostroMs;
    double riferimentoMs;
    double rapporto;
    double dispersione; ///< of the pairs' ratios: the width of their middle half, in parts of their median
    double piccoMb;
    double piccoRiferimentoMb;

    bool raggiunto() const;
};

/// Runs both programs in turns, once to warm up and then as often as corse says, one time this first and one
/// time that. The times are medians, the peaks the highest seen. Throws giacenza::Errore when a run fails, or
/// when statements that should be the same are not.
Misura misura(const Confronto& confronto, const Corse& corse);

/// What lies a part of the way up the sorted values, between two of them in proportion. parte: 0 to 1;
/// valori: at least one.
double quantile(std::vector<double> valori, double parte);
double mediana(std::vector<double> valori);

} // namespace banco
