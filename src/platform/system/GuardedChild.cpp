#include "platform/system/GuardedChild.h"

#include <fcntl.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <thread>
#include <utility>

namespace ptk {

namespace {

using std::chrono::steady_clock;

constexpr std::chrono::milliseconds kBetweenLooks(50);
constexpr std::size_t kPortion = 1 << 16; // bytes
constexpr int kNotStarted = 127;

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kLimitsAddressSpace = false;
#else
constexpr bool kLimitsAddressSpace = true;
#endif

struct Pipe
{
    SystemFile from;
    SystemFile to;
};

Pipe MakePipe()
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0) {
        throw Failure::FromErrno(errno);
    }
    return {SystemFile(ends[0]), SystemFile(ends[1])};
}

// All functions from here to Become run in the child between fork and exec, where nothing may be allocated.

void Limit(decltype(RLIMIT_AS) resource, rlim_t value)
{
    const rlimit limit{value, value};
    ::setrlimit(resource, &limit);
}

void SetLimits(const ChildLimits& limits)
{
    if (kLimitsAddressSpace) {
        Limit(RLIMIT_AS, limits.addressSpace);
    }
    Limit(RLIMIT_CPU, static_cast<rlim_t>(limits.cpu.count()));
    Limit(RLIMIT_CORE, 0);
    Limit(RLIMIT_FSIZE, 0);
}

// Takes the network away for good, which an ordinary user may do: no sockets can be made, and io_uring is no way around.
void RefuseNetwork()
{
    sock_filter filter[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)), BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, __NR_socket, 2, 0),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, __NR_socketpair, 1, 0),     BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, __NR_io_uring_setup, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EPERM),           BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)};
    const sock_fprog program{std::size(filter), filter};
    ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program);
}

// Makes the three descriptors the standard streams, by way of higher numbers: theirs may be low if the parent's own streams are closed.
void SetStreams(int input, int output, int errors)
{
    constexpr int kClear = 10;
    const int kept[] = {::fcntl(input, F_DUPFD, kClear), ::fcntl(output, F_DUPFD, kClear), ::fcntl(errors, F_DUPFD, kClear)};
    for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
        ::dup2(kept[stream], stream);
    }
    ::syscall(__NR_close_range, STDERR_FILENO + 1, ~0U, 0);
}

void SetSignals()
{
    sigset_t none;
    sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
    for (const int number : {SIGPIPE, SIGXFSZ, SIGXCPU}) {
        ::signal(number, SIG_DFL);
    }
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
}

[[noreturn]] void Become(const ChildOrder& order, char* const* arguments, int output, int errors)
{
    static char locale[] = "LC_ALL=C";
    char* const environment[] = {locale, nullptr};
    SetStreams(order.input.Descriptor(), output, errors);
    SetSignals();
    SetLimits(order.limits);
    RefuseNetwork();
    ::execve(order.program.c_str(), arguments, environment);
    ::_exit(kNotStarted);
}

std::vector<char*> Words(const ChildOrder& order)
{
    std::vector<char*> words{const_cast<char*>(order.program.c_str())};
    for (const std::string& argument : order.arguments) {
        words.push_back(const_cast<char*>(argument.c_str()));
    }
    words.push_back(nullptr);
    return words;
}

} // namespace

GuardedChild::GuardedChild(const ChildOrder& order) : m_limits(order.limits), m_goesOn(order.goesOn), m_buffer(kPortion, '\0')
{
    if (::access(order.program.c_str(), X_OK) != 0) {
        throw Failure(failure::FileNotFound, "PTK", "the program " + order.program + " is missing");
    }
    const std::vector<char*> words = Words(order);
    Pipe output = MakePipe();
    Pipe errors = MakePipe();
    m_process = ::fork();
    if (m_process == 0) {
        Become(order, words.data(), output.to.Descriptor(), errors.to.Descriptor());
    }
    if (m_process < 0) {
        throw Failure::FromErrno(errno);
    }
    m_output = std::move(output.from);
    m_errorOutput = std::move(errors.from);
    ::fcntl(m_errorOutput.Descriptor(), F_SETFL, O_NONBLOCK);
}

GuardedChild::~GuardedChild()
{
    End();
}

void GuardedChild::End() noexcept
{
    if (m_process > 0) {
        ::kill(m_process, SIGKILL);
        ::waitpid(m_process, nullptr, 0);
        m_process = -1;
    }
}

void GuardedChild::RefuseToWaitLonger() const
{
    if (steady_clock::now() >= m_limits.deadline) {
        throw Overdue();
    }
    if (m_goesOn && !m_goesOn()) {
        throw GivenUp();
    }
}

std::string_view GuardedChild::Read()
{
    for (bool errorsOpen = true;;) {
        RefuseToWaitLonger();
        pollfd ends[] = {{m_output.Descriptor(), POLLIN, 0}, {errorsOpen ? m_errorOutput.Descriptor() : -1, POLLIN, 0}};
        ::poll(ends, std::size(ends), static_cast<int>(kBetweenLooks.count()));
        errorsOpen = errorsOpen && (ends[1].revents & (POLLHUP | POLLIN)) != POLLHUP;
        CountErrors();
        if (ends[0].revents == 0) {
            continue;
        }
        const std::size_t size = m_output.Read(m_buffer.data(), m_buffer.size());
        m_taken += size;
        if (m_taken > m_limits.mostOutput) {
            throw TooMuch();
        }
        return {m_buffer.data(), size};
    }
}

// Takes all that has come on the standard error so far, and counts its lines.
void GuardedChild::CountErrors()
{
    char portion[4096];
    for (ssize_t size = 0; (size = ::read(m_errorOutput.Descriptor(), portion, sizeof portion)) > 0;) {
        m_errorLines += std::count(portion, portion + size, '\n');
        RefuseToWaitLonger();
    }
}

ChildEnd GuardedChild::Wait()
{
    int ending = 0;
    while (::waitpid(m_process, &ending, WNOHANG) == 0) {
        RefuseToWaitLonger();
        CountErrors();
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    m_process = -1;
    CountErrors();
    const int status = WIFEXITED(ending) ? WEXITSTATUS(ending) : -1;
    return {status == 0, status};
}

Failure GuardedChild::Overdue()
{
    return {0, "PTK", "the file took too long to read"};
}

Failure GuardedChild::TooMuch()
{
    return {0, "PTK", "the file gives more rows than any can hold"};
}

Failure GuardedChild::GivenUp()
{
    return {0, "PTK", "the reading was given up"};
}

} // namespace ptk
