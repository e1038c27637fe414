#include "desk/avvisi/emittentecaso.h"

#include "base/impostazioni.h"
#include "base/orologio.h"
#include "base/parti.h"
#include "data/istruzionidesk.h"
#include "desk/casi.h"
#include "support/stampa.h"

#include <giacenza/ModuloStampa.h>

#include <gmock/gmock.h>

#include <QFile>
#include <QTemporaryDir>

using namespace giacenza;
using namespace giacenza::desk;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// What the module of the test was asked for, and what it does.
struct Stampate
{
    QStringList chiavi;
    bool rifiuta = false;
};

class ModuloFinto : public ModuloStampa
{
public:
    explicit ModuloFinto(Stampate& stampate) : mStampate(stampate) {}
    void setPercorsoDatabase(const QString&) override {}
    void setPercorsoLogo(const QString&) override {}
    void setDidascalie(const std::array<QString, 4>& didascalie) override { mTesta = didascalie[0]; }
    void setStampa(bool) override {}
    void setTipoDocumento(TipoDocumento tipo) override { mTipo = tipo; }
    void stampaDocumento(const QString& chiave, bool&) override
    {
        if (mStampate.rifiuta)
            throw Errore(u"La stampante è spenta."_s);
        mStampate.chiavi << u"%1 %2 %3"_s.arg(QString::number(static_cast<int>(mTipo)), chiave, mTesta);
    }

private:
    Stampate& mStampate;
    TipoDocumento mTipo{};
    QString mTesta;
};

class ProvaAvvisi : public testing::TestWithParam<std::string>
{
protected:
    ProvaAvvisi()
    {
        riempiCasi(mBase);
        impostaOggi(oggiCasi());
        registraParte(u"ReportDocFinto.cModuliStampa"_s,
                      [this] { return std::make_unique<ModuloFinto>(mStampate); });
        QFile ini(mCartella.filePath(u"g.ini"_s));
        if (!ini.open(QIODevice::WriteOnly) ||
            ini.write("[DLLStampe]\nIdentificativoDll=Finto\n[Bord]\nCaptionLbl1=Ufficio\n") < 0)
            throw std::runtime_error("le impostazioni di prova non si scrivono");
        impostazioni().percorsoFileIni = ini.fileName();
        impostazioni().percorsoDatabase = mBase.stringa();
    }
    ~ProvaAvvisi() override
    {
        registraParte(u"ReportDocFinto.cModuliStampa"_s, {});
        impostazioni() = {};
        impostaOggi({});
    }

    /// As the list has it.
    Caso caso(const QString& numero)
    {
        Connessione connessione = mBase.connessione();
        Recordset riga;
        riga.apri(connessione, istruzioni::casoIntero(), Recordset::Cursore::chiave,
                  std::vector<Valore>{numero, u"2026"_s});
        return leggiCaso(riga, connessione);
    }
    QString stato(const QString& numero) const
    {
        return mBase.righe(u"select GINRAV, GIDTAV, GIDES1 from giace00f where GINRGI='%1'"_s.arg(numero))
            .first()
            .join(u'|');
    }
    void chiedi(Lavoro lavoro, const QString& numero, Esito esito, const QString& parole)
    {
        const EsitoCaso avuto = mEmittente.svolgi(lavoro, caso(numero), nullptr);
        EXPECT_EQ(avuto.esito, esito) << numero.toStdString();
        EXPECT_EQ(avuto.parole, parole);
    }

    BancaDati mBase{GetParam()};
    QTemporaryDir mCartella;
    Stampate mStampate;
    EmittenteCaso mEmittente{mBase.accesso()};
};

} // namespace

TEST_P(ProvaAvvisi, contanoEStampanoSenzaToccareLaDescrizione)
{
    chiedi(Lavoro::avviso, u"41"_s, Esito::fatto, u"avviso n. 1"_s);
    EXPECT_EQ(stato(u"41"_s), u"1|2026-11-20|18/11/2026 - Assente"_s);
    chiedi(Lavoro::avviso, u"45"_s, Esito::fatto, u"avviso n. 2"_s);
    EXPECT_EQ(stato(u"45"_s), u"2|2026-11-20|L'imballo e l'etichetta"_s) << "two apostrophes do no harm";
    EXPECT_THAT(mStampate.chiavi, ElementsAre(u"5 41_2026 Ufficio"_s, u"5 45_2026 Ufficio"_s));
}

