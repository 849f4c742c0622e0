#include "reports/ReportCards.h"

#include "model/CDateRange.h"
#include "model/CEmployee.h"
#include "model/CTimeCard.h"
#include "platform/Succeeds.h"
#include "platform/text/Text.h"
#include "reports/Report.h"

#include <fmt/format.h>

namespace ptk {

namespace {

// "0101_0116_2003": the start's month and day, the end's, the start's year.
std::string CodeOf(const CDateRange& days)
{
    const std::string range = days.ToString(); // 01/01/2003+01/16/2003
    const auto cut = [&](std::size_t first, std::size_t length) { return range.substr(first - 1, length); };
    // The end's year is left out, deliberately: a period across the new year is filed under the year in which it began.
    return cut(1, 2) + cut(4, 2) + "_" + cut(12, 2) + cut(15, 2) + "_" + cut(7, 4);
}

std::string ReasonFor(const CTimeCard& card)
{
    if (card.LastFailure().Number() != 0) {
        return card.LastFailure().Description();
    }
    return card.ErrorNumber() == report::NoRecords ? "there are no time records in this period" : "the time card could not be generated";
}

} // namespace

std::string TitleOfEmployee(const CEmployee& employee)
{
    return employee.FirstName() + " " + employee.LastName() + " : ";
}

std::string TitleOfDays(DateTime first, DateTime last)
{
    return ShortDateText(first) + " - " + ShortDateText(last);
}

std::string FileNameOf(const ReportEntry& entry, const CDateRange& days, const CEmployee* employee)
{
    return fmt::format(fmt::runtime(entry.fileName), fmt::arg("number", employee == nullptr ? 0 : employee->EmployeeNumber()),
                       fmt::arg("days", CodeOf(days)));
}

std::shared_ptr<CTimeCard> NewTimeCard(const ReportContext& context, const std::shared_ptr<CJetDB>& database)
{
    auto card = std::make_shared<CTimeCard>(context.factory);
    card->PTKDatabase(database);
    return card;
}

bool GenerateTimeCard(CTimeCard& card, const std::shared_ptr<CEmployee>& employee, const CDateRange& days)
{
    // A day is added so that the shifts of the end day itself count, deliberately also where the end was meant to be exclusive. AddDays
    // raises a failure after the last day of the calendar.
    return Succeeds([&] { return card.GenerateTimecard(employee, days.StartDate(), days.EndDate().AddDays(1)); });
}

void NoteMissing(ReportDocument& document, const CTimeCard& card, const std::string& whose)
{
    document.AddGap(ReasonFor(card), whose);
}

void AddCard(ReportDocument& document, CTimeCard& card)
{
    document.heading = CTimeCard::kReportHeading;
    document.Add(card.ToStringReport());
    const std::size_t shifts = card.Lines().size();
    const std::size_t summary = CountLines(card.ToString()); // the empty line above it included
    document.SplitBefore(shifts == 0 ? 0 : shifts - 1, summary);
}

std::span<const ReportColumn> PayColumns()
{
    static constexpr ReportColumn kColumns[] = {
        {"Employee Number", CellType::WholeNumber},
        {"First Name", CellType::Text},
        {"Last Name", CellType::Text},
        {"From", CellType::Date},
        {"To", CellType::Date},
        {"Regular Hours", CellType::Hours},
        {"Regular Pay Rate", CellType::Money},
        {"Overtime Hours", CellType::Hours},
        {"Overtime Pay Rate", CellType::Money},
        {"Break Hours", CellType::Hours},
        {"Gross Pay", CellType::Money},
    };
    return kColumns;
}

ReportRow PayRow(const CTimeCard& card, const CDateRange& days)
{
    const CEmployee& employee = *card.Employee();
    return {employee.EmployeeNumber(),
            employee.FirstName(),
            employee.LastName(),
            days.StartDate(),
            days.EndDate(),
            card.RegularHoursWorked(),
            card.RegularPay(),
            card.OvertimeHoursWorked(),
            card.OvertimePay(),
            card.TotalBreakTime(),
            card.TotalPay()};
}

} // namespace ptk
