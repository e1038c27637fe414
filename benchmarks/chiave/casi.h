#pragma once

#include "benchmarks/quadro/basi.h"

namespace banco {

/// A database of demonstration data that operations by key are measured on.
struct Deposito
{
    QString tipo;
    qint64 righe; ///< waybills
    QString stringa;
};

Deposito deposito(const Basi& basi, const QString& tipo, qint64 righe);

/// Requests for two programs beside each other, from all over the depot, no case in both but the first, which
/// is one. Parts between tabulators: branch, number, year and date of the waybill, customer, number, year and
/// date of the held shipment, its days of storage, then the statements that put everything back.
struct Richieste
{
    QStringList nostre;
    QStringList riferimento;
};

/// Waybills that may be held today. The number of the held shipment is empty, its date today's.
Richieste casiDaRegistrare(const Deposito& deposito);
/// Open held shipments, noticed before today, of a customer with terms, not delivered again yet.
Richieste casiAperti(const Deposito& deposito);

} // namespace banco
