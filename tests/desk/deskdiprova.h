#pragma once

#include "base/impostazioni.h"
#include "base/orologio.h"
#include "base/parti.h"
#include "desk/casi.h"
#include "desk/finestra/finestradesk.h"
#include "host/giacenza_finta.h"
#include "support/stampa.h"
#include "support/trova.h"

#include <giacenza/ModuloStampa.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QStackedWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>

namespace giacenza::prove {

using namespace Qt::StringLiterals;

/// A module that prints nothing and keeps what it was asked for.
class ModuloMuto : public ModuloStampa
{
public:
    ModuloMuto(QStringList& chiavi, const QString& rifiutata) : mChiavi(chiavi), mRifiutata(rifiutata) {}
    void setPercorsoDatabase(const QString&) override {}
    void setPercorsoLogo(const QString&) override {}
    void setDidascalie(const std::array<QString, 4>&) override {}
    void setStampa(bool) override {}
    void setTipoDocumento(TipoDocumento) override {}
    void stampaDocumento(const QString& chiave, bool&) override
    {
        if (chiave == mRifiutata)
            throw Errore(u"La stampante è spenta."_s);
        mChiavi << chiave;
    }

private:
    QStringList& mChiavi;
    QString mRifiutata;
};

/// The desk as the central part of a window, on the cases of riempiCasi(), with a stand-in for the component.
class DeskDiProva : public testing::TestWithParam<std::string>
{
protected:
    DeskDiProva();
    ~DeskDiProva() override;

    /// Opens another desk in a window of its own, in the place of the one that is open. prima: before it
    /// reads.
    void apriDesk(const std::function<void(desk::FinestraDesk& desk)>& prima = {});
    /// Waits until the list was read.
    void attendiElenco();
    void attendi(const std::function<bool()>& fatto);
    /// Types into whatever has the focus, as a scanner does.
    static void digita(const QString& testo);
    static void premi(Qt::Key tasto, Qt::KeyboardModifiers modificatori = Qt::NoModifier);
    /// Scans a number and waits for what comes of it.
    void scansiona(const QString& numero);

    template<class Classe>
    Classe* figlio(const char16_t* nome) const
    {
        return trova<Classe>(mFinestra.get(), QString::fromUtf16(nome));
    }
    QTableView* elenco() const { return figlio<QTableView>(u"tabCasi"); }
    QString pagina() const;
    QString detto() const
    {
        return figlio<QLabel>(u"lblEsito")->isVisible() ? figlio<QLabel>(u"lblEsito")->text() : QString();
    }
    static QStringList colonna(const QTableView* tabella, int quale);
    /// Makes the row of a case the only one that is marked.
    void vai(const QString& giacenza);
    static QStringList chiamate() { return giacenzaFinta().chiamate; }

    BancaDati mBase{GetParam()};
    QString mStringa = mBase.stringa(); ///< by which a desk that is opened reaches it
    QTemporaryDir mCartella;
    QStringList mStampate;
    QString mRifiutata; ///< the document that the module does not print
    std::unique_ptr<cGiacenza> mComponente;
    std::unique_ptr<QMainWindow> mFinestra;
    desk::FinestraDesk* mDesk = nullptr;
};

} // namespace giacenza::prove
