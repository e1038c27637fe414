#include "screens/campi.h"
#include "screens/misure.h"
#include "screens/tutteleschermate.h"
#include "support/trova.h"
#include "widgets/areaforma.h"

#include <gmock/gmock.h>

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace giacenza;
using namespace giacenza::prove;

namespace {

TEST(Foto, Scatta)
{
    const QByteArray dove = qgetenv("FOTO");
    if (dove.isEmpty())
        return;
    const int w = qEnvironmentVariableIntValue("FOTO_W"), h = qEnvironmentVariableIntValue("FOTO_H");
    const CorpoCarattere corpo(qEnvironmentVariableIntValue("FOTO_PT"));
    if (qEnvironmentVariableIsSet("FOTO_SCURO")) {
        QPalette p(QColor(53, 53, 53), QColor(42, 42, 46));
        p.setColor(QPalette::Base, QColor(30, 30, 33));
        p.setColor(QPalette::Link, QColor(120, 180, 250));
        QApplication::setPalette(p);
    }
    for (const char* nome : {"frmGiacenza", "frmGestGia", "frmRiconsegna"}) {
        auto s = creaSchermata(nome);
        s->show();
        s->resize(w, h);
        for (const MisuraCampo& m : misureCampi())
            if (auto* c = s->findChild<QWidget*>(QLatin1String(m.controllo)))
                giacenza::scrivi(c, QString::fromUtf16(m.piuLungo));
        giacenza::scrivi(trova<QWidget>(s.get(), u"barCliente"_s), u"Ferramenta Lombarda S.r.l."_s);
        giacenza::scrivi(trova<QWidget>(s.get(), u"txtDestinatario"_s), u"Utensileria del Lago"_s);
        giacenza::scrivi(trova<QWidget>(s.get(), u"txtIndDestinatario"_s), u"Corso Italia 44"_s);
        giacenza::scrivi(trova<QWidget>(s.get(), u"txtLocalitaDest"_s), u"Como"_s);
        giacenza::scrivi(trova<QWidget>(s.get(), u"txtDescGia"_s), u"Destinatario assente"_s);
        s->stato(u"LDV 4711 del 12/11/2026: trovata."_s);
        for (const auto& n : {u"lblGiaInGiacenza"_s, u"lblStatoCaso"_s})
            if (auto* l = s->findChild<QLabel*>(n)) {
                l->show();
                if (l->text().isEmpty()) l->setText(u"APERTA · 1 AVVISO"_s);
            }
        QTest::qWait(50);
        qInfo("%s %dx%d hint %dx%d", nome, s->width(), s->height(), s->findChild<AreaForma*>()->ingombro().width(), s->findChild<AreaForma*>()->ingombro().height());
        s->grab().save(QString::fromLocal8Bit(dove) + u'_' + QLatin1String(nome) + u".png"_s);
    }
}

} // namespace
