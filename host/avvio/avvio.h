#pragma once

#include "host/avvio/portachiavi.h"
#include "host/avvio/provaarchivio.h"

#include <functional>
#include <optional>

class QSettings;
class QWidget;

namespace deposito {

/// The archive that the program works on: what the operator chose the last time, or is asked for now.
class Avvio
{
public:
    /// What is asked of the operator; tests answer by themselves.
    struct Domande
    {
        /// A choice and the password that goes with it; nothing when the operator gave up.
        using Scelta = std::optional<std::pair<SceltaArchivio, QString>>;

        std::function<Scelta(const SceltaArchivio& presente, bool conPortachiavi, QWidget* padre)> archivio;
        std::function<std::optional<QString>(const SceltaArchivio& scelta, const QString& perche,
                                             QWidget* padre)>
            parola;
        std::function<void(const QString& testo, QWidget* padre)> avverti;
    };
    /// The dialogs.
    static Domande finestre();

    /// Both outlive this object.
    Avvio(QSettings& impostazioni, Portachiavi& portachiavi, Domande domande = finestre());

    /// The connection string of what was chosen the last time, whose password is asked for when nothing keeps
    /// it; the choice itself when there was none, or when it cannot be used any more. Nothing when the
    /// operator gave up.
    std::optional<QString> archivio(QWidget* padre);
    /// Asks anew, with the last choice preset, and remembers the answer.
    std::optional<QString> scegli(QWidget* padre);

private:
    std::optional<QString> parolaRicordata(const SceltaArchivio& scelta, QWidget* padre);
    void custodisci(const SceltaArchivio& prima, const SceltaArchivio& scelta, const QString& parola,
                    QWidget* padre);
    bool pronta(const SceltaArchivio& scelta, QWidget* padre) const;

    QSettings& mImpostazioni;
    Portachiavi& mPortachiavi;
    Domande mDomande;
};

} // namespace deposito
