// The screens under one locale; tests/dintorni/prova_locali holds the outcome against that under the others.

#include "dintorni/racconto.h"

#include "management/gestionediprova.h"
#include "registration/registrazionediprova.h"
#include "search/frmRicerca.h"
#include "search/listascelta.h"
#include "support/modale.h"
#include "support/trova.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;

namespace {

QStringList tabella(const BancaDati& base, const QString& istruzione)
{
    QStringList testi;
    for (const QStringList& riga : base.righe(istruzione))
        testi << riga.join(u'|');
    return testi;
}

class LocaliRegistrazione : public RegistrazioneDiProva
{};
class LocaliGestione : public GestioneDiProva
{};

INSTANTIATE_TEST_SUITE_P(Basi, LocaliRegistrazione, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);
INSTANTIATE_TEST_SUITE_P(Basi, LocaliGestione, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(LocaliRegistrazione, RicercaSalvataggioEAvviso)
{
    // References compare without case: an i is an I wherever the machine is.
    mBase.esegui(u"update letve00f set lerife='VINI-Di-ISTIA 1' where lenrlv='4711';\n"
                 "insert into filiali values ('ISTIA','Istia','Via I 1','Istia','GR');"_s);
    apri();
    scrivi("txtCodiceCli", u"1001"_s);
    lascia("txtCodiceCli");
    scrivi("txtFiliale", u"MI"_s);
    scrivi("txtDataRif", u"10112026"_s);
    scrivi("txtRiferimento", u"vini-dI-istia 1"_s);
    tasto("txtRiferimento", Qt::Key_F12);
    EXPECT_EQ(mostrato("txtDestinatario"), u"Utensileria del Lago"_s);
    EXPECT_EQ(mostrato("txtPesoKg"), u"45,5"_s);
    racconta(u"trovata"_s, testiDi(*mSchermata));
    scrivi("txtFilialeGia", u"ISTIA"_s);
    scrivi("txtImponibile", u"1234,5"_s);
    qobject_cast<QPlainTextEdit*>(c("txtDescGia"))->setPlainText(u"Città d'İstia"_s);
    clicca("cmdSalva");
    EXPECT_EQ(mMessaggi.testi(), QStringList{u"Giacenza aggiunta in database."_s});
    const QStringList righe = tabella(mBase, u"select * from giace00f where GINRLV='4711'"_s);
    EXPECT_EQ(mBase.leggi(u"select GIDES1 from giace00f where GINRLV='4711'"_s),
              u"21/11/2026 - Città d'İstia"_s);
    racconta(u"salvata"_s, righe);
    racconta(u"dopo"_s, testiDi(*mSchermata));
    racconta(u"stampe"_s, mStampe.filter(u"documento"_s));
}

TEST_P(LocaliRegistrazione, CercaUnCliente)
{
    mBase.esegui(
        u"insert into clien (Codice,RagioneSociale) values (1,'Iris'),(2,'ilario'),(3,'Ilva'),(4,'Èlite'),"
        "(5,'Zeta'),(6,'zinco'),(7,'Çelik');"_s);
    apri();
    QStringList voci;
    const auto cerca = [&](const QString& cosa) {
        mSchermata->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(mSchermata));
        const QuandoAperta<frmRicerca> intanto([&](frmRicerca& ricerca) {
            auto* campo = trova<QLineEdit>(ricerca, u"txtCerca"_s);
            QTest::keyClicks(campo, cosa);
            QTest::keyClick(campo, Qt::Key_Return);
            const auto* lista = trova<ListaScelta>(ricerca, u"lstCerca"_s);
            for (int i = 0; i < lista->count(); ++i)
                voci << lista->item(i)->text();
            ricerca.close();
        });
        tasto("txtCodiceCli", Qt::Key_F12);
    };
    cerca(u"i"_s);
    EXPECT_GE(voci.size(), 3);
    cerca(u"I"_s);
    racconta(u"elenco"_s, voci);
}

TEST_P(LocaliGestione, AvvisoEChiusuraConGliImporti)
{
    richiamaAvvisato();
    racconta(u"richiamata"_s, testiDi(*mSchermata));
    avvisa(u"Imballo bagnato"_s);
    mSchermata->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(mSchermata));
    clicca("cmdBuonFine");
    EXPECT_EQ(mBase.leggi(u"select GIIMGI from giace00f where GINRGI='39'"_s).value().toDouble(), 16.5);
    EXPECT_EQ(mostrato("txtImponibile"), u"16,50"_s);
    racconta(u"chiusa"_s, tutto(u"39"_s));
    racconta(u"dopo"_s, testiDi(*mSchermata));
}

} // namespace
