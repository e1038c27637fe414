#include "registro.h"

#include "base/spiegazioni.h"
#include "data/archivio.h"
#include "schema/registro.h"

using namespace Qt::StringLiterals;

namespace deposito {

namespace {

QString racconta(const giacenza::RegistroPreparato& registro)
{
    QStringList righe;
    righe << (registro.prima == registro.versione
                  ? u"Il registro era già preparato, versione %1."_s.arg(registro.versione)
                  : u"Il registro è preparato: dalla versione %1 alla %2."_s.arg(registro.prima)
                        .arg(registro.versione));
    if (!registro.conti.isEmpty())
        righe << u"Lo leggono, e aggiungono note: %1."_s.arg(registro.conti.join(u", "_s));
    for (const QString& conto : registro.possonoCambiarlo)
        righe << u"%1 può cambiare il registro: togliergli i diritti sull'intera base."_s.arg(conto);
    if (registro.definitore == u"current_user"_s)
        righe << u"I trigger sono di questo conto: se viene tolto, i salvataggi saranno rifiutati finché chi "
                 u"può creare "
                 "ruoli non ripete questo comando."_s;
    if (!registro.daConcedere.isEmpty()) {
        righe << u"Questo conto non può concedere privilegi. Chi può esegua:"_s;
        for (const QString& istruzione : registro.daConcedere)
            righe << u"  "_s + istruzione + u';';
    }
    return righe.join(u'\n');
}

} // namespace

EsitoRegistro preparaRegistroDi(const QString& stringa)
{
    if (stringa.isEmpty())
        return {
            u"Manca la stringa di connessione dell'archivio: --database, --database-file o GIACENZA_DATABASE."_s,
            false};
    try {
        return {racconta(giacenza::preparaRegistro(giacenza::accessoTracciato(stringa))), true};
    } catch (const giacenza::ErroreDatabase& errore) {
        return {
            u"Il registro non si è potuto preparare. %1\n%2"_s.arg(giacenza::spiega(errore), errore.testo()),
            false};
    } catch (const giacenza::Errore& errore) {
        return {u"Il registro non si è potuto preparare. "_s + errore.testo(), false};
    }
}

} // namespace deposito
