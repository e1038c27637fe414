#include "grappolo/verifica.h"

#include "database/recordset.h"
#include "grappolo/racconto.h"

using namespace Qt::StringLiterals;

namespace giacenza::prove {

namespace {

QString chiave(const QString& filiale, const QString& numero, const QString& anno)
{
    return filiale + u'/' + numero + u'/' + anno;
}
QString chiave(const RigaLdv& ldv)
{
    return chiave(ldv.filiale, ldv.numero, ldv.anno);
}
QString ldvDi(const RigaGiacenza& caso)
{
    return chiave(caso.filiale, caso.ldv, caso.annoLdv);
}
QString numeroDi(const RigaGiacenza& caso)
{
    return caso.numero + u'/' + caso.anno;
}

/// The re-deliveries of each case, by its number.
QMultiHash<QString, QString> emesse(const Fotografia& archivio)
{
    QMultiHash<QString, QString> tutte;
    for (const RigaLdv& ldv : archivio.ldv)
        if (ldv.riconsegna == u"R"_s && !ldv.giacenza.isEmpty())
            tutte.insert(ldv.giacenza + u'/' + ldv.annoGiacenza, ldv.numero);
    return tutte;
}

/// Compares the cases of an archive with what was told of each.
class Confronto
{
public:
    Confronto(const Fotografia& archivio, const QList<Voce>& voci)
        : mRacconti(racconta(voci)), mEmesse(emesse(archivio))
    {
        for (const RigaGiacenza& caso : archivio.giacenze)
            mCasi.insert(caso.ldv, caso);
    }

    QStringList confronta()
    {
        for (auto [ldv, racconto] : mRacconti.asKeyValueRange()) {
            const auto casi = mCasi.values(ldv);
            if (casi.isEmpty())
                assente(ldv, racconto);
            for (const RigaGiacenza& caso : casi)
                presente(caso, racconto);
        }
        for (const RigaGiacenza& caso : mCasi)
            if (!mRacconti.contains(caso.ldv))
                di(caso.ldv, u"è in giacenza, ma nessuno l'ha registrata"_s);
        return mSmentite;
    }

private:
    void di(const QString& ldv, const QString& che) { mSmentite << u"LDV %1: %2"_s.arg(ldv, che); }

    void assente(const QString& ldv, const Racconto& racconto)
    {
        for (const QString& numero : racconto.registrata)
            di(ldv, u"la giacenza %1, detta registrata, non c'è"_s.arg(numero));
        if (racconto.detteEsistente > 0)
            di(ldv, u"detta già in giacenza, ma non c'è"_s);
    }

    void presente(const RigaGiacenza& caso, const Racconto& racconto)
    {
        if (racconto.registrata.size() > 1)
            di(caso.ldv, u"detta registrata %1 volte"_s.arg(racconto.registrata.size()));
        for (const QString& numero : racconto.registrata)
            if (numero != caso.numero)
                di(caso.ldv, u"detta giacenza %1, è la %2"_s.arg(numero, caso.numero));
        if (racconto.registrata.isEmpty() && racconto.forseRegistrata == 0)
            di(caso.ldv, u"detta non registrata, ma è la giacenza %1"_s.arg(caso.numero));
        avvisi(caso, racconto);
        chiusura(caso, racconto);
        riconsegne(caso, racconto);
    }

    void avvisi(const RigaGiacenza& caso, const Racconto& racconto)
    {
        const int contati = caso.avvisi.toInt();
        if (contati < racconto.avvisi || contati > racconto.avvisi + racconto.forseAvvisi)
            di(caso.ldv, u"avvisi contati %1, detti %2 e %3 non si sa"_s.arg(contati)
                             .arg(racconto.avvisi)
                             .arg(racconto.forseAvvisi));
    }

    void chiusura(const RigaGiacenza& caso, const Racconto& racconto)
    {
        if (racconto.chiusure > 0 && caso.chiusa != racconto.giornoChiusura.toString(Qt::ISODate))
            di(caso.ldv, u"detta chiusa il %1, è \"%2\""_s.arg(racconto.giornoChiusura.toString(Qt::ISODate),
                                                               caso.chiusa));
        if (racconto.chiusure == 0 && racconto.forseChiusure == 0 && !caso.chiusa.isEmpty())
            di(caso.ldv, u"detta non chiusa, ma lo è dal %1"_s.arg(caso.chiusa));
    }

