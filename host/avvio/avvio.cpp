#include "host/avvio/avvio.h"

#include "base/messaggi.h"
#include "host/avvio/dimostrazione.h"
#include "host/avvio/frmArchivio.h"

#include <QFile>
#include <QInputDialog>
#include <QLineEdit>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace deposito {

namespace {

const QString voceInChiaro = u"archivio/parolaInChiaro"_s;

/// Writes the password into the settings, whose file nobody else may read any more from before it stands
/// there. False, and nothing is written, where the system does not let it.
bool scriviInChiaro(QSettings& impostazioni, const QString& parola)
{
    impostazioni.sync();
    if (!QFile::setPermissions(impostazioni.fileName(), QFile::ReadOwner | QFile::WriteOwner))
        return false;
    impostazioni.setValue(voceInChiaro, parola);
    impostazioni.sync();
    return impostazioni.status() == QSettings::NoError;
}

} // namespace

Avvio::Domande Avvio::finestre()
{
    return {.archivio = [](const SceltaArchivio& presente, bool conPortachiavi,
                           QWidget* padre) -> Domande::Scelta {
                frmArchivio domanda(presente, conPortachiavi, padre);
                if (domanda.exec() != QDialog::Accepted)
                    return std::nullopt;
                return std::pair(domanda.scelta(), domanda.parola());
            },
            .parola = [](const SceltaArchivio& scelta, const QString& perche,
                         QWidget* padre) -> std::optional<QString> {
                bool data = false;
                const QString testo = u"%1Parola d'ordine di %2 per l'archivio %3 su %4:"_s.arg(
                    perche.isEmpty() ? QString() : perche + u"\n\n"_s, scelta.utente, scelta.base,
                    scelta.server);
                const QString parola =
                    QInputDialog::getText(padre, u"Archivio"_s, testo, QLineEdit::Password, {}, &data);
                return data ? std::optional(parola) : std::nullopt;
            },
            .avverti =
                [](const QString& testo, QWidget* padre) {
                    giacenza::mostraMessaggio(padre, {testo, giacenza::Stile::avviso, u"Archivio"_s});
                }};
}

Avvio::Avvio(QSettings& impostazioni, Portachiavi& portachiavi, Domande domande)
    : mImpostazioni(impostazioni), mPortachiavi(portachiavi), mDomande(std::move(domande))
{}

std::optional<QString> Avvio::archivio(QWidget* padre)
{
    const auto ricordata = sceltaRicordata(mImpostazioni);
    if (!ricordata)
        return scegli(padre);
    if (const QString manca = mancanza(*ricordata); !manca.isEmpty()) {
        mDomande.avverti(manca, padre);
        return scegli(padre);
    }
    if (!pronta(*ricordata, padre))
        return scegli(padre);
    if (ricordata->tipo != TipoArchivio::server)
        return stringaOdbc(*ricordata, {});
    const auto parola = parolaRicordata(*ricordata, padre);
    return parola ? std::optional(stringaOdbc(*ricordata, *parola)) : scegli(padre);
}

std::optional<QString> Avvio::scegli(QWidget* padre)
{
    const SceltaArchivio presente = sceltaRicordata(mImpostazioni).value_or(SceltaArchivio());
    // A store that is there answers, also that it has nothing.
    const bool conPortachiavi = !mPortachiavi.leggi(nomeParola(presente)).assente;
    while (const auto risposta = mDomande.archivio(presente, conPortachiavi, padre)) {
        const auto& [scelta, parola] = *risposta;
        if (!pronta(scelta, padre))
            continue;
        ricordaScelta(mImpostazioni, scelta);
        custodisci(presente, scelta, parola, padre);
        return stringaOdbc(scelta, parola);
    }
    return std::nullopt;
}

std::optional<QString> Avvio::parolaRicordata(const SceltaArchivio& scelta, QWidget* padre)
{
    QString perche;
    if (scelta.custodia == CustodiaParola::inChiaro && mImpostazioni.contains(voceInChiaro))
        return mImpostazioni.value(voceInChiaro).toString();
    if (scelta.custodia == CustodiaParola::portachiavi) {
        const EsitoPortachiavi letta = mPortachiavi.leggi(nomeParola(scelta));
        if (letta.riuscito)
            return letta.parola;
        perche = letta.motivo;
    }
    return mDomande.parola(scelta, perche, padre);
}

/// Keeps the password as it was chosen, and takes away what an earlier choice had kept.
void Avvio::custodisci(const SceltaArchivio& prima, const SceltaArchivio& scelta, const QString& parola,
                       QWidget* padre)
{
    mImpostazioni.remove(voceInChiaro);
    if (prima.custodia == CustodiaParola::portachiavi &&
        (scelta.custodia != CustodiaParola::portachiavi || nomeParola(prima) != nomeParola(scelta)))
        mPortachiavi.togli(nomeParola(prima));
    if (scelta.tipo != TipoArchivio::server)
        return;
    if (scelta.custodia == CustodiaParola::inChiaro && !scriviInChiaro(mImpostazioni, parola))
        mDomande.avverti(
            u"La parola d'ordine non è stata ricordata: al prossimo avvio verrà chiesta. Il file "
            "delle impostazioni non si può chiudere agli altri utenti: %1"_s.arg(mImpostazioni.fileName()),
            padre);
    if (scelta.custodia != CustodiaParola::portachiavi)
        return;
    const EsitoPortachiavi esito = mPortachiavi.scrivi(nomeParola(scelta), parola);
    if (!esito.riuscito)
        mDomande.avverti(u"La parola d'ordine non è stata ricordata: al prossimo avvio verrà chiesta. "_s +
                             esito.motivo,
                         padre);
}

bool Avvio::pronta(const SceltaArchivio& scelta, QWidget* padre) const
{
    if (scelta.tipo != TipoArchivio::dimostrazione)
        return true;
    const QString motivo = preparaDimostrazione(fileDimostrazione(), padre);
    if (!motivo.isEmpty())
        mDomande.avverti(motivo, padre);
    return motivo.isEmpty();
}

} // namespace deposito
