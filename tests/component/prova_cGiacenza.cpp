#include "component/formafinta.h"
#include "component/forme.h"
#include "component/impostazioni.h"
#include "component/registraforme.h"
#include "support/registromessaggi.h"
#include "support/stampa.h"

#include <giacenza/cGiacenza.h>

#include <QApplication>
#include <QMetaMethod>
#include <QSignalSpy>

#include <gmock/gmock.h>

#include <thread>

using giacenza::cGiacenza;
using giacenza::Forme;
using giacenza::impostazioni;

namespace {

constexpr char nomeGiacenza[] = "frmGiacenza";
constexpr char nomeRiconsegna[] = "frmRiconsegna";
constexpr char nomeGestione[] = "frmGestGia";

const QString frmGiacenza = QString::fromLatin1(nomeGiacenza);
const QString frmRiconsegna = QString::fromLatin1(nomeRiconsegna);
const QString frmGestGia = QString::fromLatin1(nomeGestione);

class NonRaggiungibile : public SchermataFinta<nomeGestione>
{
public:
    void carica() { throw giacenza::ErroreDatabase(QStringLiteral("08S01"), 2002, QStringLiteral("rete")); }
};

QStringList eventi(const QString& forma, const QStringList& quali)
{
    QStringList tutti;
    for (const QString& quale : quali)
        tutti.append(forma + u' ' + quale);
    return tutti;
}

const QString creata = QStringLiteral("creata");
const QString mostrata = QStringLiteral("mostrata");
const QString chiusa = QStringLiteral("chiusa");
const QString distrutta = QStringLiteral("distrutta");

class Componente : public ::testing::Test
{
protected:
    Componente()
    {
        impostazioni() = {};
        giacenza::registraForme(*mForme);
        accaduto().clear();
    }
    ~Componente() override
    {
        mClasse.reset();
        svuota();
        impostazioni() = {};
    }

    static void svuota() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    std::shared_ptr<Forme> mForme = Forme::delThread();
    std::unique_ptr<cGiacenza> mClasse = std::make_unique<cGiacenza>();
};

} // namespace

// The forms that the class under test finds, in place of the component's own.
void giacenza::registraForme(Forme& forme)
{
    forme.registra<SchermataFinta<nomeGiacenza>>(frmGiacenza);
    forme.registra<SchermataFinta<nomeRiconsegna>>(frmRiconsegna);
    forme.registra<SchermataFinta<nomeGestione>>(frmGestGia);
}

TEST_F(Componente, iPercorsiRestanoTaliEQuali)
{
    const QString strano = QStringLiteral("  DRIVER={X};PWD=a;b'\"\\ à\t ");
    mClasse->setPercorsoDatabase(strano);
    mClasse->setPercorsoFileIni(strano + u'1');
    mClasse->setPercorsoLogoIntestazione(strano + u'2');
    EXPECT_EQ(mClasse->PercorsoDatabase(), strano);
    EXPECT_EQ(mClasse->PercorsoFileIni(), strano + u'1');
    EXPECT_EQ(impostazioni().percorsoDatabase, strano);
    EXPECT_EQ(impostazioni().percorsoFileIni, strano + u'1');
    EXPECT_EQ(impostazioni().percorsoLogoIntestazione, strano + u'2');
}

TEST_F(Componente, leImpostazioniSonoDelThreadENonDellOggetto)
{
    mClasse->setPercorsoDatabase(QStringLiteral("DSN=uno"));
    cGiacenza altra;
    EXPECT_EQ(altra.PercorsoDatabase(), QStringLiteral("DSN=uno"));
    altra.setPercorsoFileIni(QStringLiteral("/dati/gest.ini"));
    EXPECT_EQ(mClasse->PercorsoFileIni(), QStringLiteral("/dati/gest.ini"));
    mClasse.reset();
    EXPECT_EQ(cGiacenza().PercorsoDatabase(), QStringLiteral("DSN=uno"));
    std::thread([] { EXPECT_EQ(cGiacenza().PercorsoDatabase(), QString()); }).join();
}

TEST_F(Componente, lEtichettaDelReso)
{
    EXPECT_EQ(impostazioni().etichettaReso, QString());
    mClasse->setTipoReso(cGiacenza::ResoMittente);
    EXPECT_EQ(impostazioni().etichettaReso, QStringLiteral("Reso a Mittente"));
    for (const int altro : {1, 0, 3, -1, 2147483647}) {
        mClasse->setTipoReso(cGiacenza::ResoMittente);
        mClasse->setTipoReso(static_cast<cGiacenza::Reso>(altro));
        EXPECT_EQ(impostazioni().etichettaReso, QStringLiteral("Riconsegna a Destinatario")) << altro;
    }
    mClasse->setTipoReso(static_cast<cGiacenza::Reso>(2));
    EXPECT_EQ(impostazioni().etichettaReso, QStringLiteral("Reso a Mittente"));
}

