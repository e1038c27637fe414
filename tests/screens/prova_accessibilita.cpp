#include "dialogs/frmCalendario.h"
#include "dialogs/frmPorto.h"
#include "dialogs/frmRifiuto.h"
#include "screens/campi.h"
#include "screens/tutteleschermate.h"
#include "search/frmRicerca.h"
#include "search/frmRicercaGia.h"
#include "support/albero.h"
#include "support/stampa.h"
#include "support/trova.h"

#include <gmock/gmock.h>

#include <QLabel>

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
    esamina(*creaSchermata("frmGiacenza"), 0);
    esamina(*creaSchermata("frmGestGia"), 0);
    esamina(*creaSchermata("frmRiconsegna"), 0);
}

TEST(Accessibilita, OgniIngressoDeiDialoghiHaUnNomeSuo)
{
    frmCalendario calendario;
    esamina(calendario, 0);
    frmRifiuto rifiuto;
    esamina(rifiuto, 0);
    frmPorto porto;
    esamina(porto, 0);
    frmRicerca ricerca;
    esamina(ricerca, 0);
    frmRicercaGia spedizioni;
    spedizioni.setTipoRicerca(10);
    spedizioni.setCaptionLabel(u"Num. LDV"_s);
    esamina(spedizioni, 0);
}

/// What was announced at once while it lives, by object name.
class Annunci
{
public:
    Annunci()
    {
        QAccessible::setActive(true);
        sTesti = &mTesti;
        mPrima = QAccessible::installUpdateHandler([](QAccessibleEvent* evento) {
            if (evento->type() == QAccessible::Alert)
                *sTesti << evento->object()->objectName() + u": "_s +
                               evento->accessibleInterface()->text(QAccessible::Name);
        });
    }
    Annunci(const Annunci&) = delete;
    Annunci& operator=(const Annunci&) = delete;
    ~Annunci() { QAccessible::installUpdateHandler(mPrima); }

    QStringList prendi() { return std::exchange(mTesti, {}); }

private:
    static inline QStringList* sTesti = nullptr;
    QStringList mTesti;
    QAccessible::UpdateHandler mPrima;
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
