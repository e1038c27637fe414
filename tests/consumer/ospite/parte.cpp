#include <giacenza/RicercaTabella.h>

namespace {

class RicercaDiProva : public giacenza::RicercaTabella
{
public:
    void setPercorsoDatabase(const QString&) override {}
    void setScelta(Scelta scelta) override { mScelta = std::move(scelta); }
    void mostra(const QString& istruzione, const QString&, QWidget*) override { mScelta({istruzione}); }

private:
    Scelta mScelta;
};

} // namespace

class FabbricaDiProva : public QObject, public giacenza::FabbricaParti
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GIACENZA_FABBRICA_PARTI_IID FILE "parte.json")
    Q_INTERFACES(giacenza::FabbricaParti)

public:
    std::unique_ptr<giacenza::ParteEsterna> crea(const QString&) override
    {
        return std::make_unique<RicercaDiProva>();
    }
};

#include "parte.moc"
