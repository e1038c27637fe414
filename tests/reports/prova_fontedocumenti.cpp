#include "reports/letters/fontedocumenti.h"

#include "base/cartellaprova.h"
#include "base/orologio.h"
#include "reports/casodiprova.h"
#include "reports/letters/reportcondivisi.h"
#include "reports/pagineprova.h"

#include <QDir>
#include <QWidget>

#include <gmock/gmock.h>

using namespace giacenza;
using namespace giacenza::report;
using namespace giacenza::report::prove;
using namespace Qt::StringLiterals;

namespace {

/// Keeps what it is handed.
class ModuloChePrende : public ModuloStampaConFonte
{
public:
    void setFonte(FonteDocumenti* fonte, QWidget* padre) override
    {
        mFonte = fonte;
        mPadre = padre;
    }
    void setPercorsoDatabase(const QString&) override {}
    void setPercorsoLogo(const QString&) override {}
    void setDidascalie(const std::array<QString, 4>&) override {}
    void setStampa(bool) override {}
    void setTipoDocumento(TipoDocumento) override {}
    void stampaDocumento(const QString&, bool&) override {}

    FonteDocumenti* mFonte = nullptr;
    QWidget* mPadre = nullptr;
};

/// A module by somebody who knows nothing of sources.
class ModuloSemplice : public ModuloStampa
{
public:
    void setPercorsoDatabase(const QString&) override {}
    void setPercorsoLogo(const QString&) override {}
    void setDidascalie(const std::array<QString, 4>&) override {}
    void setStampa(bool) override {}
    void setTipoDocumento(TipoDocumento) override {}
    void stampaDocumento(const QString&, bool&) override {}
};

class Fonte : public giacenza::prove::CartellaProva
{
protected:
    Fonte() { collegaFonte(mModulo, &mFinestra); }
    ~Fonte() override { rptBuonFine().mostraTutto(); }

    FonteDocumenti& fonte() { return *mModulo.mFonte; }

    QWidget mFinestra;
    ModuloChePrende mModulo;
};

TEST_F(Fonte, ilModuloRiceveFonteEFinestra)
{
    ASSERT_NE(mModulo.mFonte, nullptr);
    EXPECT_EQ(mModulo.mPadre, &mFinestra);
}

TEST_F(Fonte, unModuloCheNonLaVuoleResta)
{
    ModuloSemplice semplice;
    EXPECT_NO_THROW(collegaFonte(semplice, nullptr));
}

TEST_F(Fonte, cartellaAccantoAlFileDelleImpostazioni)
{
    EXPECT_EQ(fonte().cartellaDocumenti(), percorso(u"documenti"_s));
    impostazioni().percorsoFileIni.replace(u'/', u'\\');
    EXPECT_EQ(fonte().cartellaDocumenti(), percorso(u"documenti"_s));
}

TEST_F(Fonte, cartellaDelleImpostazioni)
{
    scrivi(u"gest.ini"_s, "[DLLStampe]\nCartellaDocumenti=/srv/stampe/giacenze\nModalita=pdf\n");
    EXPECT_EQ(fonte().cartellaDocumenti(), u"/srv/stampe/giacenze"_s);
    EXPECT_EQ(fonte().impostazione(u"Modalita"_s), u"pdf"_s);
    EXPECT_EQ(fonte().impostazione(u"Altro"_s), QString());
    scrivi(u"gest.ini"_s, "[DLLStampe]\nCartellaDocumenti=stampe\\2015\n");
    EXPECT_EQ(fonte().cartellaDocumenti(), percorso(u"stampe/2015"_s));
}

TEST_F(Fonte, ciascunTipoHaIlSuoDocumento)
{
    const giacenza::prove::BancaDati base("sqlite");
    giacenza::prove::aggiungiCaso(base);
    using giacenza::prove::richiestaDelCaso;
    EXPECT_EQ(fonte().documento(richiestaDelCaso(base))->titolo(), u"Avviso di giacenza 1234/2015"_s);
    EXPECT_EQ(fonte().documento(richiestaDelCaso(base, TipoDocumento::buonFine))->titolo(),
              u"Buon fine della giacenza 1234/2015"_s);
}

TEST_F(Fonte, ilGiornoEQuelloDelComponente)
{
    const giacenza::prove::BancaDati base("sqlite");
    giacenza::prove::aggiungiCaso(base);
    base.esegui(u"update giace00f set GIDTAV=null, GIDTBF=null"_s);
    for (const QDate giorno : {QDate(2015, 4, 1), QDate(2015, 4, 2)}) {
        impostaOggi(giorno);
        for (const TipoDocumento tipo : {TipoDocumento::avviso, TipoDocumento::buonFine}) {
            const auto documento = fonte().documento(giacenza::prove::richiestaDelCaso(base, tipo));
            const auto& report = dynamic_cast<const DocumentoReport&>(*documento);
            EXPECT_EQ(testo(report.pagina(0), u"txtData"_s), dataBreve(giorno));
        }
    }
    impostaOggi({});
}

TEST_F(Fonte, unImportoCheNonENumeroSiMostraENonDaDocumento)
{
    const giacenza::prove::BancaDati base("sqlite");
    giacenza::prove::aggiungiCaso(base);
    base.esegui(u"update giace00f set GIIMGI='molto'"_s);
    EXPECT_EQ(fonte().documento(giacenza::prove::richiestaDelCaso(base, TipoDocumento::buonFine)), nullptr);
    EXPECT_EQ(mRegistro.testi(), QStringList{u"Error #514\r\"molto\" non è un numero."_s});
}

TEST_F(Fonte, quelloCheSiNascondeNonArrivaAlModulo)
{
    const giacenza::prove::BancaDati base("sqlite");
    giacenza::prove::aggiungiCaso(base);
    rptBuonFine().sezione(u"Dettaglio_Dettaglio"_s).controllo(u"txtTot"_s).visibile = false;
    const auto documento =
        fonte().documento(giacenza::prove::richiestaDelCaso(base, TipoDocumento::buonFine));
    const auto& report = dynamic_cast<const DocumentoReport&>(*documento);
    EXPECT_EQ(testo(report.pagina(0), u"txtTot"_s), QString());
    EXPECT_EQ(testo(report.pagina(0), u"txtDossier"_s), u"8,50 €"_s);
}

} // namespace
