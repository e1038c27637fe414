#include "data/chiusura.h"

#include "database/recordset.h"

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

QString dovuto(const Valore& valore, const QString& colonna)
{
    if (!valore)
        throw ErroreConversione(
            u"Le condizioni di fatturazione del cliente sono incomplete: manca %1."_s.arg(colonna));
    return *valore;
}

QString opposto(const QString& numero)
{
    return prodotto(numero, u"-1"_s);
}

} // namespace

std::optional<QDate> LeggiDataBuonFine(const Accesso& accesso, const ChiaveCaso& chiave)
{
    const QString istruzione = std::visit([](const auto& c) { return istruzioni::dataBuonFine(c); }, chiave);
    Connessione connessione;
    connessione.apri(accesso);
    Recordset caso;
    caso.apri(connessione, istruzione);
    return caso.eof() ? std::nullopt : leggiGiorno(caso.valore(0).value_or(QString()));
}

std::optional<CondizioniSosta> leggiCondizioni(Connessione& connessione, const QString& numeroLdv,
                                               int annoLdv)
{
    Recordset righe;
    righe.apri(connessione, istruzioni::condizioniFatturazione(numeroLdv, annoLdv));
    if (righe.eof())
        return std::nullopt;
    return CondizioniSosta{righe.valore(u"FADFGI"_s), righe.valore(u"FAFRGI"_s), righe.valore(u"FATGIG"_s),
                           righe.valore(u"FAMIGI"_s)};
}

qint16 giorniAddebitati(const CondizioniSosta& condizioni, const QString& giorni)
{
    const QString giorniFranchi = dovuto(condizioni.giorniFranchi, u"FAFRGI"_s);
    return intero16(somma(QString::number(intero16(giorni)), opposto(giorniFranchi)));
}

ImportiGiacenza calcolaImporti(const CondizioniSosta& condizioni, const QString& giorni)
{
    const Decimale fisso(dovuto(condizioni.fisso, u"FADFGI"_s));
    const qint16 daPagare = giorniAddebitati(condizioni, giorni);
    if (daPagare <= 0)
        return {fisso, Decimale(u"0"_s)};
    const QString sosta =
        arrotonda(prodotto(dovuto(condizioni.alGiorno, u"FATGIG"_s), QString::number(daPagare)), 2,
                  Arrotondamento::alPari);
    const QString minimo = dovuto(condizioni.minimo, u"FAMIGI"_s);
    return {fisso, Decimale(confronta(sosta, minimo) < 0 ? minimo : sosta)};
}

} // namespace giacenza
