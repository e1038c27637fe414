#pragma once

#include <giacenza/ParteEsterna.h>

namespace giacenza::emissione {

/// The root of the plug-in file: makes waybill issuers.
class Fabbrica : public QObject, public FabbricaParti
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GIACENZA_FABBRICA_PARTI_IID FILE "emissione.json")
    Q_INTERFACES(giacenza::FabbricaParti)

public:
    std::unique_ptr<ParteEsterna> crea(const QString& nomeClasse) override;
};

} // namespace giacenza::emissione
