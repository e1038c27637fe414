#include "emissione/emittente.h"

#include "base/spiegazioni.h"
#include "base/testoerrore.h"
#include "comune/archivio.h"
#include "comune/pdf.h"
#include "reports/letters/letteravettura.h"

#include <QDebug>
#include <QDir>
#include <QTemporaryFile>

using namespace Qt::StringLiterals;

namespace giacenza::emissione {

namespace {

/// What did not work, told apart from what was refused.
class Guasto : public Errore
{
public:
    explicit Guasto(const QString& testo, const QString& dettaglio = {})
        : Errore(testo), mDettaglio(dettaglio)
    {}

    const QString& dettaglio() const { return mDettaglio; }

private:
    QString mDettaglio;
};

QString nome(const LdvEmessa& ldv)
{
    return u"lettera di vettura %1/%2"_s.arg(ldv.numero, QString::number(ldv.anno));
}

} // namespace

/// The host may have none that listens; then the reason stands in its log at least.
void EmittenteDeposito::racconta(const Racconto& racconto) const
{
    if (mContesto.racconta)
        mContesto.racconta(racconto);
    else
        qWarning().noquote() << QStringList{racconto.testo, racconto.dettaglio}.join(u'\n').trimmed();
}

QString EmittenteDeposito::emetti(const RecordLdv& ldv)
{
    try {
        return emettiOLancia(ldv);
    } catch (const ErroreEsitoIgnoto& ignoto) {
        racconta({ignoto.testo(), Tono::guasto});
        return ignoto.testo();
    } catch (const Guasto& guasto) {
        racconta({guasto.testo(), Tono::guasto, guasto.dettaglio()});
    } catch (const Errore& rifiuto) {
        racconta({rifiuto.testo(), Tono::rifiuto});
    } catch (const std::exception& errore) {
        racconta({u"La lettera di vettura non è stata emessa: %1"_s.arg(QString::fromUtf8(errore.what())),
                  Tono::guasto});
    }
    return {};
}

/// A folder that cannot be written is found out before anything is issued.
void EmittenteDeposito::controllaCartella() const
{
    QTemporaryFile prova(QDir(mCartellaStampa).filePath(u"prova.XXXXXX"_s));
    if (!QDir().mkpath(mCartellaStampa) || !prova.open())
        throw Guasto(
            u"Nella cartella \"%1\" non si può scrivere: nessuna lettera di vettura è stata emessa."_s.arg(
                QDir::toNativeSeparators(mCartellaStampa)));
}

/// Returns what is said of it: it was issued already, whatever becomes of the paper.
QString EmittenteDeposito::stampaLdv(Connessione& connessione, const LdvEmessa& emessa) const
{
    try {
        const auto byte =
            comune::pdf(*componiLdv(connessione, emessa, mPercorsoLogo, mContesto.piede), nullptr);
        const QString chiave =
            u"LDV_%1_%2_%3"_s.arg(emessa.filiale, emessa.numero, QString::number(emessa.anno));
        const QString file = comune::archivia(mCartellaStampa, chiave, byte.value());
        if (mContesto.documento)
            mContesto.documento(file);
        return u"stampata in %1"_s.arg(QDir::toNativeSeparators(file));
    } catch (const std::exception& errore) {
        const QString parole = QString::fromUtf8(errore.what());
        const QString motivo = testoErrore();
        racconta({u"La %1 è stata emessa, ma non è stata stampata.\n\n%2"_s.arg(nome(emessa), motivo),
                  Tono::guasto, parole == motivo ? QString() : parole});
        return u"non stampata."_s;
    }
}

QString EmittenteDeposito::emettiOLancia(const RecordLdv& ldv) const
{
    if (!mDefinitiva)
        throw Errore(u"L'emissione non è stata confermata: nessuna lettera di vettura è stata emessa."_s);
    if (mStampa)
        controllaCartella();
    Connessione connessione;
    LdvEmessa emessa;
    try {
        connessione.apri({mPercorsoDatabase, mTraccia});
        emessa = emettiLdv(connessione, ldv, mContesto);
    } catch (const ErroreDatabase& errore) {
        throw Guasto(u"La nuova lettera di vettura non è stata emessa: il database non ha accettato "
                     "l'operazione.\n\n%1"_s.arg(spiega(errore)),
                     errore.testo());
    }
    if (!mStampa)
        return u"Emessa la %1."_s.arg(nome(emessa));
    return u"Emessa la %1, %2"_s.arg(nome(emessa), stampaLdv(connessione, emessa));
}

} // namespace giacenza::emissione
