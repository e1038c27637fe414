#pragma once

#include "grappolo/giornale.h"
#include "screens/schermata.h"

#include <QTemporaryDir>

#include <functional>
#include <memory>

namespace giacenza::prove {

/// A case as its workstation knows it.
struct CasoSeguito
{
    QString ldv;
    QString giacenza; ///< empty until it is registered
};

/// The days of a case, one for each thing that is done to it.
inline const QDate giornoRegistrazione(2026, 11, 21);
inline const QDate giornoLdv(2026, 11, 12);

/// The clerk's place: the three screens, the depot's own issuer, a print module that is done at once, and
/// nobody who answers a box but this.
class Banco
{
public:
    /// stringa: the connection string of a workstation's user.
    explicit Banco(const QString& stringa);
    Banco(const Banco&) = delete;
    Banco& operator=(const Banco&) = delete;
    ~Banco();

    /// Does the work on its screen, and says what the screen said. prima is called when the button is about
    /// to be pressed. Where a save was followed by its notice, that is the second line.
    QList<Voce> fai(Lavoro lavoro, const CasoSeguito& caso, const std::function<void()>& prima);

private:
    /// On the day, from the bringing up of the case to the end; false when it did not come up.
    bool registra(const CasoSeguito& caso, const std::function<void()>& prima);
    bool avvisa(const CasoSeguito& caso, const std::function<void()>& prima);
    bool riconsegna(const CasoSeguito& caso, const std::function<void()>& prima);
    bool chiude(const CasoSeguito& caso, const std::function<void()>& prima);
    bool richiama(const CasoSeguito& caso);
    bool premiSulCaso(const CasoSeguito& caso, const std::function<void()>& prima, const QString& bottone);
    void premi(const QString& bottone);
    QString stato() const;

    template<class Forma>
    Schermata& schermata(std::unique_ptr<Schermata>& quale);

    QTemporaryDir mCartella;
    QStringList mStampe;
    QStringList mMessaggi;
    std::unique_ptr<Schermata> mRegistrazione;
    std::unique_ptr<Schermata> mGestione;
    std::unique_ptr<Schermata> mRiconsegna;
    Schermata* mUsata = nullptr;
};

} // namespace giacenza::prove
