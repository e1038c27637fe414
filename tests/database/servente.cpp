// The private server of tools/, and what data access does with a server that is not as it should be.

#include "database/basi.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <csignal>

using namespace Qt::StringLiterals;

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
        comanda(QStringList{u"avvia"_s, mCartella.path()} + opzioni);
    }
    void ferma() { comanda({u"ferma"_s, mCartella.path()}); }

    /// A file that the script leaves; empty when it is not there.
    QString leggi(const QString& nome) const
    {
        QFile file(mCartella.filePath(nome));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).trimmed() : QString();
    }
    QString stringa() const { return leggi(u"amministratore"_s); }
    pid_t pid() const { return leggi(u"pid"_s).toInt(); }

    /// Never the group of this process, which is what a pid of 0 would mean.
    void manda(int segnale) const
    {
        ASSERT_GT(pid(), 0) << "il server non è partito";
        ASSERT_EQ(kill(pid(), segnale), 0);
    }

    /// Not by a signal: who ended and was not waited for still takes signals.
    static bool viva(pid_t processo)
    {
        QFile file(u"/proc/%1/cmdline"_s.arg(processo));
        return file.open(QIODevice::ReadOnly) && !file.readAll().isEmpty();
    }

    /// Stops the server in its tracks; its threads stop one after the other, a moment later.
    void sospendi() const
    {
        ASSERT_NO_FATAL_FAILURE(manda(SIGSTOP));
        const QDir fili(u"/proc/%1/task"_s.arg(pid()));
        const auto ferme = [&] {
            const QStringList nomi = fili.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
            return std::all_of(nomi.begin(), nomi.end(), [&](const QString& nome) {
                QFile stato(fili.filePath(nome + u"/stat"_s));
                return !stato.open(QIODevice::ReadOnly) || stato.readAll().contains(") T ");
            });
        };
        ASSERT_TRUE(QTest::qWaitFor(ferme));
    }

    QTemporaryDir mCartella{QDir::tempPath() + u"/prova servente XXXXXX"_s};
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
    EXPECT_TRUE(stringa().contains(u";PORT=%1;"_s.arg(leggi(u"porta"_s))));
    {
        Connessione connessione;
        connessione.apri(stringa());
        connessione.esegui(u"create database resta"_s);
    }
    ferma();
    EXPECT_FALSE(viva(primo));
    EXPECT_EQ(pid(), 0);
    ferma();
    avvia();
    Connessione connessione;
    connessione.apri(stringa());
    connessione.esegui(u"use resta"_s);
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
    // Of a server that has just started.
    connessione.apri(stringa(), Limiti{.comando = 1, .connessione = 4});
    ASSERT_NO_FATAL_FAILURE(sospendi());
    const ErroreDatabase errore = erroreDi([&] { connessione.esegui(u"create database x"_s); });
    EXPECT_EQ(errore.sqlstate(), u"08S01"_s);
    EXPECT_EQ(errore.istruzione(), u"create database x"_s);
    EXPECT_FALSE(connessione.aperta());
    erroreDi([&] { connessione.apri(stringa(), Limiti{.comando = 1, .connessione = 1}); });
    EXPECT_FALSE(connessione.aperta());
    ASSERT_NO_FATAL_FAILURE(manda(SIGCONT));
    connessione.apri(stringa());
    EXPECT_TRUE(connessione.aperta());
}

TEST_F(Servente, cheDistingueLeMaiuscoleERifiutato)
{
    avvia({u"--lower-case-table-names=0"_s});
    Connessione connessione;
    const ErroreDatabase errore = erroreDi([&] { connessione.apri(stringa()); });
    EXPECT_EQ(errore.testo(), u"Il server MariaDB distingue maiuscole e minuscole nei nomi delle "
                              "tabelle. Va configurato con lower_case_table_names=1."_s);
    EXPECT_FALSE(connessione.aperta());
}
