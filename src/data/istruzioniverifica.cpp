#include "data/istruzioniverifica.h"

#include "database/sql.h"

using namespace Qt::StringLiterals;

namespace giacenza::istruzioni {

namespace {

QString fine(Lettura come)
{
    return come == Lettura::conBlocco ? u" lock in share mode;"_s : u";"_s;
}

} // namespace

QString giacenzaRegistrata(const ChiaveGiacenza& nuova, const QString& numeroLdv, Lettura come)
{
    return u"select GINRGI from giace00f where GINRGI='%1' and GIANGI=%2 and GINRLV='%3'"_s.arg(
               sql::testo(nuova.numero), QString::number(nuova.anno), sql::testo(numeroLdv)) +
           fine(come);
}

QString legameRegistrato(const ChiaveGiacenza& nuova, const QString& numeroLdv, int annoLdv, Lettura come)
{
    return u"select LERFGI from letve00f where lenrlv='%1' and leanlv=%2 and LERFGI='%3' and LEANGI=%4"_s.arg(
               sql::testo(numeroLdv), QString::number(annoLdv), sql::testo(nuova.numero),
               QString::number(nuova.anno)) +
           fine(come);
}

QString giacenzaCheTiene(const ChiaveSpedizione& ldv)
{
    return u"select GINRGI, GIANGI, GIDTGI from giace00f where GIFILI='%1' and GINRLV='%2' and GIANLV=%3;"_s
        .arg(sql::testo(ldv.filiale), sql::testo(ldv.numero), QString::number(ldv.anno));
}

} // namespace giacenza::istruzioni
