#include "office/import/ImportAccount.h"

#include "platform/text/Characters.h"

#include <algorithm>
#include <fmt/format.h>

namespace ptk {

namespace {

constexpr const char* kNoTable = "(no such table)";
constexpr const char* kNoEmployee = "(no such employee)";
constexpr const char* kNoName = "(no name)";

constexpr ImportTableId kOrder[] = {ImportTableId::Employee, ImportTableId::Company, ImportTableId::TimeRecord, ImportTableId::System};

using Lines = std::vector<std::string>;

void AddTables(const ImportAccount& account, Lines& lines)
{
    for (const ImportTableId id : kOrder) {
        const TableAccount& table = account.tables.at(static_cast<std::size_t>(id));
        lines.push_back(fmt::format("{} from {}: found {}, taken {}, left out {}", ImportTableOf(id).name,
                                    table.from.empty() ? kNoTable : table.from, table.found, table.taken, table.LeftOut()));
        for (const auto& [reason, rows] : table.leftOut) {
            lines.push_back(fmt::format("  left out, {}: {}", reason, rows));
        }
    }
}

void AddNotTaken(const ImportAccount& account, Lines& lines)
{
    for (const std::string& table : account.otherTables) {
        lines.push_back("Not taken: table " + table);
    }
    for (const std::string& column : account.furtherColumns) {
        lines.push_back("Not taken: column " + column);
    }
}

void AddWarning(const char* kind, std::int64_t count, Lines& lines)
{
    if (count != 0) {
        lines.push_back(fmt::format("Warning: {}: {}", kind, count));
    }
}

void AddWarnings(const ImportAccount& account, Lines& lines)
{
    AddWarning("time records of no employee", account.figures.orphans, lines);
    AddWarning("open time records", account.figures.open, lines);
    AddWarning("backward time records", account.figures.backward, lines);
    AddWarning("bytes behind the last page", account.bytesBehind, lines);
}

std::string Whom(const ImportAccount& account, std::optional<std::int32_t> employee)
{
    if (!employee) {
        return "(none)";
    }
    const auto name = account.names.find(*employee);
    if (name == account.names.end()) {
        return fmt::format("{} {}", *employee, kNoEmployee);
    }
    return fmt::format("{} {}", *employee, name->second.empty() ? kNoName : name->second);
}

void AddHours(const ImportAccount& account, Lines& lines)
{
    constexpr std::int64_t kHour = 60; // minutes
    for (const auto& [employee, hours] : account.figures.hours) {
        lines.push_back(fmt::format("Employee {}: {} records, {}:{:02} hours", Whom(account, employee), hours.records,
                                    hours.minutes / kHour, hours.minutes % kHour));
    }
}

void AddSigns(const ImportAccount& account, Lines& lines)
{
    lines.push_back("Signs of damage: " + (account.signs.empty() ? "none" : std::to_string(account.signs.size())));
    for (const std::string& sign : account.signs) {
        lines.push_back("  " + sign);
    }
}

} // namespace

std::vector<std::string> AccountLines(const ImportAccount& account)
{
    Lines lines{"Import of the older database " + account.file};
    AddTables(account, lines);
    AddNotTaken(account, lines);
    AddWarnings(account, lines);
    AddHours(account, lines);
    AddSigns(account, lines);
    std::transform(lines.begin(), lines.end(), lines.begin(), OneLine);
    return lines;
}

} // namespace ptk
