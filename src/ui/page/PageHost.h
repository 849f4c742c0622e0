// What a tab page knows of the main window around it, beyond Workplace.
#pragma once

#include "ui/page/WindowErrors.h"
#include "ui/page/Workplace.h"

namespace ptk {

class DesktopWindow;
class EmployeeModels;
class OpenReports;

// Where the user chose something last: in a list of a page, only while the page fills its fields from that choice, or in the time records,
// until another choice. All pages share this one marker.
namespace eventsource {
inline constexpr std::int32_t None = 0;
inline constexpr std::int32_t ID = 1;
inline constexpr std::int32_t Name = 2;
inline constexpr std::int32_t SSN = 3;
inline constexpr std::int32_t TimeRecordGrid = 4;
inline constexpr std::int32_t EmployeeNumber = 5;
} // namespace eventsource

// The texts of the two date boxes of a period.
struct PeriodTexts
{
    std::string from;
    std::string to;
};

class PageHost : public Workplace
{
public:
    [[nodiscard]] virtual const DesktopWindow& AsDesktopWindow() const = 0;

    // Shows name " : " identifier in the second panel of the status bar.
    virtual bool SetStatusText(const std::string& name, const std::string& identifier) = 0;

    virtual void ErrorNumber(std::int32_t value) = 0;

    [[nodiscard]] virtual std::int32_t EventSource() const = 0;
    virtual void EventSource(std::int32_t value) = 0;

    // The period as the Timecards page shows it.
    [[nodiscard]] virtual PeriodTexts TimeCardPeriod() const = 0;

    // The employees behind every list and box of the window.
    [[nodiscard]] virtual ptk::EmployeeModels& EmployeeModels() const = 0;

    [[nodiscard]] virtual ptk::OpenReports& Reports() const = 0;
};

} // namespace ptk
