#pragma once

#include <QString>

/// The statements of the statement of account: what a customer had in storage. Each "?" stands for one value
/// of the caller's.
namespace giacenza::istruzioni {

/// Code, name and count of the customers with open cases, as GICODI, RagioneSociale, aperte; by name.
QString clientiConAperte();

/// The cases of a customer that were open on some day of a period, each with its waybill, in the order in
/// which they began. "?": the customer's code, the last day, the first day.
QString giacenzeCliente();

/// The waybills linked to a case, with it among them. "?": number and year of the case.
QString ldvCollegate();

} // namespace giacenza::istruzioni
