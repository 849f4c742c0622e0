// A proxy between clients and the socket of the tests' server, which can cut, stall and slow down the lines through it.
#pragma once

#include "support/ServerDatabase.h"
#include "support/TemporaryFolder.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <chrono>
#include <cstring>
#include <mutex>
#include <shared_mutex>
#include <thread>
#include <vector>

namespace ptk {

class CuttingProxy
{
public:
    CuttingProxy() : m_listener(Listen(m_folder.Path() + kSocket)), m_thread([this] { Serve(); }) {}
    ~CuttingProxy()
    {
        m_stopped = true;
        m_thread.join();
        ::close(m_listener);
    }
    CuttingProxy(const CuttingProxy&) = delete;
    CuttingProxy& operator=(const CuttingProxy&) = delete;

    [[nodiscard]] const std::string& Folder() const { return m_folder.Path(); }

    // Cuts the line that is open now once the server has answered so many bytes more; later lines hold.
    void CutAfter(int bytes) { m_left = bytes; }
    [[nodiscard]] bool WasCut() const { return m_left == kCut; }

    // From now on nothing passes over any line, and no line ends, until Flow is called.
    void Stall()
    {
        const std::unique_lock nothingPasses(m_passing); // neither does what was about to
        m_stalled = true;
    }
    void Flow() { m_stalled = false; }

    // From now on all that passes takes so long each way.
    void Delay(std::chrono::milliseconds way) { m_way = way; }

private:
    static constexpr const char* kSocket = "/.s.PGSQL.5432";

    static sockaddr_un AddressOf(const std::string& path)
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        path.copy(address.sun_path, sizeof(address.sun_path) - 1);
        return address;
    }

    static int Listen(const std::string& path)
    {
        const int listener = ::socket(AF_UNIX, SOCK_STREAM, 0);
        const sockaddr_un address = AddressOf(path);
        if (::bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0 || ::listen(listener, 8) != 0) {
            throw std::runtime_error("no proxy");
        }
        return listener;
    }

    static bool IsReadable(int socket, int milliseconds = 5)
    {
        pollfd one{socket, POLLIN, 0};
        return ::poll(&one, 1, milliseconds) > 0;
    }

    void Serve()
    {
        std::vector<std::thread> lines;
        while (!m_stopped) {
            if (IsReadable(m_listener)) {
                lines.emplace_back([this, client = ::accept(m_listener, nullptr, nullptr)] { Connect(client); });
            }
        }
        for (std::thread& line : lines) {
            line.join();
        }
    }

    void Connect(int client)
    {
        const int server = ::socket(AF_UNIX, SOCK_STREAM, 0);
        const sockaddr_un address = AddressOf(TestServer() + kSocket);
        if (::connect(server, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0) {
            Relay(client, server);
        }
        ::close(client);
        ::close(server);
    }

    void Relay(int client, int server)
    {
        std::vector<char> buffer(1 << 16);
        while (!m_stopped) {
            if (m_stalled) {
                std::this_thread::sleep_for(std::chrono::milliseconds(5));
                continue;
            }
            std::array<pollfd, 2> both{{{client, POLLIN, 0}, {server, POLLIN, 0}}};
            ::poll(both.data(), both.size(), 5);
            const std::shared_lock passing(m_passing);
            if (m_stalled) {
                continue;
            }
            if (both[0].revents != 0) {
                std::this_thread::sleep_for(m_way.load());
                const auto size = ::read(client, buffer.data(), buffer.size());
                if (size <= 0 || ::send(server, buffer.data(), static_cast<std::size_t>(size), MSG_NOSIGNAL) != size) {
                    return;
                }
            }
            if (both[1].revents != 0 && !PassBack(client, server, buffer)) {
                return;
            }
        }
    }

    bool PassBack(int client, int server, std::vector<char>& buffer)
    {
        std::this_thread::sleep_for(m_way.load());
        auto size = ::read(server, buffer.data(), buffer.size());
        if (size <= 0) {
            return false;
        }
        const int left = m_left;
        const bool cut = left >= 0 && size > left;
        size = cut ? left : size;
        if (left >= 0) {
            m_left = cut ? kCut : left - static_cast<int>(size);
        }
        return ::send(client, buffer.data(), static_cast<std::size_t>(size), MSG_NOSIGNAL) == size && !cut;
    }

    static constexpr int kNever = -2;
    static constexpr int kCut = -1;

    TemporaryFolder m_folder;
    std::shared_mutex m_passing;
    std::atomic<int> m_left = kNever;
    std::atomic<std::chrono::milliseconds> m_way{};
    std::atomic<bool> m_stopped = false;
    std::atomic<bool> m_stalled = false;
    int m_listener;
    std::thread m_thread;
};

} // namespace ptk
