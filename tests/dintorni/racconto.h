#pragma once

#include <QStringList>
#include <QWidget>

namespace giacenza::prove {

/// What a test has seen, for the same test under another locale: appended to the file of GIACENZA_RACCONTO,
/// and nowhere where that is not set. Fails the test when it cannot be written.
void racconta(const QString& che, const QByteArray& visto);
inline void racconta(const QString& che, const QString& visto)
{
    racconta(che, visto.toUtf8());
}
inline void racconta(const QString& che, const QStringList& visto)
{
    racconta(che, visto.join(QChar(u'\n')));
}

/// What stands in the fields, labels, lists and tables of a window, each with its name.
QStringList testiDi(const QWidget& finestra);

} // namespace giacenza::prove
