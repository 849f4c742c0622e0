#include "platform/system/SystemShell.h"

#include "platform/files/SystemFile.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <spawn.h>
#include <string_view>
#include <sys/mman.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

namespace ptk {

namespace {

constexpr std::int32_t kTakenOver = ShellSuccess + 1;
constexpr std::chrono::seconds kPrintPatience{5};
constexpr std::chrono::seconds kOpenPatience{1};
constexpr std::chrono::milliseconds kPollInterval{10};

constexpr auto kPrintProgram = "lp";
constexpr auto kOpenProgram = "xdg-open";

constexpr auto kNoFile = "the file is not there";
constexpr auto kNoPrintProgram = "there is no program for printing (lp)";
constexpr auto kNoOpenProgram = "there is no program for opening documents (xdg-open)";
constexpr auto kNothingOpensIt = "no program is set up for this kind of document";
constexpr auto kNoAnswer = "the print scheduler does not answer";
constexpr auto kNotTaken = "the print scheduler refused it";

// Words in the print program's complaints, and what they mean to the user.
constexpr auto kNoPrinter = "no printer is set up";
constexpr auto kNoScheduler = "the print scheduler is not running";
constexpr std::pair<std::string_view, const char*> kMeanings[] = {
    {"not responding", kNoScheduler},
    {"Unable to connect", kNoScheduler},
    {"o default destination", kNoPrinter},
    {"does not exist", "the printer does not exist"},
};
const std::vector<std::string> kAskScheduler{"lpstat", "-r"};
constexpr std::string_view kSchedulerIsNot = "not running";
constexpr std::size_t kLongestSaying = 500; // bytes

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

// Gives the child the default action of the signals that this program ignores.
void DefaultSignals(posix_spawnattr_t& attributes)
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGPIPE);
    sigaddset(&signals, SIGXFSZ);
    posix_spawnattr_setsigdefault(&attributes, &signals);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);
}

// Starts a program; answers its process number, or none when it cannot be run. What it writes goes to `sayings`, not to the terminal.
std::optional<pid_t> Spawn(std::vector<std::string> arguments, const SystemFile& sayings)
{
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    if (sayings.Descriptor() >= 0) {
        posix_spawn_file_actions_adddup2(&actions, sayings.Descriptor(), STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(&actions, sayings.Descriptor(), STDERR_FILENO);
    }
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    DefaultSignals(attributes);
    pid_t child = -1;
    const int error = posix_spawnp(&child, arguments.front().c_str(), &actions, &attributes, Pointers(arguments).data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    return error == 0 ? std::optional(child) : std::nullopt;
}

// Whether the child ended with status 0; nothing when it still runs at the end of its time or when `goesOn` gave it up.
std::optional<bool> EndsWell(pid_t child, std::chrono::milliseconds patience, const GoesOn& goesOn)
{
    const auto deadline = std::chrono::steady_clock::now() + patience;
    int status = 0;
    while (std::chrono::steady_clock::now() < deadline && (!goesOn || goesOn())) {
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

struct Outcome
{
    bool started = false;
    std::optional<bool> endedWell{}; // nothing when it had to be stopped
    std::string lastLine{};          // of what it wrote
};

std::string LastLine(const SystemFile& sayings)
{
    std::string text(kLongestSaying, '\0');
    const ssize_t size = ::pread(sayings.Descriptor(), text.data(), text.size(), 0);
    text.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
    text.erase(text.find_last_not_of(" \r\n") + 1);
    return text.substr(text.rfind('\n') + 1); // the whole text where it has one line
}

Outcome RunToItsEnd(std::vector<std::string> arguments, const GoesOn& goesOn)
{
    const SystemFile sayings(::memfd_create(kPrintProgram, MFD_CLOEXEC));
    const auto child = Spawn(std::move(arguments), sayings);
    if (!child) {
        return {};
    }
    Outcome outcome{true, EndsWell(*child, kPrintPatience, goesOn)};
    if (!outcome.endedWell) {
        ::kill(*child, SIGKILL);
        ::waitpid(*child, nullptr, 0);
    }
    outcome.lastLine = LastLine(sayings);
    return outcome;
}

// What a complaint of the print program means. It misses a printer also when the scheduler is not running, so the scheduler is asked then.
std::string MeaningOf(const std::string& complaint, const GoesOn& goesOn)
{
    for (const auto& [words, meaning] : kMeanings) {
        if (complaint.find(words) == std::string::npos) {
            continue;
        }
        const bool asks = meaning == kNoPrinter;
        return asks && RunToItsEnd(kAskScheduler, goesOn).lastLine.find(kSchedulerIsNot) != std::string::npos ? kNoScheduler : meaning;
    }
    return complaint.empty() ? kNotTaken : complaint;
}

// Prints the document; answers why it was refused, empty when it was taken. A spooler that hangs has not taken it.
std::string Print(const std::string& path, const std::string& title, const GoesOn& goesOn)
{
    std::vector<std::string> arguments{kPrintProgram};
    if (!title.empty()) {
        arguments.insert(arguments.end(), {"-t", title});
    }
    arguments.insert(arguments.end(), {"--", path});
    const Outcome outcome = RunToItsEnd(std::move(arguments), goesOn);
    if (!outcome.started) {
        return kNoPrintProgram;
    }
    if (!outcome.endedWell) {
        return kNoAnswer;
    }
    return *outcome.endedWell ? "" : MeaningOf(outcome.lastLine, goesOn);
}

// Opens the document; answers why not, empty when it is open. An opener that finds no program for the document complains at once. One that
// shows the document itself keeps running; a thread waits for its end, so that it leaves no zombie behind.
std::string Open(const std::string& path, const GoesOn& goesOn)
{
    const auto child = Spawn({kOpenProgram, path}, SystemFile());
    if (!child) {
        return kNoOpenProgram;
    }
    const auto endedWell = EndsWell(*child, kOpenPatience, goesOn);
    if (!endedWell) {
        std::thread([child] { ::waitpid(*child, nullptr, 0); }).detach();
    }
    return endedWell.value_or(true) ? "" : kNothingOpensIt;
}

} // namespace

std::int32_t RunSystemShell(ShellVerb verb, const std::string& path, const std::string& title, std::string& refusal, const GoesOn& goesOn)
{
    std::error_code ignored;
    if (!std::filesystem::exists(path, ignored)) {
        refusal = kNoFile;
        return ShellFileNotFound;
    }
    const std::string whole = std::filesystem::absolute(path, ignored).string();
    refusal = verb == ShellVerb::Print ? Print(whole, title, goesOn) : Open(whole, goesOn);
    return refusal.empty() ? kTakenOver : ShellNoProgram;
}

} // namespace ptk
