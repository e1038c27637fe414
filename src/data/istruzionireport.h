#pragma once

#include <QString>

/// The statements that give the reports their rows: a held shipment, and beneath it the waybill that it
/// holds, related by branch, waybill number and waybill year. Values are pasted in through sql::, so each
/// function throws ErroreDatabase (42000) for a value that would leave its place.
namespace giacenza::istruzioni {

/// All columns of a held shipment and its customer's RagioneSociale, Indirizzo, Localita, Provincia, CLCAP.
QString giacenzaReport(const QString& numero, const QString& anno);

/// All columns of a waybill and its branch's name as "filiale".
QString spedizioneReport(const QString& filiale, const QString& numero, const QString& anno);

} // namespace giacenza::istruzioni
