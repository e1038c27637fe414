#include "component/componentediprova.h"

#include "support/stampa.h"

#include <QPointer>
#include <QSignalSpy>

using namespace giacenza::prove;

using giacenza::cGiacenza;

class ComponenteFine : public ComponenteDiProva
{};

TEST_F(ComponenteFine, riaprireMostraLaStessa)
{
    mClasse->ConsultaGiacenza();
    QWidget* schermata = mForme->caricata(frmGestGia);
    mClasse->ConsultaGiacenza();
    EXPECT_EQ(mForme->caricata(frmGestGia), schermata);
    schermata->showMinimized();
    mClasse->ConsultaGiacenza();
    EXPECT_FALSE(schermata->isMinimized());
    const QSignalSpy fine(mClasse.get(), &cGiacenza::fine);
    schermata->close();
    EXPECT_EQ(fine.size(), 1);
}

TEST_F(ComponenteFine, unaFinePerOgniChiusura)
{
    const QSignalSpy fine(mClasse.get(), &cGiacenza::fine);
    mClasse->NuovaGiacenza();
    mClasse->MostraRiconsegna();
    mClasse->ConsultaGiacenza();
    EXPECT_EQ(fine.size(), 0);
    mForme->caricata(frmRiconsegna)->close();
    EXPECT_EQ(fine.size(), 1);
    mForme->caricata(frmGiacenza)->close();
    EXPECT_EQ(fine.size(), 2);
    mClasse->NuovaGiacenza();
    mForme->caricata(frmGiacenza)->close();
    EXPECT_EQ(fine.size(), 3);
    svuota();
    mForme->caricata(frmGestGia)->close();
    EXPECT_EQ(fine.size(), 4);
}

TEST_F(ComponenteFine, chiNonHaApertoNonSenteLaFine)
{
    cGiacenza altra;
    const QSignalSpy mia(mClasse.get(), &cGiacenza::fine);
    const QSignalSpy sua(&altra, &cGiacenza::fine);
    mClasse->NuovaGiacenza();
    mForme->caricata(frmGiacenza)->close();
    EXPECT_EQ(mia.size(), 1);
    EXPECT_EQ(sua.size(), 0);
}

TEST_F(ComponenteFine, dueOggettiAllaStessaSchermata)
{
    cGiacenza altra;
    const QSignalSpy mia(mClasse.get(), &cGiacenza::fine);
    const QSignalSpy sua(&altra, &cGiacenza::fine);
    mClasse->NuovaGiacenza();
    altra.NuovaGiacenza();
    EXPECT_EQ(accaduto(), eventi(frmGiacenza, {creata, mostrata}));
    mForme->caricata(frmGiacenza)->close();
    EXPECT_EQ(mia.size(), 1);
    EXPECT_EQ(sua.size(), 1);
}

TEST_F(ComponenteFine, unaSchermataDistruttaDaAltriNonLegaAllaProssima)
{
    cGiacenza altra;
    const QSignalSpy mia(mClasse.get(), &cGiacenza::fine);
    mClasse->NuovaGiacenza();
    delete mForme->caricata(frmGiacenza);
    altra.NuovaGiacenza();
    mForme->caricata(frmGiacenza)->close();
    EXPECT_EQ(mia.size(), 0);
}

TEST_F(ComponenteFine, laDistruzioneScaricaNelSuoOrdineESenzaFine)
{
    const QSignalSpy fine(mClasse.get(), &cGiacenza::fine);
    mClasse->MostraRiconsegna();
    mClasse->NuovaGiacenza();
    mClasse->ConsultaGiacenza();
    std::vector<std::unique_ptr<FormaFinta>> dialoghi;
    for (const char* nome :
         {"rptBuonFine", "rptAvviso", "frmRicercaGia", "frmRicerca", "frmPorto", "frmCalendario"}) {
        dialoghi.push_back(std::make_unique<FormaFinta>(QString::fromLatin1(nome)));
        mForme->annota(QString::fromLatin1(nome), dialoghi.back().get());
        dialoghi.back()->show();
    }
    accaduto().clear();
    mClasse.reset();
    EXPECT_EQ(accaduto(),
              (QStringList{u"frmGestGia chiusa"_s, u"frmGiacenza chiusa"_s, u"frmPorto chiusa"_s,
                           u"frmRicerca chiusa"_s, u"frmRicercaGia chiusa"_s, u"frmRiconsegna chiusa"_s,
                           u"rptAvviso chiusa"_s, u"rptBuonFine chiusa"_s}));
    EXPECT_EQ(fine.size(), 0);
}

TEST_F(ComponenteFine, laDistruzioneNonCaricaNulla)
{
    mClasse.reset();
    EXPECT_EQ(accaduto(), QStringList());
}

TEST_F(ComponenteFine, laDistruzioneDiUnaSiSenteDallAltra)
{
    cGiacenza altra;
    const QSignalSpy sua(&altra, &cGiacenza::fine);
    altra.NuovaGiacenza();
    mClasse.reset();
    EXPECT_EQ(sua.size(), 1);
    EXPECT_EQ(mForme->caricata(frmGiacenza), nullptr);
}

TEST_F(ComponenteFine, lOspitePuoDistruggereLaClasseDentroFine)
{
    int volte = 0;
    QObject::connect(mClasse.get(), &cGiacenza::fine, mClasse.get(), [&] {
        ++volte;
        mClasse.reset();
    });
    mClasse->NuovaGiacenza();
    mClasse->ConsultaGiacenza();
    accaduto().clear();
    mForme->caricata(frmGiacenza)->close();
    EXPECT_EQ(volte, 1);
    EXPECT_EQ(mClasse, nullptr);
    svuota();
    EXPECT_EQ(accaduto(), (QStringList{u"frmGiacenza chiusa"_s, u"frmGestGia chiusa"_s,
                                       u"frmGiacenza distrutta"_s, u"frmGestGia distrutta"_s}));
}

TEST_F(ComponenteFine, lOspitePuoRiaprireDentroFine)
{
    int volte = 0;
    QObject::connect(mClasse.get(), &cGiacenza::fine, mClasse.get(), [&] {
        if (++volte == 1)
            mClasse->NuovaGiacenza();
    });
    mClasse->NuovaGiacenza();
    const QPointer<QWidget> prima = mForme->caricata(frmGiacenza);
    prima->close();
    svuota();
    EXPECT_FALSE(prima);
    ASSERT_NE(mForme->caricata(frmGiacenza), nullptr);
    EXPECT_TRUE(mForme->caricata(frmGiacenza)->isVisible());
    mForme->caricata(frmGiacenza)->close();
    EXPECT_EQ(volte, 2);
}
