#include <giacenza/LettoreIni.h>

using namespace Qt::StringLiterals;

namespace {

class LettoreDiProva : public giacenza::LettoreIni
{
public:
    QString leggi(const QString&, const QString& sezione, const QString& chiave) override
    {
        return u"dal modulo: %1/%2"_s.arg(sezione, chiave);
    }
};

} // namespace

class FabbricaLettore : public QObject, public giacenza::FabbricaParti
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GIACENZA_FABBRICA_PARTI_IID FILE "lettore.json")
    Q_INTERFACES(giacenza::FabbricaParti)

public:
    std::unique_ptr<giacenza::ParteEsterna> crea(const QString& nomeClasse) override
    {
        if (nomeClasse.compare(QStringView(giacenza::classeLettoreIni), Qt::CaseInsensitive) == 0)
            return std::make_unique<LettoreDiProva>();
        return nullptr;
    }
};

#include "lettore.moc"
