#include <giacenza/Errore.h>
#include <giacenza/ParteEsterna.h>

using namespace Qt::StringLiterals;

class FabbricaCheLancia : public QObject, public giacenza::FabbricaParti
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GIACENZA_FABBRICA_PARTI_IID FILE "lancia.json")
    Q_INTERFACES(giacenza::FabbricaParti)

public:
    std::unique_ptr<giacenza::ParteEsterna> crea(const QString& nomeClasse) override
    {
        if (nomeClasse == u"Lancia.cIntero"_s)
            throw 5;
        throw giacenza::Errore(u"la stampante è spenta"_s);
    }
};

#include "lancia.moc"
