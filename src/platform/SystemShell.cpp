#include "platform/SystemShell.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace ptk {

namespace {

constexpr std::int32_t kTakenOver = ShellSuccess + 1;
constexpr std::chrono::seconds kPrintPatience{5};
constexpr std::chrono::seconds kOpenPatience{1};
constexpr std::chrono::milliseconds kPollInterval{10};

// Reports are 72 columns of fixed-pitch text, and their tabs reach further: 12 characters an inch keep such a line whole on any paper.
const std::vector<std::string> kPrintCommand{"lp", "-o", "cpi=12", "-o", "lpi=6", "-o", "wrap=true", "--"};
const std::vector<std::string> kOpenCommand{"xdg-open"};

std::vector<char*> Pointers(std::vector<std::string>& arguments)
{
    std::vector<char*> pointers;
    pointers.reserve(arguments.size() + 1);
    for (std::string& argument : arguments) {
        pointers.push_back(argument.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

// The signals that this program ignores are not the child's to ignore.
void DefaultSignals(posix_spawnattr_t& attributes)
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGPIPE);
    sigaddset(&signals, SIGXFSZ);
    posix_spawnattr_setsigdefault(&attributes, &signals);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);
}

// The child's process number, or none when the program cannot be run. Its output would only disturb the caller's terminal.
std::optional<pid_t> Spawn(std::vector<std::string> arguments)
{
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    DefaultSignals(attributes);
    pid_t child = -1;
    const int error = posix_spawnp(&child, arguments.front().c_str(), &actions, &attributes, Pointers(arguments).data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    return error == 0 ? std::optional(child) : std::nullopt;
}

// Whether the child ended without complaint; nothing when it still runs at the end of its time.
std::optional<bool> EndsWell(pid_t child, std::chrono::milliseconds patience)
{
    const auto deadline = std::chrono::steady_clock::now() + patience;
    int status = 0;
    while (std::chrono::steady_clock::now() < deadline) {
        const pid_t done = ::waitpid(child, &status, WNOHANG);
        if (done == child) {
            return WIFEXITED(status) && WEXITSTATUS(status) == 0;
        }
        if (done < 0 && errno != EINTR) {
            return false;
        }
        std::this_thread::sleep_for(kPollInterval);
    }
    return std::nullopt;
}

// A spooler that hangs has not taken the document over.
bool IsPrinted(pid_t child)
{
    const auto ended = EndsWell(child, kPrintPatience);
    if (!ended) {
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
    }
    return ended.value_or(false);
}

// An opener that finds no program for the document complains at once; one that is the program itself stays, and leaves no zombie behind.
bool IsOpened(pid_t child)
{
    const auto ended = EndsWell(child, kOpenPatience);
    if (!ended) {
        std::thread([child] { ::waitpid(child, nullptr, 0); }).detach();
    }
    return ended.value_or(true);
}

} // namespace

std::int32_t RunSystemShell(ShellVerb verb, const std::string& path)
{
    std::error_code ignored;
    if (!std::filesystem::exists(path, ignored)) {
        return ShellFileNotFound;
    }
    std::vector<std::string> arguments = verb == ShellVerb::Print ? kPrintCommand : kOpenCommand;
    arguments.push_back(std::filesystem::absolute(path, ignored).string());
    const auto child = Spawn(std::move(arguments));
    if (!child) {
        return ShellNoProgram;
    }
    const bool taken = verb == ShellVerb::Print ? IsPrinted(*child) : IsOpened(*child);
    return taken ? kTakenOver : ShellNoProgram;
}

} // namespace ptk