TEST_F(Componente, cioCheSiScriveSoloNonSiLegge)
{
    const QMetaObject& tipo = cGiacenza::staticMetaObject;
    EXPECT_EQ(tipo.indexOfMethod("PercorsoLogoIntestazione()"), -1);
    EXPECT_EQ(tipo.indexOfMethod("TipoReso()"), -1);
    EXPECT_NE(tipo.indexOfMethod("setPercorsoLogoIntestazione(QString)"), -1);
    EXPECT_NE(tipo.indexOfMethod("setTipoReso(giacenza::cGiacenza::Reso)"), -1);
    EXPECT_NE(tipo.indexOfMethod("PercorsoDatabase()"), -1);
    EXPECT_EQ(tipo.propertyCount(), QObject::staticMetaObject.propertyCount());
}

TEST_F(Componente, iNumeriDeiMembri)
{
    EXPECT_EQ(cGiacenza::IdTipoReso, 0x68030000U);
    EXPECT_EQ(cGiacenza::IdPercorsoLogoIntestazione, 0x68030001U);
    EXPECT_EQ(cGiacenza::IdPercorsoFileIni, 0x68030002U);
    EXPECT_EQ(cGiacenza::IdPercorsoDatabase, 0x68030003U);
    EXPECT_EQ(cGiacenza::IdNuovaGiacenza, 0x60030005U);
    EXPECT_EQ(cGiacenza::IdNuovaGiacenzaEXT, 0x60030006U);
    EXPECT_EQ(cGiacenza::IdMostraRiconsegna, 0x60030008U);
    EXPECT_EQ(cGiacenza::IdConsultaGiacenza, 0x6003000BU);
    EXPECT_EQ(cGiacenza::IdEsegui, 0x6003000CU);
}

TEST_F(Componente, EseguiNonFaNulla)
{
    for (const QString& azione : {QString(), QStringLiteral("NuovaGiacenza"), QStringLiteral("qualsiasi")}) {
        EXPECT_FALSE(mClasse->Esegui(azione).isValid());
        EXPECT_FALSE(mClasse->Esegui(azione, QVariant(5)).isValid());
    }
    EXPECT_EQ(accaduto(), QStringList());
}

TEST_F(Componente, leApertureMostranoLaSchermataETornanoSubito)
{
    mClasse->NuovaGiacenza();
    EXPECT_EQ(accaduto(), eventi(frmGiacenza, {creata, mostrata}));
    EXPECT_TRUE(mForme->caricata(frmGiacenza)->isVisible());
    EXPECT_EQ(mForme->caricata(frmGiacenza)->parentWidget(), nullptr);
    EXPECT_EQ(mForme->caricata(frmGiacenza)->windowModality(), Qt::NonModal);
    accaduto().clear();
    mClasse->MostraRiconsegna();
    EXPECT_EQ(accaduto(), eventi(frmRiconsegna, {creata, mostrata}));
    accaduto().clear();
    mClasse->ConsultaGiacenza();
    EXPECT_EQ(accaduto(), eventi(frmGestGia, {creata, mostrata}));
}

TEST_F(Componente, leQuattroProprietaNelLoroOrdineEPrimaDiMostrare)
{
    mClasse->NuovaGiacenzaEXT(QStringLiteral("123"), QStringLiteral("01/02/2024"), QStringLiteral("MI"),
                              QStringLiteral("77"));
    EXPECT_EQ(accaduto(),
              (QStringList{
                  QStringLiteral("frmGiacenza creata"), QStringLiteral("frmGiacenza.NLettVett=123"),
                  QStringLiteral("frmGiacenza.DataLdv=01/02/2024"), QStringLiteral("frmGiacenza.Filiale=MI"),
                  QStringLiteral("frmGiacenza.CodiceCliente=77"), QStringLiteral("frmGiacenza mostrata")}));
    accaduto().clear();
    mClasse->NuovaGiacenzaEXT({}, {}, {}, {});
    EXPECT_EQ(
        accaduto(),
        (QStringList{QStringLiteral("frmGiacenza.NLettVett="), QStringLiteral("frmGiacenza.DataLdv="),
                     QStringLiteral("frmGiacenza.Filiale="), QStringLiteral("frmGiacenza.CodiceCliente=")}));
}

TEST_F(Componente, riaprireMostraLaStessa)
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

TEST_F(Componente, unaFinePerOgniChiusura)
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

TEST_F(Componente, chiNonHaApertoNonSenteLaFine)
{
    cGiacenza altra;
    const QSignalSpy mia(mClasse.get(), &cGiacenza::fine);
    const QSignalSpy sua(&altra, &cGiacenza::fine);
    mClasse->NuovaGiacenza();
    mForme->caricata(frmGiacenza)->close();
    EXPECT_EQ(mia.size(), 1);
    EXPECT_EQ(sua.size(), 0);
}

