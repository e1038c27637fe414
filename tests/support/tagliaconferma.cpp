#include "tagliaconferma.h"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>
#include <system_error>

namespace giacenza::prove {

namespace {

constexpr int attesaMs = 50; // how soon an end is noticed

sockaddr_in locale(quint16 porta)
{
    sockaddr_in indirizzo{};
    indirizzo.sin_family = AF_INET;
    indirizzo.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    indirizzo.sin_port = htons(porta);
    return indirizzo;
}

bool tutto(int presa, const char* byte, ssize_t quanti)
{
    for (ssize_t scritti = 0; scritti < quanti;) {
        const ssize_t ora =
            send(presa, byte + scritti, static_cast<std::size_t>(quanti - scritti), MSG_NOSIGNAL);
        if (ora <= 0)
            return false;
        scritti += ora;
    }
    return true;
}

/// Nothing but ends of prepared statements and of the connection: nobody waits for them, and they come alone
/// or in front of the next packet, as it happens.
bool senzaRisposta(std::string_view pacchetti)
{
    constexpr std::size_t testata = 4; // three bytes of length, and the number in the exchange
    constexpr char fineConnessione = 0x01;
    constexpr char fineIstruzione = 0x19;
    while (pacchetti.size() > testata && pacchetti[3] == 0 &&
           (pacchetti[testata] == fineConnessione || pacchetti[testata] == fineIstruzione)) {
        const auto lunghezza = static_cast<unsigned char>(pacchetti[0]);
        pacchetti.remove_prefix(std::min(pacchetti.size(), testata + lunghezza));
    }
    return pacchetti.empty();
}

} // namespace

TagliaConferma::TagliaConferma(quint16 porta, Quando quando, bool poiChiude)
    : mServer(porta), mQuando(quando), mPoiChiude(poiChiude), mPresa(socket(AF_INET, SOCK_STREAM, 0))
{
    sockaddr_in indirizzo = locale(0);
    socklen_t lunghezza = sizeof indirizzo;
    auto* generico = reinterpret_cast<sockaddr*>(&indirizzo);
    if (mPresa < 0 || bind(mPresa, generico, lunghezza) != 0 || listen(mPresa, 5) != 0 ||
        getsockname(mPresa, generico, &lunghezza) != 0)
        throw std::system_error(errno, std::generic_category(), "TagliaConferma");
    mPorta = ntohs(indirizzo.sin_port);
    mFili.emplace_back([this] { ascolta(); });
}

TagliaConferma::TagliaConferma(quint16 porta) : TagliaConferma(porta, Quando::primaDelServer, false)
{
    mConferme = false; // nobody knows the port yet
}

void TagliaConferma::arma(int pacchetti, Quando quando)
{
    mTagliata = false;
    mQuando = quando;
    mDaTagliare = mPassati + pacchetti;
}

bool TagliaConferma::taglia(std::string_view pacchetto)
{
    if (senzaRisposta(pacchetto))
        return false;
    const int numero = mPassati++;
    const bool questo =
        mConferme ? pacchetto.find("COMMIT") != std::string_view::npos : numero == mDaTagliare;
    return questo && !mTagliata.exchange(true);
}

TagliaConferma::~TagliaConferma()
{
    mFine = true;
    mFili.front().join();
    // The listener adds no thread any more.
    for (std::size_t i = 1; i < mFili.size(); ++i)
        mFili[i].join();
    close(mPresa);
}

void TagliaConferma::ascolta()
{
    while (!mFine) {
        pollfd attesa{mPresa, POLLIN, 0};
        if (poll(&attesa, 1, attesaMs) <= 0)
            continue;
        const int cliente = accept(mPresa, nullptr, nullptr);
        if (mTagliata && mPoiChiude) {
            close(cliente);
            continue;
        }
        const std::lock_guard chiuso(mBlocco);
        mFili.emplace_back([this, cliente] { servi(cliente); });
    }
}

bool TagliaConferma::passa(int cliente, int server, bool delCliente)
{
    std::array<char, 16384> byte;
    const int da = delCliente ? cliente : server;
    const int a = delCliente ? server : cliente;
    const ssize_t letti = recv(da, byte.data(), byte.size(), 0);
    if (letti <= 0)
        return false;
    const std::string_view testo(byte.data(), static_cast<std::size_t>(letti));
    if (!delCliente || !taglia(testo))
        return tutto(a, byte.data(), letti);
    if (mQuando == Quando::primaDellaRisposta && tutto(server, byte.data(), letti)) {
        // Some packets, as one that closes a statement, get none.
        pollfd attesa{server, POLLIN, 0};
        if (poll(&attesa, 1, 10 * attesaMs) > 0)
            recv(server, byte.data(), byte.size(), 0);
    }
    return false;
}

void TagliaConferma::servi(int cliente)
{
    const int server = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in indirizzo = locale(mServer);
    bool aperti = connect(server, reinterpret_cast<sockaddr*>(&indirizzo), sizeof indirizzo) == 0;
    for (const int presa : {cliente, server}) {
        const int subito = 1;
        setsockopt(presa, IPPROTO_TCP, TCP_NODELAY, &subito, sizeof subito);
    }
    while (aperti && !mFine) {
        std::array<pollfd, 2> prese{{{cliente, POLLIN, 0}, {server, POLLIN, 0}}};
        if (poll(prese.data(), prese.size(), attesaMs) < 0)
            break;
        if (prese[1].revents != 0)
            aperti = passa(cliente, server, false);
        if (aperti && prese[0].revents != 0)
            aperti = passa(cliente, server, true);
    }
    close(cliente);
    close(server);
}

} // namespace giacenza::prove
