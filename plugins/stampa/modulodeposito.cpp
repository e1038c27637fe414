#include "stampa/modulodeposito.h"

#include "comune/archivio.h"
#include "comune/pdf.h"
#include "stampa/anteprima.h"
#include "stampa/modalita.h"
#include "stampa/stampante.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace giacenza::stampa {

namespace {

/// Shows or prints what the archive already has. Throws Errore.
void consegna(Documento& documento, const QString& nomeModalita, QWidget* padre)
{
    const std::optional<Modalita> modalita = leggiModalita(nomeModalita);
    if (!modalita)
        throw Errore(u"La voce \"Modalita\" delle impostazioni vale \"%1\" invece di \"pdf\", \"anteprima\" "
                     "o \"stampante\"."_s.arg(nomeModalita));
    if (*modalita == Modalita::anteprima)
        mostraAnteprima(documento, padre);
    if (*modalita == Modalita::stampante && !stampaSuCarta(documento, padre))
        throw Errore(u"La stampa è stata annullata; le pagine già inviate possono uscire dalla stampante."_s);
}

} // namespace

void ModuloDeposito::setFonte(FonteDocumenti* fonte, QWidget* padre)
{
    mFonte = fonte;
    mPadre = padre;
}

void ModuloDeposito::setDidascalie(const std::array<QString, 4>& didascalie)
{
    mRichiesta.didascalie = didascalie;
}

void ModuloDeposito::stampaDocumento(const QString& chiave, bool& nonProdotto)
{
    nonProdotto = false;
    if (!mFonte)
        throw Errore(u"Il modulo di stampa non ha ricevuto i documenti da stampare."_s);
    if (!mStampa)
        throw Errore(u"La stampa del documento %1 non è stata richiesta."_s.arg(chiave));

    mRichiesta.chiave = chiave;
    const std::unique_ptr<Documento> documento = mFonte->documento(mRichiesta);
    const std::optional<QByteArray> byte = documento ? comune::pdf(*documento, mPadre) : std::nullopt;
    if (!byte) {
        nonProdotto = true;
        return;
    }
    const bool buonFine = mRichiesta.tipo == TipoDocumento::buonFine;
    const QString percorso =
        comune::archivia(mFonte->cartellaDocumenti(), buonFine ? chiave + u"_buonfine"_s : chiave, *byte);
    mFonte->archiviato(percorso);
    try {
        consegna(*documento, mFonte->impostazione(u"Modalita"_s), mPadre);
    } catch (const Errore& errore) {
        throw Errore(u"%1\nIl documento resta archiviato in \"%2\"."_s.arg(
            errore.testo(), QDir::toNativeSeparators(percorso)));
    }
}

} // namespace giacenza::stampa