    void riconsegne(const RigaGiacenza& caso, const Racconto& racconto)
    {
        const auto nuove = mEmesse.values(numeroDi(caso));
        for (const QString& nuova : racconto.emesse)
            if (nuove.count(nuova) != 1)
                di(caso.ldv,
                   u"la riconsegna %1, detta emessa, c'è %2 volte"_s.arg(nuova).arg(nuove.count(nuova)));
        if (nuove.size() > racconto.emesse.size() + racconto.forseEmesse)
            di(caso.ldv, u"riconsegne %1, dette %2 e %3 non si sa"_s.arg(nuove.join(u", "))
                             .arg(racconto.emesse.size())
                             .arg(racconto.forseEmesse));
    }

    QMap<QString, Racconto> mRacconti;
    QMultiHash<QString, QString> mEmesse;
    QMultiHash<QString, RigaGiacenza> mCasi;
    QStringList mSmentite;
};

} // namespace

Fotografia fotografa(Connessione& connessione)
{
    Fotografia archivio;
    Recordset righe;
    const auto testo = [&](int colonna) { return righe.valore(colonna).value_or(QString()); };
    righe.apri(connessione,
               u"select GIFILI,GINRLV,GIANLV,GINRGI,GIANGI,GINRAV,GIDTAV,GIDTBF from giace00f;"_s,
               Recordset::Cursore::soloAvanti);
    for (; !righe.eof(); righe.successivo())
        archivio.giacenze << RigaGiacenza{testo(0), testo(1), testo(2), testo(3),
                                          testo(4), testo(5), testo(6), testo(7)};
    righe.chiudi();
    righe.apri(connessione, u"select lefili,lenrlv,leanlv,lerico,LERFGI,LEANGI from letve00f;"_s,
               Recordset::Cursore::soloAvanti);
    for (; !righe.eof(); righe.successivo())
        archivio.ldv << RigaLdv{testo(0), testo(1), testo(2), testo(3), testo(4), testo(5)};
    return archivio;
}

QStringList difetti(const Fotografia& archivio)
{
    QStringList trovati;
    QHash<QString, int> numeri;
    QHash<QString, int> tenute;
    QHash<QString, RigaLdv> ldv;
    QHash<QString, QString> casi; // waybill to number
    for (const RigaLdv& riga : archivio.ldv) {
        if (ldv.contains(chiave(riga)))
            trovati << u"LDV %1: c'è due volte"_s.arg(chiave(riga));
        ldv.insert(chiave(riga), riga);
    }
    for (const RigaGiacenza& caso : archivio.giacenze) {
        if (++numeri[numeroDi(caso)] == 2)
            trovati << u"numero %1: due volte"_s.arg(numeroDi(caso));
        if (++tenute[ldvDi(caso)] == 2)
            trovati << u"LDV %1: in giacenza due volte"_s.arg(ldvDi(caso));
        casi.insert(ldvDi(caso), numeroDi(caso));
        const RigaLdv& sua = ldv[ldvDi(caso)];
        if (sua.giacenza + u'/' + sua.annoGiacenza != numeroDi(caso))
            trovati << u"giacenza %1: la LDV %2 non la nomina"_s.arg(numeroDi(caso), ldvDi(caso));
    }
    for (const RigaLdv& riga : archivio.ldv) {
        const QString numero = riga.giacenza + u'/' + riga.annoGiacenza;
        if (riga.giacenza.isEmpty())
            continue;
        if (riga.riconsegna == u"R"_s ? !numeri.contains(numero) : casi.value(chiave(riga)) != numero)
            trovati << u"LDV %1: nomina la giacenza %2, che non è sua"_s.arg(chiave(riga), numero);
    }
    return trovati;
}

QStringList smentite(const Fotografia& archivio, const QList<Voce>& voci)
{
    QStringList tutte = Confronto(archivio, voci).confronta();
    for (const Voce& voce : voci)
        if (voce.esito == Esito::fallito && perGara(voce))
            tutte << u"LDV %1: %2 rifiutata per una gara: %3"_s.arg(voce.ldv, nome(voce.lavoro), voce.stato);
    return tutte;
}

} // namespace giacenza::prove
