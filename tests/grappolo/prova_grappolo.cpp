// Workstations at work on three servers that are one database, behind a balancer, while one is killed and
// comes back, and then one is frozen. Run by "./test cluster": it needs packages that no other test does.

#include "data/istruzioni.h"
#include "database/recordset.h"
#include "database/transazione.h"
#include "grappolo/controllo.h"
#include "support/bancadati.h"
#include "support/spedizioni.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QThread>

#include <array>
#include <thread>

using namespace Qt::StringLiterals;
using namespace giacenza;
using namespace giacenza::prove;

namespace {

constexpr int nodi = 3;

class Grappolo
{
public:
    /// attivi: "uno" or "tutti", the nodes to which the balancer sends.
    explicit Grappolo(const QString& attivi)
    {
        qputenv("GIACENZA_SERVER_PROPRIO", dir().toUtf8());
        attrezzo(u"grappolo-privato"_s, {u"avvia"_s, dir(), attivi});
    }
    Grappolo(const Grappolo&) = delete;
    Grappolo& operator=(const Grappolo&) = delete;
    ~Grappolo()
    {
        try {
            attrezzo(u"grappolo-privato"_s, {u"ferma"_s, dir()});
        } catch (const std::exception& errore) {
            ADD_FAILURE() << errore.what();
        }
        qunsetenv("GIACENZA_SERVER_PROPRIO");
    }

    void nodo(const QString& che, int quale) const
    {
        attrezzo(u"grappolo-privato"_s, {che, dir(), QString::number(quale)});
    }
    void aspetta() const { attrezzo(u"grappolo-privato"_s, {u"aspetta"_s, dir()}); }

    /// The way of an administrator to a database on one node, past the balancer.
    QString sulNodo(int quale, const QString& amministratore) const
    {
        QFile porta(dir() + u"/nodo%1/porta"_s.arg(quale));
        if (!porta.open(QIODevice::ReadOnly))
            throw std::runtime_error(porta.errorString().toStdString());
        static const QRegularExpression dellaPorta(u"PORT=\\d+"_s);
        return QString(amministratore)
            .replace(dellaPorta, u"PORT="_s + QString::fromLatin1(porta.readAll().trimmed()));
    }

private:
    QString dir() const { return mCartella.filePath(u"grappolo"_s); }

    QTemporaryDir mCartella{QStringLiteral(GIACENZA_CARTELLA_PROVE "/XXXXXX")};
};

QString primoValore(Connessione& connessione, const QString& istruzione)
{
    Recordset riga;
    riga.apri(connessione, istruzione);
    return riga.valore(0).value_or(QString());
}

/// gelato: the node that is frozen.
void lavora(const Grappolo& grappolo, int gelato)
{
    const BancaDati base("mariadb");
    const int postazioni = postazioniProva();
    const int secondi = secondiProva();
    riempiTurno(base, postazioni);
    Turno turno(base.stringa(), postazioni, secondi);
    turno.lavora({
        {secondi * 0.10, u"il nodo 1 muore"_s, [&] { grappolo.nodo(u"uccidi"_s, 1); }},
        {secondi * 0.25, u"il nodo 1 torna"_s, [&] { grappolo.nodo(u"riavvia"_s, 1); }},
        {secondi * 0.60, u"il nodo %1 si ferma"_s.arg(gelato), [&] { grappolo.nodo(u"gela"_s, gelato); }},
        {secondi * 0.80, u"il nodo %1 riprende"_s.arg(gelato), [&] { grappolo.nodo(u"sgela"_s, gelato); }},
    });
    grappolo.aspetta();
    const auto voci = turno.voci();
    for (int nodo = 1; nodo <= nodi; ++nodo)
        controllaArchivio(u"nodo %1"_s.arg(nodo),
                          grappolo.sulNodo(nodo, base.accessoAmministratore().stringa), voci);
    raccontaTurno(voci, postazioni, secondi);
}

/// As a depot sets it up: the node that everybody works on dies, comes back, and is frozen.
TEST(Grappolo, UnNodoPerTutti)
{
    const Grappolo grappolo(u"uno"_s);
    lavora(grappolo, 1);
}

/// Every node is written to at once: each save and each issue meets the others' in the certification.
TEST(Grappolo, TuttiINodiInsieme)
{
    const Grappolo grappolo(u"tutti"_s);
    lavora(grappolo, 3);
}

/// What one connection has written another one finds, on whichever node it is; and what a node waits for in
/// vain, since the group is not one just then, is tried again. A node tells that as a lock that is held for
/// too long: so is this one.
TEST(Grappolo, UnNodoAspettaGliAltri)
{
    const Grappolo grappolo(u"tutti"_s);
    const BancaDati base("mariadb");
    riempiDeposito(base);
    const QString amministratore = base.accessoAmministratore().stringa;
    std::array<Connessione, nodi> nodo;
    for (std::size_t i = 0; i < nodo.size(); ++i)
        nodo[i].apri(grappolo.sulNodo(static_cast<int>(i) + 1, amministratore));
    for (int numero = 42; numero < 242; ++numero) {
        auto& scrive = nodo[static_cast<std::size_t>(numero) % nodi];
        auto& legge = nodo[static_cast<std::size_t>(numero + 1) % nodi];
        scrive.esegui(istruzioni::aggiornaUltimoNumGiacenza(QString::number(numero)));
        ASSERT_EQ(primoValore(legge, istruzioni::ultimoNumGiacenza()), QString::number(numero));
    }

    Transazione tiene(nodo[0]);
    nodo[0].esegui(istruzioni::aggiornaUltimoNumGiacenza(u"500"_s));
    Connessione aspetta;
    aspetta.apri(grappolo.sulNodo(1, amministratore));
    aspetta.esegui(u"set session innodb_lock_wait_timeout=1"_s);
    std::thread lascia([&] {
        QThread::msleep(1500);
        tiene.conferma();
    });
    aspetta.esegui(istruzioni::aggiornaUltimoNumGiacenza(u"501"_s));
    lascia.join();
    EXPECT_EQ(primoValore(nodo[1], istruzioni::ultimoNumGiacenza()), u"501"_s);
}

} // namespace
