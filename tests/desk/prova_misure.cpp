#include "desk/deskdiprova.h"
#include "desk/finestra/finestrainvio.h"

#include <QSettings>

using namespace giacenza;
using namespace giacenza::prove;

namespace {

/// A screen of 1920x1080 at 200 %, less what a window manager puts around a window.
constexpr QSize schermoPiccolo(960 - 16, 540 - 40);

class ProvaMisure : public DeskDiProva
{
protected:
    std::unique_ptr<desk::FinestraInvio> avvisi()
    {
        elenco()->selectAll();
        auto finestra = std::make_unique<desk::FinestraInvio>(desk::Lavoro::avviso, mDesk->casi(),
                                                              mBase.accesso(), mFinestra.get());
        finestra->show();
        return finestra;
    }
};

} // namespace

TEST_P(ProvaMisure, ilDeskELaFinestraDegliAvvisiStannoInUnoSchermoPiccolo)
{
    const auto finestra = avvisi();
    for (const QWidget* quale :
         {static_cast<const QWidget*>(mDesk), static_cast<const QWidget*>(finestra.get())}) {
        const QSize minima = quale->minimumSizeHint();
        EXPECT_LE(minima.width(), schermoPiccolo.width()) << quale->objectName().toStdString();
        EXPECT_LE(minima.height(), schermoPiccolo.height()) << quale->objectName().toStdString();
    }
}

TEST_P(ProvaMisure, laMisuraDiUnaFinestraTorna)
{
    QSettings().clear();
    const QSize solita = avvisi()->size();
    avvisi()->close();
    EXPECT_FALSE(QSettings().contains(u"misure/avvisi"_s)) << "nobody has changed it";
    auto finestra = avvisi();
    finestra->resize(611, 333);
    finestra->close();
    EXPECT_EQ(avvisi()->size(), QSize(611, 333));
    for (const QVariant& guasta :
         {QVariant(u"tanto"_s), QVariant(QSize(-4, 0)), QVariant(QByteArray("\0\1", 2))}) {
        QSettings().setValue(u"misure/avvisi"_s, guasta);
        EXPECT_EQ(avvisi()->size(), solita);
    }
    QSettings().setValue(u"misure/avvisi"_s, QSize(90'000, 90'000));
    EXPECT_LE(avvisi()->width(), mFinestra->screen()->availableSize().width());
    EXPECT_LE(avvisi()->height(), mFinestra->screen()->availableSize().height());
    QSettings().clear();
}

INSTANTIATE_TEST_SUITE_P(Basi, ProvaMisure, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);
