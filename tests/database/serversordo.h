#pragma once

#include <QtGlobal>

namespace giacenza::prove {

/// A port of the loopback address that takes connections and never says a word.
class ServerSordo
{
public:
    ServerSordo();
    ServerSordo(const ServerSordo&) = delete;
    ServerSordo& operator=(const ServerSordo&) = delete;
    ~ServerSordo();

    quint16 porta() const noexcept { return mPorta; }

private:
    int mPresa;
    quint16 mPorta = 0;
};

} // namespace giacenza::prove
