#include "guasti/operazione.h"

#include "base/impostazioni.h"
#include "support/stampa.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>

#include <iostream>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

namespace {

const QString fuoriTempo = u"L'archivio non ha risposto in tempo."_s;
const QString caduta = u"La connessione con l'archivio è caduta."_s;
const QString pieno = u"Il disco dell'archivio è pieno."_s;
const QString doppione = u"C'è già una registrazione con la stessa chiave."_s;

Guasto perduta(int codice, const QString& sqlstate, Momento momento)
{
    return {.sqlstate = sqlstate,
            .codice = codice,
            .testo = u"Lost connection to server"_s,
            .momento = momento,
            .cade = true};
}

std::vector<Classe> diMariadb()
{
    const QString rifiuto =
        u"Questo utente non ha il permesso di farlo: chiedere a chi amministra l'archivio."_s;
    const Guasto stallo = {.sqlstate = u"40001"_s,
                           .codice = 1213,
                           .testo = u"Deadlock found when trying to get lock; try restarting transaction"_s,
                           .finisceTutto = true};
    const QString ostacolate = u"Due postazioni si sono ostacolate: riprovare."_s;
    return {
        {"perduta prima", perduta(2006, u"08S01"_s, Momento::prima), caduta},
        {"perduta durante", perduta(2013, u"HY000"_s, Momento::durante), caduta},
        {"perduta dopo", perduta(2013, u"HY000"_s, Momento::dopo), caduta},
        {"attesa di un blocco",
         {.sqlstate = u"HY000"_s, .codice = 1205, .testo = u"Lock wait timeout exceeded"_s},
         u"Un'altra postazione tiene occupata la registrazione: riprovare tra poco."_s},
        {"stallo", stallo, ostacolate},
        {"stallo ogni volta", stallo, ostacolate, true},
        {"doppione",
         {.sqlstate = u"23000"_s, .codice = 1062, .testo = u"Duplicate entry '1' for key 'altra'"_s},
         doppione},
        {"disco pieno",
         {.sqlstate = u"HY000"_s, .codice = 1021, .testo = u"Disk full (/tmp); waiting for someone"_s},
         pieno},
        {"tabella piena", {.sqlstate = u"HY000"_s, .codice = 1114, .testo = u"The table is full"_s}, pieno},
        {"negato", {.sqlstate = u"42000"_s, .codice = 1142, .testo = u"command denied to user"_s}, rifiuto},
        {"fuori tempo",
         {.sqlstate = u"70100"_s,
          .codice = 1969,
          .testo = u"Query execution was interrupted (max_statement_time exceeded)"_s},
         fuoriTempo},
    };
}

/// Its driver gives HY000, and the library's own code and words.
std::vector<Classe> diSqlite()
{
    const auto suo = [](int codice, const char16_t* parole) {
        return Guasto{.sqlstate = u"HY000"_s,
                      .codice = codice,
                      .testo = u"[SQLite]%1 (%2)"_s.arg(QString::fromUtf16(parole)).arg(codice)};
    };
    const Guasto stallo = {.sqlstate = u"40001"_s,
                           .codice = 5,
                           .testo = u"[SQLite]database is locked (5)"_s,
                           .finisceTutto = true};
    const QString occupato = u"Un'altra postazione tiene occupato l'archivio: riprovare tra poco."_s;
    return {
        {"perduta prima", perduta(0, u"08S01"_s, Momento::prima), caduta},
        {"perduta durante", perduta(0, u"08S01"_s, Momento::durante), caduta},
        {"perduta dopo", perduta(0, u"08S01"_s, Momento::dopo), caduta},
        {"attesa di un blocco", suo(5, u"database is locked"), occupato},
        {"stallo", stallo, occupato},
        {"stallo ogni volta", stallo, occupato, true},
        {"doppione", suo(19, u"UNIQUE constraint failed: altra.chiave"), doppione},
        {"disco pieno", suo(13, u"database or disk is full"), pieno},
        {"disco rotto", suo(10, u"disk I/O error"), u"Il file dell'archivio non si legge o non si scrive."_s},
        {"sola lettura", suo(8, u"attempt to write a readonly database"),
         u"L'archivio è in sola lettura: chiedere a chi lo amministra."_s},
        {"fuori tempo", suo(9, u"interrupted"), fuoriTempo},
    };
}

/// The states that the transactions of an operation leave, in order, the first one before it.
QStringList statiDi(const Operazione& operazione, RegistroMessaggi& messaggi, QStringList& chiamate)
{
    operazione.prepara();
    QStringList stati = {operazione.righe()};
    GuastiOdbc guasti(operazione.fili);
    guasti.dopoOgni([&] {
        const QString ora = operazione.righe();
        if (ora != stati.last())
            stati << ora;
    });
    operazione.compi();
    chiamate = guasti.chiamate();
    EXPECT_TRUE(operazione.mostrata());
    messaggi.prendi();
    return stati;
}

bool vero(const Operazione& operazione, Accaduto accaduto)
{
    if (operazione.vero(accaduto))
        return true;
    // Written without a transaction, and the answer lost: from here it looks like not done, and must be told
    // as what nobody knows.
    if (accaduto.classe.guasto.momento != Momento::dopo || accaduto.passo == 0 ||
        !(accaduto.detto(u"Non si sa"_s) || accaduto.detto(u"non si sa"_s)))
        return false;
    --accaduto.passo;
    accaduto.completo = false;
    return operazione.vero(accaduto);
}

/// One failure, and what came of it.
class Caso
{
public:
    Caso(const Operazione& operazione, RegistroMessaggi& messaggi, const QStringList& stati)
        : mOperazione(operazione), mMessaggi(messaggi), mStati(stati)
    {}

