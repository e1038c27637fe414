#include "desk/documenti/salvati.h"

#include "comune/archivio.h"
#include "desk/documenti/estrattocsv.h"
#include "desk/documenti/estrattoxlsx.h"
#include "desk/documenti/foglioestratto.h"

using namespace Qt::StringLiterals;

namespace giacenza::documenti {

QString salvaPdf(Documento& documento, const QString& nome, const Carta& carta)
{
    return comune::archivia(carta.cartella, nome, inPdf(documento));
}

QStringList salvaEstratto(const Estratto& estratto, const Forme& forme, const Carta& carta,
                          const QString& cartella)
{
    const QString nome = nomeEstratto(estratto);
    QStringList file;
    if (forme.pdf)
        file << comune::archivia(cartella, nome, inPdf(*documentoEstratto(estratto, carta)));
    if (forme.csv)
        file << comune::archivia(cartella, nome, estrattoCsv(estratto), u".csv"_s);
    if (forme.xlsx)
        file << comune::archivia(cartella, nome, estrattoXlsx(estratto), u".xlsx"_s);
    return file;
}

} // namespace giacenza::documenti
