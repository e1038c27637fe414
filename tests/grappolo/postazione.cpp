// A workstation: registers, re-delivers, notices and closes, one thing each second and a half, and writes
// down what its screens said. Its journal is read when everybody has finished. The connection string is in
// GIACENZA_DATABASE.
//
//   postazione NUMBER SECONDS JOURNAL FIRST-WAYBILL

#include "grappolo/banco.h"
#include "grappolo/ldvdaregistrare.h"

#include <QApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QTest>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace giacenza::prove;

namespace {

constexpr int millisecondiTraDue = 1500;
/// How often the same thing is tried before the clerk lets the case be.
constexpr int volte = 4;

/// Follows one case after the other.
class Impiegato
{
public:
    Impiegato(int numero, LdvDaRegistrare ldv, const QString& giornale)
        : mNumero(numero), mLdv(std::move(ldv)), mBanco(qEnvironmentVariable("GIACENZA_DATABASE")),
          mGiornale(giornale)
    {}

    void faiIlProssimo(qint64 trascorsi)
    {
        if (mFatto == 0 && mCaso.ldv.isEmpty())
            mCaso = {mLdv.prossima(trascorsi), {}};
        static constexpr Lavoro giornate[] = {Lavoro::registra, Lavoro::riconsegna, Lavoro::avvisa,
                                              Lavoro::chiude};
        const Lavoro lavoro = giornate[mFatto];
        ++mPasso;
        Voce inizio;
        inizio.lavoro = lavoro;
        inizio.ldv = mCaso.ldv;
        inizio.giacenza = mCaso.giacenza;
        const auto voci = mBanco.fai(lavoro, mCaso, [&] { scrivi(inizio); });
        for (const Voce& voce : voci)
            scrivi(voce);
        segui(voci.first());
    }

private:
    void scrivi(Voce voce)
    {
        voce.postazione = mNumero;
        voce.passo = mPasso;
        voce.orario = QDateTime::currentDateTime().toString(Qt::ISODateWithMs);
        mGiornale.scrivi(voce);
    }

    void segui(const Voce& voce)
    {
        ++mTentativi;
        if (voce.esito == Esito::riuscito) {
            mCaso.giacenza = voce.giacenza;
            mTentativi = 0;
            if (++mFatto < 4)
                return;
        } else if (voce.esito == Esito::fallito && mTentativi < volte) {
            return;
        }
        mFatto = 0;
        mTentativi = 0;
        mCaso = {};
    }

    int mNumero;
    LdvDaRegistrare mLdv;
    Banco mBanco;
    Giornale mGiornale;
    CasoSeguito mCaso;
    int mFatto = 0; ///< of the four things that are done to a case
    int mTentativi = 0;
    int mPasso = 0;
};

/// The platform without a display says at each window what it cannot do.
void scriviAvvertimento(QtMsgType, const QMessageLogContext&, const QString& testo)
{
    if (!testo.startsWith(u"This plugin does not support"_s))
        std::fprintf(stderr, "%s\n", qPrintable(testo));
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(scriviAvvertimento);
    QApplication applicazione(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QStringList argomenti = QApplication::arguments();
    if (argomenti.size() != 5) {
        std::fprintf(stderr, "postazione NUMBER SECONDS JOURNAL FIRST-WAYBILL\n");
        return 2;
    }
    try {
        const int numero = argomenti[1].toInt();
        Impiegato impiegato(numero, LdvDaRegistrare(numero, argomenti[4].toInt()), argomenti[3]);
        const qint64 fine = argomenti[2].toInt() * qint64{1000};
        QElapsedTimer orologio;
        orologio.start();
        // Not all on the same beat; the depot's clock is the same for all, and the waybills that several want
        // with it.
        for (qint64 prossimo = numero * 71 % millisecondiTraDue; prossimo < fine;
             prossimo = std::max(prossimo + millisecondiTraDue, orologio.elapsed())) {
            QTest::qWait(static_cast<int>(std::max<qint64>(0, prossimo - orologio.elapsed())));
            impiegato.faiIlProssimo(orologio.elapsed());
        }
        return 0;
    } catch (const std::exception& errore) {
        std::fprintf(stderr, "postazione %s: %s\n", qPrintable(argomenti[1]), errore.what());
        return 1;
    }
}
