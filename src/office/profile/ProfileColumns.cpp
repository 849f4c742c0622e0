#include "office/profile/ProfileColumns.h"

#include "platform/text/Characters.h"
#include "platform/text/DecimalSum.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <cmath>

namespace ptk {

namespace {

using enum StandsIn;

constexpr std::size_t kLongestAmount = 16; // characters; a longer text was left by another tool and is no amount

template <std::string EmployeeRow::*member>
PayCell EmployeeText(const PayRowScope& row)
{
    return row.person.employee->Row().*member;
}

template <DateTime EmployeeRow::*member>
PayCell EmployeeDay(const PayRowScope& row)
{
    const DateTime day = row.person.employee->Row().*member;
    return day.IsZero() ? PayCell() : PayCell(day);
}

template <float EmployeeRow::*member>
PayCell EmployeeRate(const PayRowScope& row)
{
    return PlainFigure{TwoDecimals(row.person.employee->Row().*member)};
}

template <PaidHours PaidPerson::*member>
PayCell CardHours(const PayRowScope& row)
{
    return row.person.*member;
}

template <std::string PaidPerson::*member>
PayCell CardMoney(const PayRowScope& row)
{
    return PlainFigure{row.person.*member};
}

template <typename Number>
PayCell Count(Number number)
{
    return PlainFigure{std::to_string(number)};
}

PayCell YesOrNo(bool yes)
{
    return std::string(yes ? "true" : "false");
}

// Whether this is an amount, "-1234.50" or "+0.25". What another tool left in its place is shown as a text.
bool IsAmount(std::string_view text)
{
    const std::string_view digits = text.substr(text.starts_with('-') || text.starts_with('+') ? 1 : 0);
    const std::size_t point = digits.find('.');
    const auto isPart = [&](std::size_t from, std::size_t to) {
        return from < to &&
               std::all_of(digits.begin() + static_cast<std::ptrdiff_t>(from), digits.begin() + static_cast<std::ptrdiff_t>(to), IsDigit);
    };
    return digits.size() < kLongestAmount && point != std::string_view::npos && digits.size() == point + 3 && isPart(0, point) &&
           isPart(point + 1, digits.size());
}

PayCell MoneyAmount(const std::string& text)
{
    return IsAmount(text) ? PayCell(PlainFigure{text}) : PayCell(text);
}

PayCell HoursAmount(const std::string& text)
{
    return IsAmount(text) ? PayCell(PaidHours{text, std::llround(ToDouble(text) * 60)}) : PayCell(text);
}

template <std::string Closing::*member, PayCell (*cell)(const std::string&)>
PayCell Paid(const PayRowScope& row)
{
    const auto& paid = row.person.overview->paid;
    return paid ? cell((*paid).*member) : PayCell();
}

template <std::optional<std::string> PaidDifference::*member, PayCell (*cell)(const std::string&)>
PayCell Changed(const PayRowScope& row)
{
    const auto& changed = row.person.overview->check.changed;
    return changed && (*changed).*member ? cell(*((*changed).*member)) : PayCell();
}

PayCell PaidText(const std::string& text)
{
    return text;
}

PayCell PaidOn(const PayRowScope& row)
{
    const auto& paid = row.person.overview->paid;
    return paid && paid->paidAt ? PayCell(*paid->paidAt) : PayCell();
}

PayCell LongestWeek(const PayRowScope& row)
{
    return PaidHours{row.person.overview->LongestWeek(), row.person.overview->check.LongestWeek()};
}

PayCell Kind(const PayRowScope& row)
{
    return row.kind ? PayCell(std::string(*row.kind == HoursKind::Regular ? "Regular" : "Overtime")) : PayCell();
}

PaidHours AllHours(const PaidPerson& person)
{
    DecimalSum sum;
    sum.Add(person.regular.text);
    sum.Add(person.overtime.text);
    return {sum.Text(), person.regular.minutes + person.overtime.minutes};
}

// The hours of the row's kind, or of both together.
PayCell Hours(const PayRowScope& row)
{
    if (!row.kind) {
        return AllHours(row.person);
    }
    return *row.kind == HoursKind::Regular ? row.person.regular : row.person.overtime;
}

PayCell Pay(const PayRowScope& row)
{
    if (!row.kind) {
        return PlainFigure{row.person.gross};
    }
    return PlainFigure{*row.kind == HoursKind::Regular ? row.person.regularPay : row.person.overtimePay};
}

PayCell PayRate(const PayRowScope& row)
{
    if (!row.kind) {
        return {};
    }
    return *row.kind == HoursKind::Regular ? EmployeeRate<&EmployeeRow::PayRate>(row) : EmployeeRate<&EmployeeRow::OvertimePayRate>(row);
}

PayCell Code(const PayRowScope& row)
{
    return row.code;
}

constexpr ProfileColumn kColumns[] = {
    {"Employee Number", EachRow, false, [](const PayRowScope& row) { return Count(row.person.employee->EmployeeNumber()); }},
    {"Employee ID", EachRow, false, [](const PayRowScope& row) { return Count(row.person.employee->EmployeeID()); }},
    {"Name", EachRow, false, [](const PayRowScope& row) -> PayCell { return row.person.employee->DisplayName(); }},
    {"First Name", EachRow, false, EmployeeText<&EmployeeRow::FirstName>},
    {"Last Name", EachRow, false, EmployeeText<&EmployeeRow::LastName>},
    {"From", EachRow, false, [](const PayRowScope& row) -> PayCell { return row.person.period.from; }},
    {"To", EachRow, false, [](const PayRowScope& row) -> PayCell { return row.person.period.to; }},
    {"Kind", EachRow, false, Kind},
    {"Code", EachRow, false, Code},
    {"Hours", EachRow, false, Hours},
    {"Pay Rate", EachRow, false, PayRate},
    {"Pay", EachRow, false, Pay},
    {"Regular Hours", RegularRow, false, CardHours<&PaidPerson::regular>},
    {"Regular Pay Rate", RegularRow, false, EmployeeRate<&EmployeeRow::PayRate>},
    {"Regular Pay", RegularRow, false, CardMoney<&PaidPerson::regularPay>},
    {"Overtime Hours", OvertimeRow, false, CardHours<&PaidPerson::overtime>},
    {"Overtime Pay Rate", OvertimeRow, false, EmployeeRate<&EmployeeRow::OvertimePayRate>},
    {"Overtime Pay", OvertimeRow, false, CardMoney<&PaidPerson::overtimePay>},
    {"Break Hours", FirstRow, false, CardHours<&PaidPerson::pause>},
    {"Gross Pay", FirstRow, false, CardMoney<&PaidPerson::gross>},
    {"Longest Week", FirstRow, true, LongestWeek},
    {"Problems", FirstRow, true, [](const PayRowScope& row) { return Count(row.person.overview->check.problems); }},
    {"Notices", FirstRow, true, [](const PayRowScope& row) { return Count(row.person.overview->check.notices); }},
    {"Clocked In", EachRow, true, [](const PayRowScope& row) { return YesOrNo(row.person.overview->check.clockedIn); }},
    {"Paid On", EachRow, true, PaidOn},
    {"Paid By", EachRow, true, Paid<&Closing::paidBy, PaidText>},
    {"Paid Regular Hours", RegularRow, true, Paid<&Closing::regular, HoursAmount>},
    {"Paid Overtime Hours", OvertimeRow, true, Paid<&Closing::overtime, HoursAmount>},
    {"Paid Gross", FirstRow, true, Paid<&Closing::gross, MoneyAmount>},
    {"Changed Regular Hours", RegularRow, true, Changed<&PaidDifference::regular, HoursAmount>},
    {"Changed Overtime Hours", OvertimeRow, true, Changed<&PaidDifference::overtime, HoursAmount>},
    {"Changed Gross", FirstRow, true, Changed<&PaidDifference::gross, MoneyAmount>},
    {"Social Security Number", EachRow, false, EmployeeText<&EmployeeRow::SSN>},
    {"Address 1", EachRow, false, EmployeeText<&EmployeeRow::Address1>},
    {"Address 2", EachRow, false, EmployeeText<&EmployeeRow::Address2>},
    {"City", EachRow, false, EmployeeText<&EmployeeRow::City>},
    {"State", EachRow, false, EmployeeText<&EmployeeRow::State>},
    {"ZIP Code", EachRow, false, EmployeeText<&EmployeeRow::ZipCode>},
    {"Phone", EachRow, false, EmployeeText<&EmployeeRow::Phone>},
    {"Date Of Birth", EachRow, false, EmployeeDay<&EmployeeRow::DateOfBirth>},
    {"Hire Date", EachRow, false, EmployeeDay<&EmployeeRow::HireDate>},
    {"Release Date", EachRow, false, EmployeeDay<&EmployeeRow::ReleaseDate>},
    {"Active", EachRow, false, [](const PayRowScope& row) { return YesOrNo(row.person.employee->EmployeeActive()); }},
};

bool StandsHere(StandsIn rows, std::optional<HoursKind> kind)
{
    if (!kind || rows == EachRow) {
        return true;
    }
    return (rows == OvertimeRow) == (*kind == HoursKind::Overtime);
}

} // namespace

std::span<const ProfileColumn> ProfileColumns()
{
    return kColumns;
}

const ProfileColumn* FindProfileColumn(std::string_view name)
{
    const auto* found =
        std::find_if(std::begin(kColumns), std::end(kColumns), [&](const ProfileColumn& column) { return column.name == name; });
    return found == std::end(kColumns) ? nullptr : found;
}

PayCell CellOf(const ProfileColumn& column, const PayRowScope& row)
{
    return StandsHere(column.rows, row.kind) ? column.cell(row) : PayCell();
}

} // namespace ptk
