// The overview as CSV and JSON. Figures are the texts that a time card shows, so that no reader rounds them again.
#include "office/overview/Overview.h"
#include "office/overview/OverviewTexts.h"
#include "platform/text/DataText.h"
#include "platform/text/DayText.h"
#include "platform/text/Joined.h"

#include <fmt/format.h>

namespace ptk {

namespace {

constexpr auto kCsvHeading = "Number,ID,Name,Regular,Overtime,Gross,Longest week,Clocked in,Problems,Notices,Kind,Severity,Records,Minutes,"
                             "From,To,Text\r\n";

std::string IsoMoment(const std::optional<DateTime>& moment)
{
    return moment ? IsoMoment(*moment) : "";
}

std::string JsonMoment(const std::optional<DateTime>& moment)
{
    return moment ? '"' + IsoMoment(*moment) + '"' : "null";
}

std::string JsonFigures(const std::optional<CardFigures>& figures)
{
    if (!figures) {
        return R"("regular":null,"overtime":null,"gross":null)";
    }
    return fmt::format(R"("regular":"{}","overtime":"{}","gross":"{}")", figures->regular, figures->overtime, figures->gross);
}

std::string JsonTextOrNull(const std::optional<std::string>& text)
{
    return text ? JsonText(*text) : "null";
}

std::string Json(const RecordChange& change)
{
    if (change.deletes) {
        return fmt::format(R"({{"record":{},"delete":true}})", change.record.value_or(0));
    }
    const std::string record = change.record ? fmt::format(R"("record":{},)", *change.record) : std::string();
    return fmt::format(R"({{{}"start":"{}","end":"{}"}})", record, IsoMoment(change.start), IsoMoment(change.end));
}

std::string Json(const WorkWeek& week)
{
    return fmt::format(R"({{"from":"{}","hours":"{}","above40":"{}","paidAsOvertime":"{}"}})", IsoDay(week.from), HoursText(week.minutes),
                       HoursText(week.Above40()), HoursText(week.paidAsOvertime));
}

std::string Json(const Remedy& remedy);
std::string Json(const LeftOut& out);

template <typename Items>
std::string JsonList(const Items& items)
{
    std::string list;
    for (const auto& item : items) {
        list += (list.empty() ? "" : ",") + Json(item);
    }
    return '[' + list + ']';
}

std::string Json(const Remedy& remedy)
{
    return fmt::format(R"({{"text":{},"hours":{},"changes":{}}})", JsonText(remedy.text), JsonTextOrNull(remedy.hours),
                       JsonList(remedy.changes));
}

// remedies: those of this finding, nullptr where nobody asked for them.
std::string Json(const Finding& finding, const std::vector<Remedy>* remedies)
{
    return fmt::format(R"({{"kind":"{}","severity":"{}","records":[{}],"minutes":{},"from":{},"to":{},"text":{}{}}})", NameOf(finding.kind),
                       NameOf(SeverityOf(finding.kind)), Joined(finding.records, ","), finding.minutes, JsonMoment(finding.from),
                       JsonMoment(finding.to), JsonText(finding.text), remedies == nullptr ? "" : R"(,"remedies":)" + JsonList(*remedies));
}

std::string JsonFindings(const OverviewRow& row, bool withRemedies)
{
    std::string list;
    for (std::size_t i = 0; i < row.check.findings.size(); ++i) {
        list += (i == 0 ? "" : ",") + Json(row.check.findings[i], withRemedies ? &row.remedies.at(i) : nullptr);
    }
    return '[' + list + ']';
}

std::string JsonPaid(const std::optional<Closing>& paid)
{
    if (!paid) {
        return "null";
    }
    return fmt::format(R"({{"at":{},"by":{},"regular":{},"overtime":{},"gross":{}}})", JsonMoment(paid->paidAt),
                       JsonTextOrNull(paid->paidBy), JsonTextOrNull(paid->regular), JsonTextOrNull(paid->overtime),
                       JsonTextOrNull(paid->gross));
}

std::string JsonChanged(const std::optional<PaidDifference>& changed)
{
    if (!changed) {
        return "null";
    }
    return fmt::format(R"({{"regular":{},"overtime":{},"gross":{}}})", JsonTextOrNull(changed->regular), JsonTextOrNull(changed->overtime),
                       JsonTextOrNull(changed->gross));
}

std::string JsonPayday(const OverviewRow& row)
{
    return fmt::format(R"("paid":{},"changed":{})", JsonPaid(row.paid), JsonChanged(row.check.changed));
}

std::string Json(const LeftOut& out)
{
    const CEmployee* employee = out.row.employee.get();
    return fmt::format(R"({{"number":{},"id":{},"name":{},"reason":"{}","records":{},{},{}}})",
                       employee == nullptr ? "null" : std::to_string(employee->EmployeeNumber()), out.id ? std::to_string(*out.id) : "null",
                       employee == nullptr ? "null" : JsonText(employee->DisplayName()), NameOf(out.reason), out.row.records,
                       JsonFigures(out.row.figures), JsonPayday(out.row));
}

std::string Json(const OverviewRow& row, bool withRemedies)
{
    const CEmployee& employee = *row.employee;
    return fmt::format(R"({{"number":{},"id":{},"name":{},{},"longestWeek":"{}","clockedIn":{},"problems":{},"notices":{},)"
                       R"("findings":{},"weeks":{},{}}})",
                       employee.EmployeeNumber(), employee.EmployeeID(), JsonText(employee.DisplayName()), JsonFigures(row.figures),
                       row.LongestWeek(), row.check.clockedIn, row.check.problems, row.check.notices, JsonFindings(row, withRemedies),
                       JsonList(row.check.weeks), JsonPayday(row));
}

// Number, ID and name begin every line of an employee.
std::string CsvEmployee(const CEmployee& employee)
{
    return fmt::format("{},{},{}", employee.EmployeeNumber(), employee.EmployeeID(), CsvText(employee.DisplayName()));
}

std::string Csv(const OverviewRow& row)
{
    const CardFigures figures = row.figures.value_or(CardFigures());
    return fmt::format("{},{},{},{},{},{},{},{},,,,,,,\r\n", CsvEmployee(*row.employee), figures.regular, figures.overtime, figures.gross,
                       row.LongestWeek(), row.check.clockedIn, row.check.problems, row.check.notices);
}

std::string Csv(const CEmployee& employee, const Finding& finding)
{
    return fmt::format("{},,,,,,,,{},{},{},{},{},{},{}\r\n", CsvEmployee(employee), NameOf(finding.kind), NameOf(SeverityOf(finding.kind)),
                       Joined(finding.records, " "), finding.minutes, IsoMoment(finding.from), IsoMoment(finding.to),
                       CsvText(finding.text));
}

} // namespace

std::string OverviewCsv(const Overview& overview)
{
    std::string text = kCsvHeading;
    for (const OverviewRow& row : overview.rows) {
        text += Csv(row);
        for (const Finding& finding : row.check.findings) {
            text += Csv(*row.employee, finding);
        }
    }
    return text;
}

// One line an employee.
std::string OverviewJson(const Overview& overview)
{
    std::string text = fmt::format(R"({{"from":"{}","to":"{}","made":"{}","employees":[)", IsoDay(overview.period.from),
                                   IsoDay(overview.period.to), IsoMoment(overview.made));
    for (const OverviewRow& row : overview.rows) {
        text += (&row == overview.rows.data() ? "\r\n" : ",\r\n") + Json(row, overview.withRemedies);
    }
    const OverviewTotals totals = TotalsOf(overview.rows);
    text += fmt::format("\r\n],\"leftOut\":{},\"totals\":{{{},\"clockedIn\":{},\"problems\":{},\"notices\":{}}}}}\r\n",
                        JsonList(overview.leftOut), JsonFigures(totals.figures), totals.clockedIn, totals.problems, totals.notices);
    return text;
}

} // namespace ptk
