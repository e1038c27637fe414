#pragma once

#include "redelivery/riconsegnadiprova.h"

#include <QCoreApplication>

namespace giacenza::prove {

/// The re-delivery screen as it issues.
class EmissioneDiProva : public RiconsegnaDiProva
{
protected:
    /// All that an issuer is driven with for a waybill.
    QStringList consegnaIntera(const QString& numero, bool stampa = true) const
    {
        const QString cartella = QCoreApplication::applicationDirPath();
        return {u"contesto"_s,
                u"database "_s + mBase.stringa(),
                u"cartella "_s + cartella + u"/imp"_s,
                u"logo "_s + cartella + u"/logo.gif"_s,
                u"stampa %1"_s.arg(stampa),
                u"definitiva 1"_s,
                u"emetti "_s + numero};
    }
};

} // namespace giacenza::prove
