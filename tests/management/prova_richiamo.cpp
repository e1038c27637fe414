#include "management/gestionediprova.h"

#include "screens/campi.h"
#include "support/stampa.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Richiamo : public GestioneDiProva
{
protected:
    static Messaggio deiTrasporti(const QString& testo)
    {
        return {testo, Stile::avviso, QStringLiteral("Gestione Trasporti")};
    }
    QString blocco() const
    {
        return QStringLiteral(
            "SELECT letve00f.*, giace00f.*, forni.RagioneSociale as Vettore, filiali.Descrizione as filiale, "
            "codicizona.Descrizione as linea from (((letve00f LEFT JOIN giace00f on lefili=gifili and "
            "lenrlv=ginrlv and leanlv=gianlv) inner JOIN filiali ON lefili=filiali.codice) INNER JOIN "
            "codicizona on lelin1=codicizona.Codice) INNER join forni ON forni.Codice=lecdve");
    }
    bool attivo(const char* nome) const { return c(nome)->isEnabled(); }
    void riattiva()
    {
        QEvent attivata(QEvent::WindowActivate);
        QCoreApplication::sendEvent(mSchermata, &attivata);
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, Richiamo, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(Richiamo, SiApreVuotaPerNumero)
{
    apri();
    EXPECT_EQ(mSchermata->objectName(), QStringLiteral("frmGestGia"));
    EXPECT_EQ(mostrato("txtDataGia"), QStringLiteral("21/11/2026"));
    EXPECT_EQ(mostrato("lblDataLav"), QStringLiteral("21/11/2026"));
    EXPECT_TRUE(attivo("txtNGiace"));
    EXPECT_FALSE(attivo("txtCodiceCli"));
    EXPECT_FALSE(c("lblStatoCaso")->isVisible());
    EXPECT_LE(mSchermata->minimumSizeHint().width(), 1366);
    EXPECT_LE(mSchermata->minimumSizeHint().height(), 700);
}

TEST_P(Richiamo, PerNumeroMostraIlCasoEPortaIlFuoco)
{
    apri();
    const QStringList inviate = istruzioni([&] { richiamaChiuso(); });
    ASSERT_FALSE(inviate.isEmpty());
    EXPECT_EQ(inviate.front(), blocco() + QStringLiteral(" WHERE ginrgi='40' and GIDTGI='2026-11-13';"));
    const std::pair<const char*, const char16_t*> attesi[] = {
        {"txtLDV", u"4714"},
        {"txtAnnoLdv", u"2026"},
        {"txtFiliale", u"MI"},
        {"txtFilSped", u"MI"},
        {"barFilSped", u"Milano"},
        {"txtRiferimento", u"ORD-884"},
        {"txtAnnoRif", u"2026"},
        {"txtDataRifMitt", u"09/11/2026"},
        {"barVettore", u"Autotrasporti Riuniti"},
        {"barLineaCli", u"Brianza nord"},
        {"lblNrGia", u"40"},
        {"txtDataGia", u"13/11/2026"},
        {"lblDataAvviso", u"15/11/2026"},
        {"lblDataBuonFine", u"18/11/2026"},
        {"barGiorniSosta", u"5"},
        {"barFilialeGia", u"Bologna"},
        {"txtDescGia", u"13/11/2026 - Chiuso per ferie"},
        {"lblFattura", u"77"},
        {"lblDataLav", u"21/11/2026"},
        {"lblStatoCaso", u"CHIUSA · 2 AVVISI"},
        {"txtNGiace", u"40"},
    };
    for (const auto& [nome, valore] : attesi)
        EXPECT_EQ(mostrato(nome), QString::fromUtf16(valore)) << nome;
    EXPECT_TRUE(c("txtFilSped")->hasFocus());
    for (const char* chiave : {"txtLDV", "txtAnnoLdv", "txtFiliale", "txtDataGia"})
        EXPECT_TRUE(qobject_cast<QLineEdit*>(c(chiave))->isReadOnly()) << chiave;
}

} // namespace
