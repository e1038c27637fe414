#include "database/traccia.h"

#include "database/basi.h"
#include "database/transazione.h"

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;

namespace {

QString nome(EventoDati evento)
{
    switch (evento) {
    case EventoDati::apertura:
        return u"apertura"_s;
    case EventoDati::istruzione:
        return u"istruzione"_s;
    case EventoDati::inizio:
        return u"inizio"_s;
    case EventoDati::conferma:
        return u"conferma"_s;
    case EventoDati::annullo:
        return u"annullo"_s;
    case EventoDati::chiusura:
        return u"chiusura"_s;
    }
    return {};
}

} // namespace

class Tracciati : public Basi
{
protected:
    Tracciati() { creaTabella(); }

    QStringList mEventi;
    std::optional<EventoDati> mGuasto;
    QString mStato = u"HY000"_s;
    Accesso mAccesso{mBase.stringa(), [this](EventoDati evento, const QString& testo) {
                         mEventi += testo.isEmpty() ? nome(evento) : testo;
                         if (mGuasto == evento)
                             throw ErroreDatabase(mStato, 7, u"guasto di prova"_s, testo);
                     }};
};

TEST_P(Tracciati, glEventiNelLoroOrdine)
{
    Connessione connessione;
    connessione.apri(mAccesso);
    connessione.apri(mAccesso);
    Recordset recordset;
    recordset.apri(connessione, u"select id from prova;"_s);
    {
        Transazione transazione(connessione);
        NuovaRiga riga(connessione, u"prova"_s);
        riga.imposta(u"id"_s, u"1"_s);
        riga.imposta(u"testo"_s, u"x"_s);
        riga.aggiungi();
        transazione.conferma();
    }
    Comando comando(connessione, u"delete from prova where id=?"_s);
    comando.esegui(std::vector<Valore>{u"5"_s});
    comando.esegui(std::vector<Valore>{u"6"_s});
    {
        Transazione transazione(connessione);
    }
    Transazione aperta(connessione);
    connessione.chiudi();
    connessione.chiudi();
    const QStringList attesi{u"apertura"_s,
                             u"select id from prova;"_s,
                             u"inizio"_s,
                             u"select * from prova"_s,
                             u"insert into prova (id, testo) values (?, ?)"_s,
                             u"conferma"_s,
                             u"delete from prova where id=?"_s,
                             u"delete from prova where id=?"_s,
                             u"inizio"_s,
                             u"annullo"_s,
                             u"inizio"_s,
                             u"annullo"_s,
                             u"chiusura"_s};
    EXPECT_EQ(mEventi, attesi);
}

TEST_P(Tracciati, unGuastoFaFallireLEvento)
{
    Connessione connessione;
    mGuasto = EventoDati::apertura;
    EXPECT_EQ(erroreDi([&] { connessione.apri(mAccesso); }).codiceNativo(), 7);
    EXPECT_FALSE(connessione.aperta());
    mGuasto.reset();
    connessione.apri(mAccesso);
    mGuasto = EventoDati::istruzione;
    EXPECT_EQ(erroreDi([&] { connessione.esegui(u"insert into prova (id) values (1)"_s); }).codiceNativo(),
              7);
    Recordset recordset;
    EXPECT_EQ(erroreDi([&] { recordset.apri(connessione, u"select 1"_s); }).codiceNativo(), 7);
    EXPECT_FALSE(recordset.aperto());
    mGuasto = EventoDati::inizio;
    EXPECT_EQ(erroreDi([&] { Transazione transazione(connessione); }).codiceNativo(), 7);
    mGuasto.reset();
    recordset.apri(connessione, u"select count(*) from prova"_s);
    EXPECT_EQ(recordset.valore(0), u"0"_s);
}

TEST_P(Tracciati, annulloEChiusuraNonFallisconoMai)
{
    Connessione connessione;
    connessione.apri(mAccesso);
    {
        Transazione transazione(connessione);
        connessione.esegui(u"insert into prova (id) values (1)"_s);
        mGuasto = EventoDati::annullo;
    }
    mGuasto = EventoDati::chiusura;
    connessione.chiudi();
    EXPECT_FALSE(connessione.aperta());
    EXPECT_EQ(mEventi.last(), u"chiusura"_s);
    mGuasto.reset();
    EXPECT_EQ(mBase.leggi(u"select count(*) from prova"_s), u"0"_s);
}

TEST_P(Tracciati, unGuastoDiReteChiudeLaConnessione)
{
    Connessione connessione;
    connessione.apri(mAccesso);
    mGuasto = EventoDati::istruzione;
    mStato = u"08S01"_s;
    erroreDi([&] { connessione.esegui(u"delete from prova"_s); });
    EXPECT_FALSE(connessione.aperta());
    mGuasto.reset();
    connessione.apri(mAccesso);
    EXPECT_EQ(connessione.esegui(u"delete from prova"_s), 0);
}

TEST_P(Tracciati, senzaTracciaNessunoLoSa)
{
    Connessione tracciata;
    tracciata.apri(mAccesso);
    mEventi.clear();
    Connessione muta;
    muta.apri(mBase.stringa());
    muta.esegui(u"delete from prova"_s);
    muta.chiudi();
    EXPECT_EQ(mEventi, QStringList());
}

TEST_P(Tracciati, ognunaHaLaPropria)
{
    QStringList altri;
    Connessione una;
    Connessione altra;
    una.apri(mAccesso);
    altra.apri({mBase.stringa(), [&](EventoDati evento, const QString&) { altri += nome(evento); }});
    altra = std::move(una);
    EXPECT_EQ(altri, QStringList({u"apertura"_s, u"chiusura"_s}));
    altra.esegui(u"delete from prova"_s);
    EXPECT_EQ(mEventi, QStringList({u"apertura"_s, u"delete from prova"_s}));
}

SU_OGNI_BASE(Tracciati);
