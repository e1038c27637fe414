#include "desk/documenti/colonneestratto.h"

using namespace Qt::StringLiterals;

namespace giacenza::documenti {

namespace {

Cella testo(const QString& valore)
{
    return valore.isEmpty() ? Cella() : Cella(valore);
}

Cella giorno(std::optional<QDate> data)
{
    return data && data->isValid() ? Cella(*data) : Cella();
}

/// What is no number stays the text that it is.
Cella numero(const QString& valore, int decimali, bool euro = false)
{
    if (!eNumero(valore))
        return testo(valore);
    return Numero{arrotonda(valore, decimali, Arrotondamento::lontanoDaZero), decimali, euro};
}

QString origine(const CasoEstratto& caso)
{
    switch (caso.origine) {
    case Origine::calcolati:
        return u"calcolati al "_s + dataBreve(caso.conto.alla);
    case Origine::scritti:
        return u"scritti"_s;
    case Origine::mancanti:
        break;
    }
    return u"mancano: "_s + caso.conto.mancante;
}

} // namespace

QStringList titoliEstratto()
{
    return {u"Cliente"_s,
            u"Ragione sociale"_s,
            u"Giacenza"_s,
            u"Anno"_s,
            u"Dal"_s,
            u"LDV"_s,
            u"Anno LDV"_s,
            u"Filiale"_s,
            u"Data LDV"_s,
            u"Riferimento"_s,
            u"Destinatario"_s,
            u"Località"_s,
            u"Provincia"_s,
            u"Colli"_s,
            u"Peso kg"_s,
            u"Avvisi"_s,
            u"Ultimo avviso"_s,
            u"Stato"_s,
            u"Buon fine"_s,
            u"Giorni"_s,
            u"Fisso"_s,
            u"Sosta"_s,
            u"Totale"_s,
            u"Importi"_s,
            u"Fattura"_s,
            u"Data fattura"_s,
            u"Che cosa è successo"_s};
}

std::vector<Cella> celleEstratto(const Estratto& estratto, const CasoEstratto& caso)
{
    const DatiConto& dati = caso.conto.dati;
    return {testo(dati.cliente),
            testo(estratto.ragioneSociale),
            testo(dati.caso.numero),
            numero(QString::number(dati.caso.anno), 0),
            giorno(dati.dal),
            testo(dati.ldv.numero),
            numero(QString::number(dati.ldv.anno), 0),
            testo(dati.ldv.filiale),
            giorno(caso.dataLdv),
            testo(caso.riferimento),
            testo(dati.destinatario),
            testo(caso.localita),
            testo(caso.provincia),
            numero(caso.colli, 0),
            numero(caso.peso, 2),
            numero(caso.avvisi, 0),
            giorno(caso.ultimoAvviso),
            testo(dati.buonFine ? u"chiusa"_s : u"aperta"_s),
            giorno(dati.buonFine),
            numero(QString::number(caso.conto.giorni), 0),
            numero(caso.fisso, 2, true),
            numero(caso.sosta, 2, true),
            numero(caso.totale, 2, true),
            testo(origine(caso)),
            testo(dati.fattura),
            giorno(dati.dataFattura),
            testo(fattiInParole(caso))};
}

} // namespace giacenza::documenti
