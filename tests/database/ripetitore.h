#pragma once

#include <QtGlobal>

#include <atomic>
#include <thread>

namespace giacenza::prove {

/// A port of the loopback address that hands what one client sends on to a server, and the answers back, and
/// counts how often the client had to wait: the round trips.
class Ripetitore
{
public:
    /// porta: of the server, on the loopback address.
    explicit Ripetitore(quint16 porta);
    Ripetitore(const Ripetitore&) = delete;
    Ripetitore& operator=(const Ripetitore&) = delete;
    ~Ripetitore();

    quint16 porta() const noexcept { return mPorta; }
    /// So far: an answer counts when it follows something that the client sent.
    int giri() const noexcept { return mGiri; }

private:
    void ripeti(quint16 portaServer);

    int mPresa;
    int mFine[2] = {-1, -1}; // closed to end the thread
    quint16 mPorta = 0;
    std::atomic<int> mGiri = 0;
    std::thread mFilo;
};

} // namespace giacenza::prove
