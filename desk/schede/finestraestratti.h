#pragma once

#include "database/accesso.h"
#include "desk/documenti/carta.h"
#include "desk/documenti/serieestratti.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;

namespace giacenza {
class CampoData;
}

namespace giacenza::schede {

class LavoroEstratti;

/// The statements of one customer or of all that have open cases, for a period, as PDF, CSV and workbook.
///
///     FinestraEstratti finestra(accesso, cliente, da, a, cartaDelleLettere(logo), this);
///     finestra.exec();
class FinestraEstratti : public QDialog
{
    Q_OBJECT

public:
    /// cliente: the code of one; empty: all with open cases, until one is chosen.
    FinestraEstratti(const Accesso& accesso, const QString& cliente, QDate da, QDate a,
                     const documenti::Carta& carta, QWidget* padre = nullptr);

    /// While statements are being made, the first time it stops after the one that is at work; the second it
    /// closes, and the dialog's end waits for that one.
    void reject() override;

private:
    void componi();
    void collegaLavoro();
    QLayout* rigaPeriodo();
    QLayout* rigaCartella();
    void leggiClienti(const QString& cliente);
    std::vector<documenti::ClienteAperto> scelti() const;
    documenti::Forme forme() const;
    bool completo();
    void comincia();
    void ferma();
    void scriviEsito(const documenti::EsitoEstratto& esito);
    void finisci(const QString& guasto);
    void dici(const QString& testo);

    Accesso mAccesso;
    documenti::Carta mCarta;
    std::vector<documenti::ClienteAperto> mClienti;
    bool mFermata = false;
    int mTotale = 0;
    int mFatti = 0;
    int mFalliti = 0;
    QComboBox* mCliente = nullptr;
    CampoData* mDa = nullptr;
    CampoData* mA = nullptr;
    QCheckBox* mForme[3] = {};
    QLineEdit* mCartella = nullptr;
    QPushButton* mEsegui = nullptr;
    QPushButton* mFerma = nullptr;
    QProgressBar* mAvanzamento = nullptr;
    QPlainTextEdit* mEsiti = nullptr;
    QLabel* mStato = nullptr;
    LavoroEstratti* mLavoro;
};

} // namespace giacenza::schede
