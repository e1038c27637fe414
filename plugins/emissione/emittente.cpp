#include "emissione/emittente.h"

#include "comune/archivio.h"
#include "comune/pdf.h"
#include "reports/letters/letteravettura.h"

#include <QDebug>
#include <QDir>
#include <QTemporaryFile>

using namespace Qt::StringLiterals;

namespace giacenza::emissione {

/// The host may have none that listens; then the reason stands in its log at least.
namespace {

/// What did not work, told apart from what was refused.
class Guasto : public Errore
{
public:
    using Errore::Errore;
};

} // namespace

void EmittenteDeposito::racconta(const QString& testo, Tono tono) const
{
    if (mContesto.racconta)
        mContesto.racconta({testo, tono});
    else
        qWarning().noquote() << testo;
}

QString EmittenteDeposito::emetti(const RecordLdv& ldv)
{
    try {
        return emettiOLancia(ldv);
    } catch (const Guasto& guasto) {
        racconta(guasto.testo(), Tono::guasto);
    } catch (const Errore& rifiuto) {
        racconta(rifiuto.testo(), Tono::rifiuto);
    } catch (const std::exception& errore) {
        racconta(u"La lettera di vettura non è stata emessa: %1"_s.arg(QString::fromUtf8(errore.what())),
                 Tono::guasto);
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

/// Returns the file as the operator reads it.
QString EmittenteDeposito::stampaLdv(Connessione& connessione, const LdvEmessa& emessa) const
{
    const auto byte = comune::pdf(*componiLdv(connessione, emessa, mPercorsoLogo, mContesto.piede), nullptr);
    const QString file = comune::archivia(
        mCartellaStampa, u"LDV_%1_%2_%3"_s.arg(emessa.filiale, emessa.numero, QString::number(emessa.anno)),
        byte.value());
    return QDir::toNativeSeparators(file);
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
                     "l'operazione.\n\n%1"_s.arg(errore.testo()));
    }
    const QString nome = u"lettera di vettura %1/%2"_s.arg(emessa.numero, QString::number(emessa.anno));
    if (!mStampa)
        return u"Emessa la %1."_s.arg(nome);
    const auto nonStampata = [&](const QString& motivo) {
        return Guasto(u"La %1 è stata emessa, ma non è stata stampata.\n\n%2"_s.arg(nome, motivo));
    };
    try {
        return u"Emessa la %1, stampata in %2"_s.arg(nome, stampaLdv(connessione, emessa));
    } catch (const Errore& errore) {
        throw nonStampata(errore.testo());
    } catch (const std::exception& errore) {
        throw nonStampata(QString::fromUtf8(errore.what()));
    }
}

} // namespace giacenza::emissione
