// What a lookup cleared of the clerk's typing, and when it is offered back.

#include "registration/registrazionediprova.h"

#include "support/stampa.h"

#include <QTest>

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;

namespace {

class Svuotati : public RegistrazioneDiProva
{
protected:
    void annulla(const char* campo)
    {
        c(campo)->setFocus();
        QTest::keyClick(c(campo), Qt::Key_Z, Qt::ControlModifier);
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, Svuotati, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

const QString soloMotivo = u"La ricerca ha svuotato il motivo della giacenza: Ctrl+Z nel campo lo riporta."_s;

TEST_P(Svuotati, UnNumeroSbagliatoNonNascondeLOffertaENonLaConsuma)
{
    consegna(u"4711"_s);
    scrivi("txtDescGia", u"chiuso"_s);
    consegna(u"9999"_s);
    EXPECT_EQ(mostrato("lblStato"), u"LDV 9999 del 12/11/2026, filiale MI: non trovata. "_s + soloMotivo);
    consegna(u"4712"_s);
    EXPECT_EQ(mostrato("lblStato"), soloMotivo) << "the clerk goes on with the right number";
    annulla("txtDescGia");
    EXPECT_EQ(mostrato("txtDescGia"), u"chiuso"_s);
}

TEST_P(Svuotati, SoloCtrlZRiporta)
{
    consegna(u"4711"_s);
    scrivi("txtFilialeGia", u"BO"_s);
    consegna(u"4712"_s);
    QWidget* campo = c("txtFilialeGia");
    campo->setFocus();
    QTest::keyClick(campo, Qt::Key_Control);
    QTest::keyClick(campo, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(mostrato("txtFilialeGia"), QString());
    annulla("txtFilialeGia");
    EXPECT_EQ(mostrato("txtFilialeGia"), u"BO"_s);
}

TEST_P(Svuotati, UnaRicercaFallitaNonConsumaLOfferta)
{
    consegna(u"4711"_s);
    scrivi("txtDescGia", u"chiuso"_s);
    fallisce(u"select letve00f.*"_s);
    consegna(u"4712"_s);
    guarisce();
    EXPECT_THAT(
        mMessaggi.testi(),
        ElementsAre(u"Operazione non riuscita: il database o un suo dato non risponde come dovrebbe.\n\n"
                    "L'archivio ha rifiutato l'operazione."_s));
    EXPECT_EQ(mostrato("txtDescGia"), QString());
    consegna(u"4711"_s);
    EXPECT_EQ(mostrato("lblStato"), soloMotivo);
    annulla("txtDescGia");
    EXPECT_EQ(mostrato("txtDescGia"), u"chiuso"_s);
}

TEST_P(Svuotati, SiNominaSoloIlCampoSvuotato)
{
    consegna(u"4711"_s);
    scrivi("txtFilialeGia", u"BO"_s);
    consegna(u"4712"_s);
    EXPECT_EQ(mostrato("lblStato"),
              u"La ricerca ha svuotato la filiale della giacenza: Ctrl+Z nel campo la riporta."_s);
    annulla("txtFilialeGia");
    EXPECT_EQ(mostrato("txtFilialeGia"), u"BO"_s);
}

TEST_P(Svuotati, UnaRicercaCheNonSvuotaNonOffreNiente)
{
    consegna(u"4711"_s);
    scrivi("txtDescGia", u"chiuso"_s);
    consegna(u"4712"_s);
    EXPECT_EQ(mostrato("lblStato"), soloMotivo);
    consegna(u"4711"_s);
    EXPECT_EQ(mostrato("lblStato"), QString()) << "nothing was there to be cleared";
    annulla("txtDescGia");
    EXPECT_EQ(mostrato("txtDescGia"), QString());
}

TEST_P(Svuotati, CioCheESalvatoNonSiOffre)
{
    consegna(u"4711"_s);
    scrivi("txtFilialeGia", u"BO"_s);
    scrivi("txtDescGia", u"chiuso"_s);
    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Giacenza aggiunta in database."_s));
    consegna(u"4712"_s);
    EXPECT_EQ(mostrato("lblStato"), QString());
    for (const char* campo : {"txtDescGia", "txtFilialeGia"}) {
        annulla(campo);
        EXPECT_EQ(mostrato(campo), QString()) << campo << ": it is case 42's";
    }
}

TEST_P(Svuotati, UnCampoCheLaRigaRiempieNonSiOffre)
{
    consegna(u"4711"_s);
    scrivi("txtDescGia", u"chiuso"_s);
    consegna(u"4714"_s);
    EXPECT_EQ(mostrato("txtDescGia"), u"13/11/2026 - Chiuso per ferie"_s);
    EXPECT_EQ(mostrato("lblStato"), QString()) << "Ctrl+Z would not bring it back";
}

TEST_P(Svuotati, AccantoAlClienteDiUnAltroLOffertaResta)
{
    consegna(u"4711"_s);
    scrivi("txtDescGia", u"chiuso"_s);
    consegna(u"4712"_s, u"12/11/2026"_s, u"MI"_s, u"1002"_s);
    EXPECT_EQ(mostrato("lblStato"), u"LDV del cliente 1001. "_s + soloMotivo);
}

} // namespace
