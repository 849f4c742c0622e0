#include "platform/system/Process.h"

#include <csignal>
#include <fcntl.h>
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

} // namespace ptk