TEST_F(Componente, dueOggettiAllaStessaSchermata)
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

TEST_F(Componente, unaSchermataDistruttaDaAltriNonLegaAllaProssima)
{
    cGiacenza altra;
    const QSignalSpy mia(mClasse.get(), &cGiacenza::fine);
    mClasse->NuovaGiacenza();
    delete mForme->caricata(frmGiacenza);
    altra.NuovaGiacenza();
    mForme->caricata(frmGiacenza)->close();
    EXPECT_EQ(mia.size(), 0);
}

TEST_F(Componente, laDistruzioneScaricaNelSuoOrdineESenzaFine)
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
              (QStringList{QStringLiteral("frmGestGia chiusa"), QStringLiteral("frmGiacenza chiusa"),
                           QStringLiteral("frmPorto chiusa"), QStringLiteral("frmRicerca chiusa"),
                           QStringLiteral("frmRicercaGia chiusa"), QStringLiteral("frmRiconsegna chiusa"),
                           QStringLiteral("rptAvviso chiusa"), QStringLiteral("rptBuonFine chiusa")}));
    EXPECT_EQ(fine.size(), 0);
}

TEST_F(Componente, laDistruzioneNonCaricaNulla)
{
    mClasse.reset();
    EXPECT_EQ(accaduto(), QStringList());
}

TEST_F(Componente, laDistruzioneDiUnaSiSenteDallAltra)
{
    cGiacenza altra;
    const QSignalSpy sua(&altra, &cGiacenza::fine);
    altra.NuovaGiacenza();
    mClasse.reset();
    EXPECT_EQ(sua.size(), 1);
    EXPECT_EQ(mForme->caricata(frmGiacenza), nullptr);
}

TEST_F(Componente, lOspitePuoDistruggereLaClasseDentroFine)
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
    EXPECT_EQ(accaduto(),
              (QStringList{QStringLiteral("frmGiacenza chiusa"), QStringLiteral("frmGestGia chiusa"),
                           QStringLiteral("frmGestGia distrutta"), QStringLiteral("frmGiacenza distrutta")}));
}

TEST_F(Componente, lOspitePuoRiaprireDentroFine)
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

TEST_F(Componente, ilCaricamentoFallitoTornaAllOspiteENonMostraNulla)
{
    mForme->registra<NonRaggiungibile>(frmGestGia);
    const QSignalSpy fine(mClasse.get(), &cGiacenza::fine);
    try {
        mClasse->ConsultaGiacenza();
        FAIL() << "aperta";
    } catch (const giacenza::ErroreDatabase& errore) {
        EXPECT_EQ(errore.sqlstate(), QStringLiteral("08S01"));
        EXPECT_EQ(errore.codiceNativo(), 2002);
        EXPECT_EQ(errore.testo(), QStringLiteral("rete"));
    }
    EXPECT_EQ(accaduto(), eventi(frmGestGia, {creata, distrutta}));
    EXPECT_EQ(mForme->caricata(frmGestGia), nullptr);
    EXPECT_EQ(fine.size(), 0);
}

TEST_F(Componente, unaSchermataCheMancaSiDice)
{
    giacenza::prove::RegistroMessaggi registro;
    mForme->registra(frmGestGia, Forme::Creatore());
    mClasse->ConsultaGiacenza();
    EXPECT_THAT(registro.prendi(),
                ::testing::ElementsAre(giacenza::Messaggio{
                    QStringLiteral("Questa schermata non è ancora disponibile in questa versione."),
                    giacenza::Stile::informazione, QStringLiteral("Gestione Trasporti")}));
    mForme->registra(frmGiacenza, Forme::Creatore());
    mClasse->NuovaGiacenzaEXT(QStringLiteral("1"), QStringLiteral("01/02/2024"), {}, {});
    EXPECT_EQ(registro.prendi().size(), 1U);
    EXPECT_EQ(accaduto(), QStringList());
}

TEST_F(Componente, siChiamaAncheTardi)
{
    EXPECT_TRUE(QMetaObject::invokeMethod(mClasse.get(), "setPercorsoDatabase",
                                          Q_ARG(QString, QStringLiteral("DSN=tardi"))));
    QString percorso;
    EXPECT_TRUE(
        QMetaObject::invokeMethod(mClasse.get(), "PercorsoDatabase", Q_RETURN_ARG(QString, percorso)));
    EXPECT_EQ(percorso, QStringLiteral("DSN=tardi"));
    EXPECT_TRUE(QMetaObject::invokeMethod(mClasse.get(), "NuovaGiacenza"));
    EXPECT_EQ(accaduto(), eventi(frmGiacenza, {creata, mostrata}));
}
