// Whose the waybill is: the mark beside the customer follows the customer, is told and read out.

#include "registration/registrazionediprova.h"

#include "search/frmRicerca.h"
#include "support/modale.h"
#include "support/stampa.h"
#include "support/trova.h"
#include "widgets/annuncio.h"

#include <QLineEdit>
#include <QTest>

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

class AltroCliente : public RegistrazioneDiProva
{
protected:
    AltroCliente()
    {
        impostaAnnunciatore([this](QWidget* etichetta, const QString& testo) {
            mAnnunci << etichetta->objectName() + u": "_s + testo;
        });
    }
    ~AltroCliente() override { impostaAnnunciatore({}); }

    bool marca() const { return c("lblClienteLdv")->isVisible(); }

    /// Takes a customer from the party search, as the guide advises.
    void cambia(const QString& nome)
    {
        const QuandoAperta<frmRicerca> intanto([&](frmRicerca& ricerca) {
            auto* testo = trova<QLineEdit>(ricerca, u"txtCerca"_s);
            QTest::keyClicks(testo, nome);
            QTest::keyClick(testo, Qt::Key_Return);
            QTest::keyClick(testo, Qt::Key_Down);
            QTest::keyClick(ricerca.focusWidget(), Qt::Key_Return);
        });
        clicca("cmdCercaCliente");
        QCoreApplication::processEvents();
    }

    QStringList mAnnunci;
};

INSTANTIATE_TEST_SUITE_P(Basi, AltroCliente, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(AltroCliente, AllaRicercaLoDiconoLaMarcaLaRigaELAnnuncio)
{
    consegna(u"4711"_s, u"12/11/2026"_s, u"MI"_s, u"1002"_s);
    EXPECT_TRUE(marca());
    EXPECT_EQ(mostrato("lblStato"), u"LDV del cliente 1001"_s);
    EXPECT_THAT(mAnnunci, Contains(u"lblClienteLdv: LDV del cliente 1001"_s));
    EXPECT_THAT(mMessaggi.testi(), IsEmpty());
}

TEST_P(AltroCliente, IlClienteCambiatoDopoLaRicercaSiConfrontaDiNuovo)
{
    consegna(u"4711"_s);
    EXPECT_FALSE(marca());
    cambia(u"Oleificio"_s);
    EXPECT_EQ(mostrato("txtCodiceCli"), u"1002"_s);
    EXPECT_TRUE(marca());
    EXPECT_EQ(mostrato("lblStato"), u"LDV del cliente 1001"_s);
    EXPECT_THAT(mAnnunci, Contains(u"lblClienteLdv: LDV del cliente 1001"_s));
    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Giacenza aggiunta in database."_s));
    EXPECT_EQ(mBase.leggi(u"select GICODI from giace00f where GINRLV='4711'"_s), u"1002"_s);
    EXPECT_EQ(mostrato("lblStato"), u"LDV del cliente 1001. Avviso di giacenza 42_2026 prodotto."_s);
}

TEST_P(AltroCliente, CorrettoIlClienteNonLoDicePiuNessuno)
{
    consegna(u"4711"_s, u"12/11/2026"_s, u"MI"_s, u"1002"_s);
    cambia(u"Ferramenta"_s);
    EXPECT_EQ(mostrato("txtCodiceCli"), u"1001"_s);
    EXPECT_FALSE(marca());
    EXPECT_EQ(mostrato("lblStato"), QString());
    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Giacenza aggiunta in database."_s));
    EXPECT_EQ(mBase.leggi(u"select GICODI from giace00f where GINRLV='4711'"_s), u"1001"_s);
    EXPECT_EQ(mostrato("lblStato"), u"Avviso di giacenza 42_2026 prodotto."_s);
}

TEST_P(AltroCliente, DellaRigaRestaQuelloCheNonEDelCliente)
{
    consegna(u"4711"_s);
    scrivi("txtDescGia", u"chiuso"_s);
    consegna(u"4712"_s, u"12/11/2026"_s, u"MI"_s, u"1002"_s);
    const QString offerta =
        u"La ricerca ha svuotato il motivo della giacenza: Ctrl+Z nel campo lo riporta."_s;
    EXPECT_EQ(mostrato("lblStato"), u"LDV del cliente 1001. "_s + offerta);
    cambia(u"Ferramenta"_s);
    EXPECT_EQ(mostrato("lblStato"), offerta);
}

TEST_P(AltroCliente, UnaConsegnaNonAnnunciaQuellaDiPrima)
{
    mBase.esegui(u"update letve00f set lecodi=1002 where lenrlv='4712'"_s);
    consegna(u"4711"_s);
    consegna(u"4712"_s, u"12/11/2026"_s, u"MI"_s, u"1002"_s);
    EXPECT_FALSE(marca());
    EXPECT_THAT(mAnnunci, Not(Contains(u"lblClienteLdv: LDV del cliente 1001"_s)));
}

TEST_P(AltroCliente, LeParoleDelDriverRestanoAncheAccantoAlCliente)
{
    consegna(u"4711"_s, u"12/11/2026"_s, u"MI"_s, u"1002"_s);
    fallisce(u"select GINRAV"_s);
    clicca("cmdSalva");
    guarisce();
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Giacenza aggiunta in database."_s));
    EXPECT_EQ(mostrato("lblStato"),
              u"LDV del cliente 1001. La giacenza 42 è registrata, l'avviso no: emetterlo "
              "con il suo bottone. L'archivio ha rifiutato l'operazione."_s);
    EXPECT_TRUE(c("lblStato")->toolTip().endsWith(u" guasto di prova"_s));
}

} // namespace
