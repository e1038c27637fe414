#pragma once

#include "screens/schermata.h"

#include <utility>

namespace giacenza {

/// What a host hands over to a screen that it opens: looked up once, by the screen itself, when it is shown
/// and nothing modal is open over it.
class Consegna
{
public:
    /// esegui: the lookup.
    Consegna(Schermata& schermata, std::function<void()> esegui)
        : mSchermata(schermata), mEsegui(std::move(esegui))
    {}

    /// Everything is there. A screen that is active already gets no activation when it is shown again, so it
    /// is queued from here too.
    void arrivata()
    {
        mPendente = true;
        accoda();
    }

    /// The screen became active.
    void attivata()
    {
        if (mPendente)
            accoda();
    }

private:
    void accoda()
    {
        QMetaObject::invokeMethod(&mSchermata, mSchermata.gestore([this] { prova(); }), Qt::QueuedConnection);
    }
    void prova();

    Schermata& mSchermata;
    std::function<void()> mEsegui;
    bool mPendente = false;
};

} // namespace giacenza
