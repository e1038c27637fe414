#pragma once

#include <QLocalServer>

namespace deposito {

/// One program for each user and settings file: a second start brings the first one's window up.
class IstanzaUnica : public QObject
{
    Q_OBJECT

public:
    /// fileIni: the settings that this start works with.
    explicit IstanzaUnica(const QString& fileIni, QObject* padre = nullptr);

    /// Asks the program that runs already to come up; false when none does.
    bool chiama() const;
    /// Listens from now on; false, and nothing is heard, when the system gives no place for it.
    bool ascolta();

Q_SIGNALS:
    /// Somebody has started the program again.
    void chiamata();

private:
    QString mNome;
    QLocalServer mServer;
};

} // namespace deposito
