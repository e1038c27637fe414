#pragma once

#include "database/recordset.h"

#include <giacenza/Contesto.h>
#include <giacenza/EmittenteLdv.h>

#include <utility>
#include <vector>

namespace giacenza {

/// The first row of a result, copied: nothing of the database stays open under it.
class LdvLetta : public RecordLdv
{
public:
    /// An empty record.
    LdvLetta() = default;

    /// Takes the first row, if there is one; on an error the record stays as it was. Throws ErroreDatabase.
    void leggi(Recordset& righe);

    bool vuoto() const override { return mVuoto; }
    QStringList colonne() const override;
    Valore valore(const QString& colonna) const override;

private:
    bool mVuoto = true;
    std::vector<std::pair<QString, Valore>> mValori;
};

/// Has the host's issuer make the waybill that follows: hands over the shared connection string, the print
/// folder and the logo of the program's folder, the print flag, true, and then the record.
///
/// Returns what was issued, or may have been, in the issuer's words; empty when nothing was. Throws Errore
/// when there is no issuer, and for whatever the issuer throws at any step; the rest of the hand-over is then
/// skipped.
QString EmettiRiconsegna(const RecordLdv& ldv, bool stampa, const Contesto& contesto);

} // namespace giacenza
