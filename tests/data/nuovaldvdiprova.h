#pragma once

#include "data/archivio.h"
#include "data/nuovaldv.h"
#include "support/bancadati.h"
#include "support/ldvdiprova.h"
#include "support/spedizioni.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

/// A MariaDB whose table is the host's own, without the schema's generated column.
inline const std::string senzaColonna = "mariadbSenzaColonna";

/// The issue of a waybill from number 4711 of the small depot, which is held.
class NuovaLdvDiProva : public testing::TestWithParam<std::string>
{
protected:
    NuovaLdvDiProva()
    {
        if (GetParam() == senzaColonna)
            mBase.esegui(u"alter table letve00f drop key letve_numerico, drop column lenrlv_numero;"_s);
        riempiDeposito(mBase);
        mBase.esegui(u"update letve00f set LERFGI='40', LEANGI=2026, lecdve='V01' where lenrlv='4711';"_s);
        mPrima = tutto();
        mConnessione = mBase.connessione();
    }
    ~NuovaLdvDiProva() override { impostaTraccia({}); }

    QList<QStringList> nuove() const
    {
        return mBase.righe(u"select "
                           u"lefili,lenrlv,leanlv,ledtlv,lecodi,lecmpe,ledest,leindd,lecapd,lelocd,leprod,"
                           u"lerico,lecdve,lelin1,"
                           "lenatu,lerife,lerifd,leport,lecoll,lepeso+0,levolu+0,lecnss+0,leanpc+0,lenote,"
                           "levame+0,leflbc,LERFGI,LEANGI,"
                           "LEDTCO from letve00f where ledtlv='2026-11-21' order by lenrlv"_s);
    }
    /// Everything but the waybills of today.
    QList<QList<QStringList>> tutto() const
    {
        return {mBase.righe(u"select * from letve00f where ledtlv<>'2026-11-21' order by lenrlv, lefili"_s),
                mBase.righe(u"select * from giace00f order by GINRGI"_s),
                mBase.righe(u"select * from clien order by Codice"_s),
                mBase.righe(u"select * from ekelvorqzt_tabge00f"_s)};
    }
    QString motivo(const RecordLdv& ldv, const Contesto& contesto)
    {
        try {
            emettiLdv(mConnessione, ldv, contesto);
        } catch (const Errore& errore) {
            return errore.testo();
        }
        return u"emessa"_s;
    }

    BancaDati mBase{GetParam() == senzaColonna ? "mariadb" : GetParam()};
    QList<QList<QStringList>> mPrima;
    Connessione mConnessione;
};

} // namespace giacenza::prove
