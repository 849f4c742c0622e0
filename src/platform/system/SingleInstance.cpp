#include "platform/system/SingleInstance.h"

#include <cstddef>
#include <cstring>
#include <functional>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace ptk {

namespace {

constexpr int kCallsKept = 8; // until they are taken

struct Address
{
    sockaddr_un name{};
    socklen_t length = 0;
};

// A socket's address in no folder (an abstract name), which is free again when its program is gone.
Address AddressFor(const std::string& name)
{
    const std::string text = "ptk-" + std::to_string(::getuid()) + "-" + std::to_string(std::hash<std::string>()(name));
    Address address;
    address.name.sun_family = AF_UNIX;
    std::memcpy(address.name.sun_path + 1, text.data(), text.size()); // no longer than 45 characters; a zero before it
    address.length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + text.size());
    return address;
}

// Whether the other end of the socket belongs to this user: any user may take the name.
bool IsOurs(int socket)
{
    ucred peer{};
    socklen_t length = sizeof peer;
    return ::getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &peer, &length) == 0 && peer.uid == ::getuid();
}

} // namespace

SingleInstance::SingleInstance(const std::string& name) : m_socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0))
{
    const Address address = AddressFor(name);
    const auto* place = reinterpret_cast<const sockaddr*>(&address.name);
    if (m_socket < 0) {
        return;
    }
    m_listens = ::bind(m_socket, place, address.length) == 0 && ::listen(m_socket, kCallsKept) == 0;
    m_runsAlready = !m_listens && ::connect(m_socket, place, address.length) == 0 && IsOurs(m_socket);
}

SingleInstance::~SingleInstance()
{
    if (m_socket >= 0) {
        ::close(m_socket);
    }
}

bool SingleInstance::TakeCall() const
{
    const int call = ::accept4(m_socket, nullptr, nullptr, SOCK_CLOEXEC);
    if (call < 0) {
        return false;
    }
    const bool ours = IsOurs(call);
    ::close(call);
    return ours;
}

} // namespace ptk
