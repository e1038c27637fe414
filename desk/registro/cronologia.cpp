#include "desk/registro/cronologia.h"

#include "data/istruzioniregistro.h"
#include "desk/registro/dedotti.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza::registro {

namespace {

using Lettore = Evento (*)(const Recordset&);

void leggi(Connessione& connessione, const QString& istruzione, Lettore lettore, std::vector<Evento>& eventi)
{
    Recordset righe;
    for (righe.apri(connessione, istruzione); !righe.eof(); righe.successivo())
        eventi.push_back(lettore(righe));
}

} // namespace

QString Presenza::mancanza() const
{
    const QString rimedio = u" Lo prepara chi amministra l'archivio, con \"deposito --prepara-registro\"."_s;
    if (!eventi)
        return u"In questo archivio il registro non c'è, o questo utente non lo vede: gli eventi sono quelli "
               u"che si "
               "ricavano dalle giacenze, senza ora e senza nome, e non si possono aggiungere note."_s +
               rimedio;
    if (!note)
        return u"In questo archivio manca la tabella delle note, o questo utente non la vede."_s + rimedio;
    return {};
}

Presenza presenzaRegistro(Connessione& connessione)
{
    const QStringList tabelle = connessione.tabelle();
    return {tabelle.contains(u"registro"_s, Qt::CaseInsensitive),
            tabelle.contains(u"registro_note"_s, Qt::CaseInsensitive)};
}

Cronologia leggiCronologia(Connessione& connessione, const ChiaveGiacenza& chiave)
{
    return leggiCronologia(connessione, chiave, presenzaRegistro(connessione));
}

Cronologia leggiCronologia(Connessione& connessione, const ChiaveGiacenza& chiave, const Presenza& presenza)
{
    Cronologia cronologia{presenza, {}};
    std::vector<Evento>& eventi = cronologia.eventi;
    if (presenza.eventi)
        leggi(connessione, istruzioni::eventiRegistro(chiave), eventoDelRegistro, eventi);
    const std::vector<Evento> registrati = eventi;
    if (presenza.note)
        leggi(connessione, istruzioni::noteRegistro(chiave), eventoDiNota, eventi);
    for (Evento& dedotto : eventiDedotti(connessione, chiave)) {
        const bool noto = std::any_of(registrati.begin(), registrati.end(),
                                      [&](const Evento& evento) { return loStesso(evento, dedotto); });
        if (!noto)
            eventi.push_back(std::move(dedotto));
    }
    std::stable_sort(eventi.begin(), eventi.end(),
                     [](const Evento& uno, const Evento& altro) { return uno.quando < altro.quando; });
    return cronologia;
}

} // namespace giacenza::registro
