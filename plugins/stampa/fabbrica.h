#pragma once

#include <giacenza/ParteEsterna.h>

namespace giacenza::stampa {

/// The root of the plug-in file: makes print modules of identifier "Deposito".
class Fabbrica : public QObject, public FabbricaParti
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GIACENZA_FABBRICA_PARTI_IID FILE "stampa.json")
    Q_INTERFACES(giacenza::FabbricaParti)

public:
    std::unique_ptr<ParteEsterna> crea(const QString& nomeClasse) override;
};

} // namespace giacenza::stampa
