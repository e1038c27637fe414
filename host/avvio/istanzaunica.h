#pragma once

#include <QLocalServer>

namespace deposito {

/// One program for each user and settings file: a second start brings the first one's window up.
class IstanzaUnica : public QObject
{
    Q_OBJECT

public:
    /// fileIni: the settings that this start works with. archivio: the connection string of what it works on,
    /// as far as that is known: another archive is another program. Its password makes no difference.
    explicit IstanzaUnica(const QString& fileIni, const QString& archivio = {}, QObject* padre = nullptr);

    /// Asks the program that runs already to come up; false when none does.
    bool chiama() const;
    /// The archive is another one, or known only now; true when the program goes by another name for it,
    /// under which it does not listen yet.
    bool cambia(const QString& archivio);
    /// No longer heard: the next start is on its own.
    void taci();
    /// Listens from now on; false, and nothing is heard, when the system gives no place for it.
    bool ascolta();

Q_SIGNALS:
    /// Somebody has started the program again.
    void chiamata();

private:
    QString nome(const QString& archivio) const;

    QString mFileIni;
    QString mNome;
    QLocalServer mServer;
};

} // namespace deposito
