#pragma once

#include "data/istruzioniricerca.h"
#include "screens/schermata.h"

#include <QDate>

#include <optional>

class QLineEdit;

namespace giacenza {

class CampoData;

/// A pair of fields by which a screen looks a waybill up: its number and date, or the sender's reference and
/// its date.
class ChiaveRicerca
{
public:
    /// modo: letteraVettura or riferimento. elenca: what F9 does in either field.
    ChiaveRicerca(Schermata& schermata, ModoRicerca modo, QLineEdit* campo, CampoData* data,
                  const std::function<void()>& elenca);
    ChiaveRicerca(const ChiaveRicerca&) = delete;
    ChiaveRicerca& operator=(const ChiaveRicerca&) = delete;

    ModoRicerca modo() const { return mModo; }
    bool perNumero() const { return mModo == ModoRicerca::letteraVettura; }
    QLineEdit* campo() const { return mCampo; }
    CampoData* campoData() const { return mData; }

    /// What is sought: of the number the one typed, else the one found.
    QString valore() const;
    /// The date as it stands, and as a day.
    QString data() const;
    std::optional<QDate> giorno() const;

    /// Whether it was typed in since the last lookup, of whichever key.
    bool modificata() const { return mModificata; }
    void cercata() { mModificata = false; }

private:
    ModoRicerca mModo;
    QLineEdit* mCampo;
    CampoData* mData;
    bool mModificata = false;
};

} // namespace giacenza
