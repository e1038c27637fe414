#pragma once

#include "database/connessione.h"

#include <QLabel>
#include <QPushButton>
#include <QTableView>

#include <functional>

/// What the windows of this room have in common.
namespace giacenza::schede {

/// So many characters wide and lines high, in the font of a window.
QSize inCaratteri(const QWidget& finestra, int larga, int alta);

/// A button that is reached by Tab and pressed by its letter, never by Enter from elsewhere.
QPushButton* pulsante(QWidget* padre, const QString& nome, const QString& testo, const QString& aiuto);

/// A text that wraps and that a screen reader and the mouse can take.
QLabel* scritta(QWidget* padre, const QString& nome);

/// A table of rows that are read and not edited.
QTableView* tavola(QWidget* padre, const QString& nome, const QString& nomeLetto);

/// A text in bold on the colours that the palette has for what must be seen.
void mostraAvvertenza(QLabel& scritta, const QString& testo);

/// Does something that may fail and gives the failure in Italian; empty when it did not.
QString provando(const std::function<void()>& azione);

/// Opens the file that was saved last, with the program that the system has for it; off as long as there is
/// none.
class PulsanteApri : public QPushButton
{
    Q_OBJECT

public:
    explicit PulsanteApri(QWidget* padre);

    /// file: absolute; empty: nothing to open.
    void offri(const QString& file);

private:
    QString mFile;
};

} // namespace giacenza::schede
