// Measures the longest time in which the windows' thread neither came round in its event loop nor took a turn of a wait.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <fstream>
#include <QAbstractEventDispatcher>
#include <QTimer>

namespace ptk {

class Deafness
{
public:
    Deafness()
    {
        QObject::connect(&m_heart, &QTimer::timeout, &m_heart, [this] { Note(); });
        QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, &m_heart, [this] { Note(); });
        m_heart.start(5); // milliseconds: an idle loop comes round this often and is not taken for a deaf one
    }

    // Starts a new measurement.
    void Begin()
    {
        m_last = Now();
        m_longest = {};
    }

    // The longest such time since Begin. The time up to this call counts, too.
    std::chrono::milliseconds Longest()
    {
        Note();
        return std::chrono::duration_cast<std::chrono::milliseconds>(m_longest);
    }

private:
    // A clock that stands still while this thread waits for a processor.
    static std::chrono::nanoseconds Now()
    {
        std::int64_t ran = 0; // nanoseconds
        std::int64_t waited = 0;
        std::ifstream("/proc/thread-self/schedstat") >> ran >> waited;
        return std::chrono::steady_clock::now().time_since_epoch() - std::chrono::nanoseconds(waited);
    }

    void Note()
    {
        const auto now = Now();
        m_longest = std::max(m_longest, now - m_last);
        m_last = now;
    }

    QTimer m_heart;
    std::chrono::nanoseconds m_last = Now();
    std::chrono::nanoseconds m_longest{};
};

} // namespace ptk