    void prova(const QStringList& chiamate, qsizetype quale, const Classe& classe)
    {
        mOperazione.prepara();
        mMessaggi.prendi();
        {
            GuastiOdbc guasti(mOperazione.fili);
            const QString& testo = chiamate.at(quale);
            if (mOperazione.fili == Fili::tutti)
                guasti.pianta(testo, chiamate.first(quale).count(testo), classe.guasto, classe.sempre);
            else
                guasti.pianta(quale, classe.guasto, classe.sempre);
            mOperazione.compi();
            EXPECT_GT(guasti.scattati(), 0) << "the failure never came";
        }
        seguito(classe);
    }

    void taglia(TagliaConferma& rete, int pacchetto, TagliaConferma::Quando quando)
    {
        mOperazione.prepara();
        mMessaggi.prendi();
        rete.arma(pacchetto, quando);
        mOperazione.compi();
        EXPECT_TRUE(rete.tagliata()) << "the cut never came";
        const bool prima = quando == TagliaConferma::Quando::primaDelServer;
        seguito({prima ? "tagliata prima" : "tagliata dopo",
                 perduta(2013, u"HY000"_s, prima ? Momento::prima : Momento::dopo), caduta});
    }

private:
    void seguito(const Classe& classe)
    {
        Accaduto accaduto = {.classe = classe};
        guarda(accaduto);
        ripeti(accaduto);
    }

    void guarda(Accaduto& accaduto)
    {
        for (const Messaggio& messaggio : mMessaggi.prendi())
            accaduto.scatole << messaggio.testo;
        accaduto.stato = mOperazione.stato();
        const QString righe = mOperazione.righe();
        accaduto.passo = mStati.indexOf(righe);
        accaduto.completo = righe == mStati.last() && mOperazione.mostrata();
        EXPECT_GE(accaduto.passo, 0) << "rows that no transaction leaves: " << righe.toStdString();
        EXPECT_TRUE(vero(mOperazione, accaduto))
            << "rows: " << righe.toStdString()
            << "\nboxes: " << accaduto.scatole.join(u" // "_s).toStdString()
            << "\nstatus: " << accaduto.stato.toStdString();
    }

