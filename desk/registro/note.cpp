#include "desk/registro/note.h"

#include "data/istruzioniregistro.h"
#include "database/comando.h"

using namespace Qt::StringLiterals;

namespace giacenza::registro {

void aggiungiNota(Connessione& connessione, const ChiaveGiacenza& chiave, const QString& autore,
                  const QString& testo)
{
    const QString chi = autore.trimmed();
    const QString che = testo.trimmed();
    if (chi.isEmpty())
        throw Errore(u"Manca chi scrive la nota."_s);
    if (che.isEmpty())
        throw Errore(u"La nota è vuota."_s);
    if (chi.size() > lunghezzaAutore || che.size() > lunghezzaNota)
        throw Errore(
            u"La nota può avere %1 caratteri, chi la scrive %2."_s.arg(lunghezzaNota).arg(lunghezzaAutore));
    const Valore valori[] = {chiave.numero, QString::number(chiave.anno), chi, che};
    Comando(connessione, istruzioni::nuovaNota()).esegui(valori);
}

QString autoreProposto()
{
    for (const char* variabile : {"GIACENZA_UTENTE", "USER", "LOGNAME"})
        if (const QString nome = qEnvironmentVariable(variabile).trimmed(); !nome.isEmpty())
            return nome.left(lunghezzaAutore);
    return {};
}

} // namespace giacenza::registro
