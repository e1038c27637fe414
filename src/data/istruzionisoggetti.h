#pragma once

#include <QString>

namespace giacenza {

/// What a party (a customer, a supplier, a recipient) is sought by.
enum class CampoSoggetto
{
    codice,
    partitaIva,
    ragioneSociale,
    localita,
    provincia
};

} // namespace giacenza

namespace giacenza::istruzioni {

/// The parties of a table, by name. The one "?" is the whole code or VAT number, or the pattern for the three
/// texts.
///
/// tabella: an identifier. Throws Errore for what is none, since it stands bare in the statement.
QString ricercaSoggetti(const QString& tabella, CampoSoggetto campo);

/// The pattern that finds a text at the start of a value or inside it; the characters of the text stand for
/// themselves, whatever the database takes as special.
QString modelloSoggetti(const QString& testo, bool interna);

} // namespace giacenza::istruzioni