    void ripeti(const Accaduto& accaduto)
    {
        if (mOperazione.riprova)
            mOperazione.riprova(accaduto);
        else
            mOperazione.compi();
        const QString detto = mMessaggi.testi().join(u" // "_s) + u" || "_s + mOperazione.stato();
        mMessaggi.prendi();
        EXPECT_EQ(mOperazione.righe(), mStati.last()) << "after the next try: " << detto.toStdString();
        EXPECT_TRUE(mOperazione.mostrata()) << "after the next try: " << detto.toStdString();
    }

    const Operazione& mOperazione;
    RegistroMessaggi& mMessaggi;
    const QStringList& mStati;
};

} // namespace

std::vector<Classe> classiDiGuasto(const std::string& base)
{
    return base == "sqlite" ? diSqlite() : diMariadb();
}

bool Accaduto::detto(const QString& testo) const
{
    return stato.contains(testo) || scatole.join(u'\n').contains(testo);
}

void provaOgniGuasto(const std::string& tipo, RegistroMessaggi& messaggi, const Operazione& operazione)
{
    QElapsedTimer tempo;
    tempo.start();
    QStringList chiamate;
    const QStringList stati = statiDi(operazione, messaggi, chiamate);
    Caso caso(operazione, messaggi, stati);
    int guasti = 0;
    for (qsizetype chiamata = 0; chiamata < chiamate.size(); ++chiamata)
        for (const Classe& classe : classiDiGuasto(tipo)) {
            SCOPED_TRACE("call " + std::to_string(chiamata) + ", " + classe.nome + ": " +
                         chiamate.at(chiamata).toStdString());
            caso.prova(chiamate, chiamata, classe);
            ++guasti;
            if (testing::Test::HasFatalFailure())
                return;
        }
    std::cout << chiamate.size() << " calls, " << stati.size() << " states, " << guasti << " failures, "
              << tempo.elapsed() << " ms\n";
}

void provaOgniTaglio(TagliaConferma& rete, RegistroMessaggi& messaggi, const Operazione& operazione)
{
    using Quando = TagliaConferma::Quando;
    QStringList chiamate;
    const QStringList stati = statiDi(operazione, messaggi, chiamate);
    operazione.prepara();
    const int prima = rete.passati();
    operazione.compi();
    messaggi.prendi();
    const int pacchetti = rete.passati() - prima;
    EXPECT_GT(pacchetti, 0);
    Caso caso(operazione, messaggi, stati);
    for (int pacchetto = 0; pacchetto < pacchetti; ++pacchetto)
        for (const Quando quando : {Quando::primaDelServer, Quando::primaDellaRisposta}) {
            SCOPED_TRACE("packet " + std::to_string(pacchetto) +
                         (quando == Quando::primaDelServer ? ", not sent" : ", answer lost"));
            caso.taglia(rete, pacchetto, quando);
        }
    std::cout << pacchetti << " packets, " << 2 * pacchetti << " cuts\n";
}

Cavo::Cavo(const BancaDati& base) : mStringa(base.stringa())
{
    if (!mStringa.contains(u"PORT="_s))
        return;
    const QString porta = mStringa.section(u"PORT="_s, 1).section(u';', 0, 0);
    mRete.emplace(porta.toUShort());
    mStringa.replace(u"PORT="_s + porta, u"PORT=%1"_s.arg(mRete->porta()));
    impostazioni().percorsoDatabase = mStringa;
}

void Cavo::prova(const std::string& tipo, RegistroMessaggi& messaggi, const Operazione& operazione)
{
    provaOgniGuasto(tipo, messaggi, operazione);
    if (mRete)
        provaOgniTaglio(*mRete, messaggi, operazione);
}

} // namespace giacenza::prove
