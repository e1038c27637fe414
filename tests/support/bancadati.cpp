#include "support/bancadati.h"

#include "data/archivio.h"
#include "schema/registro.h"
#include "schema/script.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <QUuid>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

namespace {

QString leggiFile(const QString& percorso, const char* perche)
{
    QFile file(percorso);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("Non si legge " + percorso.toStdString() + ": " + perche);
    return QString::fromUtf8(file.readAll());
}

QString fileSchema(const QString& nome)
{
    return leggiFile(QStringLiteral(GIACENZA_CARTELLA_SCHEMA "/") + nome, "lo schema del database manca.");
}

Connessione aperta(const QString& stringa)
{
    Connessione connessione;
    connessione.apri(accessoTracciato(stringa));
    return connessione;
}

} // namespace

/// How the databases of one kind are made and thrown away.
class BancaDati::Motore
{
public:
    Motore() = default;
    Motore(const Motore&) = delete;
    Motore& operator=(const Motore&) = delete;
    virtual ~Motore() = default;
    virtual QString stringa() const = 0;
    virtual QString stringaAmministratore() const = 0;
};

namespace {

class MotoreSqlite : public BancaDati::Motore
{
public:
    explicit MotoreSqlite(Contenuto contenuto)
    {
        if (!mCartella.isValid())
            throw std::runtime_error("Non si crea una cartella: " + mCartella.errorString().toStdString());
        Connessione connessione = aperta(MotoreSqlite::stringa());
        connessione.esegui(u"pragma journal_mode=wal"_s);
        // Nobody needs the tables of a test after a power cut.
        connessione.esegui(u"pragma synchronous=off"_s);
        if (contenuto == Contenuto::schema)
            eseguiTutte(connessione, fileSchema(u"sqlite.sql"_s));
    }

    QString stringa() const override
    {
        return u"DRIVER={SQLite3};Database=%1;StepAPI=1;Timeout=5000;FKSupport=1;LoadExt=%2"_s.arg(
            mCartella.filePath(u"prova.db"_s), QStringLiteral(GIACENZA_ESTENSIONE_SQLITE));
    }

    QString stringaAmministratore() const override { return stringa(); }

private:
    QTemporaryDir mCartella;
};

class MotoreMariadb : public BancaDati::Motore
{
public:
    explicit MotoreMariadb(Contenuto contenuto)
    {
        Connessione server = aperta(mServer);
        server.esegui(u"create database %1 character set utf8mb4"_s.arg(mNome));
        server.esegui(u"create user %1 identified by '%2'"_s.arg(utente(), mNome));
        server.esegui(u"use %1"_s.arg(mNome));
        if (contenuto == Contenuto::vuoto) {
            server.esegui(u"grant select, insert, update, delete on %1.* to %2"_s.arg(mNome, utente()));
            return;
        }
        eseguiTutte(server, fileSchema(u"mariadb.sql"_s));
        QString permessi = fileSchema(u"grants.sql"_s);
        permessi.replace(u":base"_s, u"`%1`"_s.arg(mNome));
        permessi.replace(u":utente"_s, utente());
        eseguiTutte(server, permessi);
    }

    ~MotoreMariadb() override
    {
        try {
            Connessione server = aperta(mServer);
            server.esegui(u"drop database %1"_s.arg(mNome));
            server.esegui(u"drop user %1"_s.arg(utente()));
        } catch (const Errore& errore) {
            ADD_FAILURE() << "Il database " << mNome.toStdString()
                          << " non si è potuto eliminare: " << errore.what();
        }
    }

    QString stringa() const override { return u"%1;UID=%2;PWD=%2;DATABASE=%2"_s.arg(senzaUtente(), mNome); }

    QString stringaAmministratore() const override { return u"%1;DATABASE=%2"_s.arg(mServer, mNome); }

private:
    QString utente() const { return u"'%1'@'127.0.0.1'"_s.arg(mNome); }

    QString senzaUtente() const
    {
        QStringList pezzi = mServer.split(u';');
        pezzi.removeIf(
            [](const QString& pezzo) { return pezzo.startsWith(u"UID="_s) || pezzo.startsWith(u"PWD="_s); });
        return pezzi.join(u';');
    }

    QString mServer = stringaServer();
    // Database, user and password: one name of this test alone.
    QString mNome = u"prova_"_s + QUuid::createUuid().toString(QUuid::Id128).left(16);
};

std::unique_ptr<BancaDati::Motore> creaMotore(const std::string& tipo, Contenuto contenuto)
{
    if (tipo == "sqlite")
        return std::make_unique<MotoreSqlite>(contenuto);
    if (tipo == "mariadb")
        return std::make_unique<MotoreMariadb>(contenuto);
    throw std::runtime_error("Un database di tipo \"" + tipo + "\" non esiste.");
}

} // namespace

QString stringaServer()
{
    // A test that brings its own server says where it is.
    const QString cartella =
        qEnvironmentVariable("GIACENZA_SERVER_PROPRIO", QStringLiteral(GIACENZA_CARTELLA_SERVER));
    return leggiFile(cartella + u"/amministratore"_s,
                     "il server MariaDB delle prove non è avviato. Lo avvia ctest, per le prove con "
                     "l'etichetta \"server\"; a mano: tools/mariadb-privato avvia " GIACENZA_CARTELLA_SERVER)
        .trimmed();
}

void eseguiTutte(Connessione& connessione, const QString& istruzioni)
{
    for (const QString& istruzione : istruzioniScript(istruzioni))
        connessione.esegui(istruzione);
}

BancaDati::BancaDati(const std::string& tipo, Contenuto contenuto) : mMotore(creaMotore(tipo, contenuto))
{
    if (contenuto == Contenuto::schema && qEnvironmentVariableIsSet("GIACENZA_PROVE_REGISTRO"))
        preparaRegistro(accessoAmministratore());
}

BancaDati::~BancaDati() = default;

QString BancaDati::stringa() const
{
    return mMotore->stringa();
}

Accesso BancaDati::accesso() const
{
    return accessoTracciato(stringa());
}

Accesso BancaDati::accessoAmministratore() const
{
    return accessoTracciato(mMotore->stringaAmministratore());
}

Connessione BancaDati::connessione() const
{
    return aperta(mMotore->stringa());
}

Connessione BancaDati::amministratore() const
{
    return aperta(mMotore->stringaAmministratore());
}

void BancaDati::esegui(const QString& istruzioni) const
{
    Connessione connessione = amministratore();
    eseguiTutte(connessione, istruzioni);
}

Valore BancaDati::leggi(const QString& istruzione) const
{
    Connessione connessione = amministratore();
    Recordset recordset;
    recordset.apri(connessione, istruzione);
    return recordset.valore(0);
}

QList<QStringList> BancaDati::righe(const QString& istruzione) const
{
    Connessione connessione = amministratore();
    Recordset recordset;
    QList<QStringList> tutte;
    for (recordset.apri(connessione, istruzione); !recordset.eof(); recordset.successivo()) {
        QStringList riga;
        for (int colonna = 0; colonna < recordset.colonne(); ++colonna)
            riga += recordset.valore(colonna).value_or(u"NULL"_s);
        tutte += riga;
    }
    return tutte;
}

} // namespace giacenza::prove
