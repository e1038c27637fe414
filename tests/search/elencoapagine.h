#pragma once

#include "base/impostazioni.h"
#include "data/archivio.h"
#include "search/bancoricerca.h"
#include "search/modelloricerca.h"
#include "support/stampa.h"

namespace giacenza::prove {

inline constexpr int cliente = 4000;

/// A list in an order, on a database of its own; what reaches the database is kept.
class ElencoAPagineDiProva : public testing::TestWithParam<std::string>
{
protected:
    ElencoAPagineDiProva()
    {
        mTracciaPrima = impostaTraccia([this](EventoDati evento, const QString& testo) {
            mEventi += evento == EventoDati::apertura     ? u"apertura"_s
                       : evento == EventoDati::istruzione ? testo
                                                          : u"chiusura"_s;
            if (evento == EventoDati::istruzione && mPrima)
                mPrima();
        });
    }
    ~ElencoAPagineDiProva() override { impostaTraccia(std::move(mTracciaPrima)); }

    bool mariadb() const { return GetParam() == "mariadb"; }

    /// Waybills from number da on; riferimento: an expression of the number i.
    void scrivi(int da, int quante, const QString& riferimento) const
    {
        mBase.esegui(u"insert into letve00f (lefili, lenrlv, leanlv, ledtlv, lecodi, ledest, lerife) "
                     "with recursive n(i) as (select %1 union all select i+1 from n where i<%1+%2-1) "
                     "select 'MI', i, 2026, '2026-02-03', %3, 'DESTINATARIO', %4 from n;"_s.arg(da)
                         .arg(quante)
                         .arg(cliente)
                         .arg(riferimento));
    }

    static QString istruzione(ModoRicerca modo)
    {
        DatiRicerca dati;
        dati.cliente = QString::number(cliente);
        dati.filiale = u"MI"_s;
        return istruzioni::ricercaApertura(modo, dati);
    }

    void apri(ModoRicerca modo)
    {
        mEventi.clear();
        mModello.apri(mBase.accesso(), istruzione(modo), postiScelta(modo));
    }

    void leggiTutto()
    {
        while (mModello.canFetchMore({}))
            mModello.fetchMore({});
    }

    QStringList colonna(int quale) const
    {
        QStringList valori;
        for (int riga = 0; riga < mModello.rowCount(); ++riga)
            valori += mModello.index(riga, quale).data().toString();
        return valori;
    }

    /// The numbers of the waybills as the whole statement gives them.
    QStringList intero(ModoRicerca modo) const
    {
        QStringList numeri;
        for (const QStringList& riga : mBase.righe(istruzione(modo)))
            numeri += riga[0];
        return numeri;
    }

    BancaDati mBase{GetParam()};
    ModelloRicerca mModello;
    QStringList mEventi;
    std::function<void()> mPrima; // before each statement; may throw
    Traccia mTracciaPrima;
};

} // namespace giacenza::prove
