#include "data/traccia.h"

#include "backends/basi.h"
#include "data/transazione.h"

using namespace giacenza;
using namespace giacenza::prove;

namespace {

QString nome(EventoDati evento)
{
    switch (evento) {
    case EventoDati::apertura:
        return QStringLiteral("apertura");
    case EventoDati::istruzione:
        return QStringLiteral("istruzione");
    case EventoDati::inizio:
        return QStringLiteral("inizio");
    case EventoDati::conferma:
        return QStringLiteral("conferma");
    case EventoDati::annullo:
        return QStringLiteral("annullo");
    case EventoDati::chiusura:
        return QStringLiteral("chiusura");
    }
    return {};
}

} // namespace

class Tracciati : public Basi
{
protected:
    Tracciati()
    {
        creaTabella();
        impostaTraccia([this](EventoDati evento, const QString& testo) {
            mEventi += testo.isEmpty() ? nome(evento) : testo;
            if (mGuasto == evento)
                throw ErroreDatabase(mStato, 7, QStringLiteral("guasto di prova"), testo);
        });
    }
    ~Tracciati() override { impostaTraccia({}); }

    QStringList mEventi;
    std::optional<EventoDati> mGuasto;
    QString mStato = QStringLiteral("HY000");
};

TEST_P(Tracciati, glEventiNelLoroOrdine)
{
    Connessione connessione;
    connessione.apri(mBase.stringa());
    connessione.apri(mBase.stringa());
    Recordset recordset;
    recordset.apri(connessione, QStringLiteral("select id from prova;"));
    {
        Transazione transazione(connessione);
        recordset.apriTabella(connessione, QStringLiteral("prova"));
        recordset.aggiungi();
        recordset.imposta(QStringLiteral("id"), QStringLiteral("1"));
        recordset.imposta(QStringLiteral("testo"), QStringLiteral("x"));
        recordset.aggiorna();
        transazione.conferma();
    }
    Comando comando(connessione, QStringLiteral("delete from prova where id=?"));
    comando.esegui(std::vector<Valore>{QStringLiteral("5")});
    comando.esegui(std::vector<Valore>{QStringLiteral("6")});
    {
        Transazione transazione(connessione);
    }
    Transazione aperta(connessione);
    connessione.chiudi();
    connessione.chiudi();
    const QStringList attesi{QStringLiteral("apertura"),
                             QStringLiteral("select id from prova;"),
                             QStringLiteral("inizio"),
                             QStringLiteral("select * from prova"),
                             QStringLiteral("insert into prova (id, testo) values (?, ?)"),
                             QStringLiteral("conferma"),
                             QStringLiteral("delete from prova where id=?"),
                             QStringLiteral("delete from prova where id=?"),
                             QStringLiteral("inizio"),
                             QStringLiteral("annullo"),
                             QStringLiteral("inizio"),
                             QStringLiteral("annullo"),
                             QStringLiteral("chiusura")};
    EXPECT_EQ(mEventi, attesi);
}

TEST_P(Tracciati, unGuastoFaFallireLEvento)
{
    Connessione connessione;
    mGuasto = EventoDati::apertura;
    EXPECT_EQ(erroreDi([&] { connessione.apri(mBase.stringa()); }).codiceNativo(), 7);
    EXPECT_FALSE(connessione.aperta());
    mGuasto.reset();
    connessione.apri(mBase.stringa());
    mGuasto = EventoDati::istruzione;
    EXPECT_EQ(erroreDi([&] {
                  connessione.esegui(QStringLiteral("insert into prova (id) values (1)"));
              }).codiceNativo(),
              7);
    Recordset recordset;
    EXPECT_EQ(erroreDi([&] { recordset.apri(connessione, QStringLiteral("select 1")); }).codiceNativo(), 7);
    EXPECT_FALSE(recordset.aperto());
    mGuasto = EventoDati::inizio;
    EXPECT_EQ(erroreDi([&] { Transazione transazione(connessione); }).codiceNativo(), 7);
    mGuasto.reset();
    recordset.apri(connessione, QStringLiteral("select count(*) from prova"));
    EXPECT_EQ(recordset.valore(0), QStringLiteral("0"));
}

TEST_P(Tracciati, annulloEChiusuraNonFallisconoMai)
{
    Connessione connessione;
    connessione.apri(mBase.stringa());
    {
        Transazione transazione(connessione);
        connessione.esegui(QStringLiteral("insert into prova (id) values (1)"));
        mGuasto = EventoDati::annullo;
    }
    mGuasto = EventoDati::chiusura;
    connessione.chiudi();
    EXPECT_FALSE(connessione.aperta());
    EXPECT_EQ(mEventi.last(), QStringLiteral("chiusura"));
    mGuasto.reset();
    EXPECT_EQ(mBase.leggi(QStringLiteral("select count(*) from prova")), QStringLiteral("0"));
}

TEST_P(Tracciati, unGuastoDiReteChiudeLaConnessione)
{
    Connessione connessione;
    connessione.apri(mBase.stringa());
    mGuasto = EventoDati::istruzione;
    mStato = QStringLiteral("08S01");
    erroreDi([&] { connessione.esegui(QStringLiteral("delete from prova")); });
    EXPECT_FALSE(connessione.aperta());
    mGuasto.reset();
    connessione.apri(mBase.stringa());
    EXPECT_EQ(connessione.esegui(QStringLiteral("delete from prova")), 0);
}

TEST_P(Tracciati, chiTracciaRiceveQuelloDiPrima)
{
    const Traccia prima = impostaTraccia({});
    mBase.leggi(QStringLiteral("select 1"));
    const QStringList eventi = mEventi;
    impostaTraccia(prima);
    mBase.leggi(QStringLiteral("select 2"));
    EXPECT_EQ(mEventi.mid(eventi.size()).value(1), QStringLiteral("select 2"));
    EXPECT_FALSE(eventi.contains(QStringLiteral("select 1")));
}

SU_OGNI_BASE(Tracciati);
