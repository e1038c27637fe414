#include "comune/pagine.h"

#include "comune/avanzamento.h"

#include <QPagedPaintDevice>
#include <QPainter>
#include <QPrinter>

using namespace Qt::StringLiterals;

namespace giacenza::comune {

Pagine tutte(const Documento& documento)
{
    return {0, documento.pagine()};
}

namespace {

/// While the painter is still active: once it has ended, a printer has the pages. Always false.
bool abbandona(QPagedPaintDevice& dispositivo)
{
    if (auto* stampante = dynamic_cast<QPrinter*>(&dispositivo))
        stampante->abort();
    return false;
}

} // namespace

bool dipingiPagine(Documento& documento, Pagine pagine, QPagedPaintDevice& dispositivo, QWidget* padre)
{
    Avanzamento avanzamento(padre, documento.titolo(), pagine.a - pagine.da);
    QPainter pittore(&dispositivo);
    for (int pagina = pagine.da; pagina < pagine.a; ++pagina) {
        if (!avanzamento.prosegue(pagina - pagine.da))
            return abbandona(dispositivo);
        if (!pittore.isActive() || (pagina > pagine.da && !dispositivo.newPage()))
            throw Errore(u"Impossibile stampare la pagina %1 di \"%2\"."_s.arg(QString::number(pagina + 1),
                                                                               documento.titolo()));
        if (!documento.dipingi(pagina, pittore))
            return abbandona(dispositivo);
    }
    return avanzamento.prosegue(pagine.a - pagine.da) || abbandona(dispositivo);
}

} // namespace giacenza::comune
