#include "master/SystemSocket.h"

#ifdef _WIN32
#include <winsock2.h>
#include <ws2tcpip.h>
#else
#include <cerrno>
#include <fcntl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>
#endif

namespace phial::master::systemsocket
{

namespace
{

#ifdef _WIN32
using Handle = SOCKET;
using Length = int;
using Size = int;
constexpr int SendFlags = 0;

bool isBusy()
{
    return WSAGetLastError() == WSAEWOULDBLOCK;
}
#else
using Handle = int;
using Length = socklen_t;
using Size = std::size_t;
constexpr int SendFlags = MSG_NOSIGNAL;

bool isBusy()
{
    return errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR;
}
#endif

Handle handleOf(qintptr descriptor)
{
    return static_cast<Handle>(descriptor);
}

void setOption(qintptr descriptor, int level, int option, int value)
{
    setsockopt(handleOf(descriptor), level, option, reinterpret_cast<const char*>(&value), sizeof value);
}

template <typename Ask>
QHostAddress addressBy(Ask ask, qintptr descriptor)
{
    sockaddr_storage storage{};
    Length length = sizeof storage;
    auto* const address = reinterpret_cast<sockaddr*>(&storage);
    return ask(handleOf(descriptor), address, &length) == 0 ? QHostAddress(address) : QHostAddress();
}

/// What a call has given that moves bytes: a number, 0 for the end, below for an error.
template <typename Count>
Moved moved(Count count)
{
    if (count > 0) {
        return {static_cast<std::size_t>(count), false};
    }
    return {0, count == 0 || !isBusy()};
}

} // namespace

void prepare(qintptr descriptor)
{
#ifdef _WIN32
    u_long on = 1;
    ioctlsocket(handleOf(descriptor), FIONBIO, &on);
#else
    fcntl(handleOf(descriptor), F_SETFL, fcntl(handleOf(descriptor), F_GETFL) | O_NONBLOCK);
    fcntl(handleOf(descriptor), F_SETFD, FD_CLOEXEC);
#endif
    setOption(descriptor, IPPROTO_TCP, TCP_NODELAY, 1);
    setOption(descriptor, SOL_SOCKET, SO_KEEPALIVE, 1);
#ifdef TCP_KEEPIDLE
    setOption(descriptor, IPPROTO_TCP, TCP_KEEPIDLE, 60);
    setOption(descriptor, IPPROTO_TCP, TCP_KEEPINTVL, 15);
    setOption(descriptor, IPPROTO_TCP, TCP_KEEPCNT, 4);
#endif
}

QHostAddress peerAddress(qintptr descriptor)
{
    return addressBy(getpeername, descriptor);
}

QHostAddress ownAddress(qintptr descriptor)
{
    return addressBy(getsockname, descriptor);
}

Moved receive(qintptr descriptor, std::span<char> piece)
{
    return moved(::recv(handleOf(descriptor), piece.data(), static_cast<Size>(piece.size()), 0));
}

Moved send(qintptr descriptor, std::string_view bytes)
{
    return moved(::send(handleOf(descriptor), bytes.data(), static_cast<Size>(bytes.size()), SendFlags));
}

void close(qintptr descriptor)
{
#ifdef _WIN32
    closesocket(handleOf(descriptor));
#else
    ::close(handleOf(descriptor));
#endif
}

} // namespace phial::master::systemsocket
