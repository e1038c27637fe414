#include "component/componentediprova.h"

#include "support/registromessaggi.h"
#include "support/stampa.h"

#include <QMetaMethod>
#include <QSignalSpy>

#include <gmock/gmock.h>

#include <thread>

using namespace giacenza::prove;

using giacenza::cGiacenza;
using giacenza::Forme;
using giacenza::impostazioni;

namespace {

class NonRaggiungibile : public SchermataFinta<nomeGestione>
{
public:
    void carica() { throw giacenza::ErroreDatabase(u"08S01"_s, 2002, u"rete"_s); }
};

} // namespace

class Componente : public ComponenteDiProva
{};

TEST_F(Componente, iPercorsiRestanoTaliEQuali)
{
    const QString strano = u"  DRIVER={X};PWD=a;b'\"\\ à\t "_s;
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
    mClasse->setPercorsoDatabase(u"DSN=uno"_s);
    cGiacenza altra;
    EXPECT_EQ(altra.PercorsoDatabase(), u"DSN=uno"_s);
    altra.setPercorsoFileIni(u"/dati/gest.ini"_s);
    EXPECT_EQ(mClasse->PercorsoFileIni(), u"/dati/gest.ini"_s);
    mClasse.reset();
    EXPECT_EQ(cGiacenza().PercorsoDatabase(), u"DSN=uno"_s);
    std::thread([] { EXPECT_EQ(cGiacenza().PercorsoDatabase(), QString()); }).join();
}

TEST_F(Componente, lEtichettaDelReso)
{
    EXPECT_EQ(giacenza::etichettaReso(impostazioni().movimento), QString());
    mClasse->setTipoReso(cGiacenza::ResoMittente);
    EXPECT_EQ(giacenza::etichettaReso(impostazioni().movimento), u"Reso a Mittente"_s);
    for (const int altro : {1, 0, 3, -1, 2147483647}) {
        mClasse->setTipoReso(cGiacenza::ResoMittente);
        mClasse->setTipoReso(static_cast<cGiacenza::Reso>(altro));
        EXPECT_EQ(giacenza::etichettaReso(impostazioni().movimento), u"Riconsegna a Destinatario"_s) << altro;
    }
    mClasse->setTipoReso(static_cast<cGiacenza::Reso>(2));
    EXPECT_EQ(giacenza::etichettaReso(impostazioni().movimento), u"Reso a Mittente"_s);
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
    for (const QString& azione : {QString(), u"NuovaGiacenza"_s, u"qualsiasi"_s}) {
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
    mClasse->NuovaGiacenzaEXT(u"123"_s, u"01/02/2024"_s, u"MI"_s, u"77"_s);
    EXPECT_EQ(accaduto(), (QStringList{u"frmGiacenza creata"_s, u"frmGiacenza.NLettVett=123"_s,
                                       u"frmGiacenza.DataLdv=01/02/2024"_s, u"frmGiacenza.Filiale=MI"_s,
                                       u"frmGiacenza.CodiceCliente=77"_s, u"frmGiacenza mostrata"_s}));
    accaduto().clear();
    mClasse->NuovaGiacenzaEXT({}, {}, {}, {});
    EXPECT_EQ(accaduto(), (QStringList{u"frmGiacenza.NLettVett="_s, u"frmGiacenza.DataLdv="_s,
                                       u"frmGiacenza.Filiale="_s, u"frmGiacenza.CodiceCliente="_s}));
}

TEST_F(Componente, ilCaricamentoFallitoTornaAllOspiteENonMostraNulla)
{
    mForme->registra<NonRaggiungibile>(frmGestGia);
    const QSignalSpy fine(mClasse.get(), &cGiacenza::fine);
    try {
        mClasse->ConsultaGiacenza();
        FAIL() << "aperta";
    } catch (const giacenza::ErroreDatabase& errore) {
        EXPECT_EQ(errore.sqlstate(), u"08S01"_s);
        EXPECT_EQ(errore.codiceNativo(), 2002);
        EXPECT_EQ(errore.testo(), u"rete"_s);
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
    EXPECT_THAT(registro.prendi(), ::testing::ElementsAre(giacenza::Messaggio{
                                       u"Questa schermata non è ancora disponibile in questa versione."_s,
                                       giacenza::Stile::informazione, giacenza::titoloApplicazione()}));
    mForme->registra(frmGiacenza, Forme::Creatore());
    mClasse->NuovaGiacenzaEXT(u"1"_s, u"01/02/2024"_s, {}, {});
    EXPECT_EQ(registro.prendi().size(), 1U);
    EXPECT_EQ(accaduto(), QStringList());
}

TEST_F(Componente, siChiamaAncheTardi)
{
    EXPECT_TRUE(
        QMetaObject::invokeMethod(mClasse.get(), "setPercorsoDatabase", Q_ARG(QString, u"DSN=tardi"_s)));
    QString percorso;
    EXPECT_TRUE(
        QMetaObject::invokeMethod(mClasse.get(), "PercorsoDatabase", Q_RETURN_ARG(QString, percorso)));
    EXPECT_EQ(percorso, u"DSN=tardi"_s);
    EXPECT_TRUE(QMetaObject::invokeMethod(mClasse.get(), "NuovaGiacenza"));
    EXPECT_EQ(accaduto(), eventi(frmGiacenza, {creata, mostrata}));
}
