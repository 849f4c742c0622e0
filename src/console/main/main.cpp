#include "console/Program.h"
#include "platform/Clock.h"

#include <csignal>
#include <fcntl.h>
#include <iostream>
#include <unistd.h>

namespace {

// A standard stream that the caller closed must not become the number of the database or of a report file. Held open for reading only,
// an output stream still fails on its first write, as a closed one does.
void HoldStandardStreams()
{
    for (int number = STDIN_FILENO; number <= STDERR_FILENO; ++number) {
        if (fcntl(number, F_GETFD) == -1) {
            static_cast<void>(open("/dev/null", O_RDONLY));
        }
    }
}

} // namespace

int main(int argc, char* argv[])
{
    HoldStandardStreams();
    std::signal(SIGPIPE, SIG_IGN); // a reader that went away is a failed write, not the end of the process
    std::signal(SIGXFSZ, SIG_IGN); // as is a file that may not grow further
    std::ios::sync_with_stdio(false);
    return ptk::RunConsole({argv + (argc > 0 ? 1 : 0), argv + argc}, ptk::SystemClock(), std::cout, std::cerr);
}