TEST_P(ProvaAvvisi, ripetutiNonFannoNienteDueVolte)
{
    const Caso prima = caso(u"42"_s);
    EXPECT_EQ(mEmittente.svolgi(Lavoro::avviso, prima, nullptr).esito, Esito::fatto);
    const EsitoCaso ancora = mEmittente.svolgi(Lavoro::avviso, prima, nullptr);
    EXPECT_EQ(ancora.esito, Esito::lasciato) << "although the list did not know yet";
    EXPECT_EQ(ancora.parole, u"avvisata oggi"_s);
    EXPECT_EQ(stato(u"42"_s), u"3|2026-11-20|10/11/2026 - Chiuso per ferie"_s);
    EXPECT_EQ(mStampate.chiavi.size(), 1);
}

TEST_P(ProvaAvvisi, chiSaDiNoLoDice)
{
    const Caso aperto = caso(u"43"_s);
    mBase.esegui(u"update giace00f set GIDTBF='2026-11-19' where GINRGI='43'"_s);
    const EsitoCaso chiuso = mEmittente.svolgi(Lavoro::avviso, aperto, nullptr);
    EXPECT_EQ(chiuso.esito, Esito::rifiutato);
    EXPECT_EQ(chiuso.parole, u"chiusa il 19/11/2026"_s);
    const Caso sparito = caso(u"44"_s);
    mBase.esegui(u"delete from giace00f where GINRGI='44'"_s);
    EXPECT_EQ(mEmittente.svolgi(Lavoro::avviso, sparito, nullptr).parole, u"la giacenza non c'è più"_s);
    mBase.esegui(u"update giace00f set GINRAV='molti' where GINRGI='45'"_s);
    const EsitoCaso strano = mEmittente.svolgi(Lavoro::avviso, caso(u"45"_s), nullptr);
    EXPECT_EQ(strano.esito, Esito::rifiutato);
    EXPECT_THAT(strano.parole.toStdString(), testing::HasSubstr("molti"));
    EXPECT_THAT(mStampate.chiavi, IsEmpty());
}

TEST_P(ProvaAvvisi, contatoENonStampatoSiDice)
{
    mStampate.rifiuta = true;
    chiedi(Lavoro::avviso, u"41"_s, Esito::incompleto,
           u"avviso n. 1, non stampato: La stampante è spenta."_s);
    EXPECT_TRUE(stato(u"41"_s).startsWith(u"1|2026-11-20"_s));
    chiedi(Lavoro::ristampa, u"41"_s, Esito::rifiutato, u"La stampante è spenta."_s);
}

TEST_P(ProvaAvvisi, laRistampaNonScriveNulla)
{
    const QString prima = stato(u"42"_s);
    chiedi(Lavoro::ristampa, u"42"_s, Esito::fatto, u"ristampato"_s);
    chiedi(Lavoro::ristampa, u"40"_s, Esito::fatto, u"ristampato"_s);
    EXPECT_EQ(stato(u"42"_s), prima);
    EXPECT_THAT(mStampate.chiavi, ElementsAre(u"5 42_2026 Ufficio"_s, u"5 40_2026 Ufficio"_s));
}

TEST_P(ProvaAvvisi, chiEGiaAvvisataOggiRestaFuori)
{
    Caso c = caso(u"42"_s);
    EXPECT_FALSE(lasciatoFuori(c, Lavoro::avviso, oggiCasi()));
    c.ultimoAvviso = oggiCasi();
    EXPECT_EQ(lasciatoFuori(c, Lavoro::avviso, oggiCasi()), u"avvisata oggi"_s);
    EXPECT_FALSE(lasciatoFuori(c, Lavoro::ristampa, oggiCasi()));
    c.ultimoAvviso = oggiCasi().addDays(1);
    EXPECT_EQ(lasciatoFuori(c, Lavoro::avviso, oggiCasi()), u"l'ultimo avviso porta una data futura"_s);
}

INSTANTIATE_TEST_SUITE_P(Basi, ProvaAvvisi, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);
