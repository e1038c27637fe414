#include "widgets/limitetesto.h"

#include "support/stampa.h"
#include "widgets/campodata.h"
#include "widgets/campotesto.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMimeData>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using namespace giacenza;
using namespace Qt::StringLiterals;

namespace {

void incolla(QWidget* campo, const QString& testo)
{
    QApplication::clipboard()->setText(testo);
    QMetaObject::invokeMethod(campo, "paste");
}

} // namespace

TEST(LimiteTesto, unMegabyteIncollatoInUnCampoSiTaglia)
{
    QWidget finestra;
    auto* campo = new QLineEdit(&finestra);
    auto* corto = new QLineEdit(&finestra);
    corto->setMaxLength(4);
    auto* elenco = new QComboBox(&finestra);
    elenco->setEditable(true);
    auto* data = new CampoData(&finestra);
    limitaCampi(&finestra);
    const QString megabyte(1'000'000, u'x');
    for (QLineEdit* uno : {campo, elenco->lineEdit()}) {
        incolla(uno, megabyte);
        EXPECT_EQ(uno->text(), megabyte.left(lunghezzaMassima));
    }
    incolla(corto, megabyte);
    EXPECT_EQ(corto->text(), u"xxxx"_s);
    data->imposta(u"12/03/2015"_s);
    EXPECT_EQ(data->testo(), u"12/03/2015"_s);
}

TEST(LimiteTesto, unMegabyteIncollatoInUnaCasellaSiTaglia)
{
    CampoTesto casella;
    casella.setPlainText(u"prima"_s);
    casella.moveCursor(QTextCursor::End);
    const QSignalSpy tagliato(&casella, &CampoTesto::tagliato);
    incolla(&casella, u" poco"_s);
    EXPECT_EQ(casella.toPlainText(), u"prima poco"_s);
    EXPECT_EQ(tagliato.size(), 0);
    for (const QString& megabyte : {QString(1'000'000, u'x'), QString(1'000'000, u'\n')}) {
        casella.clear();
        incolla(&casella, megabyte);
        EXPECT_EQ(casella.toPlainText(), megabyte.left(CampoTesto::massimoIncollato));
    }
    EXPECT_EQ(tagliato.size(), 2);
}

TEST(LimiteTesto, unCarattereNonSiTagliaAMeta)
{
    CampoTesto casella;
    incolla(&casella, u'x' + u"😀"_s.repeated(CampoTesto::massimoIncollato));
    EXPECT_TRUE(casella.toPlainText().isValidUtf16());
    EXPECT_EQ(casella.toPlainText().size(), CampoTesto::massimoIncollato - 1);
}

TEST(LimiteTesto, ciòCheScriveIlProgrammaRestaIntero)
{
    CampoTesto casella;
    const QString lungo(100'000, u'x');
    casella.setPlainText(lungo);
    EXPECT_EQ(casella.toPlainText(), lungo);
}
