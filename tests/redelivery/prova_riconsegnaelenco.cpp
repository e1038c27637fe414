// The shipment search as the re-delivery screen opens it.

#include "redelivery/schermatariconsegna.h"
#include "search/frmRicercaGia.h"
#include "support/modale.h"
#include "support/stampa.h"
#include "support/trova.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QTest>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;

namespace {

class RiconsegnaElenco : public SchermataRiconsegnaDiProva
{
protected:
    /// Does something that opens the shipment search; looks at it, takes the row of a number, or none.
    struct Vista
    {
        int tipo = 0;
        QString titolo;
        QString etichetta;
        QString cliente;
        QString ragioneSociale;
        QString filiale;
        QString numero;
        QString riferimento;
        QString giacenza;
        QString annoGiacenza;
    };
    Vista nellElenco(const std::function<void()>& apre, const QString& prende = {})
    {
        Vista vista;
        const QuandoAperta<frmRicercaGia> intanto([&](frmRicercaGia& f) {
            vista = {f.TipoRicerca(),   f.windowTitle(),           trova<QLabel>(f, u"lblRif"_s)->text(),
                     f.CodiceCliente(), f.RagioneSocialeCliente(), f.Filiale(),
                     f.NumLetVett(),    f.RiferimentoCliente(),    f.Giacenza(),
                     f.AnnoGiacenza()};
            if (prende.isEmpty()) {
                f.close();
                return;
            }
            auto* griglia = trova<QTableView>(f, u"Griglia"_s);
            auto* righe = griglia->model();
            for (int riga = 0; riga < righe->rowCount(); ++riga)
                if (righe->index(riga, 0).data().toString() == prende)
                    griglia->setCurrentIndex(righe->index(riga, 0));
            QTest::mouseClick(trova<QPushButton>(f, u"cmdSeleziona"_s), Qt::LeftButton);
        });
        apre();
        return vista;
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, RiconsegnaElenco, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(RiconsegnaElenco, CercaUnaGiacenzaEMostraLaSuaLdv)
{
    apri();
    cliente();
    scrivi("txtFiliale", u"MI"_s);
    Vista vista;
    EXPECT_EQ(istruzioni([&] { vista = nellElenco([&] { clicca("cmdRicGiac"); }, u"951"_s); }).mid(1),
              QStringList({lookup.arg(u"951"_s, u"2026-11-12"_s), lookupFiliale}));
    EXPECT_EQ(vista.tipo, 11);
    EXPECT_EQ(vista.titolo, u"Ricerca Giacenze"_s);
    EXPECT_EQ(vista.etichetta, u"Num. LDV"_s);
    EXPECT_EQ(vista.cliente, u"1001"_s);
    EXPECT_EQ(vista.ragioneSociale, u"Ferramenta Lombarda S.r.l."_s);
    EXPECT_EQ(vista.filiale, u"MI"_s);
    EXPECT_EQ(mostrato("lblNrGia"), u"51"_s);

    EXPECT_EQ(istruzioni([&] { nellElenco([&] { clicca("cmdRicGiac"); }); }).size(), 1)
        << "closed without a choice: the list's own statement alone";
    EXPECT_EQ(mostrato("lblNrGia"), u"51"_s);
}

TEST_P(RiconsegnaElenco, ElencaLeSpedizioniDellaGiacenza)
{
    apri();
    clicca("cmdRicSped");
    EXPECT_EQ(stato()->text(), u"Nessuna giacenza sullo schermo: non ci sono spedizioni da elencare."_s);
    cerca(u"951"_s);
    const Vista vista = nellElenco([&] { clicca("cmdRicSped"); });
    EXPECT_EQ(vista.tipo, 10);
    EXPECT_EQ(vista.titolo, u"Spedizioni relative alla giacenza selezionata"_s);
    EXPECT_EQ(vista.giacenza, u"51"_s);
    EXPECT_EQ(vista.annoGiacenza, u"2026"_s);
}

TEST_P(RiconsegnaElenco, CercaPerNumeroEPerRiferimentoNellElenco)
{
    cerca(u"4711"_s);
    Vista vista = nellElenco([&] { tasto("txtLDV", Qt::Key_F9); }, u"950"_s);
    EXPECT_EQ(vista.tipo, 7);
    EXPECT_EQ(vista.titolo, u"Ricerca per lettera di vettura"_s);
    EXPECT_EQ(vista.etichetta, u"Num. LDV"_s);
    EXPECT_EQ(vista.numero, u"4711"_s);
    EXPECT_EQ(mostrato("lblNrGia"), u"50"_s);

    cerca(u"4711"_s);
    ASSERT_EQ(mostrato("txtDataRif"), u"10/11/2026"_s);
    vista = nellElenco([&] { clicca("cmdCercaRif"); }, u"4711"_s);
    EXPECT_EQ(vista.tipo, 1);
    EXPECT_EQ(vista.titolo, u"Ricerca per riferimento"_s);
    EXPECT_EQ(vista.etichetta, u"Riferimento"_s);
    EXPECT_EQ(vista.riferimento, u"ORD-881"_s);

    attiva();
    scrivi("txtRiferimento", u"ORD-881"_s);
    scrivi("txtDataRif", u"10112026"_s);
    QTest::keyClick(c("txtDataRif"), Qt::Key_Tab); // what it starts is queued
    EXPECT_EQ(nellElenco([] { QCoreApplication::processEvents(); }).tipo, 1)
        << "leaving the date searches too";
}

} // namespace
