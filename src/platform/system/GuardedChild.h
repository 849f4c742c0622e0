// Runs another program of this product on files that nobody vouches for: it may crash, loop or run out of memory without harm to anybody.
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
    std::chrono::steady_clock::time_point deadline;    // when the child is ended; to be set, the default is long past
    std::uint64_t mostOutput = std::uint64_t{4} << 30; // bytes
};

struct ChildOrder
{
    std::string program; // in the platform's own form
    std::vector<std::string> arguments;
    const SystemFile& input; // open for reading; the child's standard input. It inherits no other file
    ChildLimits limits;
    // Asked between any two portions, and at least twenty times a second during a wait; false ends the child. May be empty.
    std::function<bool()> goesOn;
};

// How a child ended. What it wrote counts only when the end is `clean`.
struct ChildEnd
{
    bool clean = false; // it ended by itself, with status 0
    int status = -1;    // what it ended with; -1 where a signal ended it
};

// A child that ends with this object at the latest. It has no network, only LC_ALL=C in its environment, no core dump, and makes no file
// grow.
class GuardedChild
{
public:
    // Raises 53 when there is no such program to run, 7 (no memory), 67 (too many open files), 57 (no process to spare).
    explicit GuardedChild(const ChildOrder& order);
    ~GuardedChild();
    GuardedChild(const GuardedChild&) = delete;
    GuardedChild& operator=(const GuardedChild&) = delete;

    // Waits for what the child writes next and answers it; empty at the end of its output. Valid until the next call. Raises Overdue,
    // TooMuch and GivenUp.
    [[nodiscard]] std::string_view Read();

    // Waits for the child's end. REQUIRES: Read came to the end of the output. Raises Overdue and GivenUp.
    [[nodiscard]] ChildEnd Wait();

    // The number of lines that the child has written to its standard error so far.
    [[nodiscard]] std::int64_t ErrorLines() const { return m_errorLines; }

    // Failures, with number 0 and one sentence: the child worked past its deadline, wrote more than `mostOutput`, or was given up by
    // `goesOn`.
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
