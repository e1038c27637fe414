#pragma once

#include "screens/schermata.h"
#include "support/bancadati.h"
#include "support/registromessaggi.h"
#include "support/spedizioni.h"

#include <giacenza/ModuloStampa.h>

#include <QPointer>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

/// A print module that keeps what it is driven with, in order: "database …", "logo …", "didascalie a|b|c|d",
/// "stampa 1", "tipo 5", "documento 42_2026".
class ModuloDiProva : public ModuloStampa
{
public:
    ModuloDiProva(QStringList& chiamate, std::function<void()> durante, bool nonProdotto)
        : mChiamate(chiamate), mDurante(std::move(durante)), mNonProdotto(nonProdotto)
    {}

    void setPercorsoDatabase(const QString& percorso) override;
    void setPercorsoLogo(const QString& percorso) override;
    void setDidascalie(const std::array<QString, 4>& didascalie) override;
    void setStampa(bool stampa) override;
    void setTipoDocumento(TipoDocumento tipo) override;
    void stampaDocumento(const QString& chiave, bool& nonProdotto) override;

private:
    QStringList& mChiamate;
    std::function<void()> mDurante;
    bool mNonProdotto;
};

/// A working screen, shown, on a database with the small depot; the day is 21/11/2026. A test of a screen
/// derives and says which.
class SchermataDiProva : public testing::TestWithParam<std::string>
{
protected:
    SchermataDiProva();
    ~SchermataDiProva() override;

    /// The screen under test, not loaded yet.
    virtual std::unique_ptr<Schermata> crea() const = 0;
    /// Opens the screen as the component does.
    void apri();

    QWidget* c(const char* nome) const;
    QString mostrato(const char* nome) const;
    bool avanzo(const char* nome) const;
    void scrivi(const char* nome, const QString& testo);
    void lascia(const char* nome);
    void clicca(const char* nome);
    void tasto(const char* nome, Qt::Key tasto);
    /// Alt and a letter; waits for the button, which Qt shows pressed before it acts.
    void scorciatoia(Qt::Key lettera);

    /// Until guarisce(), every statement that begins so fails; with 08S01 the connection is lost too.
    void fallisce(const QString& inizio, const QString& sqlstate = u"HY000"_s);
    void guarisce();

    /// The statements that data access sends while this lives, but for the session's own.
    QStringList istruzioni(const std::function<void()>& azione) const;

    BancaDati mBase{GetParam()};
    QTemporaryDir mCartella;
    RegistroMessaggi mMessaggi;
    QStringList mStampe;
    /// What the print module does once its document is asked for.
    std::function<void()> mDuranteStampa;
    /// The module fails so, when this is not empty.
    QString mGuastoStampa;
    bool mStampaNonProdotta = false;
    QPointer<Schermata> mSchermata;
};

} // namespace giacenza::prove
