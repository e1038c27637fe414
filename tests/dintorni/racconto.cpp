#include "dintorni/racconto.h"

#include <QAbstractItemModel>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTableView>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

namespace {

QString testo(const QWidget* parte)
{
    if (const auto* riga = qobject_cast<const QLineEdit*>(parte))
        return riga->displayText();
    if (const auto* etichetta = qobject_cast<const QLabel*>(parte))
        return etichetta->text();
    if (const auto* lista = qobject_cast<const QComboBox*>(parte))
        return lista->currentText();
    if (const auto* blocco = qobject_cast<const QPlainTextEdit*>(parte))
        return blocco->toPlainText();
    return {};
}

} // namespace

void racconta(const QString& che, const QByteArray& visto)
{
    const QString dove = qEnvironmentVariable("GIACENZA_RACCONTO");
    if (dove.isEmpty())
        return;
    const auto* prova = testing::UnitTest::GetInstance()->current_test_info();
    QFile file(dove);
    ASSERT_TRUE(file.open(QIODevice::Append));
    const QByteArray riga = QByteArray("== ") + prova->test_suite_name() + '.' + prova->name() + ", " +
                            che.toUtf8() + '\n' + visto + '\n';
    ASSERT_EQ(file.write(riga), riga.size());
}

QStringList testiDi(const QWidget& finestra)
{
    QStringList testi;
    const auto parti = finestra.findChildren<QWidget*>();
    for (const QWidget* parte : parti)
        if (const QString visto = testo(parte); !visto.isEmpty() && !parte->objectName().startsWith(u"qt_"_s))
            testi << parte->objectName() + u": "_s + visto;
    const auto tabelle = finestra.findChildren<QTableView*>();
    for (const QTableView* tabella : tabelle)
        for (int riga = 0; riga < tabella->model()->rowCount(); ++riga) {
            QStringList celle;
            for (int colonna = 0; colonna < tabella->model()->columnCount(); ++colonna)
                celle << tabella->model()->index(riga, colonna).data().toString();
            testi << celle.join(u" | "_s);
        }
    return testi;
}

} // namespace giacenza::prove
