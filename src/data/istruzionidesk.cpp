#include "data/istruzionidesk.h"

using namespace Qt::StringLiterals;

namespace giacenza::istruzioni {

namespace {

QString colonneCaso()
{
    return u"select GINRGI, GIANGI, GIFILI, GINRLV, GIANLV, GICODI, GIFIGI, GIDTGI, GINRAV, GIDTAV, GIDES1, "
           "letve00f.ledtlv, letve00f.ledest, letve00f.lelocd, letve00f.leprod, letve00f.lerife, "
           "letve00f.lecoll, letve00f.lepeso, clien.RagioneSociale, FACODI, FADFGI, FAFRGI, FATGIG, FAMIGI, "
           "(select count(*) from letve00f legata where legata.LERFGI=GINRGI and legata.LEANGI=GIANGI) as "
           "Legate, (select max(legata.ledtlv) from letve00f legata where legata.LERFGI=GINRGI and "
           "legata.LEANGI=GIANGI) as UltimaLegata, "
           "(select count(*) from letve00f omonima where omonima.lenrlv=GINRLV and omonima.leanlv=GIANLV and "
           "omonima.lefili<>coalesce(GIFILI,'')) as Omonime"_s;
}

QString unioneCaso()
{
    return u" from ((giace00f left join letve00f on lefili=GIFILI and lenrlv=GINRLV and leanlv=GIANLV) "
           "left join clien on clien.Codice=GICODI) "
           "left join tabfatturazione on FALCOD='C' and FACODI=letve00f.lecodi and "
           "FACMPE=letve00f.lecmpe where "_s;
}

QString inOrdine()
{
    return u" order by GIDTGI, GINRGI"_s;
}

/// A waybill, and the case that it is held in or follows.
QString trovate(const QString& condizione)
{
    return u"select lefili, lenrlv, leanlv, ledtlv, lecodi, clien.RagioneSociale, ledest, lelocd, lerife, "
           "lerico, coalesce(sua.GINRGI, altra.GINRGI), coalesce(sua.GIANGI, altra.GIANGI), "
           "coalesce(sua.GIDTGI, altra.GIDTGI), case when sua.GINRGI is null then altra.GIDTBF else "
           "sua.GIDTBF end, case when sua.GINRGI is null then 0 else 1 end from ((letve00f "
           "left join giace00f sua on sua.GIFILI=lefili and sua.GINRLV=lenrlv and sua.GIANLV=leanlv) "
           "left join giace00f altra on altra.GINRGI=LERFGI and altra.GIANGI=LEANGI) "
           "left join clien on clien.Codice=lecodi where "_s +
           condizione + u" order by ledtlv desc, lefili"_s;
}

/// A case, with its waybill where there is one.
QString giacenze(const QString& condizione)
{
    return u"select GIFILI, GINRLV, GIANLV, ledtlv, coalesce(GICODI, lecodi), clien.RagioneSociale, ledest, "
           "lelocd, lerife, lerico, GINRGI, GIANGI, GIDTGI, GIDTBF, 1 from (giace00f "
           "left join letve00f on lefili=GIFILI and lenrlv=GINRLV and leanlv=GIANLV) "
           "left join clien on clien.Codice=GICODI where "_s +
           condizione + u" order by GIANGI desc"_s;
}

} // namespace

QString casiAperti()
{
    return colonneCaso() + unioneCaso() + u"GIDTBF is null"_s + inOrdine();
}

QString casiApertiFiliale()
{
    return colonneCaso() + unioneCaso() +
           u"GIDTBF is null and (GIFIGI=? or (GIFIGI is null and GIFILI=?))"_s + inOrdine();
}

QString ldvPerNumero()
{
    return trovate(u"lenrlv=?"_s);
}

QString ldvPerNumeroAnno()
{
    return trovate(u"lenrlv=? and leanlv=?"_s);
}

QString ldvPerChiave()
{
    return trovate(u"lefili=? and lenrlv=? and leanlv=?"_s);
}

QString ldvPerRiferimento()
{
    return trovate(u"lerife=?"_s);
}

QString giacenzaPerNumero()
{
    return giacenze(u"GINRGI=?"_s);
}

QString giacenzaPerNumeroAnno()
{
    return giacenze(u"GINRGI=? and GIANGI=?"_s);
}

QString casoIntero()
{
    return colonneCaso() + u", GIDTBF, GIGGSO, GIIMGI, FissoGiacenza, GINRFA, GIDTFA, GIVNRG, GIVDTG"_s +
           unioneCaso() + u"GINRGI=? and GIANGI=?"_s;
}

QString lettereLegate()
{
    return u"select lefili, lenrlv, leanlv, ledtlv, lerico, ledest, lelocd, leflbc, LEDTCO, lenote from "
           u"letve00f "
           "where LERFGI=? and LEANGI=? order by ledtlv, lenrlv"_s;
}

} // namespace giacenza::istruzioni
