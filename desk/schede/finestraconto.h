#pragma once

#include "database/accesso.h"
#include "desk/documenti/carta.h"
#include "desk/documenti/conto.h"

#include <QDialog>

class QLabel;
class QPushButton;

namespace giacenza {
class CampoData;
}

namespace giacenza::schede {

class ModelloConto;
class PulsanteApri;

/// The charge sheet of a case, at a day to choose, and its PDF.
///
///     FinestraConto finestra(accesso, caso, cartaDelleLettere(logo), this);
///     finestra.exec();
///
/// What cannot be read is said in the window.
class FinestraConto : public QDialog
{
    Q_OBJECT

public:
    FinestraConto(const Accesso& accesso, const ChiaveGiacenza& caso, const documenti::Carta& carta,
                  QWidget* padre = nullptr);

    /// Reads the case anew.
    void leggi();

private:
    void componi();
    QLayout* rigaComandi();
    QWidget* riquadroTotali();
    /// At the day that is written; false, and said, when it is none.
    bool calcola();
    void mostra();
    void salva(bool interi);
    void dici(const QString& testo);

    Accesso mAccesso;
    ChiaveGiacenza mCaso;
    documenti::Carta mCarta;
    documenti::DatiConto mDati;
    documenti::Conto mConto;
    bool mLetto = false;
    QLabel* mTesta = nullptr;
    QLabel* mCondizioni = nullptr;
    QLabel* mAvvertenze = nullptr;
    QLabel* mStato = nullptr;
    QLabel* mCalcolati = nullptr;
    QLabel* mTotali[6] = {};
    CampoData* mAlla = nullptr;
    ModelloConto* mModello = nullptr;
    QPushButton* mSalva = nullptr;
    QPushButton* mSalvaIntero = nullptr;
    PulsanteApri* mApri = nullptr;
};

} // namespace giacenza::schede
