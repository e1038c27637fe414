// The private server of tools/, and what data access does with a server that is not as it should be.

#include "backends/basi.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <csignal>

using namespace giacenza;
using namespace giacenza::prove;

class Servente : public testing::Test
{
protected:
    ~Servente() override
    {
        if (pid() > 0)
            kill(pid(), SIGCONT); // a test that failed may have left it stopped
        ferma();
    }

    void comanda(const QStringList& argomenti)
    {
        QProcess processo;
        processo.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        processo.start(QStringLiteral(GIACENZA_MARIADB_PRIVATO), argomenti);
        EXPECT_TRUE(processo.waitForFinished(120'000)) << processo.errorString().toStdString();
        EXPECT_EQ(processo.exitCode(), 0);
    }

    void avvia(const QStringList& opzioni = {})
    {
        comanda(QStringList{QStringLiteral("avvia"), mCartella.path()} + opzioni);
    }
    void ferma() { comanda({QStringLiteral("ferma"), mCartella.path()}); }

    /// A file that the script leaves; empty when it is not there.
    QString leggi(const QString& nome) const
    {
        QFile file(mCartella.filePath(nome));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).trimmed() : QString();
    }
    QString stringa() const { return leggi(QStringLiteral("amministratore")); }
    pid_t pid() const { return leggi(QStringLiteral("pid")).toInt(); }

    /// Never the group of this process, which is what a pid of 0 would mean.
    void manda(int segnale) const
    {
        ASSERT_GT(pid(), 0) << "il server non è partito";
        ASSERT_EQ(kill(pid(), segnale), 0);
    }

    /// Not by a signal: who ended and was not waited for still takes signals.
    static bool viva(pid_t processo)
    {
        QFile file(QStringLiteral("/proc/%1/cmdline").arg(processo));
        return file.open(QIODevice::ReadOnly) && !file.readAll().isEmpty();
    }

    /// Stops the server in its tracks; its threads stop one after the other, a moment later.
    void sospendi() const
    {
        ASSERT_NO_FATAL_FAILURE(manda(SIGSTOP));
        const QDir fili(QStringLiteral("/proc/%1/task").arg(pid()));
        const auto ferme = [&] {
            const QStringList nomi = fili.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
            return std::all_of(nomi.begin(), nomi.end(), [&](const QString& nome) {
                QFile stato(fili.filePath(nome + QStringLiteral("/stat")));
                return !stato.open(QIODevice::ReadOnly) || stato.readAll().contains(") T ");
            });
        };
        ASSERT_TRUE(QTest::qWaitFor(ferme));
    }

    QTemporaryDir mCartella{QDir::tempPath() + QStringLiteral("/prova servente XXXXXX")};
};

TEST_F(Servente, avviatoDueVolteEUnoFermatoDueVolteENessuno)
{
    avvia();
    const pid_t primo = pid();
    const QString stringaPrima = stringa();
    ASSERT_GT(primo, 0);
    EXPECT_TRUE(viva(primo));
    avvia();
    EXPECT_EQ(pid(), primo);
    EXPECT_EQ(stringa(), stringaPrima);
    EXPECT_TRUE(stringa().contains(QStringLiteral(";PORT=%1;").arg(leggi(QStringLiteral("porta")))));
    {
        Connessione connessione;
        connessione.apri(stringa());
        connessione.esegui(QStringLiteral("create database resta"));
    }
    ferma();
    EXPECT_FALSE(viva(primo));
    EXPECT_EQ(pid(), 0);
    ferma();
    avvia();
    Connessione connessione;
    connessione.apri(stringa());
    connessione.esegui(QStringLiteral("use resta"));
}

TEST_F(Servente, uccisoRiparte)
{
    avvia();
    ASSERT_NO_FATAL_FAILURE(manda(SIGKILL));
    ASSERT_TRUE(QTest::qWaitFor([this] { return !viva(pid()); }));
    avvia();
    Connessione connessione;
    connessione.apri(stringa());
    EXPECT_TRUE(connessione.aperta());
}

TEST_F(Servente, cheTaceNonTieneFermoNessuno)
{
    avvia();
    Connessione connessione;
    connessione.apri(stringa(), Limiti{.comando = 1, .connessione = 1});
    ASSERT_NO_FATAL_FAILURE(sospendi());
    const ErroreDatabase errore = erroreDi([&] { connessione.esegui(QStringLiteral("create database x")); });
    EXPECT_EQ(errore.sqlstate(), QStringLiteral("08S01"));
    EXPECT_EQ(errore.istruzione(), QStringLiteral("create database x"));
    EXPECT_FALSE(connessione.aperta());
    erroreDi([&] { connessione.apri(stringa(), Limiti{.comando = 1, .connessione = 1}); });
    EXPECT_FALSE(connessione.aperta());
    ASSERT_NO_FATAL_FAILURE(manda(SIGCONT));
    connessione.apri(stringa());
    EXPECT_TRUE(connessione.aperta());
}

TEST_F(Servente, cheDistingueLeMaiuscoleERifiutato)
{
    avvia({QStringLiteral("--lower-case-table-names=0")});
    Connessione connessione;
    const ErroreDatabase errore = erroreDi([&] { connessione.apri(stringa()); });
    EXPECT_EQ(errore.testo(),
              QStringLiteral("Il server MariaDB distingue maiuscole e minuscole nei nomi delle "
                             "tabelle. Va configurato con lower_case_table_names=1."));
    EXPECT_FALSE(connessione.aperta());
}
