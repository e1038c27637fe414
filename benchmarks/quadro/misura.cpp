#include "benchmarks/quadro/misura.h"

#include "benchmarks/quadro/esito.h"

#include <giacenza/Errore.h>

#include <QCoreApplication>
#include <QProcess>
#include <QProcessEnvironment>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace banco {

namespace {

struct Corsa
{
    double millisecondi;
    double megabyte;
};

Corsa esegui(const Programma& programma, const QString& stringa)
{
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    ambiente.insert(QString::fromLatin1(variabileConnessione), stringa);
    ambiente.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    QProcess processo;
    processo.setProcessEnvironment(ambiente);
    processo.start(QCoreApplication::applicationDirPath() + u'/' + programma.nome, programma.argomenti);
    if (!processo.waitForFinished(-1) || processo.exitStatus() != QProcess::NormalExit ||
        processo.exitCode() != 0)
        throw giacenza::Errore(u"%1 failed: %2 %3"_s.arg(programma.nome, processo.errorString(),
                                                         QString::fromUtf8(processo.readAllStandardError())));
    const QString riga = QString::fromUtf8(processo.readAllStandardOutput());
    bool millisecondi = false;
    bool kilobyte = false;
    const Corsa corsa{riga.section(u' ', 0, 0).toDouble(&millisecondi),
                      riga.section(u' ', 1, 1).toDouble(&kilobyte) / 1024};
    if (!millisecondi || !kilobyte)
        throw giacenza::Errore(u"%1 printed no figures: \"%2\""_s.arg(programma.nome, riga));
    return corsa;
}

} // namespace

double mediana(std::vector<double> valori)
{
    std::sort(valori.begin(), valori.end());
    const std::size_t mezzo = valori.size() / 2;
    return valori.size() % 2 == 1 ? valori[mezzo] : (valori[mezzo - 1] + valori[mezzo]) / 2;
}

Misura misura(const Confronto& confronto, int corse)
{
    std::vector<double> nostri;
    std::vector<double> riferimenti;
    std::vector<double> picchi;
    std::vector<double> picchiRiferimento;
    esegui(confronto.riferimento, confronto.stringa);
    esegui(confronto.nostro, confronto.stringa);
    const auto corri = [&](const Programma& programma, std::vector<double>& tempi,
                           std::vector<double>& memorie) {
        const Corsa corsa = esegui(programma, confronto.stringa);
        tempi.push_back(corsa.millisecondi);
        memorie.push_back(corsa.megabyte);
    };
    for (int corsa = 0; corsa < corse; ++corsa) {
        // Who goes first finds what the other has left, in the caches and in the clock of the processor.
        if (corsa % 2 == 0)
            corri(confronto.riferimento, riferimenti, picchiRiferimento);
        corri(confronto.nostro, nostri, picchi);
        if (corsa % 2 == 1)
            corri(confronto.riferimento, riferimenti, picchiRiferimento);
    }
    const double nostroMs = mediana(nostri);
    const double riferimentoMs = mediana(riferimenti);
    return {confronto,
            corse,
            nostroMs,
            riferimentoMs,
            nostroMs / riferimentoMs,
            mediana(picchi),
            mediana(picchiRiferimento)};
}

} // namespace banco
