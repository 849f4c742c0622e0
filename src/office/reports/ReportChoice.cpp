#include "office/reports/ReportChoice.h"

#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "platform/text/DayText.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <fmt/format.h>
#include <unordered_map>

namespace ptk {

namespace {

constexpr std::size_t kManyWindows = 50;
constexpr auto kDoubled = "{} {} in the period before, too: {}.";
constexpr auto kLeftOut = "{} {} in no period: the one before is {}.";

std::string DaysText(const PayPeriod& days)
{
    return days.from == days.to ? DayText(days.from) : DayText(days.from) + " - " + DayText(days.to);
}

std::string DaysNotice(const char* sentence, const PayPeriod& days, const PayPeriod& before)
{
    return fmt::format(fmt::runtime(sentence), DaysText(days), days.from == days.to ? "is" : "are", DaysText(before));
}

} // namespace

std::optional<PayPeriod> OfferedDays(ReportDates dates, DateTime today, std::int16_t periodLength)
{
    switch (dates) {
    case ReportDates::PayPeriod:
        return DefaultPayPeriod(today, periodLength);
    case ReportDates::YearToDate:
        return YearToDate(today);
    case ReportDates::None:
        break;
    }
    return std::nullopt;
}

std::string OfferedDaysNotice(DateTime today, std::int16_t periodLength)
{
    const PayPeriod offered = DefaultPayPeriod(today, periodLength);
    const PayPeriod before = DefaultPayPeriod(offered.from.AddDays(-1), periodLength);
    if (before.to >= offered.from) {
        return DaysNotice(kDoubled, {offered.from, std::min(before.to, offered.to)}, before);
    }
    const PayPeriod between{before.to.AddDays(1), offered.from.AddDays(-1)};
    return between.from <= between.to ? DaysNotice(kLeftOut, between, before) : std::string();
}

PayPeriod ChosenDays(ReportDates dates, DateTime today, std::int16_t periodLength, std::optional<DateTime> from, std::optional<DateTime> to)
{
    PayPeriod days = OfferedDays(dates, today, periodLength).value();
    if (from) {
        days = {*from, dates == ReportDates::YearToDate ? days.to : PayPeriodFrom(*from, periodLength).to};
    }
    return {days.from, to.value_or(days.to)};
}

namespace {

std::unordered_map<std::string, std::shared_ptr<CEmployee>> ByDisplayName(CEmployeeList& employees)
{
    std::unordered_map<std::string, std::shared_ptr<CEmployee>> byName;
    byName.reserve(static_cast<std::size_t>(employees.Count()));
    for (std::int32_t i = 1; i <= employees.Count(); ++i) {
        if (const auto employee = employees.Item(i)) {
            byName.try_emplace(employee->DisplayName(), employee); // of people with the same name, the first is found
        }
    }
    return byName;
}

bool IsAdministrator(const CEmployee& employee)
{
    return LowerCase(employee.FirstName() + employee.LastName()).find("administrator") != std::string::npos;
}

} // namespace

std::vector<std::string> OfferedNames(CEmployeeList& employees)
{
    std::vector<std::string> names;
    for (std::int32_t i = 1; i <= employees.Count(); ++i) {
        const auto employee = employees.Item(i);
        if (employee != nullptr && employee->OfferedOnTimeCards()) {
            names.push_back(employee->DisplayName());
        }
    }
    return names;
}

std::shared_ptr<CEmployeeList> EmployeesFor(ReportWhom whom, CEmployeeList& employees, const std::vector<std::string>& names)
{
    const auto byName = ByDisplayName(employees);
    auto taken = std::make_shared<CEmployeeList>();
    for (const std::string& name : names) {
        const auto found = byName.find(name);
        const auto employee = found == byName.end() ? nullptr : found->second;
        if (whom != ReportWhom::Everyone || (employee != nullptr && !IsAdministrator(*employee))) {
            taken->Insert(employee, taken->Count() + 1);
        }
    }
    return taken;
}

std::optional<std::string> ManyWindowsQuestion(ReportWhom whom, std::size_t employees)
{
    if (whom != ReportWhom::Each || employees < kManyWindows) {
        return std::nullopt;
    }
    return fmt::format("This opens {} windows, one for each report. Go on?", employees);
}

} // namespace ptk
