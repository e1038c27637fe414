#include "guida.h"

#include "finestra.h"
#include "giacenza_finta.h"
#include "host/avvio/assistenza.h"
#include "support/stampa.h"

#include <QAction>
#include <QDesktopServices>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTest>
#include <QUrl>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using namespace deposito;
using testing::ElementsAre;

namespace {

/// Stands for the browser.
class Lettore : public QObject
{
    Q_OBJECT

public:
    Lettore() { QDesktopServices::setUrlHandler(u"file"_s, this, "apri"); }
    ~Lettore() override { QDesktopServices::unsetUrlHandler(u"file"_s); }
    Q_INVOKABLE void apri(const QUrl& pagina) { ancore << pagina.fragment(QUrl::FullyDecoded); }

    QStringList ancore;
};

/// As the HTML names a heading: without signs, a hyphen for each blank.
QString ancoraDi(const QString& titolo)
{
    static const QRegularExpression segni(u"[^\\w\\- ]"_s, QRegularExpression::UseUnicodePropertiesOption);
    return QString(titolo).remove(segni).toLower().replace(u' ', u'-');
}

TEST(Guida, ogniAncoraEUnTitolo)
{
    QFile guida(fileGuida());
    ASSERT_TRUE(guida.open(QIODevice::ReadOnly)) << guida.fileName().toStdString();
    QStringList titoli;
    for (const QString& riga : QString::fromUtf8(guida.readAll()).split(u'\n'))
        if (riga.startsWith(u"## "_s) || riga.startsWith(u"### "_s))
            titoli << ancoraDi(riga.section(u' ', 1));
    for (const QString& ancora : ancoreGuida())
        EXPECT_THAT(titoli, testing::Contains(ancora));
}

TEST(Guida, F1SiApreAlPostoDellaFinestraAncheModale)
{
    Lettore lettore;
    const TastoGuida tasto;
    QDialog conto;
    conto.setObjectName(u"finestraConto"_s);
    conto.setModal(true);
    QDialog sopra(&conto);
    for (QDialog* finestra : {&conto, &sopra}) {
        auto* campo = new QLineEdit(finestra);
        finestra->show();
        finestra->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(finestra));
        QTest::keyClick(campo, Qt::Key_F1);
    }
    EXPECT_THAT(lettore.ancore, ElementsAre(u"il-conto-della-sosta"_s, u"il-conto-della-sosta"_s));
    QTest::keyClick(&conto, Qt::Key_F1, Qt::ControlModifier);
    EXPECT_EQ(lettore.ancore.size(), 2) << "another key";
}

TEST(Guida, dalBancoSiApreLaGiornataEUnaVoltaSola)
{
    Lettore lettore;
    const TastoGuida tasto;
    giacenzaFinta() = {};
    Finestra finestra(Opzioni{{}, u"/dati/g.ini"_s, {}});
    finestra.show();
    finestra.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    QTest::keyClick(&finestra, Qt::Key_F1);
    EXPECT_THAT(lettore.ancore, ElementsAre(u"la-giornata"_s));
    finestra.findChild<QAction*>(u"azNuovaLdv"_s)->trigger();
    QTest::keyClick(finestra.findChild<QWidget*>(u"txtLdv"_s), Qt::Key_F1);
    EXPECT_THAT(lettore.ancore, ElementsAre(u"la-giornata"_s, u"registrare-una-giacenza"_s));
}

} // namespace

#include "prova_guida.moc"
