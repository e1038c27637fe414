#pragma once

#include "data/archivio.h"
#include "search/frmRicercaGia.h"
#include "support/bancadati.h"
#include "support/registromessaggi.h"
#include "support/trova.h"

#include <gmock/gmock.h>

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

#include <map>

using namespace Qt::StringLiterals;

namespace giacenza {
class CampoData;
}

namespace giacenza::prove {

/// A database with the shipments of customers 1001 (some of every kind), 2000 (600 waybills) and 3000 (1204),
/// and the shipment search over it. Today is 2026-03-01.
class BancoRicerca : public testing::TestWithParam<std::string>
{
protected:
    BancoRicerca();
    ~BancoRicerca() override;

    static void TearDownTestSuite();

    const BancaDati& base() const;

    /// The dialog as a screen opens it: customer 1001, branch MI, no number, reference or year.
    void prepara(frmRicercaGia& dialogo, ModoRicerca modo) const;
    /// Shows it and lets its messages come.
    void mostra(frmRicercaGia& dialogo) const;

    /// The values of a column of the grid, by its caption.
    static QStringList colonna(const frmRicercaGia& dialogo, const QString& didascalia);
    static QStringList didascalieVisibili(const frmRicercaGia& dialogo);
    static QString righe(const frmRicercaGia& dialogo);

    static void scrivi(frmRicercaGia& dialogo, const QString& campo, const QString& testo);
    static void premi(frmRicercaGia& dialogo, const QString& bottone);
    /// A key for the control that has the focus.
    static void tasto(frmRicercaGia& dialogo, Qt::Key tasto, Qt::KeyboardModifiers con = Qt::NoModifier);
    static QString fuoco(const frmRicercaGia& dialogo);

    /// The statements sent since the last call.
    QStringList istruzioni();
    /// Connections opened and not closed.
    int aperte() const { return mAperte; }
    /// Called before each statement is sent; may throw.
    void primaDi(std::function<void()> azione) { mPrima = std::move(azione); }

    RegistroMessaggi mMessaggi;

private:
    static std::map<std::string, std::unique_ptr<BancaDati>>& basi();
    static void riempi(const BancaDati& base);

    QTemporaryDir mImpostazioni;
    QStringList mIstruzioni;
    std::function<void()> mPrima;
    Traccia mTracciaPrima;
    int mAperte = 0;
};

/// What the tests call for.
inline const QString messaggioVuoto = u"Non ci sono spedizioni per il cliente selezionato."_s;

} // namespace giacenza::prove
