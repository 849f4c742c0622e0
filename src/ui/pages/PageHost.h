// What a tab page knows of the main window around it.
#pragma once

#include "platform/ErrorNumbers.h"

#include <cstdint>
#include <memory>
#include <string>

namespace ptk {

class CController;
class Clock;
class Desktop;
class DesktopWindow;
class EmployeeModels;
class OpenReports;

// Which list the user is working with while its click is handled; several pages share the one marker.
namespace eventsource {
inline constexpr std::int32_t None = 0;
inline constexpr std::int32_t ID = 1;
inline constexpr std::int32_t Name = 2;
inline constexpr std::int32_t SSN = 3;
inline constexpr std::int32_t TimeRecordGrid = 4;
inline constexpr std::int32_t EmployeeNumber = 5;
} // namespace eventsource

// What two date boxes show.
struct PeriodTexts
{
    std::string from;
    std::string to;
};

class PageHost
{
public:
    virtual ~PageHost() = default;

    virtual std::shared_ptr<CController> Controller() const = 0; // nullptr until the window was handed one
    virtual ptk::Desktop& Desktop() const = 0;
    virtual const ptk::Clock& Clock() const = 0;
    virtual const DesktopWindow& AsDesktopWindow() const = 0;

    virtual bool SetStatusText(const std::string& name, const std::string& identifier) = 0; // second panel: name " : " identifier
    virtual void ErrorNumber(std::int32_t value) = 0;
    virtual void Log(const std::string& line) = 0; // into the session log; nothing without a controller

    virtual std::int32_t EventSource() const = 0;
    virtual void EventSource(std::int32_t value) = 0;

    virtual PeriodTexts TimeCardPeriod() const = 0; // as the Timecards page shows it

    virtual ptk::EmployeeModels& EmployeeModels() const = 0; // the employees behind every list and box of the window
    virtual ptk::OpenReports& Reports() const = 0;
};

} // namespace ptk
