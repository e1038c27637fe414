#include "fabbrica.h"

#include "ricercatabella.h"

std::unique_ptr<giacenza::ParteEsterna> FabbricaRicercaTabella::crea(const QString& nomeClasse)
{
    if (nomeClasse.compare(QString::fromUtf16(giacenza::classeRicercaTabella), Qt::CaseInsensitive) != 0)
        return nullptr;
    return std::make_unique<RicercaTabellaElenco>();
}
