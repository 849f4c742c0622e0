#include "store/RowConflict.h"

#include "platform/text/Text.h"
#include "store/engine/Engine.h"
#include "store/engine/RecordSet.h"
#include "store/engine/Statement.h"
#include "store/rows/RowReader.h"
#include "store/StoreErrors.h"

#include <algorithm>
#include <fmt/format.h>
#include <string_view>
#include <tuple>

namespace ptk {

namespace {

constexpr const char* kHidden = "Password"; // its text is for nobody's eyes

std::string FieldText(const std::string& value)
{
    return value;
}
std::string FieldText(std::int32_t value)
{
    return std::to_string(value);
}
std::string FieldText(float value)
{
    return SingleText(value);
}
std::string FieldText(bool value)
{
    return BooleanText(value);
}

// The text of a date-time: a time of day lies on the zero date, an unset moment is empty.
std::string FieldText(DateTime value)
{
    if (value.IsZero()) {
        return "";
    }
    return value.DayNumber() == 0 ? FormatDateTime(value, "hh:mm AM/PM") : FormatDateTime(value, "mm/dd/yyyy hh:mm:ss AM/PM");
}

// Collects what differs between two rows.
template <typename Row>
class Comparison
{
public:
    Comparison(const Row& read, const Row& present) : m_read(read), m_present(present) {}

    template <typename Field>
    Comparison& Of(const char* column, Field Row::*field)
    {
        if (m_read.*field != m_present.*field) {
            const bool hidden = std::string_view(column) == kHidden;
            m_found.push_back({column, hidden ? "" : FieldText(m_read.*field), hidden ? "changed" : FieldText(m_present.*field)});
        }
        return *this;
    }

    std::vector<FieldDifference> Found() { return std::move(m_found); }

private:
    const Row& m_read;
    const Row& m_present;
    std::vector<FieldDifference> m_found;
};

// What differs in the fields behind the key; the row was found by its key.
template <typename Row, typename... T>
std::vector<FieldDifference> Differences(const Row& read, const Row& present, const TableColumns& table,
                                         const std::tuple<RowField<Row, T>...>& fields)
{
    Comparison compared(read, present);
    std::size_t column = 1;
    std::apply([&](auto /*key*/, auto... each) { (compared.Of(table.columns.at(column++)->name, each.field), ...); }, fields);
    return compared.Found();
}

// The row as it is read back: numbers below zero, which mean nothing, come back as 0.
EmployeeRow AsLoaded(EmployeeRow row)
{
    row.PayRate = std::max(row.PayRate, 0.0F);
    row.OvertimePayRate = std::max(row.OvertimePayRate, 0.0F);
    row.CompanyID = std::max(row.CompanyID, 0);
    row.AutoDeductLunchLength = std::max<std::int16_t>(row.AutoDeductLunchLength, 0);
    row.AutoDeductBreakLength = std::max<std::int16_t>(row.AutoDeductBreakLength, 0);
    return row;
}

void Require(const char* table, std::int32_t key, std::vector<FieldDifference> differences)
{
    if (!differences.empty()) {
        throw RowChanged({table, key, std::move(differences)});
    }
}

std::shared_ptr<RecordSet> Required(std::shared_ptr<RecordSet> row, const TableColumns& table, std::int32_t key)
{
    if (row->EndOfFile()) {
        throw RowChanged({table.table, key, {}});
    }
    return row;
}

// The stored row, read by the database's own listing query, as the loaders read it. Raises RowChanged where it was removed.
std::shared_ptr<RecordSet> ListedRow(Engine& engine, const char* listing, const TableColumns& table, std::int32_t key)
{
    const Parameter parameter{"key", key};
    const auto search =
        engine.PrepareStored(listing, fmt::format("{} = :key{}", table.columns.front()->name, engine.Words().lockRows), {&parameter, 1});
    engine.WillChangeNext();
    return Required(search->ReadRows(), table, key);
}

} // namespace

std::string RowConflict::Text() const
{
    const std::string name = key == 0 ? table : fmt::format("{} {}", table, key);
    if (Removed()) {
        return name + " was removed since it was read";
    }
    std::string text = name + " was changed since it was read:";
    for (const FieldDifference& field : differences) {
        text += &field == differences.data() ? " " : ", ";
        text += field.column == kHidden ? "Password is another one now"
                                        : fmt::format("{} was {} and is {} now", field.column, field.read.empty() ? "empty" : field.read,
                                                      field.present.empty() ? "empty" : field.present);
    }
    return text;
}

RowChanged::RowChanged(RowConflict conflict) : Failure(jetdb::RowChanged, "PTK", conflict.Text()), m_conflict(std::move(conflict)) {}

void RequireAsRead(Engine& engine, const EmployeeRow& asRead)
{
    const EmployeeRow read = AsLoaded(asRead);
    const auto row = ListedRow(engine, "GetAllEmployees", EmployeeTable(), read.EmployeeID);
    Require("Employee", read.EmployeeID,
            Differences(read, RowReader(*row, EmployeeTable()).ReadEmployee(), EmployeeTable(), kEmployeeFields));
}

void RequireAsRead(Engine& engine, const CompanyRow& read)
{
    const auto row = ListedRow(engine, "GetAllCompanies", CompanyTable(), read.CompanyID);
    Require("Company", read.CompanyID, Differences(read, RowReader(*row, CompanyTable()).ReadCompany(), CompanyTable(), kCompanyFields));
}

void RequireAsRead(Engine& engine, const TimeRecordRow& read)
{
    const auto search = engine.Prepare(fmt::format(
        "SELECT TimeRecordID, EmployeeID, StartTime, EndTime FROM TimeRecord WHERE TimeRecordID = :key{}", engine.Words().lockRows));
    search->Bind("key", read.TimeRecordID);
    engine.WillChangeNext();
    const auto row = Required(search->ReadRows(), TimeRecordTable(), read.TimeRecordID);
    Require("TimeRecord", read.TimeRecordID,
            Differences(read, RowReader(*row, TimeRecordTable()).ReadTimeRecord(), TimeRecordTable(), kTimeRecordFields));
}

OptionsRow PresentOptions(Engine& engine)
{
    const auto row = engine.Select(fmt::format(
        "SELECT program, version, period_length, auto_shift_start_time, auto_shift_end_time FROM _System{}", engine.Words().lockRows));
    OptionsRow present;
    RowReader(*row, OptionsTable()).ReadOptions(present);
    return present;
}

void RequireAsRead(const OptionsRow& present, const OptionsRow& read)
{
    using Row = OptionsRow;
    Require("_System", 0,
            Comparison(read, present)
                .Of("period_length", &Row::PeriodLength)
                .Of("auto_shift_start_time", &Row::AutoShiftStartTime)
                .Of("auto_shift_end_time", &Row::AutoShiftEndTime)
                .Found());
}

void RequireAsRead(const CheckLimits& present, const CheckLimits& read)
{
    Require("_CheckLimits", 0,
            Comparison(read, present)
                .Of("long_shift_hours", &CheckLimits::longShiftHours)
                .Of("first_weekday", &CheckLimits::firstWeekday)
                .Of("show_notices", &CheckLimits::showNotices)
                .Found());
}

} // namespace ptk
