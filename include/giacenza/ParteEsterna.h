/// @file
/// Parts from outside: how they are made, registered and found.
#pragma once

#include <giacenza/esporta.h>

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

namespace giacenza {

/// A component from outside, found by its class name: a print module, a waybill issuer, a table search, a
/// settings reader. The interfaces derive from it; who asks for a part asks the object for the interface it
/// needs.
class GIACENZA_EXPORT ParteEsterna
{
public:
    ParteEsterna() = default;
    ParteEsterna(const ParteEsterna&) = delete;
    ParteEsterna& operator=(const ParteEsterna&) = delete;
    virtual ~ParteEsterna() = default;
};

/// Makes one new object of a class; may throw giacenza::Errore.
using FabbricaParte = std::function<std::unique_ptr<ParteEsterna>()>;

/// Registers, for this process, who makes the objects of a class. It wins over every plug-in file.
///
/// nomeClasse: the whole class name, "ReportDocDeposito.cModuliStampa"; compared without case.
/// fabbrica: who makes one; an empty function takes the registration away.
GIACENZA_EXPORT void registraParte(const QString& nomeClasse, FabbricaParte fabbrica);

/// What the root object of a plug-in file implements. The file's metadata holds the class names it serves, so
/// that a file is loaded only when one of them is asked for:  { "classi": ["ReportDocDeposito.cModuliStampa"]
/// }
class GIACENZA_EXPORT FabbricaParti
{
public:
    FabbricaParti() = default;
    FabbricaParti(const FabbricaParti&) = delete;
    FabbricaParti& operator=(const FabbricaParti&) = delete;
    virtual ~FabbricaParti() = default;

    /// A new object of the class, or nothing when the class is not one of this file's; may throw
    /// giacenza::Errore.
    virtual std::unique_ptr<ParteEsterna> crea(const QString& nomeClasse) = 0;
};

} // namespace giacenza

/// The number of the interface between component and plug-in files, for Q_PLUGIN_METADATA: a file made for
/// another is not loaded.
#define GIACENZA_FABBRICA_PARTI_IID "giacenza.FabbricaParti/1"
Q_DECLARE_INTERFACE(giacenza::FabbricaParti, GIACENZA_FABBRICA_PARTI_IID)
