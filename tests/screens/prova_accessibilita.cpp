#include "dialogs/frmCalendario.h"
#include "dialogs/frmPorto.h"
#include "dialogs/frmRifiuto.h"
#include "screens/campi.h"
#include "screens/tutteleschermate.h"
#include "search/frmRicerca.h"
#include "search/frmRicercaGia.h"
#include "support/albero.h"
#include "support/registromessaggi.h"
#include "support/stampa.h"
#include "support/trova.h"
#include "widgets/annuncio.h"

#include <gmock/gmock.h>

#include <QLabel>

#include <utility>

using namespace Qt::StringLiterals;
using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

void esamina(QWidget& finestra, int ingressi)
{
    const AlberoAccessibile albero = alberoAccessibile(&finestra);
    EXPECT_EQ(albero.ingressi, ingressi) << finestra.objectName().toStdString();
    EXPECT_THAT(albero.senzaNome, IsEmpty()) << finestra.objectName().toStdString();
    EXPECT_THAT(albero.doppi, IsEmpty()) << finestra.objectName().toStdString();
}

TEST(Accessibilita, OgniIngressoDelleSchermateHaUnNomeSuo)
{
    esamina(*creaSchermata("frmGiacenza"), 41);
    esamina(*creaSchermata("frmGestGia"), 45);
    esamina(*creaSchermata("frmRiconsegna"), 41);
}

TEST(Accessibilita, OgniIngressoDeiDialoghiHaUnNomeSuo)
{
    frmCalendario calendario;
    esamina(calendario, 8);
    frmRifiuto rifiuto;
    esamina(rifiuto, 4);
    frmPorto porto;
    esamina(porto, 7);
    frmRicerca ricerca;
    esamina(ricerca, 11);
    frmRicercaGia spedizioni;
    spedizioni.setTipoRicerca(10);
    spedizioni.setCaptionLabel(u"Num. LDV"_s);
    RegistroMessaggi messaggi;
    spedizioni.show(); // its captions come with the mode
    QCoreApplication::processEvents();
    EXPECT_EQ(messaggi.testi().size(), 1) << "there is no database to read";
    esamina(spedizioni, 5);
}

TEST(Accessibilita, LeDateDeiDialoghiSiLeggonoIntere)
{
    for (const int punti : {9, 11, 14}) {
        const CorpoCarattere corpo(punti);
        frmRifiuto rifiuto;
        rifiuto.show();
        RegistroMessaggi messaggi;
        frmRicercaGia spedizioni;
        spedizioni.setTipoRicerca(10);
        spedizioni.show();
        QCoreApplication::processEvents();
        EXPECT_EQ(messaggi.testi().size(), 1) << "there is no database to read";
        for (const QWidget* data :
             {trova<QWidget>(rifiuto, u"txtDataRifiuto"_s), trova<QWidget>(spedizioni, u"txtAnnoData"_s)}) {
            constexpr int intorno = 12;
            EXPECT_GE(data->width(), data->fontMetrics().horizontalAdvance(u"00/00/0000"_s) + intorno)
                << data->objectName().toStdString() << ' ' << punti;
        }
    }
}

/// What is announced while it lives, by object name.
class Annunci
{
public:
    Annunci()
    {
        impostaAnnunciatore([this](QWidget* etichetta, const QString& testo) {
            mTesti << etichetta->objectName() + u": "_s + testo;
        });
    }
    Annunci(const Annunci&) = delete;
    Annunci& operator=(const Annunci&) = delete;
    ~Annunci() { impostaAnnunciatore({}); }

    QStringList prendi() { return std::exchange(mTesti, {}); }

private:
    QStringList mTesti;
};

TEST(Accessibilita, LaRigaDiStatoSiAnnuncia)
{
    for (const char* nome : {"frmGiacenza", "frmGestGia", "frmRiconsegna"}) {
        const auto schermata = creaSchermata(nome);
        schermata->show();
        Annunci annunci;
        schermata->stato(u"LDV 4711 del 12/11/2026: non trovata."_s);
        EXPECT_THAT(annunci.prendi(), ElementsAre(u"lblStato: LDV 4711 del 12/11/2026: non trovata."_s))
            << nome;
        schermata->stato({});
        EXPECT_THAT(annunci.prendi(), IsEmpty()) << "nothing to say";
    }
}

TEST(Accessibilita, LInsegnaDellaGiacenzaSiAnnuncia)
{
    const auto schermata = creaSchermata("frmGiacenza");
    schermata->show();
    auto* insegna = trova<QLabel>(schermata.get(), u"lblGiaInGiacenza"_s);
    Annunci annunci;
    insegna->setVisible(true);
    EXPECT_THAT(annunci.prendi(), ElementsAre(u"lblGiaInGiacenza: GIÀ IN GIACENZA"_s));
    insegna->setVisible(false);
    EXPECT_THAT(annunci.prendi(), IsEmpty());
}

} // namespace
