#include <giacenza/Errore.h>
#include <giacenza/ParteEsterna.h>

class FabbricaCheLancia : public QObject, public giacenza::FabbricaParti
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GIACENZA_FABBRICA_PARTI_IID FILE "lancia.json")
    Q_INTERFACES(giacenza::FabbricaParti)

public:
    std::unique_ptr<giacenza::ParteEsterna> crea(const QString& nomeClasse) override
    {
        if (nomeClasse == QStringLiteral("Lancia.cIntero"))
            throw 5;
        throw giacenza::Errore(QStringLiteral("la stampante è spenta"));
    }
};

#include "lancia.moc"
