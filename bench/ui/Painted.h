// Tells when a window has been painted for the first time, and ends the measured process.
#pragma once

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QTimer>
#include <QWidget>
#include <string>
#include <sys/resource.h>
#include <utility>
#include <vector>

namespace bench {

using Time = std::chrono::steady_clock::time_point;

inline Time Now()
{
    return std::chrono::steady_clock::now();
}

// Calls back once, after the first paint event of a window that satisfies the test has been handled.
class Painted final : public QObject
{
public:
    Painted(std::function<bool(const QWidget&)> test, std::function<void(QWidget&)> then) : m_test(std::move(test)), m_then(std::move(then))
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* widget = event->type() == QEvent::Paint ? qobject_cast<QWidget*>(watched) : nullptr;
        if (widget != nullptr && widget->isWindow() && m_test(*widget) && !std::exchange(m_seen, true)) {
            QTimer::singleShot(0, widget, [this, widget] { m_then(*widget); });
        }
        return false;
    }

private:
    std::function<bool(const QWidget&)> m_test;
    std::function<void(QWidget&)> m_then;
    bool m_seen = false;
};

inline bool Any(const QWidget& /*window*/)
{
    return true;
}

inline std::vector<std::string> Lines(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("no text");
    }
    std::vector<std::string> lines;
    for (const QByteArray& line : file.readAll().split('\n')) {
        lines.push_back(line.endsWith('\r') ? line.chopped(1).toStdString() : line.toStdString());
    }
    return lines;
}

// Prints the microseconds since `start` and the process's largest memory in KiB, and ends the process at once.
[[noreturn]] inline void Finish(Time start)
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto microseconds = std::chrono::duration_cast<std::chrono::microseconds>(Now() - start).count();
    std::printf("%lld %ld\n", static_cast<long long>(microseconds), usage.ru_maxrss);
    std::fflush(stdout);
    std::_Exit(EXIT_SUCCESS);
}

} // namespace bench
