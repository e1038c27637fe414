#pragma once

#include "management/gestionediprova.h"

#include <QPlainTextEdit>

namespace giacenza::prove {

/// The management screen's notices.
class AvvisoDiProva : public GestioneDiProva
{
protected:
    QStringList stampata(int tipo, const QString& chiave) const
    {
        return {u"database "_s + mBase.stringa(),
                u"logo /logo"_s,
                u"didascalie uno|due|tre|quattro"_s,
                u"stampa 1"_s,
                u"tipo %1"_s.arg(tipo),
                u"documento "_s + chiave};
    }
    void descrivi(const QString& testo)
    {
        qobject_cast<QPlainTextEdit*>(c("txtDescGia"))->setPlainText(testo);
    }
    /// The notices of case 39 as the database has them.
    void avvisi(const QString& numero, const QString& data)
    {
        mBase.esegui(u"update giace00f set GINRAV=%1, GIDTAV=%2 where GINRGI='39';"_s.arg(numero, data));
    }
};

} // namespace giacenza::prove
