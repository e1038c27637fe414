#pragma once

#include <QObject>
#include <QStringList>

class QWidget;

namespace deposito {

/// The heading of the guide that tells of a window or a page, as the guide's HTML names it: of the nearest
/// that has one among the widget and those that it stands in or over; the desk's where none has. dove: may be
/// null.
QString ancoraGuida(const QWidget* dove);

/// All that ancoraGuida() may give.
QStringList ancoreGuida();

/// Opens the guide at a heading. Returns why it does not, in Italian; empty when it does.
QString apriGuida(const QString& ancora);

/// F1 in every window of the program that has no such key of its own, modal ones too.
class TastoGuida : public QObject
{
    Q_OBJECT

public:
    /// From now on, and as long as this lives. There is an application.
    TastoGuida();

    bool eventFilter(QObject* oggetto, QEvent* evento) override;
};

} // namespace deposito
