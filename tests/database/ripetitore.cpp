#include "ripetitore.h"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <system_error>
#include <utility>

namespace giacenza::prove {

namespace {

sockaddr_in locale(quint16 porta)
{
    sockaddr_in indirizzo{};
    indirizzo.sin_family = AF_INET;
    indirizzo.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    indirizzo.sin_port = htons(porta);
    return indirizzo;
}

[[noreturn]] void fallisci()
{
    throw std::system_error(errno, std::generic_category(), "Ripetitore");
}

/// What came on one end goes out on the other; false once an end is closed.
bool passa(int da, int a)
{
    std::array<char, 16384> byte;
    const ssize_t letti = recv(da, byte.data(), byte.size(), 0);
    for (ssize_t scritti = 0; scritti < letti;) {
        const ssize_t ora =
            send(a, byte.data() + scritti, static_cast<std::size_t>(letti - scritti), MSG_NOSIGNAL);
        if (ora <= 0)
            return false;
        scritti += ora;
    }
    return letti > 0;
}

} // namespace

Ripetitore::Ripetitore(quint16 porta) : mPresa(socket(AF_INET, SOCK_STREAM, 0))
{
    sockaddr_in indirizzo = locale(0);
    socklen_t lunghezza = sizeof indirizzo;
    auto* generico = reinterpret_cast<sockaddr*>(&indirizzo);
    if (mPresa < 0 || bind(mPresa, generico, lunghezza) != 0 || listen(mPresa, 1) != 0 ||
        getsockname(mPresa, generico, &lunghezza) != 0 || pipe(mFine) != 0)
        fallisci();
    mPorta = ntohs(indirizzo.sin_port);
    mFilo = std::thread([this, porta] { ripeti(porta); });
}

Ripetitore::~Ripetitore()
{
    close(mFine[1]);
    mFilo.join();
    close(mFine[0]);
    close(mPresa);
}

void Ripetitore::ripeti(quint16 portaServer)
{
    std::array<pollfd, 2> attesa{{{mPresa, POLLIN, 0}, {mFine[0], POLLIN, 0}}};
    if (poll(attesa.data(), attesa.size(), -1) < 0 || attesa[1].revents != 0)
        return;
    const int cliente = accept(mPresa, nullptr, nullptr);
    const int server = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in indirizzo = locale(portaServer);
    bool aperti = connect(server, reinterpret_cast<sockaddr*>(&indirizzo), sizeof indirizzo) == 0;
    for (const int presa : {cliente, server}) {
        const int subito = 1;
        setsockopt(presa, IPPROTO_TCP, TCP_NODELAY, &subito, sizeof subito);
    }
    bool chiesto = false;
    while (aperti) {
        std::array<pollfd, 3> prese{{{cliente, POLLIN, 0}, {server, POLLIN, 0}, {mFine[0], POLLIN, 0}}};
        if (poll(prese.data(), prese.size(), -1) < 0 || prese[2].revents != 0)
            break;
        // What the client sends while the server answers belongs to the next question.
        if (prese[1].revents != 0) {
            mGiri += std::exchange(chiesto, false) ? 1 : 0;
            aperti = passa(server, cliente);
        }
        if (aperti && prese[0].revents != 0) {
            chiesto = true;
            aperti = passa(cliente, server);
        }
    }
    close(cliente);
    close(server);
}

} // namespace giacenza::prove
