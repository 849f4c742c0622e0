#include "office/history/ColumnWords.h"

#include "platform/text/DayText.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <array>

namespace ptk {

namespace {

using Shape = ColumnShape;

constexpr std::array kColumns{
    ColumnWords{"TimeRecordID", "number", Shape::Plain},
    ColumnWords{"EmployeeID", "employee", Shape::Employee},
    ColumnWords{"ShiftDate", "shift date", Shape::Day},
    ColumnWords{"StartTime", "start", Shape::Moment},
    ColumnWords{"EndTime", "end", Shape::Moment},
    ColumnWords{"SSNumber", "SS number", Shape::Plain},
    ColumnWords{"FirstName", "first name", Shape::Plain},
    ColumnWords{"LastName", "last name", Shape::Plain},
    ColumnWords{"Name", "name", Shape::Plain},
    ColumnWords{"Address", "address", Shape::Plain},
    ColumnWords{"Address1", "address", Shape::Plain},
    ColumnWords{"Address2", "second address line", Shape::Plain},
    ColumnWords{"City", "city", Shape::Plain},
    ColumnWords{"State", "state", Shape::Plain},
    ColumnWords{"ZipCode", "ZIP code", Shape::Plain},
    ColumnWords{"Phone", "phone", Shape::Plain},
    ColumnWords{"Fax", "fax", Shape::Plain},
    ColumnWords{"FederalTaxID", "federal tax ID", Shape::Plain},
    ColumnWords{"URL", "web address", Shape::Plain},
    ColumnWords{"EmployeeNumber", "employee number", Shape::Plain},
    ColumnWords{"DateOfBirth", "date of birth", Shape::Day},
    ColumnWords{"HireDate", "hire date", Shape::Day},
    ColumnWords{"ReleaseDate", "release date", Shape::Day},
    ColumnWords{"PayRate", "pay rate", Shape::Plain},
    ColumnWords{"OvertimePayRate", "overtime pay rate", Shape::Plain},
    ColumnWords{"Active", "active", Shape::Flag},
    ColumnWords{"CompanyID", "company", Shape::Plain},
    ColumnWords{"AutoDeduct", "automatic deduction", Shape::Flag},
    ColumnWords{"AutoDeductLunchLength", "lunch", Shape::Plain},
    ColumnWords{"AutoDeductBreakLength", "break", Shape::Plain},
    ColumnWords{"PaydayID", "number", Shape::Plain},
    ColumnWords{"FromDay", "first day", Shape::Day},
    ColumnWords{"ToDay", "last day", Shape::Day},
    ColumnWords{"PaidAt", "time of closing", Shape::Moment},
    ColumnWords{"PaidBy", "closed by", Shape::Plain},
    ColumnWords{"Regular", "regular hours", Shape::Plain},
    ColumnWords{"Overtime", "overtime hours", Shape::Plain},
    ColumnWords{"Gross", "gross pay", Shape::Plain},
    ColumnWords{"Entry", "newest change before", Shape::Plain},
    ColumnWords{"period_length", "period length", Shape::Plain},
    ColumnWords{"auto_shift_start_time", "start of the automatic shift", Shape::Moment},
    ColumnWords{"auto_shift_end_time", "end of the automatic shift", Shape::Moment},
    ColumnWords{"long_shift_hours", "longest usual shift", Shape::Plain},
    ColumnWords{"first_weekday", "first day of the work week", Shape::Weekday},
    ColumnWords{"show_notices", "showing notices", Shape::Flag},
};

} // namespace

ColumnWords WordsOf(std::string_view column)
{
    const auto* found = std::find_if(kColumns.begin(), kColumns.end(), [&](const ColumnWords& words) { return words.column == column; });
    return found == kColumns.end() ? ColumnWords{column, nullptr, Shape::Plain} : *found;
}

// The seconds are told only where there are any: nobody types them.
std::string MomentText(DateTime moment, ColumnShape shape)
{
    if (moment.IsZero()) {
        return "none";
    }
    if (shape == Shape::Day && moment == DateTime(moment.Date())) {
        return DayText(moment);
    }
    const std::string_view pattern = moment.Time().second == 0 ? "mm/dd/yyyy hh:mm AM/PM" : "mm/dd/yyyy hh:mm:ss AM/PM";
    return FormatDateTime(moment, moment.DayNumber() == 0 ? pattern.substr(pattern.find('h')) : pattern);
}

} // namespace ptk
