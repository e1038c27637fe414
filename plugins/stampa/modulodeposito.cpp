#include "stampa/modulodeposito.h"

#include "stampa/archivio.h"
#include "stampa/pdf.h"

using namespace Qt::StringLiterals;

namespace giacenza::stampa {

void ModuloDeposito::setFonte(FonteDocumenti* fonte, QWidget*)
{
    mFonte = fonte;
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
    const std::optional<QByteArray> byte = documento ? pdf(*documento) : std::nullopt;
    if (!byte) {
        nonProdotto = true;
        return;
    }
    const bool buonFine = mRichiesta.tipo == TipoDocumento::buonFine;
    archivia(mFonte->cartellaDocumenti(), buonFine ? chiave + u"_buonfine"_s : chiave, *byte);
}

} // namespace giacenza::stampa
