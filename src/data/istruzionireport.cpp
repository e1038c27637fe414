#include "data/istruzionireport.h"

#include "database/sql.h"

using namespace Qt::StringLiterals;

namespace giacenza::istruzioni {

QString giacenzaReport(const QString& numero, const QString& anno)
{
    return u"select giace00f.*, clien.RagioneSociale, clien.Indirizzo, clien.Localita, clien.Provincia, "
           "clien.CLCAP from (giace00f left join clien on GICODI=Codice) "
           "where ginrgi='%1' and giangi=%2;"_s.arg(sql::testo(numero), sql::cifre(anno));
}

QString spedizioneReport(const QString& filiale, const QString& numero, const QString& anno)
{
    return u"select letve00f.*, filiali.descrizione as filiale "
           "from (letve00f left join filiali on lefili=filiali.codice) "
           "where lefili='%1' and lenrlv='%2' and leanlv=%3;"_s.arg(sql::testo(filiale), sql::testo(numero),
                                                                    sql::cifre(anno));
}

} // namespace giacenza::istruzioni
