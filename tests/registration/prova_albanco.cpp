// What a day at the counter taught: whose waybill it is, which date counts, what a lookup cleared.

#include "data/archivio.h"
#include "database/valori.h"
#include "registration/registrazionediprova.h"
#include "screens/campi.h"
#include "search/frmRicercaGia.h"
#include "support/modale.h"
#include "support/stampa.h"
#include "support/trova.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class AlBanco : public RegistrazioneDiProva
{
protected:
    bool visibile(const char* nome) const { return c(nome)->isVisible(); }
    QString conto(const QString& ldv) const
    {
        return mBase
            .leggi(u"select coalesce(max(GINRAV),'nessuno') from giace00f where GINRLV='%1'"_s.arg(ldv))
            .value();
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, AlBanco, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(AlBanco, LAvvisoEDellaSpedizioneMostrataNonDelNumeroScrittoSopra)
{
    mBase.esegui(u"update giace00f set GIDTBF=null, GIDTAV='2026-11-20' where GINRLV='4714'"_s);
    consegna(u"4711"_s);
    scrivi("txtLDV", u"4714"_s);
    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Giacenza aggiunta in database."_s));
    EXPECT_EQ(conto(u"4711"_s), u"1"_s);
    EXPECT_EQ(conto(u"4714"_s), u"2"_s) << "a stranger's case";

    mBase.esegui(u"update giace00f set GIDTAV='2026-11-20' where GINRLV='4711'"_s);
    clicca("cmdAvvisoGia");
    EXPECT_EQ(conto(u"4711"_s), u"2"_s);
    EXPECT_EQ(conto(u"4714"_s), u"2"_s);
}

TEST_P(AlBanco, LaDataDiUnAltraGiacenzaDiventaOggiEQuellaScrittaResta)
{
    consegna(u"4714"_s);
    EXPECT_EQ(mostrato("txtDataGia"), u"13/11/2026"_s);
    consegna(u"4711"_s);
    EXPECT_EQ(mostrato("txtDataGia"), u"21/11/2026"_s);
    EXPECT_FALSE(avanzo("txtDataGia"));
    EXPECT_EQ(mostrato("barGiorniSosta"), u"0"_s);

    scrivi("txtDataGia", u"19112026"_s);
    consegna(u"4712"_s);
    EXPECT_EQ(mostrato("txtDataGia"), u"19/11/2026"_s) << "the clerk's own";
    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Giacenza aggiunta in database."_s));
    EXPECT_EQ(mBase.leggi(u"select GIDTGI from giace00f where GINRLV='4712'"_s), u"2026-11-19"_s);
}

TEST_P(AlBanco, UnaDataIncompletaFermaIlSalvataggioPrimaDelNumero)
{
    consegna(u"4711"_s);
    auto* data = qobject_cast<QLineEdit*>(c("txtDataGia"));
    c("txtDescGia")->setFocus();
    for (const QString& errata : {u"31/02/2026"_s, u"12/1_/____"_s}) {
        giacenza::scrivi(data, errata);
        EXPECT_THAT(istruzioni([&] { clicca("cmdSalva"); }), IsEmpty()) << errata.toStdString();
        EXPECT_THAT(mMessaggi.prendi(),
                    ElementsAre(Messaggio{u"Controllare l'immissione della data giacenza."_s, Stile::avviso,
                                          titoloApplicazione()}));
        EXPECT_TRUE(data->hasFocus());
    }
    EXPECT_EQ(mBase.leggi(u"select UltimoNumGiacenza from ekelvorqzt_tabge00f"_s), u"41"_s);
}

TEST_P(AlBanco, UnaDataSvuotataFinisceComePrimaELaRigaDiStatoDicePerche)
{
    consegna(u"4711"_s);
    giacenza::scrivi(c("txtDataGia"), {});
    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Impossibile aggiungere la nuova giacenza."_s));
    EXPECT_EQ(mostrato("lblStato"), u"Manca la data della giacenza."_s);
    EXPECT_EQ(mBase.leggi(u"select UltimoNumGiacenza from ekelvorqzt_tabge00f"_s), u"41"_s);
}

TEST_P(AlBanco, LaLdvDiUnAltroClienteSiVedeESiDiceAlSalvataggio)
{
    consegna(u"4711"_s, u"12/11/2026"_s, u"MI"_s, u"1002"_s);
    EXPECT_TRUE(visibile("lblClienteLdv"));
    EXPECT_EQ(mostrato("lblClienteLdv"), u"LDV del cliente 1001"_s);
    EXPECT_THAT(mMessaggi.testi(), IsEmpty()) << "no box, nothing refused";
    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Giacenza aggiunta in database."_s));
    EXPECT_EQ(mBase.leggi(u"select GICODI from giace00f where GINRLV='4711'"_s), u"1002"_s);
    EXPECT_EQ(mostrato("lblStato"), u"LDV del cliente 1001. Avviso di giacenza 42_2026 prodotto."_s);

    consegna(u"4712"_s, u"12/11/2026"_s, u"MI"_s, u"01001"_s);
    EXPECT_FALSE(visibile("lblClienteLdv")) << "the same customer, written with a zero";
}

TEST_P(AlBanco, UnCodiceCheNonEUnNumeroFermaLaConsegna)
{
    consegna(u"4711"_s, u"12/11/2026"_s, u"MI"_s, u"1001x"_s);
    QCoreApplication::processEvents();
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Codice cliente assente o errato"_s));
    EXPECT_EQ(mostrato("txtDestinatario"), QString());
    EXPECT_EQ(mostrato("txtLDV"), QString());
}

TEST_P(AlBanco, UnClienteSconosciutoSiDiceSiCercaESiSegna)
{
    consegna(u"4711"_s, u"12/11/2026"_s, u"MI"_s, u"77"_s);
    QCoreApplication::processEvents();
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Codice Cliente Inesistente"_s));
    EXPECT_EQ(mostrato("txtDestinatario"), u"Utensileria del Lago"_s);
    EXPECT_EQ(mostrato("lblClienteLdv"), u"LDV del cliente 1001"_s);
    EXPECT_TRUE(visibile("lblClienteLdv"));
}

TEST_P(AlBanco, CioCheLaRicercaSvuotaTornaUnaVoltaConCtrlZ)
{
    consegna(u"4711"_s);
    scrivi("txtFilialeGia", u"BO"_s);
    scrivi("txtDescGia", u"chiuso"_s);
    consegna(u"4712"_s);
    EXPECT_EQ(mostrato("txtDescGia"), QString());
    EXPECT_EQ(mostrato("txtFilialeGia"), QString());
    EXPECT_EQ(mostrato("lblStato"),
              u"La ricerca ha svuotato motivo e filiale della giacenza: Ctrl+Z nel campo li riporta."_s);
    for (const auto& [campo, atteso] : {std::pair{"txtDescGia", u"chiuso"_s}, {"txtFilialeGia", u"BO"_s}}) {
        c(campo)->setFocus();
        QTest::keyClick(c(campo), Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(mostrato(campo), atteso);
        scrivi(campo, {});
        QTest::keyClick(c(campo), Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(c(campo), Qt::Key_Z, Qt::ControlModifier);
    }
    EXPECT_FALSE(avanzo("txtDescGia"));
    consegna(u"4714"_s);
    consegna(u"4711"_s);
    c("txtDescGia")->setFocus();
    QTest::keyClick(c("txtDescGia"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NE(mostrato("txtDescGia"), u"13/11/2026 - Chiuso per ferie"_s)
        << "a row's text is nobody's typing";
}

TEST_P(AlBanco, LaFilialeScrittaDopoCheLaRicercaLHaChiestaRicerca)
{
    apri();
    scrivi("txtCodiceCli", u"1001"_s);
    lascia("txtCodiceCli");
    scrivi("txtLDV", u"4711"_s);
    scrivi("txtDataLdv", u"12112026"_s);
    {
        const QuandoAperta<frmRicercaGia> intanto(
            [](frmRicercaGia& elenco) { QTest::keyClick(&elenco, Qt::Key_Escape); });
        lascia("txtDataLdv");
        QTest::qWait(1);
    }
    mMessaggi.prendi();
    EXPECT_EQ(mostrato("lblStato"),
              u"L'elenco mostra solo le spedizioni della filiale scritta: scrivere la filiale."_s);
    mSchermata->activateWindow(); // as a window manager does when the dialog has gone
    ASSERT_TRUE(QTest::qWaitForWindowActive(mSchermata));
    scrivi("txtFiliale", u"MI"_s);
    lascia("txtFiliale");
    EXPECT_EQ(mostrato("txtDestinatario"), u"Utensileria del Lago"_s);
}

TEST_P(AlBanco, FilialeDataEMotivoSiAvvertonoAccantoAlCampo)
{
    consegna(u"4711"_s);
    EXPECT_TRUE(visibile("lblAvvMotivo"));
    EXPECT_EQ(mostrato("lblAvvMotivo"), u"⚠ manca"_s);
    const QStringList inviate = istruzioni([this] {
        scrivi("txtDescGia", u"chiuso"_s);
        EXPECT_FALSE(visibile("lblAvvMotivo"));
        scrivi("txtFilialeGia", u"QQ"_s);
        EXPECT_FALSE(visibile("lblAvvFilialeGia")) << "a code half typed is no wrong one yet";
        lascia("txtFilialeGia");
        EXPECT_TRUE(visibile("lblAvvFilialeGia"));
        EXPECT_EQ(mostrato("lblAvvFilialeGia"), u"⚠ filiale sconosciuta"_s);
        EXPECT_EQ(c("txtFilialeGia")->accessibleDescription(), u"filiale sconosciuta"_s);
        scrivi("txtFilialeGia", u"bo"_s);
        lascia("txtFilialeGia");
        EXPECT_FALSE(visibile("lblAvvFilialeGia"));
        giacenza::scrivi(c("txtFilialeGia"), u"QQ"_s);
        EXPECT_TRUE(visibile("lblAvvFilialeGia")) << "what nobody types is told at once";
        giacenza::scrivi(c("txtFilialeGia"), u"BO"_s);
        scrivi("txtDataGia", u"22112026"_s);
        EXPECT_EQ(mostrato("lblAvvDataGia"), u"⚠ data futura"_s);
        EXPECT_TRUE(visibile("lblAvvDataGia"));
        scrivi("txtDataGia", u"21112025"_s);
        EXPECT_EQ(mostrato("lblAvvDataGia"), u"⚠ 365 giorni fa"_s);
        scrivi("txtDataGia", u"22082026"_s);
        EXPECT_EQ(mostrato("lblAvvDataGia"), u"⚠ 91 giorni fa"_s);
        for (const QString& giorno : {u"23082026"_s, u"20112026"_s, u"21112026"_s, QString()}) {
            scrivi("txtDataGia", giorno);
            EXPECT_FALSE(visibile("lblAvvDataGia")) << giorno.toStdString();
        }
    });
    EXPECT_THAT(inviate, IsEmpty()) << "hints cost no statement";
    EXPECT_THAT(mMessaggi.testi(), IsEmpty());
}

TEST_P(AlBanco, LAttesaSiVedePrimaDiOgniOperazioneEPoiSparisce)
{
    consegna(u"4711"_s);
    QCoreApplication::processEvents();
    const QString prima = mostrato("lblStato");
    QStringList visti;
    Qt::CursorShape cursore = Qt::ArrowCursor;
    impostaTraccia([&](EventoDati evento, const QString&) {
        if (evento != EventoDati::istruzione)
            return;
        visti << mostrato("lblStato");
        cursore =
            QGuiApplication::overrideCursor() ? QGuiApplication::overrideCursor()->shape() : Qt::ArrowCursor;
    });
    scrivi("txtCodiceCli", u"1002"_s);
    mSchermata->setProperty("CodiceCliente", u"1002"_s);
    QCoreApplication::processEvents();
    guarisce();
    ASSERT_FALSE(visti.isEmpty());
    EXPECT_EQ(visti.front(), u"Attendo l'archivio…"_s);
    EXPECT_EQ(cursore, Qt::WaitCursor);
    QCoreApplication::processEvents();
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_NE(mostrato("lblStato"), u"Attendo l'archivio…"_s);
}

TEST_P(AlBanco, IlSecondoAvvisoDelGiornoSiDiceNonContato)
{
    consegna(u"4711"_s);
    clicca("cmdSalva");
    mMessaggi.prendi();
    EXPECT_EQ(mostrato("lblStato"), u"Avviso di giacenza 42_2026 prodotto."_s);
    clicca("cmdAvvisoGia");
    EXPECT_EQ(mostrato("lblStato"), u"Avviso di giacenza 42_2026 stampato, non contato: oggi lo era già."_s);
    EXPECT_EQ(conto(u"4711"_s), u"1"_s);
}

} // namespace
