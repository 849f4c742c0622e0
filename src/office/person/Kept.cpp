#include "office/person/Kept.h"

#include "platform/text/Text.h"
#include "store/CJetDB.h"
#include "store/engine/EngineWords.h"
#include "store/engine/RecordSet.h"
#include "store/engine/Statement.h"

#include <algorithm>
#include <charconv>
#include <fmt/format.h>

namespace ptk {

namespace {

struct DatedTable
{
    const char* name;
    const char* column;
};
constexpr DatedTable kTables[] = {{"TimeRecord", "StartTime"}, {"_Payday", "ToDay"}, {"_Change", "ChangedAt"}, {"Employee", "ReleaseDate"}};

// Counts by the first four characters, because on a file and on a server a date as text begins with its year.
constexpr auto kByYear = "SELECT SUBSTR(CAST({1} AS TEXT), 1, 4), COUNT(*) FROM {0} WHERE {1} <> :none AND {1} < :before "
                         "GROUP BY SUBSTR(CAST({1} AS TEXT), 1, 4) ORDER BY 1";

constexpr auto kOlder = "Older than {}:";
constexpr auto kRows = "{} {}: {}";
constexpr auto kNone = "nothing";

constexpr int kFirstYear = 100; // of the calendar

DateTime YearsBefore(DateTime day, std::int32_t years)
{
    CalendarDate date = day.Date();
    date.year = std::max(date.year - years, kFirstYear);
    const bool isLeapDay = date.month == 2 && date.day == 29;
    date.day = isLeapDay ? 28 : date.day; // which all years have
    return DateTime(date).AddDays(isLeapDay ? 1 : 0);
}

int YearIn(std::string_view text)
{
    int year = 0;
    std::from_chars(text.data(), text.data() + text.size(), year);
    return year;
}

void Count(CJetDB& database, const DatedTable& table, KeptAccount& account)
{
    const auto rows = RequireSelect(database, fmt::format(kByYear, table.name, table.column));
    rows->Bind("none", DateTime());
    rows->Bind("before", account.before);
    rows->ForEachRow([&] {
        const int year = rows->KindAt(0) == CellKind::Text ? YearIn(rows->TextAt(0)) : 0;
        if (year >= kFirstYear) {
            account.rows.push_back({table.name, year, rows->Int64At(1)});
        }
    });
}

} // namespace

KeptAccount ReadKept(const std::shared_ptr<CJetDB>& database, std::int32_t years, DateTime today)
{
    KeptAccount account{YearsBefore(today, years), {}};
    const CJetDB::Hold hold(database);
    RequireOpen(*database);
    for (const DatedTable& table : kTables) {
        if (database->HasTable(table.name)) {
            Count(*database, table, account);
        }
    }
    return account;
}

std::vector<std::string> KeptLines(const KeptAccount& account)
{
    std::vector<std::string> lines{fmt::format(kOlder, ShortDateText(account.before))};
    for (const KeptRows& kept : account.rows) {
        lines.push_back(fmt::format(kRows, kept.table, kept.year, kept.rows));
    }
    if (account.rows.empty()) {
        lines.emplace_back(kNone);
    }
    return lines;
}

} // namespace ptk
