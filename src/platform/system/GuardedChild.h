// A program of our own that works on files nobody vouches for: it may crash, loop or run out of memory without harm to anybody.
#pragma once

#include "platform/Failure.h"
#include "platform/files/SystemFile.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace ptk {

struct ChildLimits
{
    // Bytes; builds with an address sanitizer, which claims terabytes for itself, set no limit.
    std::size_t addressSpace = std::size_t{512} << 20;
    std::chrono::seconds cpu{20};
    std::chrono::steady_clock::time_point deadline;    // of its work; it is ended then
    std::uint64_t mostOutput = std::uint64_t{4} << 30; // bytes
};

struct ChildOrder
{
    std::string program; // in the platform's own form
    std::vector<std::string> arguments;
    const SystemFile& input; // open for reading: its standard input. It inherits nothing else
    ChildLimits limits;
    std::function<bool()>
        goesOn; // asked between any two portions, and twenty times a second while it waits; false ends it. Without it nobody is asked
};

// How it ended. Whatever it had to say counts only when it is `clean`.
struct ChildEnd
{
    bool clean = false; // it ended by itself, with status 0
    int status = -1;    // what it ended with; -1 where a signal ended it
};

// Runs from its making on, without network, with an environment of LC_ALL=C alone, without a core, unable to make a file grow; it is gone
// with its owner.
class GuardedChild
{
public:
    // Raises 53 when there is no such program to run, 7, 67.
    explicit GuardedChild(const ChildOrder& order);
    ~GuardedChild();
    GuardedChild(const GuardedChild&) = delete;
    GuardedChild& operator=(const GuardedChild&) = delete;

    // What it wrote next, waiting for it; empty at its end. Valid until the next call. Raises Overdue, TooMuch and GivenUp.
    [[nodiscard]] std::string_view Read();

    // REQUIRES: Read came to the end. Raises Overdue.
    [[nodiscard]] ChildEnd Wait();

    // Of its standard error so far.
    [[nodiscard]] std::int64_t ErrorLines() const { return m_errorLines; }

    // Without numbers, in one sentence.
    [[nodiscard]] static Failure Overdue();
    [[nodiscard]] static Failure TooMuch();
    [[nodiscard]] static Failure GivenUp();

private:
    void RefuseToWaitLonger() const;
    void CountErrors();
    void End() noexcept;

    ChildLimits m_limits;
    std::function<bool()> m_goesOn;
    SystemFile m_output;
    SystemFile m_errorOutput;
    int m_process = -1;
    std::uint64_t m_taken = 0;
    std::int64_t m_errorLines = 0;
    std::string m_buffer;
};

} // namespace ptk
