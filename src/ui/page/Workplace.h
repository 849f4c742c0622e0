// What everything in the main window works with: the program's objects, the desktop and the clock, the log, and the news of changes.
#pragma once

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
class SharedRecords;

class Workplace
{
public:
    virtual ~Workplace() = default;

    // nullptr until the window was handed one.
    [[nodiscard]] virtual std::shared_ptr<CController> Controller() const = 0;

    // What the controller holds. These raise Failure 91 without a controller, or where it has none.
    [[nodiscard]] std::shared_ptr<CJetDB> Database() const;
    [[nodiscard]] std::shared_ptr<CEmployeeList> Employees() const;
    [[nodiscard]] std::shared_ptr<CCompanyList> Companies() const;
    [[nodiscard]] std::shared_ptr<CSystemOptions> Options() const;
    [[nodiscard]] std::int16_t PeriodLength() const; // of the options, in days

    [[nodiscard]] virtual ptk::Desktop& Desktop() const = 0;
    [[nodiscard]] virtual const ptk::Clock& Clock() const = 0;

    // Writes a failure with its number into the session log; nothing without a controller.
    virtual void Log(std::int32_t number, const std::string& text) = 0;

    // Writes a failure of which only the words are known.
    void Log(const std::string& text) { Log(0, text); }

    // Has to be told of every save, right after it, and of every reading, right before it.
    [[nodiscard]] virtual ptk::SharedRecords& SharedRecords() const = 0;
};

} // namespace ptk
