// Removes unfinished files when a signal ends the process before their owners could remove them.
#pragma once

#include <string>

namespace ptk {

// While it lives, a signal that ends the process also removes the file `path` and what an engine keeps beside it. `path` must outlive it,
// unchanged. This holds for sixteen files at a time; any others are left for the next program that makes a file there.
class RemovedOnSignal
{
public:
    explicit RemovedOnSignal(const std::string& path);
    ~RemovedOnSignal();
    RemovedOnSignal(const RemovedOnSignal&) = delete;
    RemovedOnSignal& operator=(const RemovedOnSignal&) = delete;

private:
    std::size_t m_place;
};

// Removes the files of all RemovedOnSignal objects that live. A signal handler may call it.
void RemoveRemovedOnSignals() noexcept;

// Lets SIGTERM, SIGHUP and SIGINT remove these files before they end the process; a signal that the process ignores or handles stays so.
void RemoveRemovedOnSignalsOnSignals();

} // namespace ptk
