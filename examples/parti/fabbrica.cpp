#include "emittente.h"
#include "modulo.h"
#include "ricerca.h"

class FabbricaEsempio : public QObject, public giacenza::FabbricaParti
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GIACENZA_FABBRICA_PARTI_IID FILE "parti.json")
    Q_INTERFACES(giacenza::FabbricaParti)

public:
    std::unique_ptr<giacenza::ParteEsterna> crea(const QString& nomeClasse) override
    {
        const auto chiesta = [&](const QString& nome) {
            return nomeClasse.compare(nome, Qt::CaseInsensitive) == 0;
        };
        if (chiesta(QStringLiteral("ReportDocEsempio.cModuliStampa")))
            return std::make_unique<ModuloEsempio>();
        if (chiesta(QString::fromUtf16(giacenza::classeEmittenteLdv)))
            return std::make_unique<EmittenteEsempio>();
        if (chiesta(QString::fromUtf16(giacenza::classeRicercaTabella)))
            return std::make_unique<RicercaEsempio>();
        return nullptr;
    }
};

#include "fabbrica.moc"
