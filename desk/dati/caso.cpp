#include "desk/dati/caso.h"

#include "data/istruzionidesk.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza::desk {

using istruzioni::ColonnaCaso;

namespace {

/// The values of a row by their names.
class Valori
{
public:
    explicit Valori(const Recordset& riga) : mRiga(riga) {}

    Valore valore(ColonnaCaso colonna) const { return mRiga.valore(static_cast<int>(colonna)); }
    QString testo(ColonnaCaso colonna) const { return valore(colonna).value_or(QString()); }
    int intero(ColonnaCaso colonna) const { return testo(colonna).toInt(); }
    QDate data(ColonnaCaso colonna) const { return leggiGiorno(testo(colonna)).value_or(QDate()); }

private:
    const Recordset& mRiga;
};

/// The closure takes the terms by number and year alone: where another branch has them too, it is asked for
/// what it would take.
std::optional<CondizioniSosta> condizioni(const Valori& v, const ChiaveSpedizione& ldv,
                                          Connessione& connessione)
{
    if (v.intero(ColonnaCaso::omonime) > 0)
        return leggiCondizioni(connessione, ldv.numero, ldv.anno);
    if (!v.valore(ColonnaCaso::facodi))
        return std::nullopt;
    return CondizioniSosta{v.valore(ColonnaCaso::fadfgi), v.valore(ColonnaCaso::fafrgi),
                           v.valore(ColonnaCaso::fatgig), v.valore(ColonnaCaso::famigi)};
}

} // namespace

Caso leggiCaso(const Recordset& riga, Connessione& connessione)
{
    const Valori v(riga);
    Caso caso;
    caso.chiave = {v.testo(ColonnaCaso::ginrgi), v.intero(ColonnaCaso::giangi)};
    caso.ldv = {v.testo(ColonnaCaso::gifili), v.testo(ColonnaCaso::ginrlv), v.intero(ColonnaCaso::gianlv)};
    caso.dataLdv = v.data(ColonnaCaso::ledtlv);
    caso.cliente = v.testo(ColonnaCaso::gicodi);
    caso.ragioneSociale = v.testo(ColonnaCaso::ragioneSociale);
    caso.destinatario = v.testo(ColonnaCaso::ledest);
    caso.localita = v.testo(ColonnaCaso::lelocd);
    caso.provincia = v.testo(ColonnaCaso::leprod);
    caso.riferimento = v.testo(ColonnaCaso::lerife);
    caso.motivo = v.testo(ColonnaCaso::gides1);
    caso.filiale = v.valore(ColonnaCaso::gifigi).value_or(caso.ldv.filiale);
    caso.dal = v.data(ColonnaCaso::gidtgi);
    caso.avvisi = v.testo(ColonnaCaso::ginrav);
    caso.ultimoAvviso = v.data(ColonnaCaso::gidtav);
    caso.riconsegne = std::max(0, v.intero(ColonnaCaso::legate) - 1);
    caso.ultimaLegata = v.data(ColonnaCaso::ultimaLegata);
    caso.colli = v.intero(ColonnaCaso::lecoll);
    caso.peso = v.testo(ColonnaCaso::lepeso);
    caso.condizioni = condizioni(v, caso.ldv, connessione);
    return caso;
}

QString nomeGiacenza(const ChiaveGiacenza& chiave)
{
    return chiave.numero + u'/' + QString::number(chiave.anno);
}

QString nomeLdv(const ChiaveSpedizione& ldv)
{
    const QString numero = ldv.numero + u'/' + QString::number(ldv.anno);
    return ldv.filiale.isEmpty() ? numero : numero + u' ' + ldv.filiale;
}

QString inUnaRiga(const QString& testo)
{
    return testo.simplified();
}

} // namespace giacenza::desk
