#include "operazioni.h"

#include "data/avviso.h"
#include "data/chiusura.h"
#include "data/nuovaldv.h"
#include "data/salvataggio.h"
#include "support/ldvdiprova.h"

namespace giacenza::prove {

void registra(const BancaDati& base)
{
    Connessione schermo = base.connessione();
    InserisciGiacenza(schermo, base.accesso(),
                      {.filiale = u"MI"_s,
                       .numeroLdv = u"4711"_s,
                       .dataLdv = QDate(2026, 11, 12),
                       .cliente = u"1001"_s,
                       .filialeGiacenza = u"BO"_s,
                       .giorniSosta = u"1"_s,
                       .dataGiacenza = QDate(2026, 11, 20),
                       .motivo = u"L'insegna non c'è"_s});
}

void faiTutto(const BancaDati& base)
{
    registra(base);
    const ChiaveGiacenza caso{u"42"_s, 2026};
    const ChiaveSpedizione ldv{u"MI"_s, u"4711"_s, 2026};
    Connessione connessione = base.connessione();
    contaAvviso(connessione, base.accesso(), ldv, QDate(2026, 11, 20));
    contaAvviso(connessione, base.accesso(), caso, QDate(2026, 11, 20), u"non conta"_s);
    contaAvviso(connessione, base.accesso(), caso, QDate(2026, 11, 23), u"Rifiuta: l'imballo è rotto"_s);
    connessione.esegui(istruzioni::chiusura(caso, QDate(2026, 11, 30), u"10"_s));
    connessione.esegui(istruzioni::chiusuraRipetuta(caso, u"10"_s));
    connessione.esegui(istruzioni::salvaCosti(ldv, Decimale(u"5"_s), Decimale(u"7,5"_s)));
    emettiLdv(connessione, LdvDiProva(connessione, u"4711"_s),
              {.lavoro = u"Riconsegna a Destinatario"_s,
               .numeroGiacenza = caso.numero,
               .annoGiacenza = caso.anno,
               .oggi = QDate(2026, 12, 1)});
}

QList<QList<QStringList>> contenuto(const BancaDati& base)
{
    return {base.righe(u"select * from letve00f order by lenrlv, leanlv, lefili"_s),
            base.righe(u"select * from giace00f order by GINRGI"_s),
            base.righe(u"select * from ekelvorqzt_tabge00f"_s), base.righe(u"select * from clien"_s)};
}

QList<QStringList> registrati(const BancaDati& base)
{
    return base.righe(u"select utente, GINRGI, GIANGI, filiale, ldv, annoldv, fatto, prima, testo "
                      "from registro order by progressivo"_s);
}

} // namespace giacenza::prove
