#pragma once

#include "data/istruzioni.h"
#include "database/accesso.h"
#include "desk/documenti/carta.h"

#include <QWidget>

#include <optional>

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTableView;

namespace giacenza {
class CampoTesto;
}

namespace giacenza::schede {

class ModelloCronologia;
class PulsanteApri;

/// What happened to a case, and what the clerks add to it: the timeline, the newest first, the text of the
/// chosen event, a note to write, the dossier to print. Where the archive has no register it says so and
/// shows what there is.
class SchedaCaso : public QWidget
{
    Q_OBJECT

public:
    SchedaCaso(const Accesso& accesso, const documenti::Carta& carta, QWidget* padre = nullptr);

    /// Shows a case. What cannot be read is said in the status line.
    void mostra(const ChiaveGiacenza& caso);
    /// Reads it anew.
    void rileggi();

Q_SIGNALS:
    /// A note was added to the case that is shown.
    void notaAggiunta();

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    void componi();
    QWidget* riquadroNota();
    void mostraTesto();
    /// Why it could not be read, in Italian; empty when it was.
    QString leggi();
    void aggiungi();
    QString scrivi();
    std::optional<QString> scioglie();
    qsizetype noteUguali() const;
    void stampa();
    void dici(const QString& testo);
    void permettiNote(bool permesse);

    /// A note of which nobody knows whether it is in the archive.
    struct Dubbio
    {
        QString testo;
        qsizetype uguali; ///< how many said the same before
    };

    Accesso mAccesso;
    documenti::Carta mCarta;
    ChiaveGiacenza mCaso;
    bool mLetta = false; ///< the case that is shown was read
    std::optional<Dubbio> mInDubbio;
    ModelloCronologia* mModello = nullptr;
    QLabel* mMancanza = nullptr;
    QTableView* mTavola = nullptr;
    QPlainTextEdit* mTesto = nullptr;
    QLineEdit* mAutore = nullptr;
    CampoTesto* mNota = nullptr;
    QPushButton* mAggiungi = nullptr;
    QPushButton* mFascicolo = nullptr;
    PulsanteApri* mApri = nullptr;
    QLabel* mStato = nullptr;
};

} // namespace giacenza::schede
