#include "grappolo/turno.h"

#include "grappolo/ldvdaregistrare.h"
#include "support/bancadati.h"
#include "support/spedizioni.h"

#include <QElapsedTimer>
#include <QTest>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

namespace {

int dallAmbiente(const char* nome, int altrimenti)
{
    bool detto = false;
    const int valore = qEnvironmentVariableIntValue(nome, &detto);
    return detto && valore > 0 ? valore : altrimenti;
}

} // namespace

int postazioniProva()
{
    return dallAmbiente("GIACENZA_POSTAZIONI", 5);
}

int secondiProva()
{
    return dallAmbiente("GIACENZA_SECONDI", 15);
}

void attrezzo(const QString& programma, const QStringList& argomenti)
{
    QProcess processo;
    processo.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    processo.start(QStringLiteral(GIACENZA_CARTELLA_ATTREZZI "/") + programma, argomenti);
    constexpr int pazienza = 180'000;
    if (!processo.waitForFinished(pazienza) || processo.exitStatus() != QProcess::NormalExit ||
        processo.exitCode() != 0)
        throw std::runtime_error(
            u"%1 %2: %3"_s.arg(programma, argomenti.join(u' '), processo.errorString()).toStdString());
}

void riempiTurno(const BancaDati& base, int postazioni)
{
    riempiDeposito(base);
    // The small depot's own case is nobody's here.
    base.esegui(u"delete from giace00f"_s);
    base.esegui(u"update letve00f set LERFGI=null, LEANGI=null"_s);
    base.esegui(u"insert into tabfatturazione (FALCOD,FACODI,FACMPE,FADFGI,FAFRGI,FATGIG,FAMIGI) "
                "values ('C',1001,'A',7.50,5,1.50,15.00)"_s);
    QStringList numeri;
    for (int quale = 0; quale < ldvContese; ++quale)
        numeri << ldvContesa(quale);
    for (int postazione = 1; postazione <= postazioni; ++postazione)
        for (int quale = 0; quale < ldvPerPostazione; ++quale)
            numeri << ldvPropria(postazione, quale);
    constexpr qsizetype perVolta = 500;
    for (qsizetype i = 0; i < numeri.size(); i += perVolta) {
        QStringList righe;
        for (const QString& numero : numeri.mid(i, perVolta))
            righe << u"('MI','%1',2026,'2026-11-12',1001,'A','Casalinghi Rossi','V01','L05','ORD-%1')"_s.arg(
                numero);
        base.esegui(u"insert into letve00f "
                    "(lefili,lenrlv,leanlv,ledtlv,lecodi,lecmpe,ledest,lecdve,lelin1,lerife) values "_s +
                    righe.join(u','));
    }
}

Turno::Turno(const QString& stringa, int postazioni, int secondi)
    : mStringa(stringa), mPostazioni(postazioni), mSecondi(secondi)
{
    mCartella.setAutoRemove(!qEnvironmentVariableIsSet("GIACENZA_TIENI_GIORNALI"));
    mProcessi.resize(static_cast<std::size_t>(postazioni) + 1);
}

Turno::~Turno()
{
    for (const auto& processo : mProcessi)
        if (processo && processo->state() != QProcess::NotRunning) {
            processo->kill();
            processo->waitForFinished();
        }
}

void Turno::avvia(int postazione, int secondi, int primaLdv)
{
    const int nome = primaLdv == 0 ? postazione : postazione + ricominciata;
    mGiornali << mCartella.filePath(u"giornale-%1"_s.arg(nome));
    auto processo = std::make_unique<QProcess>();
    auto ambiente = QProcessEnvironment::systemEnvironment();
    ambiente.insert(u"GIACENZA_DATABASE"_s, mStringa);
    // What a killed one leaves behind goes with the journals.
    for (const QString& cartella : {u"TMPDIR"_s, u"XDG_RUNTIME_DIR"_s})
        ambiente.insert(cartella, mCartella.path());
    processo->setProcessEnvironment(ambiente);
    processo->setProcessChannelMode(QProcess::ForwardedChannels);
    processo->start(QStringLiteral(GIACENZA_POSTAZIONE), {QString::number(nome), QString::number(secondi),
                                                          mGiornali.last(), QString::number(primaLdv)});
    if (!processo->waitForStarted())
        throw std::runtime_error(processo->errorString().toStdString());
    mProcessi[static_cast<std::size_t>(postazione)] = std::move(processo);
}

/// As a power cut at the clerk's desk does.
void Turno::spegni(int postazione)
{
    auto& processo = mProcessi[static_cast<std::size_t>(postazione)];
    processo->kill();
    processo->waitForFinished();
}

void Turno::lavora(std::vector<Accaduto> accadimenti)
{
    const double meta = mSecondi / 2.0;
    accadimenti.push_back({meta, u"la postazione 1 si spegne e ricomincia"_s, [&] {
                               spegni(1);
                               avvia(1, mSecondi - mSecondi / 2, ldvPerPostazione / 2);
                           }});
    std::ranges::sort(accadimenti, {}, &Accaduto::secondo);
    QElapsedTimer orologio;
    orologio.start();
    for (int postazione = 1; postazione <= mPostazioni; ++postazione)
        avvia(postazione, mSecondi, 0);
    for (const Accaduto& accaduto : accadimenti) {
        const double manca = accaduto.secondo * 1000 - static_cast<double>(orologio.elapsed());
        QTest::qWait(static_cast<int>(std::max(0.0, manca)));
        std::printf("%6.1f s: %s\n", static_cast<double>(orologio.elapsed()) / 1000,
                    qPrintable(accaduto.che));
        std::fflush(stdout);
        accaduto.fa();
    }
    // The longest that a press may take is a statement that is not answered, several times.
    constexpr int pazienza = 300'000;
    for (const auto& processo : mProcessi)
        if (processo && (!processo->waitForFinished(pazienza) && processo->state() != QProcess::NotRunning))
            throw std::runtime_error("a workstation does not end");
    for (const auto& processo : mProcessi)
        if (processo && (processo->exitStatus() != QProcess::NormalExit || processo->exitCode() != 0))
            throw std::runtime_error("a workstation failed");
}

QList<Voce> Turno::voci() const
{
    QList<Voce> tutte;
    for (const QString& giornale : mGiornali)
        tutte += leggiGiornale(giornale);
    return tutte;
}

} // namespace giacenza::prove
