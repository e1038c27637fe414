// What trying an archive says, on archives that lack one thing each.

#include "host/avvio/provaarchivio.h"
#include "support/bancadati.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <unistd.h>

using namespace deposito;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;

namespace {

const QString bene = u"L'archivio risponde, le tabelle ci sono e l'utente può lavorarci."_s;

QString campo(const QString& stringa, const QString& nome)
{
    return stringa.section(nome + u'=', 1).section(u';', 0, 0);
}

/// The choice and the password that a connection string of the tests' server stands for.
std::pair<SceltaArchivio, QString> comeScelta(const QString& stringa)
{
    SceltaArchivio scelta;
    scelta.tipo = TipoArchivio::server;
    scelta.server = campo(stringa, u"SERVER"_s);
    scelta.porta = campo(stringa, u"PORT"_s).toInt();
    scelta.base = campo(stringa, u"DATABASE"_s);
    scelta.utente = campo(stringa, u"UID"_s);
    return {scelta, campo(stringa, u"PWD"_s)};
}

TEST(ProvaArchivio, UnServerCheHaTuttoVaBene)
{
    const BancaDati base("mariadb");
    const auto [scelta, parola] = comeScelta(base.stringa());
    const EsitoProva esito = provaArchivio(scelta, parola);
    EXPECT_EQ(esito.testo, bene) << esito.dettaglio.toStdString();
    EXPECT_TRUE(esito.riuscita);
}

TEST(ProvaArchivio, DelServerSiDiceCheCosaNonVa)
{
    const BancaDati base("mariadb");
    const auto [scelta, parola] = comeScelta(base.stringa());
    EsitoProva esito = provaArchivio(scelta, u"un'altra"_s);
    EXPECT_EQ(esito.testo,
              u"Il server ha rifiutato il nome o la parola d'ordine. Controllare l'utente e la parola "
              "d'ordine, e che il server li accetti da questo computer."_s);
    EXPECT_FALSE(esito.dettaglio.isEmpty());
    SceltaArchivio altra = scelta;
    altra.porta = 1;
    EXPECT_EQ(
        provaArchivio(altra, parola).testo,
        u"Il server dell'archivio non risponde. Controllare che il server sia acceso, il nome, la porta e la rete."_s);
    const QString postazione =
        base.righe(u"select host from mysql.user where user='%1'"_s.arg(scelta.utente)).value(0).value(0);
    base.esegui(u"create database vuota_%1"_s.arg(scelta.base));
    base.esegui(u"grant select on vuota_%1.* to '%2'@'%3'"_s.arg(scelta.base, scelta.utente, postazione));
    altra = scelta;
    altra.base = u"vuota_"_s + scelta.base;
    esito = provaArchivio(altra, parola);
    EXPECT_TRUE(
        esito.testo.startsWith(u"Nell'archivio mancano, o questo utente non le vede, le tabelle: letve00f"_s))
        << esito.testo.toStdString();
    EXPECT_TRUE(esito.testo.endsWith(u"Si creano con schema/mariadb.sql o schema/sqlite.sql."_s));
    base.esegui(u"drop database vuota_%1"_s.arg(scelta.base));
}

TEST(ProvaArchivio, UnDirittoCheMancaSiNomina)
{
    const BancaDati base("mariadb");
    auto [scelta, parola] = comeScelta(base.stringa());
    base.esegui(u"create user 'lettore'@'%' identified by 'strana;{}parola= x'"_s);
    base.esegui(u"grant select on %1.* to 'lettore'@'%'"_s.arg(scelta.base));
    scelta.utente = u"lettore"_s;
    const EsitoProva esito = provaArchivio(scelta, u"strana;{}parola= x"_s);
    base.esegui(u"drop user 'lettore'@'%'"_s);
    EXPECT_EQ(esito.testo,
              u"L'utente non può registrare giacenze: chiedere a chi amministra l'archivio di dargli i "
              "diritti di schema/grants.sql."_s)
        << esito.dettaglio.toStdString();
    EXPECT_TRUE(esito.dettaglio.contains(u"1142"_s)) << esito.dettaglio.toStdString();
}

TEST(ProvaArchivio, UnFile)
{
    const BancaDati base("sqlite");
    EXPECT_EQ(provaStringa(base.stringa()).testo, bene);
    const BancaDati vuota("sqlite", Contenuto::vuoto);
    EXPECT_TRUE(provaStringa(vuota.stringa()).testo.startsWith(u"Nell'archivio mancano"_s));
    QTemporaryDir cartella;
    QFile altro(cartella.filePath(u"lettera.txt"_s));
    ASSERT_TRUE(altro.open(QIODevice::WriteOnly));
    altro.write(QByteArray("Gentile cliente, ").repeated(200));
    altro.close();
    SceltaArchivio scelta;
    scelta.tipo = TipoArchivio::file;
    scelta.file = altro.fileName();
    EXPECT_EQ(provaArchivio(scelta, {}).testo, u"Il file indicato non è un archivio."_s);
}

/// What a file's permissions say holds for everybody but the administrator: where the tests are his, they ask
/// for an account that is nobody's.
class ComeUnUtente
{
public:
    ComeUnUtente() : mAmministratore(geteuid() == 0)
    {
        constexpr uid_t nessuno = 65534;
        if (mAmministratore && setreuid(nessuno, 0) != 0)
            throw std::runtime_error("the account of the tests cannot be left");
    }
    ~ComeUnUtente()
    {
        if (mAmministratore) {
            EXPECT_EQ(setreuid(0, 0), 0);
        }
    }

private:
    bool mAmministratore;
};

TEST(ProvaArchivio, UnFileOUnaCartellaInCuiNonSiScriveSiDice)
{
    QTemporaryDir cartella;
    QFile file(cartella.filePath(u"deposito.db"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)); // an empty one is an archive without tables
    file.close();
    const auto tutti = QFile::ReadUser | QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther |
                       QFile::ExeUser | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
    const auto scrivono = QFile::WriteUser | QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    SceltaArchivio scelta;
    scelta.tipo = TipoArchivio::file;
    scelta.file = file.fileName();
    const auto prova = [&](QFile::Permissions cartellaCon, QFile::Permissions fileCon) {
        EXPECT_TRUE(QFile::setPermissions(file.fileName(), fileCon));
        EXPECT_TRUE(QFile::setPermissions(cartella.path(), cartellaCon));
        const ComeUnUtente utente;
        return provaArchivio(scelta, {}).testo;
    };
    EXPECT_EQ(prova(tutti | scrivono, tutti),
              u"Il file dell'archivio si può solo leggere: chiedere a chi amministra il computer di poterci "
              "scrivere. È %1"_s.arg(scelta.file));
    EXPECT_EQ(prova(tutti, tutti | scrivono),
              u"Nella cartella dell'archivio non si può scrivere, e l'archivio ne ha bisogno: chiedere a chi "
              "amministra il computer di poterci scrivere. È %1"_s.arg(cartella.path()));
    EXPECT_THAT(prova(tutti | scrivono, tutti | scrivono).toStdString(),
                testing::StartsWith("Nell'archivio mancano"));
}

TEST(ProvaArchivio, SenzaLEstensioneSiDice)
{
    const BancaDati base("sqlite");
    QString stringa = base.stringa();
    stringa.truncate(stringa.indexOf(u";LoadExt"_s));
    const EsitoProva esito = provaStringa(stringa);
    EXPECT_EQ(esito.testo,
              u"Il driver di SQLite non ha caricato l'estensione del programma, libgiacenza_sqlite: le "
              "schermate non lavorerebbero. Reinstallare il programma, o dirne il percorso con LoadExt nella "
              "stringa di connessione."_s);
    EXPECT_FALSE(esito.riuscita);
    EXPECT_FALSE(esito.dettaglio.isEmpty());
}

TEST(ProvaArchivio, SenzaDriverSiDiceQualePacchettoLoPorta)
{
    EXPECT_EQ(provaStringa(u"DRIVER={Inesistente};SERVER=s"_s).testo,
              u"Manca il driver ODBC dell'archivio. Installare odbc-mariadb per un server MariaDB, "
              u"libsqliteodbc per un "
              "file."_s);
}

} // namespace
