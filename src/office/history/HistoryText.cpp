#include "office/history/HistoryText.h"

#include "office/history/ColumnWords.h"
#include "platform/Succeeds.h"
#include "platform/text/Characters.h"
#include "platform/text/Text.h"
#include "store/engine/StoredDate.h"

#include <fmt/format.h>
#include <string_view>

namespace ptk {

namespace {

constexpr auto kAnotherProgram = "another program";

// Nearly all moments have the stored form, which is read ten times as fast.
std::optional<DateTime> MomentOf(const std::string& text)
{
    const auto stored = FromStoredText(text);
    return stored ? stored : ParseDateTime(text);
}

// A number is stored with 17 digits; it is shown with those that people typed.
std::string NumberText(const std::string& digits)
{
    return digits.find('.') == std::string::npos ? digits : SingleText(ToSingle(digits));
}

std::string ValueText(const TrailValue& value, ColumnShape shape, const NameOfEmployee& nameOf)
{
    using Kind = TrailValue::Kind;
    const bool isTime = shape == ColumnShape::Moment || shape == ColumnShape::Day;
    if (value.kind == Kind::Null && isTime) {
        return "none";
    }
    if (value.kind == Kind::Null || (value.kind == Kind::Text && value.text.empty())) {
        return "empty";
    }
    if (value.kind == Kind::Bytes) {
        return "bytes";
    }
    if (shape == ColumnShape::Flag && value.kind == Kind::Number) {
        return value.text == "0" ? "no" : "yes";
    }
    if (shape == ColumnShape::Employee && value.kind == Kind::Number) {
        const std::string name = nameOf(std::strtoll(value.text.c_str(), nullptr, 10));
        return name.empty() ? value.text : name;
    }
    if (value.kind == Kind::Number) {
        return Succeeds([&] { static_cast<void>(ToSingle(value.text)); }) ? NumberText(value.text) : value.text;
    }
    const auto moment = isTime ? MomentOf(value.text) : std::nullopt;
    return moment ? MomentText(*moment, shape) : '"' + value.text + '"';
}

std::string TextIn(const std::optional<TrailRow>& row, std::string_view column, const NameOfEmployee& nameOf)
{
    const TrailValue* value = row ? ValueOf(*row, column) : nullptr;
    return value == nullptr ? std::string() : ValueText(*value, WordsOf(column).shape, nameOf);
}

std::string PlainTextIn(const TrailRow& row, std::string_view column)
{
    const TrailValue* value = ValueOf(row, column);
    return value == nullptr ? std::string() : value->text;
}

std::string ChangeText(const TrailValue& before, const TrailValue& after, const NameOfEmployee& nameOf)
{
    if (before.column == "Password") {
        return "password changed";
    }
    const ColumnWords words = WordsOf(before.column);
    return fmt::format("{} {} became {}", words.words == nullptr ? before.column : words.words, ValueText(before, words.shape, nameOf),
                       ValueText(after, words.shape, nameOf));
}

std::string ChangesText(const TrailEntry& entry, const NameOfEmployee& nameOf)
{
    std::string text;
    for (const TrailValue& before : *entry.before) {
        if (const TrailValue* after = ValueOf(*entry.after, before.column)) {
            text += (text.empty() ? "" : "; ") + ChangeText(before, *after, nameOf);
        }
    }
    return text;
}

std::string EmployeeName(const TrailEntry& entry, const NameOfEmployee& nameOf)
{
    if (!entry.employee) {
        return "Employee";
    }
    const std::string name = nameOf(*entry.employee);
    return name.empty() ? fmt::format("Employee {}", *entry.employee) : name;
}

// Whether the entry is about the database as a whole, not about a row.
bool IsWhole(const TrailEntry& entry)
{
    return entry.action == "restore" || entry.action == "import";
}

bool IsOfEmployee(const TrailEntry& entry)
{
    return !IsWhole(entry) && (entry.table == "TimeRecord" || entry.table == "Employee" || entry.table == "_Payday");
}

std::string Subject(const TrailEntry& entry, const NameOfEmployee& nameOf)
{
    if (IsOfEmployee(entry)) {
        return EmployeeName(entry, nameOf);
    }
    if (entry.table == "_System") {
        return "Options";
    }
    if (entry.table == "_CheckLimits") {
        return "Options of the check";
    }
    return entry.row ? fmt::format("{} {}", entry.table, *entry.row) : entry.table;
}

// The words for a whole row: the times of a record, the name of a company; nothing for an employee, whose name is the subject already.
std::string WholeRow(const TrailEntry& entry, const std::optional<TrailRow>& row, const NameOfEmployee& nameOf)
{
    if (entry.table == "TimeRecord") {
        return TextIn(row, "StartTime", nameOf) + " - " + TextIn(row, "EndTime", nameOf) + " ";
    }
    return entry.table == "Company" ? TextIn(row, "Name", nameOf) + " " : "";
}

// The words for a closing: "payday 03/01/2003 - 03/15/2003 of 80.00 + 0.50 hours, 88.00".
std::string PaydayText(const std::optional<TrailRow>& row, const NameOfEmployee& nameOf)
{
    const auto figure = [&](const char* column) { return row ? PlainTextIn(*row, column) : std::string(); };
    return fmt::format("payday {} - {} of {} + {} hours, {}", TextIn(row, "FromDay", nameOf), TextIn(row, "ToDay", nameOf),
                       figure("Regular"), figure("Overtime"), figure("Gross"));
}

std::string Deed(const TrailEntry& entry, const NameOfEmployee& nameOf)
{
    if (entry.action == "restore") {
        return "Database restored from " + (entry.after ? PlainTextIn(*entry.after, "file") : std::string());
    }
    if (entry.action == "import") {
        return "Records of the former program imported";
    }
    if (entry.before && entry.after) {
        return ChangesText(entry, nameOf);
    }
    const auto& row = entry.after ? entry.after : entry.before;
    if (entry.table == "_Payday") {
        return PaydayText(row, nameOf) + (entry.after ? " closed" : " reopened");
    }
    return WholeRow(entry, row, nameOf) + (entry.after ? "added" : "deleted");
}

} // namespace

std::string EntrySentence(const TrailEntry& entry, const NameOfEmployee& nameOf)
{
    return OneLine((IsWhole(entry) ? "" : Subject(entry, nameOf) + ": ") + Deed(entry, nameOf));
}

std::string EntryEmployee(const TrailEntry& entry, const NameOfEmployee& nameOf)
{
    return IsOfEmployee(entry) ? OneLine(EmployeeName(entry, nameOf)) : "";
}

std::string EntryDeed(const TrailEntry& entry, const NameOfEmployee& nameOf)
{
    if (!IsOfEmployee(entry)) {
        return EntrySentence(entry, nameOf);
    }
    const bool wholeEmployee = entry.table == "Employee" && !(entry.before && entry.after);
    return (wholeEmployee ? "employee " : "") + OneLine(Deed(entry, nameOf));
}

std::string EntryReason(const TrailEntry& entry)
{
    return entry.reason.empty() ? "" : " (" + OneLine(entry.reason) + ")";
}

std::string EntryPerson(const TrailEntry& entry)
{
    return entry.by.empty() ? kAnotherProgram : OneLine(entry.by);
}

std::string EntryMoment(const TrailEntry& entry)
{
    const auto moment = MomentOf(entry.at);
    return moment ? FormatDateTime(*moment, "mm/dd/yyyy hh:mm:ss AM/PM") : OneLine(entry.at);
}

std::string RecordMoment(const TrailEntry& entry)
{
    const auto none = [](std::int64_t) { return std::string(); };
    return TextIn(entry.before ? entry.before : entry.after, "StartTime", none);
}

} // namespace ptk
