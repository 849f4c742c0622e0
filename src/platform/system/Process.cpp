#include "platform/system/Process.h"

#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <unistd.h>

namespace ptk {

void SettleProcess()
{
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    for (int number = STDIN_FILENO; number <= STDERR_FILENO; ++number) {
        if (::fcntl(number, F_GETFD) == -1) {
            static_cast<void>(::open("/dev/null", O_RDONLY)); // an output stream still fails on its first write, as a closed one does
        }
    }
}

std::size_t MemoryInUse()
{
    std::size_t all = 0;
    std::size_t present = 0;
    std::ifstream("/proc/self/statm") >> all >> present;
    return present * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
}

} // namespace ptk
