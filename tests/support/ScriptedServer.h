// A server that lets every client in and then answers what a test wants, whatever it is asked.
#pragma once

#include "support/TemporaryFolder.h"

#include <fmt/format.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <thread>

namespace ptk {

class ScriptedServer
{
public:
    static constexpr auto kHangsUp = "hang up";

    // `first` answers the question, then `endless` follows again and again as long as the client reads. Where `endless` is empty, the line
    // stays open until the client speaks again or leaves; where it is kHangsUp, the line ends.
    ScriptedServer(std::string first, std::string endless)
        : m_first(std::move(first)), m_endless(std::move(endless)), m_listener(Listen()), m_thread([this] { Serve(); })
    {
    }
    ~ScriptedServer()
    {
        ::shutdown(m_listener, SHUT_RDWR);
        m_thread.join();
        ::close(m_listener);
    }
    ScriptedServer(const ScriptedServer&) = delete;
    ScriptedServer& operator=(const ScriptedServer&) = delete;

    [[nodiscard]] std::string Address() const { return fmt::format("postgresql:///books?host={}&user=ann", m_folder.Path()); }

    // A message of the server: its kind, its length, its content.
    [[nodiscard]] static std::string Message(char kind, const std::string& body)
    {
        return kind + Number(static_cast<std::uint32_t>(body.size()) + 4) + body;
    }
    [[nodiscard]] static std::string Number(std::uint32_t number)
    {
        std::string bytes;
        for (const unsigned shift : {24U, 16U, 8U, 0U}) {
            bytes += static_cast<char>(number >> shift & 0xFFU);
        }
        return bytes;
    }

private:
    int Listen() const
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        (m_folder.Path() + "/.s.PGSQL.5432").copy(address.sun_path, sizeof(address.sun_path) - 1);
        const int listener = ::socket(AF_UNIX, SOCK_STREAM, 0);
        if (::bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0 || ::listen(listener, 8) != 0) {
            throw std::runtime_error("no server");
        }
        return listener;
    }

    static bool Say(int client, const std::string& words)
    {
        return ::send(client, words.data(), words.size(), MSG_NOSIGNAL) == static_cast<ssize_t>(words.size());
    }

    void Serve() const
    {
        const auto status = [](const char* name, const char* value) {
            return Message('S', fmt::format("{}{}{}{}", name, '\0', value, '\0'));
        };
        const std::string welcome = Message('R', Number(0)) + status("server_version", "15.0") + status("client_encoding", "UTF8") +
                                    Message('K', Number(1) + Number(2)) + Message('Z', "I");
        for (int client = ::accept(m_listener, nullptr, nullptr); client >= 0; client = ::accept(m_listener, nullptr, nullptr)) {
            std::array<char, 65536> asked{};
            const bool goesOn = ::read(client, asked.data(), asked.size()) > 0 && Say(client, welcome) &&
                                ::read(client, asked.data(), asked.size()) > 0 && Say(client, m_first);
            const bool hangsUp = m_endless == kHangsUp;
            while (goesOn && !hangsUp && !m_endless.empty() && Say(client, m_endless)) {
            }
            static_cast<void>(goesOn && !hangsUp && ::read(client, asked.data(), asked.size())); // until it speaks or leaves
            ::close(client);
        }
    }

    TemporaryFolder m_folder;
    std::string m_first;
    std::string m_endless;
    int m_listener;
    std::thread m_thread;
};

} // namespace ptk
