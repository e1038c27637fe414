#pragma once

#include <QtGlobal>

#include <atomic>
#include <mutex>
#include <string_view>
#include <thread>
#include <vector>

namespace giacenza::prove {

/// A port of the loopback address that hands what clients send on to a server, and the answers back, and cuts
/// the first confirmation of a transaction that passes, or what it is told to.
class TagliaConferma
{
public:
    enum class Quando
    {
        primaDelServer,     ///< the server never hears of it, and rolls back
        primaDellaRisposta, ///< the server has confirmed, and nobody hears of it
    };

    /// porta: of the server, on the loopback address. poiChiude: nobody connects any more after the cut.
    TagliaConferma(quint16 porta, Quando quando, bool poiChiude);
    TagliaConferma(const TagliaConferma&) = delete;
    TagliaConferma& operator=(const TagliaConferma&) = delete;
    ~TagliaConferma();

    /// One that cuts nothing before arma().
    explicit TagliaConferma(quint16 porta);

    /// The next client's packet but so many is cut, whatever it says.
    void arma(int pacchetti, Quando quando);
    /// Packets of clients so far.
    int passati() const noexcept { return mPassati; }

    quint16 porta() const noexcept { return mPorta; }
    bool tagliata() const noexcept { return mTagliata; }

private:
    void ascolta();
    void servi(int cliente);
    bool passa(int cliente, int server, bool delCliente);
    bool taglia(std::string_view pacchetto);

    const quint16 mServer;
    std::atomic<Quando> mQuando;
    const bool mPoiChiude;
    int mPresa;
    quint16 mPorta = 0;
    bool mConferme = true;
    std::atomic<int> mPassati = 0;
    std::atomic<int> mDaTagliare = -1;
    std::atomic<bool> mTagliata = false;
    std::atomic<bool> mFine = false;
    std::mutex mBlocco;
    std::vector<std::thread> mFili;
};

} // namespace giacenza::prove
