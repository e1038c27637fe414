#pragma once

#include "data/istruzioni.h"
#include "desk/documenti/carta.h"
#include "schema/registro.h"
#include "support/bancadati.h"
#include "support/spedizioni.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

/// The small depot with billing terms (5 free days, 1.50 a day, 15.00 at least, 5.00 once), the open case 42
/// of customer 1001 on waybill 4711 since 01/11/2026, noticed twice and re-delivered with waybill 4720, and
/// the open case 43 of customer 1002, who has no terms, on waybill 4712.
class DepositoDesk : public testing::TestWithParam<std::string>
{
protected:
    DepositoDesk();
    ~DepositoDesk() override;

    void conRegistro() { preparaRegistro(mBase.accessoAmministratore()); }
    documenti::Carta carta() const;
    QStringList salvati() const;

    const QDate mOggi{2026, 11, 22};
    const ChiaveGiacenza mAperta{u"42"_s, 2026};
    const ChiaveGiacenza mChiusa{u"40"_s, 2026};
    const BancaDati mBase{GetParam()};
    const QTemporaryDir mCartella;
};

/// The texts of a PDF's pages as they are read.
QString testoPdf(const QString& file);

} // namespace giacenza::prove
