#include "data/archivio.h"

#include "base/impostazioni.h"
#include "database/stringaconnessione.h"

#include <QFileInfo>
#include <QStringList>

#include <utility>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

thread_local Traccia tracciaCorrente;

void racconta(EventoDati evento, const QString& testo)
{
    if (!tracciaCorrente)
        return;
    // A copy: the tracer may take itself away while it runs.
    const Traccia chiamata = tracciaCorrente;
    chiamata(evento, testo);
}

} // namespace

Accesso accessoHost()
{
    const QString& stringa = impostazioni().percorsoDatabase;
    const QString file = fileSqlite(stringa);
    if (!file.isEmpty() && !QFileInfo::exists(file))
        throw ErroreDatabase(u"08001"_s, 0, u"Il file dell'archivio non c'è: %1"_s.arg(file));
    return accessoTracciato(stringa);
}

void verificaTabelle(Connessione& connessione)
{
    QStringList presenti = connessione.tabelle();
    for (QString& tabella : presenti)
        tabella = tabella.toLower();
    QStringList mancanti;
    for (const QString& tabella :
         {u"letve00f"_s, u"giace00f"_s, u"clien"_s, u"filiali"_s, u"forni"_s, u"codicizona"_s,
          u"tabfatturazione"_s, u"porto"_s, u"ekelvorqzt_tabge00f"_s})
        if (!presenti.contains(tabella))
            mancanti << tabella;
    if (!mancanti.isEmpty())
        throw ErroreDatabase(u"42S02"_s, 0,
                             u"Nell'archivio mancano, o questo utente non le vede, le tabelle: %1"_s.arg(
                                 mancanti.join(u", "_s)));
}

Accesso accessoTracciato(const QString& stringa)
{
    return {stringa, racconta};
}

Traccia impostaTraccia(Traccia traccia)
{
    return std::exchange(tracciaCorrente, std::move(traccia));
}

} // namespace giacenza
