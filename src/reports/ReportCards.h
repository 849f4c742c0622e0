// What the reports over a stretch of days share: the names made of employee and days, and the time cards of which they are made.
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

// The pieces of the titles: "Ann Lee : ", with a leading blank when there is no first name, and "1/1/2003 - 1/15/2003".
[[nodiscard]] std::string TitleOfEmployee(const CEmployee& employee);
[[nodiscard]] std::string TitleOfDays(DateTime first, DateTime last);

// The file's name for these days, and for this employee when it is one employee's.
[[nodiscard]] std::string FileNameOf(const ReportEntry& entry, const CDateRange& days, const CEmployee* employee = nullptr);

[[nodiscard]] std::shared_ptr<CTimeCard> NewTimeCard(const ReportContext& context, const std::shared_ptr<CJetDB>& database);

// Of the days, the last one included. False with the card's own error number.
[[nodiscard]] bool GenerateTimeCard(CTimeCard& card, const std::shared_ptr<CEmployee>& employee, const CDateRange& days);

// Notes in the document why GenerateTimeCard failed; the title may say whose card it is.
void NoteMissing(ReportDocument& document, const CTimeCard& card, const std::string& whose = "");

// The card's text; a page may begin before any of its shifts but the first.
void AddCard(ReportDocument& document, CTimeCard& card);

// The data of a card as one row: whose, the days, the figures.
[[nodiscard]] std::span<const ReportColumn> PayColumns();
[[nodiscard]] ReportRow PayRow(const CTimeCard& card, const CDateRange& days);

} // namespace ptk
