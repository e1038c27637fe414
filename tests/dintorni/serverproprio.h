#pragma once

#include <QString>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

/// A MariaDB server of the test's own, in a folder; ends with it. While it lives the databases of the tests
/// are its own.
class ServerProprio
{
public:
    /// cartella: made when it is missing. Starting that fails throws std::runtime_error.
    explicit ServerProprio(QString cartella);
    ServerProprio(const ServerProprio&) = delete;
    ServerProprio& operator=(const ServerProprio&) = delete;
    ~ServerProprio();

    QString porta() const;

    /// It answers nobody, and its connections stay open.
    void gela() const { comanda(u"gela"_s); }
    void sgela() const { comanda(u"sgela"_s); }
    /// Ends it as a power cut does.
    void uccidi() const { comanda(u"uccidi"_s); }
    /// Starts it again: on the port of before, on one that it was given, or on any other than the one of
    /// before.
    void riavvia() const { comanda(u"avvia"_s); }
    void riavviaSu(const QString& porta) const;
    void riavviaAltrove() const;

    /// A connection string as it is for another port, of a workstation that waits so many seconds for an
    /// answer.
    static QString stringa(const QString& base, const QString& porta, int secondi);

private:
    bool prova(const QString& comando) const;
    void comanda(const QString& comando) const;
    QString file(const QString& nome) const { return mCartella + u'/' + nome; }

    QString mCartella;
};

} // namespace giacenza::prove
