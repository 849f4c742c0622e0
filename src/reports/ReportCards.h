// What the reports about a span of days share: titles and file names made of employee and days, and the time cards that they consist of.
#pragma once

#include "reports/forms/ReportDocument.h"

#include <memory>
#include <span>
#include <string>

namespace ptk {

class CDateRange;
class CEmployee;
class CJetDB;
class CTimeCard;
class DateTime;
struct ReportContext;
struct ReportEntry;

// A title's first part: "Ann Lee : ", with a leading blank when there is no first name.
[[nodiscard]] std::string TitleOfEmployee(const CEmployee& employee);

// A title's last part: "1/1/2003 - 1/15/2003".
[[nodiscard]] std::string TitleOfDays(DateTime first, DateTime last);

// The name of the report's file for these days; `employee` for the report of a single one.
[[nodiscard]] std::string FileNameOf(const ReportEntry& entry, const CDateRange& days, const CEmployee* employee = nullptr);

[[nodiscard]] std::shared_ptr<CTimeCard> NewTimeCard(const ReportContext& context, const std::shared_ptr<CJetDB>& database);

// Generates the card of these days, the last one included. False with the card's own error number, or with no number where the day after
// the last is beyond the calendar.
[[nodiscard]] bool GenerateTimeCard(CTimeCard& card, const std::shared_ptr<CEmployee>& employee, const CDateRange& days);

// Notes in the document why GenerateTimeCard failed. `whose` may be empty where the title says whose card it is.
void NoteMissing(ReportDocument& document, const CTimeCard& card, const std::string& whose = "");

// Adds the card's text to the last group; a page may begin before each of its shifts but the first.
void AddCard(ReportDocument& document, CTimeCard& card);

// The columns of a card's data as one row: the employee, the days, the figures.
[[nodiscard]] std::span<const ReportColumn> PayColumns();
[[nodiscard]] ReportRow PayRow(const CTimeCard& card, const CDateRange& days);

} // namespace ptk
