// What a tab page knows of the main window around it.
#pragma once

#include "ui/page/WindowErrors.h"

#include <cstdint>
#include <memory>
#include <string>

namespace ptk {

class CCompanyList;
class CController;
class CEmployeeList;
class CJetDB;
class CSystemOptions;
class Clock;
class Desktop;
class DesktopWindow;
class EmployeeModels;
class OpenReports;
class SharedRecords;

// In which list the user chose something last: a page's own list while it fills its fields from that, the time records until another
// choice. Several pages share the one marker.
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

    // nullptr until the window was handed one.
    [[nodiscard]] virtual std::shared_ptr<CController> Controller() const = 0;

    // What the controller holds. Raise Failure 91 without it, or where it has none.
    [[nodiscard]] std::shared_ptr<CJetDB> Database() const;
    [[nodiscard]] std::shared_ptr<CEmployeeList> Employees() const;
    [[nodiscard]] std::shared_ptr<CCompanyList> Companies() const;
    [[nodiscard]] std::shared_ptr<CSystemOptions> Options() const;
    [[nodiscard]] std::int16_t PeriodLength() const; // of the options, in days

    [[nodiscard]] virtual ptk::Desktop& Desktop() const = 0;
    [[nodiscard]] virtual const ptk::Clock& Clock() const = 0;
    [[nodiscard]] virtual const DesktopWindow& AsDesktopWindow() const = 0;

    // Second panel: name " : " identifier.
    virtual bool SetStatusText(const std::string& name, const std::string& identifier) = 0;

    virtual void ErrorNumber(std::int32_t value) = 0;

    // A failure, with its number, into the session log; nothing without a controller.
    virtual void Log(std::int32_t number, const std::string& text) = 0;

    // A failure of which only the words are known.
    void Log(const std::string& text) { Log(0, text); }

    [[nodiscard]] virtual std::int32_t EventSource() const = 0;
    virtual void EventSource(std::int32_t value) = 0;

    // As the Timecards page shows it.
    [[nodiscard]] virtual PeriodTexts TimeCardPeriod() const = 0;

    // The employees behind every list and box of the window.
    [[nodiscard]] virtual ptk::EmployeeModels& EmployeeModels() const = 0;

    [[nodiscard]] virtual ptk::OpenReports& Reports() const = 0;

    // To be told of every save and before every reading.
    [[nodiscard]] virtual ptk::SharedRecords& SharedRecords() const = 0;
};

} // namespace ptk
