#include "console/TerminalPassword.h"

#include "store/postgres/line/ServerAddress.h"

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

namespace ptk {

namespace {

constexpr const char* kTerminal = "/dev/tty";

constexpr char kInterrupt = 3; // Ctrl+C

// While it lives, the terminal does not show what is typed, and no key ends the program before the terminal is as it was.
class NoEcho
{
public:
    explicit NoEcho(int terminal) : m_terminal(terminal)
    {
        m_known = ::tcgetattr(m_terminal, &m_before) == 0;
        if (m_known) {
            termios quiet = m_before;
            quiet.c_lflag &= ~static_cast<tcflag_t>(ECHO | ISIG);
            ::tcsetattr(m_terminal, TCSAFLUSH, &quiet);
        }
    }
    ~NoEcho()
    {
        if (m_known) {
            ::tcsetattr(m_terminal, TCSAFLUSH, &m_before);
        }
    }
    NoEcho(const NoEcho&) = delete;
    NoEcho& operator=(const NoEcho&) = delete;

private:
    int m_terminal;
    termios m_before{};
    bool m_known = false;
};

std::optional<std::string> ReadLine(int terminal)
{
    const NoEcho quiet(terminal);
    std::string line;
    char c = 0;
    while (::read(terminal, &c, 1) == 1) {
        if (c == '\n') {
            return line;
        }
        if (c == kInterrupt) {
            return std::nullopt;
        }
        line += c;
    }
    return std::nullopt;
}

} // namespace

std::optional<std::string> AskAtTerminal(const std::string& address)
{
    const int terminal = ::open(kTerminal, O_RDWR | O_CLOEXEC | O_NOCTTY);
    if (terminal < 0) {
        return std::nullopt;
    }
    const std::string question = "Password for " + SaidServer(address) + ": ";
    std::optional<std::string> answer;
    if (::write(terminal, question.data(), question.size()) == static_cast<ssize_t>(question.size())) {
        answer = ReadLine(terminal);
        static_cast<void>(!::write(terminal, "\n", 1));
    }
    ::close(terminal);
    return answer;
}

} // namespace ptk
