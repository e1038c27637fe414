#include <giacenza/ParteEsterna.h>

// Defined nowhere: the file cannot be loaded.
extern int simboloCheManca;

class FabbricaMutila : public QObject, public giacenza::FabbricaParti
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GIACENZA_FABBRICA_PARTI_IID FILE "mutilo.json")
    Q_INTERFACES(giacenza::FabbricaParti)

public:
    std::unique_ptr<giacenza::ParteEsterna> crea(const QString&) override
    {
        ++simboloCheManca;
        return nullptr;
    }
};

#include "mutilo.moc"
