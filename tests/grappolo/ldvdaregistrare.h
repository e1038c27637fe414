#pragma once

#include <QList>
#include <QString>

namespace giacenza::prove {

/// How many waybills each workstation finds for itself, and how many there are that all want.
inline constexpr int ldvPerPostazione = 100;
inline constexpr int ldvContese = 60;

/// A workstation that was killed and begins anew has its number and this: what it left open stays open in its
/// journal.
inline constexpr int ricominciata = 500;

inline QString ldvPropria(int postazione, int quale)
{
    return QString::number(100000 + postazione * 1000 + quale);
}

inline QString ldvContesa(int quale)
{
    return QString::number(900000 + quale);
}

/// Which waybill a workstation registers next: each third time one that all others want at that moment too.
class LdvDaRegistrare
{
public:
    LdvDaRegistrare(int postazione, int prima) : mPostazione(postazione % ricominciata), mProssima(prima) {}

    /// trascorsi: milliseconds since the beginning.
    QString prossima(qint64 trascorsi)
    {
        constexpr qint64 periodo = 4000;
        if (mVolta++ % 3 == 0)
            return ldvContesa(static_cast<int>(trascorsi / periodo) % ldvContese);
        return ldvPropria(mPostazione, mProssima++);
    }

private:
    int mPostazione;
    int mProssima;
    int mVolta = 0;
};

} // namespace giacenza::prove
