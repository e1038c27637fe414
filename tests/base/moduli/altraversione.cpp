#include <QObject>

class FabbricaDiAltraVersione : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "giacenza.FabbricaParti/0" FILE "altraversione.json")
};

#include "altraversione.moc"
