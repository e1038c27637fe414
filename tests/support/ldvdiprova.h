#pragma once

#include "data/istruzioni.h"
#include "database/recordset.h"

#include <giacenza/Contesto.h>
#include <giacenza/EmittenteLdv.h>

#include <map>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

/// A waybill's record as a test wants it.
class LdvDiProva : public RecordLdv
{
public:
    /// A record that could not be read.
    LdvDiProva() = default;
    /// The waybill of the small depot of a number; empty when there is none.
    LdvDiProva(Connessione& connessione, const QString& numero)
    {
        Recordset riga;
        riga.apri(connessione, istruzioni::spedizioneIntera({u"MI"_s, numero, 2026}));
        for (int i = 0; i < riga.colonne(); ++i) {
            mColonne << riga.nomeColonna(i);
            if (!riga.eof())
                mValori[riga.nomeColonna(i).toLower()] = riga.valore(i);
        }
    }

    bool vuoto() const override { return mValori.empty(); }
    QStringList colonne() const override { return mColonne; }
    Valore valore(const QString& colonna) const override { return mValori.at(colonna.toLower()); }

private:
    QStringList mColonne;
    std::map<QString, Valore> mValori;
};

/// A re-delivery on 21/11/2026 of the held shipment 40, without check.
inline Contesto contestoDiProva()
{
    return {.lavoro = u"Riconsegna a Destinatario"_s,
            .numeroGiacenza = u"40"_s,
            .annoGiacenza = 2026,
            .oggi = QDate(2026, 11, 21)};
}

} // namespace giacenza::prove
