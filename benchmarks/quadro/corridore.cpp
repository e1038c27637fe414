#include "benchmarks/quadro/corridore.h"

#include "benchmarks/quadro/esito.h"

#include <giacenza/Errore.h>

#include <QCoreApplication>
#include <QProcess>
#include <QProcessEnvironment>

using namespace Qt::StringLiterals;

namespace banco {

namespace {

void lancia(QProcess& processo, const Programma& programma)
{
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    ambiente.insert(QString::fromLatin1(variabileConnessione), programma.stringa);
    ambiente.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    ambiente.insert(QString::fromLatin1(variabileAvvio), QString::number(nanosecondi()));
    processo.setProcessEnvironment(ambiente);
    processo.start(QCoreApplication::applicationDirPath() + u'/' + programma.nome, programma.argomenti);
}

[[noreturn]] void fallisci(const Programma& programma, QProcess& processo)
{
    throw giacenza::Errore(u"%1 failed: %2 %3"_s.arg(programma.nome, processo.errorString(),
                                                     QString::fromUtf8(processo.readAllStandardError())));
}

Corsa leggiCorsa(const Programma& programma, const QString& riga)
{
    constexpr double kilo = 1024;
    bool millisecondi = false;
    bool kilobyte = false;
    const Corsa corsa{riga.section(u' ', 0, 0).toDouble(&millisecondi),
                      riga.section(u' ', 1, 1).toDouble(&kilobyte) / kilo};
    if (!millisecondi || !kilobyte)
        throw giacenza::Errore(u"%1 printed no figures: \"%2\""_s.arg(programma.nome, riga));
    return corsa;
}

/// A process for each run.
class OgniVolta : public Corridore
{
public:
    explicit OgniVolta(const Programma& programma) : mProgramma(programma) {}

    Corsa corri() override
    {
        QProcess processo;
        lancia(processo, mProgramma);
        if (!processo.waitForFinished(-1) || processo.exitStatus() != QProcess::NormalExit ||
            processo.exitCode() != 0)
            fallisci(mProgramma, processo);
        return leggiCorsa(mProgramma, QString::fromUtf8(processo.readAllStandardOutput()));
    }

    QStringList istruzioni() override
    {
        throw giacenza::Errore(
            u"%1 is started anew for each run and tells no statements."_s.arg(mProgramma.nome));
    }

private:
    Programma mProgramma;
};

/// One process, which is asked for each run.
class Residente : public Corridore
{
public:
    explicit Residente(const Programma& programma) : mProgramma(programma)
    {
        lancia(mProcesso, mProgramma);
        if (!mProcesso.waitForStarted(-1))
            fallisci(mProgramma, mProcesso);
    }
    Residente(const Residente&) = delete;
    Residente& operator=(const Residente&) = delete;
    ~Residente() override
    {
        mProcesso.closeWriteChannel();
        mProcesso.waitForFinished(-1);
    }

    Corsa corri() override
    {
        const QString& richiesta = mProgramma.richieste[mProssima++ % mProgramma.richieste.size()];
        chiedi(richiesta);
        return leggiCorsa(mProgramma, riga());
    }

    QStringList istruzioni() override
    {
        chiedi(QString::fromLatin1(chiediIstruzioni) + mProgramma.richieste.front());
        QStringList inviate;
        for (QString letta = riga(); !letta.isEmpty(); letta = riga())
            inviate += letta;
        return inviate;
    }

private:
    void chiedi(const QString& richiesta)
    {
        mProcesso.write(richiesta.toUtf8() + '\n');
        mProcesso.waitForBytesWritten(-1);
    }

    QString riga()
    {
        while (!mProcesso.canReadLine())
            if (!mProcesso.waitForReadyRead(-1))
                fallisci(mProgramma, mProcesso);
        return QString::fromUtf8(mProcesso.readLine()).trimmed();
    }

    Programma mProgramma;
    QProcess mProcesso;
    qsizetype mProssima = 0;
};

} // namespace

std::unique_ptr<Corridore> creaCorridore(const Programma& programma)
{
    if (programma.richieste.isEmpty())
        return std::make_unique<OgniVolta>(programma);
    return std::make_unique<Residente>(programma);
}

} // namespace banco
