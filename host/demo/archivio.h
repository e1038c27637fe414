#pragma once

#include "database/connessione.h"
#include "database/valori.h"

#include <vector>

/// The demonstration's own look at the database: what it starts from, and whether the rows it expects are
/// there.
class Archivio
{
public:
    explicit Archivio(const QString& stringa);

    /// The first row of a select, null for no row.
    std::vector<giacenza::Valore> riga(const QString& istruzione);
    /// The first column of the first row; throws Imprevisto when there is no row or it is null.
    QString valore(const QString& istruzione);

private:
    QString mStringa;
};

/// A waybill that can be held.
struct Spedizione
{
    QString filiale;
    QString numero;
    QString data; ///< dd/mm/yyyy
    QString anno;
    QString cliente;
    QString destinatario;
};

/// The latest waybills that can be held, a few of them.
std::vector<Spedizione> spedizioniLibere(Archivio& archivio);
