// The registration screen on a disk that is full, or read-only.

#include "dintorni/pocospazio.h"
#include "registration/registrazionediprova.h"

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;

namespace {

const QString aggiunta = u"Giacenza aggiunta in database."_s;

class DiscoRegistrazione : protected SulDisco, public RegistrazioneDiProva
{
protected:
    QString stato() const { return mostrato("lblStato"); }

    /// The case of waybill 4711 without its number, and whether the waybill's link is that case's.
    QString giacenzaNuova() const
    {
        return mBase
            .righe(
                u"select GINRAV, GIDTAV, GIDES1, LEDTCO, case when GINRGI is null and LERFGI is null then "
                u"'libera' "
                "when GINRGI=LERFGI and GIANGI=LEANGI then 'legata' else 'rotta' end "
                "from letve00f left join giace00f on ginrlv=lenrlv and gianlv=leanlv where lenrlv='4711'"_s)
            .front()
            .join(u'|');
    }

    void rimetti()
    {
        mBase.esegui(
            u"delete from giace00f where GINRLV='4711';\nupdate letve00f set LERFGI=null, LEANGI=null, "
            "LEDTCO='2026-11-14' where lenrlv='4711';\nupdate ekelvorqzt_tabge00f set "
            "UltimoNumGiacenza=41;"_s);
        consegna(u"4711"_s);
        scrivi("txtDescGia", u"Assente"_s);
    }

    static bool veroSalvataggio(const Esito& esito, const QString& frase)
    {
        if (esito.completo)
            return esito.scatole == QStringList{aggiunta} &&
                   esito.stato.startsWith(u"Avviso di giacenza 4"_s);
        if (esito.passo == 0)
            return esito.detto(frase) &&
                   (esito.scatole == QStringList{u"Impossibile aggiungere la nuova giacenza."_s} ||
                    esito.stato.startsWith(u"Niente è stato salvato; riprovare con Salva. "_s));
        return esito.scatole == QStringList{aggiunta} && esito.detto(frase) &&
               esito.stato.contains(u" è registrata, l'avviso no: emetterlo con il suo bottone. "_s);
    }

    Impresa salvataggio()
    {
        return {.prepara = [this] { rimetti(); },
                .compi = [this] { clicca("cmdSalva"); },
                .righe = [this] { return giacenzaNuova(); },
                .stato = [this] { return stato(); },
                .stati = {u"NULL|NULL|NULL|2026-11-14|libera"_s,
                          u"NULL|NULL|21/11/2026 - Assente|NULL|legata"_s,
                          u"1|2026-11-21|21/11/2026 - Assente|NULL|legata"_s},
                .vero = veroSalvataggio,
                .riprova =
                    [this](const Esito& esito) { clicca(esito.passo == 0 ? "cmdSalva" : "cmdAvvisoGia"); }};
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, DiscoRegistrazione, testing::Values("sqlite"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(DiscoRegistrazione, PienoMentreSiSalva)
{
    provaOgniPagina(mDisco, mMessaggi, mBase, salvataggio());
}

TEST_P(DiscoRegistrazione, PienoMentreSiSalvaConIlGiornaleDiSqlite)
{
    scegliGiornale(mBase, u"delete"_s);
    provaOgniPagina(mDisco, mMessaggi, mBase, salvataggio());
}

TEST_P(DiscoRegistrazione, InSolaLetturaMentreSiSalva)
{
    provaSolaLettura(mDisco, mMessaggi, salvataggio(), [this] { mSchermata->rilasciaConnessione(); });
}

TEST_P(DiscoRegistrazione, InSolaLetturaMentreSiSalvaConIlGiornaleDiSqlite)
{
    scegliGiornale(mBase, u"delete"_s);
    provaSolaLettura(mDisco, mMessaggi, salvataggio(), [this] { mSchermata->rilasciaConnessione(); });
}

} // namespace
