#include "registration/registrazionediprova.h"

#include "support/stampa.h"

#include <QApplication>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;

namespace {

/// The registration screen worked by keys alone, which are counted.
class Tastiera : public RegistrazioneDiProva
{
protected:
    void premi(int tasto, Qt::KeyboardModifiers con = Qt::NoModifier)
    {
        ++mPremuti;
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(tasto), con);
        QCoreApplication::processEvents();
    }

    void digita(const QString& testo)
    {
        for (const QChar carattere : testo) {
            ++mPremuti;
            QTest::keyClick(QApplication::focusWidget(), carattere.toLatin1());
        }
    }

    QString fuoco() const { return QApplication::focusWidget()->objectName(); }

    int mPremuti = 0;
};

INSTANTIATE_TEST_SUITE_P(Basi, Tastiera, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(Tastiera, UnaRegistrazioneCostaISuoiCaratteriUnTabPerCampoEAltS)
{
    apri();
    const QStringList campi = {u"1001"_s, u"MI"_s, u"4711"_s, u"12112026"_s, u"BO"_s};
    for (const QString& campo : campi) {
        digita(campo);
        premi(Qt::Key_Tab);
    }
    EXPECT_EQ(fuoco(), u"txtDescGia"_s);
    digita(u"Assente"_s);
    ++mPremuti;
    scorciatoia(Qt::Key_S);
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Giacenza aggiunta in database."_s));
    EXPECT_THAT(mBase.righe(u"select GINRLV, GIFIGI, GIDTGI, GIDES1 from giace00f where GINRLV='4711';"_s),
                ElementsAre(QStringList{u"4711"_s, u"BO"_s, u"2026-11-21"_s, u"21/11/2026 - Assente"_s}));
    EXPECT_EQ(mPremuti, campi.join(QString()).size() + campi.size() + u"Assente"_s.size() + 1);
}

TEST_P(Tastiera, DopoUnaRicercaConITastiSiScriveLaFiliale)
{
    apri();
    scrivi("txtCodiceCli", u"1001"_s);
    lascia("txtCodiceCli");
    scrivi("txtFiliale", u"MI"_s);
    const auto cerca = [this](const char* campo, const QString& valore, const char* data,
                              const QString& giorno, const std::function<void()>& parte) {
        scrivi(campo, valore);
        scrivi(data, giorno);
        parte();
        EXPECT_EQ(mostrato("barLdv"), u"4711 del 12/11/2026"_s);
        EXPECT_EQ(fuoco(), u"txtFilialeGia"_s);
    };
    cerca("txtLDV", u"4711"_s, "txtDataLdv", u"12112026"_s, [this] { premi(Qt::Key_Tab); });
    cerca("txtLDV", u"4711"_s, "txtDataLdv", u"12112026"_s, [this] { premi(Qt::Key_Return); });
    cerca("txtLDV", u"4711"_s, "txtDataLdv", u"12112026"_s, [this] { tasto("txtLDV", Qt::Key_F12); });
    cerca("txtRiferimento", u"ORD-881"_s, "txtDataRif", u"10112026"_s, [this] { premi(Qt::Key_Tab); });

    consegna(u"4711"_s);
    EXPECT_EQ(fuoco(), u"txtFilialeGia"_s) << "the host's hand-over too";
}

TEST_P(Tastiera, IlMouseEIlPassoIndietroScelgonoDaSe)
{
    apri();
    scrivi("txtCodiceCli", u"1001"_s);
    lascia("txtCodiceCli");
    scrivi("txtFiliale", u"MI"_s);
    scrivi("txtLDV", u"4711"_s);
    scrivi("txtDataLdv", u"12112026"_s);
    clicca("txtDescGia");
    EXPECT_EQ(mostrato("barLdv"), u"4711 del 12/11/2026"_s);
    EXPECT_EQ(fuoco(), u"txtDescGia"_s);

    scrivi("txtLDV", u"4712"_s);
    scrivi("txtDataLdv", u"12112026"_s);
    premi(Qt::Key_Backtab);
    EXPECT_EQ(mostrato("barLdv"), u"4712 del 12/11/2026"_s);
    EXPECT_EQ(fuoco(), u"txtLDV"_s);
}

TEST_P(Tastiera, GliSpaziAttornoAiNumeriSpariscono)
{
    apri();
    scrivi("txtCodiceCli", u" 1001 "_s);
    lascia("txtCodiceCli");
    EXPECT_EQ(mostrato("txtCodiceCli"), u"1001"_s);
    EXPECT_EQ(mostrato("barCliente"), u"Ferramenta Lombarda S.r.l."_s);
    for (const char* campo : {"txtLDV", "txtRiferimento", "txtGiaOld"}) {
        scrivi(campo, u"  47 11 "_s);
        lascia(campo);
        EXPECT_EQ(mostrato(campo), u"47 11"_s) << campo;
    }
    // A key acts before the field is left.
    scrivi("txtFiliale", u"MI"_s);
    scrivi("txtDataLdv", u"12112026"_s);
    scrivi("txtLDV", u" 4711 "_s);
    tasto("txtLDV", Qt::Key_F12);
    EXPECT_EQ(mostrato("barLdv"), u"4711 del 12/11/2026"_s);
}

TEST_P(Tastiera, InvioNelCodiceVaAllaRicercaCheInvioApre)
{
    apri();
    scrivi("txtCodiceCli", u"1001"_s);
    const QImage senzaFuoco = c("cmdCercaCliente")->grab().toImage();
    premi(Qt::Key_Return);
    EXPECT_EQ(fuoco(), u"cmdCercaCliente"_s);
    EXPECT_NE(c("cmdCercaCliente")->grab().toImage(), senzaFuoco) << "the focus is drawn";
    bool aperta = false;
    QTimer::singleShot(0, mSchermata, [&] {
        aperta = QApplication::activeModalWidget() != nullptr;
        if (aperta)
            QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
    });
    premi(Qt::Key_Return);
    EXPECT_TRUE(aperta);
}

TEST_P(Tastiera, UnClienteInesistenteSiRiscrive)
{
    apri();
    digita(u"77"_s);
    premi(Qt::Key_Tab);
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(Messaggio{u"Codice Cliente Inesistente"_s,
                                                          Stile::informazione, u"Gestione Trasporti"_s}));
    EXPECT_EQ(fuoco(), u"txtCodiceCli"_s);
    premi(Qt::Key_Tab);
    EXPECT_EQ(mMessaggi.prendi().size(), 1U) << "told each time";
    EXPECT_EQ(fuoco(), u"txtFiliale"_s) << "whoever insists goes on";
}

} // namespace
