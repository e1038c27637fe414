#include "serversordo.h"

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace giacenza::prove {

ServerSordo::ServerSordo() : mPresa(socket(AF_INET, SOCK_STREAM, 0))
{
    sockaddr_in indirizzo{};
    indirizzo.sin_family = AF_INET;
    indirizzo.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t lunghezza = sizeof indirizzo;
    auto* generico = reinterpret_cast<sockaddr*>(&indirizzo);
    if (mPresa < 0 || bind(mPresa, generico, lunghezza) != 0 || listen(mPresa, 5) != 0 ||
        getsockname(mPresa, generico, &lunghezza) != 0)
        throw std::system_error(errno, std::generic_category(), "ServerSordo");
    mPorta = ntohs(indirizzo.sin_port);
}

ServerSordo::~ServerSordo()
{
    close(mPresa);
}

} // namespace giacenza::prove
