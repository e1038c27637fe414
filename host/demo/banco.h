#pragma once

#include "archivio.h"
#include "regista.h"

#include <QString>

/// Where the desk of the story works.
struct Deposito
{
    QString database; ///< connection string
    QString cartella; ///< settings file, documents and pictures
};

/// Works at the desk: looks at the open cases, scans a waybill of today's that leads to an old case, filters,
/// tells three customers at once, then prints what a case costs, its whole story and a customer's statement.
/// Every window is pictured in light and in dark colours. Throws Imprevisto.
void raccontaBanco(Regista& regista, Archivio& archivio, const Deposito& deposito);
