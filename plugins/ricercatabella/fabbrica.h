#pragma once

#include <giacenza/ParteEsterna.h>

/// The root object of the plug-in file.
class FabbricaRicercaTabella : public QObject, public giacenza::FabbricaParti
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GIACENZA_FABBRICA_PARTI_IID FILE "ricercatabella.json")
    Q_INTERFACES(giacenza::FabbricaParti)

public:
    std::unique_ptr<giacenza::ParteEsterna> crea(const QString& nomeClasse) override;
};
