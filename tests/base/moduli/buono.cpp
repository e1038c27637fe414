#include <giacenza/ModuloStampa.h>

using namespace Qt::StringLiterals;

namespace {

class ModuloDiProva : public giacenza::ModuloStampa
{
public:
    void setPercorsoDatabase(const QString&) override {}
    void setPercorsoLogo(const QString&) override {}
    void setDidascalie(const std::array<QString, 4>&) override {}
    void setStampa(bool) override {}
    void setTipoDocumento(giacenza::TipoDocumento) override {}
    void stampaDocumento(const QString& chiave, bool& nonProdotto) override
    {
        nonProdotto = chiave == u"senza documento"_s;
    }
};

} // namespace

class FabbricaBuona : public QObject, public giacenza::FabbricaParti
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GIACENZA_FABBRICA_PARTI_IID FILE "buono.json")
    Q_INTERFACES(giacenza::FabbricaParti)

public:
    std::unique_ptr<giacenza::ParteEsterna> crea(const QString& nomeClasse) override
    {
        if (nomeClasse.compare(u"ReportDocProva.cModuliStampa"_s, Qt::CaseInsensitive) == 0 ||
            nomeClasse.compare(u"Doppia.cClasse"_s, Qt::CaseInsensitive) == 0)
            return std::make_unique<ModuloDiProva>();
        return nullptr;
    }
};

#include "buono.moc"
