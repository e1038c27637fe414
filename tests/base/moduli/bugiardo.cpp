#include <giacenza/ParteEsterna.h>

/// Says in its metadata that it makes parts, and its root object makes none.
class FabbricaBugiarda : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GIACENZA_FABBRICA_PARTI_IID FILE "bugiardo.json")
};

#include "bugiardo.moc"
