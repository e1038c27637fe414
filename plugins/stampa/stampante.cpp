#include "stampa/stampante.h"

#include "comune/pagine.h"

#include <QPrinter>
#include <QPrinterInfo>

using namespace Qt::StringLiterals;

namespace giacenza::stampa {

bool stampaSuCarta(Documento& documento, QWidget* padre)
{
    const QPrinterInfo predefinita = QPrinterInfo::defaultPrinter();
    if (predefinita.isNull())
        throw Errore(u"Il sistema non ha una stampante predefinita."_s);
    QPrinter stampante(predefinita, QPrinter::HighResolution);
    if (!stampante.isValid())
        throw Errore(u"La stampante \"%1\" non è utilizzabile."_s.arg(predefinita.printerName()));
    return stampaSu(stampante, documento, padre);
}

bool stampaSu(QPrinter& stampante, Documento& documento, QWidget* padre)
{
    stampante.setDocName(documento.titolo());
    stampante.setPageLayout(documento.impaginazione());
    documento.ricomincia();
    return comune::dipingiPagine(documento, comune::tutte(documento), stampante, padre);
}

} // namespace giacenza::stampa
