#include "guasti/statoguasti.h"

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

namespace {

const Guasto sparito = {.sqlstate = u"08S01"_s, .codice = 2006, .testo = u"Server has gone away"_s};

Stato& stato()
{
    return statoGuasti();
}

void autoConferma(SQLHDBC collegamento, SQLULEN come)
{
    __real_SQLSetConnectAttr(collegamento, SQL_ATTR_AUTOCOMMIT, reinterpret_cast<SQLPOINTER>(come), 0);
}

void annulla(SQLHDBC collegamento)
{
    if (stato().inTransazione.contains(collegamento))
        __real_SQLEndTran(SQL_HANDLE_DBC, collegamento, SQL_ROLLBACK);
}

/// What the database does, and takes back.
template<class Vera>
void aMeta(SQLHDBC collegamento, Vera vera)
{
    const bool daSe = !stato().inTransazione.contains(collegamento);
    if (daSe)
        autoConferma(collegamento, SQL_AUTOCOMMIT_OFF);
    vera();
    __real_SQLEndTran(SQL_HANDLE_DBC, collegamento, SQL_ROLLBACK);
    if (daSe)
        autoConferma(collegamento, SQL_AUTOCOMMIT_ON);
}

template<class Vera>
SQLRETURN conGuasto(SQLHDBC collegamento, SQLHANDLE maniglia, bool scrive, Vera vera)
{
    Stato& s = stato();
    ++s.scattati;
    if (s.guasto.momento == Momento::dopo) {
        const SQLRETURN esito = vera();
        if (!SQL_SUCCEEDED(esito) && esito != SQL_NO_DATA)
            return esito;
    }
    if (s.guasto.momento == Momento::durante && scrive)
        aMeta(collegamento, vera);
    if (s.guasto.cade || s.guasto.finisceTutto)
        annulla(collegamento);
    if (s.guasto.cade)
        s.morti.insert(collegamento);
    return fallita(maniglia, s.guasto);
}

} // namespace

Stato& statoGuasti()
{
    static Stato unico;
    return unico;
}

SQLRETURN fallita(SQLHANDLE maniglia, const Guasto& guasto)
{
    stato().risposte[maniglia] = guasto;
    return SQL_ERROR;
}

SQLRETURN passa(SQLHDBC collegamento, SQLHANDLE maniglia, const QString& testo, bool scrive,
                const std::function<SQLRETURN()>& vera)
{
    Stato& s = stato();
    const std::lock_guard chiuso(s.blocco);
    s.risposte.erase(maniglia);
    if (s.morti.contains(collegamento))
        return fallita(maniglia, sparito);
    if (!s.conta())
        return vera();
    s.chiamate << testo;
    if (s.scatta(testo))
        return conGuasto(collegamento, maniglia, scrive, vera);
    const SQLRETURN esito = vera();
    if (s.dopoOgni) {
        s.sospeso = true;
        s.dopoOgni();
        s.sospeso = false;
    }
    return esito;
}

GuastiOdbc::GuastiOdbc(Fili fili)
{
    const std::lock_guard chiuso(stato().blocco);
    if (stato().filo)
        throw std::logic_error("GuastiOdbc: one at a time");
    stato().filo = std::this_thread::get_id();
    stato().fili = fili;
    stato().chiamate.clear();
    stato().scattati = 0;
    stato().quale = -1;
    stato().testo.reset();
}

GuastiOdbc::~GuastiOdbc()
{
    const std::lock_guard chiuso(stato().blocco);
    stato().filo.reset();
    stato().dopoOgni = {};
}

void GuastiOdbc::pianta(qsizetype quale, const Guasto& guasto, bool sempre)
{
    const std::lock_guard chiuso(stato().blocco);
    stato().quale = quale;
    stato().guasto = guasto;
    stato().sempre = sempre;
}

void GuastiOdbc::pianta(const QString& testo, qsizetype quale, const Guasto& guasto, bool sempre)
{
    const std::lock_guard chiuso(stato().blocco);
    pianta(quale, guasto, sempre);
    stato().testo = testo;
}

void GuastiOdbc::dopoOgni(std::function<void()> azione)
{
    const std::lock_guard chiuso(stato().blocco);
    stato().dopoOgni = std::move(azione);
}

const QStringList& GuastiOdbc::chiamate() const
{
    return stato().chiamate;
}

int GuastiOdbc::scattati() const
{
    return stato().scattati;
}

} // namespace giacenza::prove
