#include "data/istruzioni.h"

#include "database/sql.h"

using namespace Qt::StringLiterals;

namespace giacenza::istruzioni {

namespace {

// Values are pasted by QString::arg, all of a statement in one call: a "%1" in a value is then no place.

QString anno(int valore)
{
    return sql::cifre(QString::number(valore));
}

QString unione(Giunzione giunzione)
{
    switch (giunzione) {
    case Giunzione::esterna:
        return u"(((letve00f LEFT JOIN giace00f on lefili=gifili and lenrlv=ginrlv and leanlv=gianlv) "
               "LEFT JOIN filiali ON lefili=filiali.codice) "
               "LEFT JOIN codicizona on lelin1=codicizona.Codice) "
               "LEFT join forni ON forni.Codice=lecdve"_s;
    case Giunzione::esternaMinuscola:
        return u"(((letve00f LEFT JOIN giace00f on lefili=gifili and lenrlv=ginrlv and leanlv=gianlv) "
               "left JOIN filiali ON lefili=filiali.codice) "
               "LEFT JOIN codicizona on lelin1=codicizona.Codice) "
               "LEFT join forni ON forni.Codice=lecdve"_s;
    case Giunzione::interna:
        break;
    }
    return u"(((letve00f LEFT JOIN giace00f on lefili=gifili and lenrlv=ginrlv and leanlv=gianlv) "
           "inner JOIN filiali ON lefili=filiali.codice) "
           "INNER JOIN codicizona on lelin1=codicizona.Codice) "
           "INNER join forni ON forni.Codice=lecdve"_s;
}

/// The common lookup up to its condition.
QString spedizione(Giunzione giunzione)
{
    return u"SELECT letve00f.*, giace00f.*, forni.RagioneSociale as Vettore, filiali.Descrizione as filiale, "
           "codicizona.Descrizione as linea from "_s +
           unione(giunzione) + u" WHERE "_s;
}

} // namespace

QString spedizionePerNumeroDataFiliale(const QString& numero, QDate data, const QString& filiale)
{
    return spedizione(Giunzione::esterna) + u"lenrlv='%1' and ledtlv='%2' and lefili='%3';"_s.arg(
                                                sql::testo(numero), sql::data(data), sql::testo(filiale));
}

QString spedizionePerNumeroData(const QString& numero, QDate data, Giunzione giunzione)
{
    return spedizione(giunzione) + u"lenrlv='%1' and ledtlv='%2';"_s.arg(sql::testo(numero), sql::data(data));
}

QString spedizionePerRiferimento(const QString& riferimento, QDate data, const QString& filiale)
{
    return spedizione(Giunzione::esterna) +
           u"lerife='%1' and lerifd='%2' and lefili='%3';"_s.arg(sql::testo(riferimento), sql::data(data),
                                                                 sql::testo(filiale));
}

QString spedizionePerGiacenza(const QString& numero, QDate data)
{
    return spedizione(Giunzione::interna) +
           u"ginrgi='%1' and GIDTGI='%2';"_s.arg(sql::testo(numero), sql::data(data));
}

QString spedizioneIntera(const ChiaveSpedizione& chiave)
{
    return u"select * from letve00f where Lefili='%1' and Lenrlv='%2' and Leanlv='%3';"_s.arg(
        sql::testo(chiave.filiale), sql::testo(chiave.numero), anno(chiave.anno));
}

QString clientePerCodice(const QString& codice)
{
    return u"select RagioneSociale from clien where Codice=%1;"_s.arg(sql::cifre(codice));
}

QString elencoFiliali()
{
    return u"select codice, descrizione from filiali;"_s;
}

QString descrizioneFiliale(const QString& codice)
{
    return u"select descrizione from filiali where codice='%1';"_s.arg(sql::testo(codice));
}

QString filialeIntera(const QString& codice)
{
    return u"Select *  from Filiali where codice='%1';"_s.arg(sql::testo(codice));
}

QString elencoPorto()
{
    return u"select * from porto order by idPorto"_s;
}

QString ammissione(const QString& numero, QDate data)
{
    return u"select Lerico, lerfgi, leangi from letve00f where lenrlv='%1' and ledtlv='%2';"_s.arg(
        sql::testo(numero), sql::data(data));
}

QString collegaGiacenza(const ChiaveGiacenza& nuova, const QString& numeroLdv, int annoLdv)
{
    return u"update letve00f set LERFGI='%1', LEANGI='%2', LEDTCO=null where lenrlv='%3' and leanlv='%4';"_s
        .arg(sql::testo(nuova.numero), anno(nuova.anno), sql::testo(numeroLdv), anno(annoLdv));
}

QString ultimoNumGiacenza()
{
    return u"select UltimoNumGiacenza from ekelvorqzt_tabge00f;"_s;
}

QString aggiornaUltimoNumGiacenza(const QString& numero)
{
    return u"update ekelvorqzt_tabge00f set UltimoNumGiacenza=%1;"_s.arg(sql::numero(numero));
}

QString statoAvviso(const ChiaveGiacenza& chiave)
{
    return u"select GINRAV, GIDTAV, GIDES1 from giace00f where ginrgi='%1' and giangi=%2;"_s.arg(
        sql::testo(chiave.numero), anno(chiave.anno));
}

QString statoAvviso(const ChiaveSpedizione& chiave)
{
    return u"select GINRAV, GIDTAV from giace00f where gifili='%1' and ginrlv='%2' and gianlv='%3';"_s.arg(
        sql::testo(chiave.filiale), sql::testo(chiave.numero), anno(chiave.anno));
}

QString primoAvviso(const ChiaveGiacenza& chiave, QDate oggi)
{
    return u"UPDATE giace00f SET GINRAV='1', GIDTAV='%1' WHERE GINRGI='%2' AND GIANGI=%3;"_s.arg(
        sql::data(oggi), sql::testo(chiave.numero), anno(chiave.anno));
}

QString primoAvviso(const ChiaveSpedizione& chiave, QDate oggi)
{
    return u"UPDATE giace00f SET GINRAV='1', GIDTAV='%1' WHERE GIFILI='%2' AND GINRLV='%3' AND GIANLV=%4;"_s
        .arg(sql::data(oggi), sql::testo(chiave.filiale), sql::testo(chiave.numero), anno(chiave.anno));
}

QString avvisoSuccessivo(const ChiaveGiacenza& chiave, qint16 n, QDate oggi, const QString& descrizione)
{
    return u"UPDATE giace00f SET GINRAV='%1', GIDTAV='%2', GIDES1='%3' WHERE GINRGI='%4' AND GIANGI=%5;"_s
        .arg(QString::number(n), sql::data(oggi), sql::testo(descrizione), sql::testo(chiave.numero),
             anno(chiave.anno));
}

QString avvisoSuccessivo(const ChiaveSpedizione& chiave, qint16 n, QDate oggi)
{
    return u"UPDATE giace00f SET GINRAV='%1', GIDTAV='%2' WHERE GIFILI='%3' AND GINRLV='%4' AND GIANLV=%5;"_s
        .arg(QString::number(n), sql::data(oggi), sql::testo(chiave.filiale), sql::testo(chiave.numero),
             anno(chiave.anno));
}

QString istruzioniAvviso()
{
    return u"Select IstrSuAvvGiac from ekelvorqzt_tabge00f;"_s;
}

QString dataBuonFine(const ChiaveGiacenza& chiave)
{
    return u"select GIDTBF from giace00f WHERE GINRGI='%1' AND GIANGI=%2;"_s.arg(sql::testo(chiave.numero),
                                                                                 anno(chiave.anno));
}

QString dataBuonFine(const ChiaveSpedizione& chiave)
{
    return u"select GIDTBF from giace00f where gifili='%1' and ginrlv='%2' and gianlv='%3';"_s.arg(
        sql::testo(chiave.filiale), sql::testo(chiave.numero), anno(chiave.anno));
}

QString chiusura(const ChiaveGiacenza& chiave, QDate oggi, const QString& giorni)
{
    return u"UPDATE giace00f SET GIDTBF='%1', GIGGSO=%2 WHERE GINRGI='%3' AND GIANGI=%4;"_s.arg(
        sql::data(oggi), sql::numero(giorni), sql::testo(chiave.numero), anno(chiave.anno));
}

QString chiusuraRipetuta(const ChiaveGiacenza& chiave, const QString& giorni)
{
    return u"UPDATE giace00f SET GIGGSO=%1 WHERE GINRGI='%2' AND GIANGI=%3;"_s.arg(
        sql::numero(giorni), sql::testo(chiave.numero), anno(chiave.anno));
}

QString condizioniFatturazione(const QString& numero, int annoLdv)
{
    return u"SELECT tabfatturazione.* from (tabfatturazione inner JOIN letve00f  on facodi=lecodi and "
           "facmpe=lecmpe) where falcod='C' and lenrlv='%1' and leanlv='%2';"_s.arg(sql::testo(numero),
                                                                                    anno(annoLdv));
}

QString condizioniFatturazione(const QString& numero, QDate data)
{
    return u"SELECT tabfatturazione.* from (tabfatturazione inner JOIN letve00f  on facodi=lecodi and "
           "facmpe=lecmpe) where falcod='C' and lenrlv='%1' and ledtlv='%2';"_s.arg(sql::testo(numero),
                                                                                    sql::data(data));
}

QString salvaCosti(const ChiaveSpedizione& chiave, const Decimale& fisso, const Decimale& importo)
{
    QString primo = fisso.testo();
    QString secondo = importo.testo();
    return u"update Giace00f set  FissoGiacenza=%1, GIIMGI=%2 where GIFILI='%3' and GINRLV='%4' and "
           "gianlv=%5;"_s.arg(sql::numero(FormattaNumero(primo)), sql::numero(FormattaNumero(secondo)),
                              sql::testo(chiave.filiale), sql::testo(chiave.numero), anno(chiave.anno));
}

QString riconsegne(const ChiaveGiacenza& chiave)
{
    return u"SELECT letve00f.*, giace00f.* from letve00f INNER JOIN giace00f ON lerfgi=ginrgi and "
           "leangi=giangi WHERE ginrgi='%1' and giangi=%2;"_s.arg(sql::testo(chiave.numero),
                                                                  anno(chiave.anno));
}

} // namespace giacenza::istruzioni
