#include "data/istruzioniricerca.h"

#include "database/sql.h"

using namespace Qt::StringLiterals;

namespace giacenza::istruzioni {

namespace {

QString elencoLettere()
{
    return u"select lenrlv as Num_Ldv, ledtlv as Data_Emissione, leflbc as Bord_Inv, lerife as Numero_Rif, "
           "lerifd as Data_Rif, ledest as Destinatario,  ginrgi as Num_Giac, giangi as Anno_giac, "
           "lerico as Riconsegna from letve00f left join giace00f on lefili=gifili and lenrlv=ginrlv and "
           "leanlv=gianlv where lecodi="_s;
}

QString elencoGiacenze()
{
    return u"select ginrlv, ledtlv, Ginrgi as Giacenza, gidtgi as Data_Giac, gicodi as cod_cliente, "
           "Lerife as Rif_Mitt, Lerifd as Data_Rif_Mitt,ledest as Destinatario, GIDTBF as Buon_Fine "
           "FROM giace00f INNER join letve00f on gifili=lefili and ginrlv=lenrlv and gianlv=leanlv where "_s;
}

QString perRiferimento(const DatiRicerca& dati)
{
    const QString elenco =
        u"select lenrlv, leflbc as Bord_Inv, lerife as Numero_Rif, lerifd as Data_Rif, ledest as "
        u"Destinatario, "
        "ledtlv as Data_Emissione, ginrgi as Num_Giac, giangi as Anno_giac,lerico as Riconsegna  "
        "from letve00f left join giace00f on lefili=gifili and lenrlv=ginrlv and leanlv=gianlv where lecodi="_s;
    if (eNumero(dati.annoOData)) {
        return elenco +
               u"%1 and LERIFE>='%2' and year(LERIFD)=%3 and lefili='%4' ORDER BY lerife, ledtlv;"_s.arg(
                   sql::cifre(dati.cliente), sql::testo(dati.riferimento), sql::cifre(dati.annoOData),
                   sql::testo(dati.filiale));
    }
    return elenco + u"%1 and LERIFE>='%2' and lefili='%3' ORDER BY lerife, ledtlv;"_s.arg(
                        sql::cifre(dati.cliente), sql::testo(dati.riferimento), sql::testo(dati.filiale));
}

QString perLettera(const DatiRicerca& dati)
{
    if (eNumero(dati.annoOData)) {
        return elencoLettere() +
               u"%1 and lefili='%2' and LENRLV>='%3' and LEANLV=%4 ORDER BY CAST(lenrlv as unsigned), leanlv;"_s
                   .arg(sql::cifre(dati.cliente), sql::testo(dati.filiale), sql::testo(dati.numero),
                        sql::cifre(dati.annoOData));
    }
    return elencoLettere() +
           u"%1 and lefili='%2' and LENRLV>='%3' ORDER BY CAST(lenrlv as unsigned), leanlv;"_s.arg(
               sql::cifre(dati.cliente), sql::testo(dati.filiale), sql::testo(dati.numero));
}

QString riconsegneDi(const DatiRicerca& dati)
{
    return u"SELECT lenrlv as Num_Ldv, ledtlv as Data_Emissione, leflbc as Bord_Inv, lerife as Numero_Rif, "
           "lerifd as Data_Rif, ledest as Destinatario, lerico as Riconsegna from (letve00f inner JOIN "
           "giace00f "
           "on lefili=gifili and lerfgi=ginrgi and leangi=giangi) where ginrgi='%1' and giangi=%2;"_s.arg(
               sql::testo(dati.giacenza), sql::cifre(dati.annoGiacenza));
}

QString visualizzaRiferimento(const DatiRicerca& dati)
{
    return u"select lenrlv, leflbc as Bord_Inv, lerife as Numero_Rif, lerifd as Data_Rif, ledest as "
           u"Destinatario, "
           "ledtlv as Data_Emissione, ginrgi as Num_Giac, giangi as Anno_giac, lerico as Riconsegna  "
           "from letve00f left join giace00f on lefili=gifili and lenrlv=ginrlv and leanlv=gianlv where "
           "lecodi=%1 "
           "and lerife >='%2' and lefili='%3' ORDER BY lerife, ledtlv;"_s.arg(
               sql::cifre(dati.cliente), sql::testo(dati.valore), sql::testo(dati.filiale));
}

QString visualizzaLettera(const DatiRicerca& dati)
{
    if (dati.annoOData.isEmpty()) {
        return elencoLettere() + u"%1 and cast(lenrlv as unsigned) >=%2 and lefili='%3' "
                                 "ORDER BY CAST(lenrlv as unsigned), leanlv;"_s.arg(sql::cifre(dati.cliente),
                                                                                    sql::cifre(dati.valore),
                                                                                    sql::testo(dati.filiale));
    }
    return elencoLettere() + u"%1 and cast(lenrlv as unsigned) >=%2 and leanlv>='%3' and lefili='%4' "
                             "ORDER BY CAST(lenrlv as unsigned), leanlv;"_s.arg(
                                 sql::cifre(dati.cliente), sql::cifre(dati.valore),
                                 sql::testo(dati.annoOData), sql::testo(dati.filiale));
}

} // namespace

QString ricercaApertura(ModoRicerca modo, const DatiRicerca& dati)
{
    switch (modo) {
    case ModoRicerca::riferimento:
        return perRiferimento(dati);
    case ModoRicerca::letteraVettura:
        return perLettera(dati);
    case ModoRicerca::riconsegne:
        return riconsegneDi(dati);
    case ModoRicerca::giacenze:
        break;
    }
    return elencoGiacenze() + u"giangi=%1 and letve00f.lecodi='%2';"_s.arg(
                                  sql::cifre(QString::number(dati.annoCorrente)), sql::testo(dati.cliente));
}

QString ricercaVisualizza(ModoRicerca modo, const DatiRicerca& dati)
{
    switch (modo) {
    case ModoRicerca::riferimento:
        return visualizzaRiferimento(dati);
    case ModoRicerca::letteraVettura:
        return visualizzaLettera(dati);
    case ModoRicerca::riconsegne:
        return {};
    case ModoRicerca::giacenze:
        break;
    }
    return elencoGiacenze() +
           u"letve00f.Lecodi='%1' and gidtgi>='%2';"_s.arg(
               sql::testo(dati.cliente), sql::data(leggiData(dati.annoOData).value_or(QDate())));
}

} // namespace giacenza::istruzioni
