#include "reports/letters/rptbuonfine.h"

#include "reports/casodiprova.h"
#include "reports/pagineprova.h"
#include "support/registromessaggi.h"

#include <gmock/gmock.h>

using namespace giacenza;
using namespace giacenza::report;
using namespace giacenza::report::prove;
using namespace Qt::StringLiterals;

namespace {

const QStringList controlliCosti = {u"corTot"_s,     u"lblsosta"_s,   u"txtGIGGSO"_s,     u"txtGIIMGI"_s,
                                    u"lblDossier"_s, u"txtDossier"_s, u"lblRiconsegna"_s, u"txtRicons"_s,
                                    u"lblTot"_s,     u"txtTot"_s};

class BuonFine : public testing::TestWithParam<std::string>
{
protected:
    BuonFine() { giacenza::prove::aggiungiCaso(mBase); }

    PaginaReport pagina() { return mBuonFine.componi(mRichiesta, QDate(2015, 4, 1), nullptr)->pagina(0); }

    void nascondi(const QStringList& nomi)
    {
        for (const QString& nome : nomi)
            mBuonFine.sezione(u"Dettaglio_Dettaglio"_s).controllo(nome).visibile = false;
    }

    giacenza::prove::BancaDati mBase{GetParam()};
    RichiestaDocumento mRichiesta = giacenza::prove::richiestaDelCaso(mBase, TipoDocumento::buonFine);
    giacenza::prove::RegistroMessaggi mRegistro;
    RptBuonFine mBuonFine;
};

INSTANTIATE_TEST_SUITE_P(Basi, BuonFine, testing::Values("sqlite", "mariadb"),
                         giacenza::prove::nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(BuonFine, diceLaChiusuraEICosti)
{
    const auto documento = mBuonFine.componi(mRichiesta, QDate(2015, 4, 1), nullptr);
    EXPECT_EQ(documento->titolo(), u"Buon fine della giacenza 1234/2015"_s);
    ASSERT_EQ(documento->pagine(), 1);
    const PaginaReport& p = documento->pagina(0);
    EXPECT_EQ(testo(p, u"txtData"_s), u"20/03/2015"_s);
    EXPECT_EQ(testo(p, u"txtDataBuonFine"_s), u"20/03/2015"_s);
    EXPECT_EQ(testo(p, u"txtDataAvviso"_s), u"12/03/2015"_s);
    EXPECT_EQ(testo(p, u"txtDestinatario"_s), u"Bottega del Gusto di Rossi Maria"_s);
    EXPECT_EQ(testo(p, u"lblsosta"_s), u"Giorni di sosta"_s);
    EXPECT_EQ(testo(p, u"txtGIGGSO"_s), u"7"_s);
    EXPECT_EQ(testo(p, u"txtGIIMGI"_s), u"15,00 €"_s);
    EXPECT_EQ(testo(p, u"txtDossier"_s), u"8,50 €"_s);
    EXPECT_EQ(testo(p, u"txtRicons"_s), u"a parte"_s);
    EXPECT_EQ(testo(p, u"txtTot"_s), u"23,50 €"_s);
    EXPECT_EQ(diGenere<CornicePagina>(p, u"corTot"_s).size(), 1U);
    aspettaOrdinata(p);
}

TEST_P(BuonFine, ilTotaleContaIlNullComeNiente)
{
    mBase.esegui(u"update giace00f set GIIMGI=null, GIGGSO=null"_s);
    EXPECT_EQ(testo(pagina(), u"txtGIIMGI"_s), QString());
    EXPECT_EQ(testo(pagina(), u"txtGIGGSO"_s), QString());
    EXPECT_EQ(testo(pagina(), u"txtTot"_s), u"8,50 €"_s);
    mBase.esegui(u"update giace00f set GIIMGI=1234.56, FissoGiacenza=null"_s);
    EXPECT_EQ(testo(pagina(), u"txtDossier"_s), QString());
    EXPECT_EQ(testo(pagina(), u"txtTot"_s), u"1.234,56 €"_s);
    mBase.esegui(u"update giace00f set GIIMGI=null"_s);
    EXPECT_EQ(testo(pagina(), u"txtTot"_s), u"0,00 €"_s);
}

TEST_P(BuonFine, iCostiNascostiNonEsconoEIlRestoNonSiMuove)
{
    const PaginaReport prima = pagina();
    nascondi(controlliCosti);
    const PaginaReport dopo = pagina();
    EXPECT_EQ(dopo.size(), prima.size() - controlliCosti.size());
    std::size_t i = 0;
    for (const Primitiva& primitiva : prima) {
        if (controlliCosti.contains(nomeDi(primitiva)))
            continue;
        EXPECT_EQ(nomeDi(dopo.at(i)), nomeDi(primitiva));
        EXPECT_EQ(areaDi(dopo.at(i)), areaDi(primitiva));
        ++i;
    }
    for (const Primitiva& primitiva : dopo) {
        const auto* scritta = std::get_if<TestoPagina>(&primitiva);
        const bool parlaDiCosti =
            scritta && scritta->controllo.startsWith(u"txt"_s) &&
            !QStringList{u"txtValMerce"_s, u"txtContrassegno"_s}.contains(scritta->controllo) &&
            scritta->testo.contains(u'€');
        EXPECT_FALSE(parlaDiCosti) << nomeDi(primitiva).toStdString();
    }
}

TEST_P(BuonFine, siPuoLasciareLaRiconsegna)
{
    QStringList senzaRiconsegna = controlliCosti;
    senzaRiconsegna.removeAll(u"txtRicons"_s);
    nascondi(senzaRiconsegna);
    EXPECT_EQ(testo(pagina(), u"txtRicons"_s), u"a parte"_s);
    EXPECT_EQ(testo(pagina(), u"txtTot"_s), QString());
}

TEST_P(BuonFine, mostraTuttoRimetteICosti)
{
    nascondi(controlliCosti);
    mBuonFine.mostraTutto();
    EXPECT_EQ(testo(pagina(), u"txtTot"_s), u"23,50 €"_s);
}

TEST_P(BuonFine, iNomiSiTrovanoSenzaBadareAlleMaiuscole)
{
    EXPECT_EQ(mBuonFine.sezione(u"dettaglio_dettaglio"_s).controllo(u"CORTOT"_s).nome, u"corTot"_s);
    EXPECT_THROW(mBuonFine.sezione(u"Altra"_s), Errore);
    EXPECT_THROW(mBuonFine.sezione(u"Dettaglio_Dettaglio"_s).controllo(u"txtAltro"_s), Errore);
}

} // namespace
