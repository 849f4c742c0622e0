// The overview as CSV and JSON. Figures are the texts that a time card shows, so that no reader rounds them again.
#include "office/overview/Overview.h"
#include "office/overview/OverviewTexts.h"
#include "platform/text/CsvLine.h"
#include "platform/text/DayText.h"
#include "platform/text/Joined.h"
#include "platform/text/JsonWriter.h"

namespace ptk {

namespace {

constexpr auto kCsvHeading = "Number,ID,Name,Regular,Overtime,Gross,Longest week,Clocked in,Problems,Notices,Kind,Severity,Records,Minutes,"
                             "From,To,Text\r\n";

std::string IsoMoment(const std::optional<DateTime>& moment)
{
    return moment ? IsoMoment(*moment) : "";
}

// The figures are null if there are none.
JsonObject& AddFigures(JsonObject& object, const std::optional<CardFigures>& figures)
{
    const auto text = [&](std::string CardFigures::*figure) { return figures ? std::optional((*figures).*figure) : std::nullopt; };
    return object.TextOrNull("regular", text(&CardFigures::regular))
        .TextOrNull("overtime", text(&CardFigures::overtime))
        .TextOrNull("gross", text(&CardFigures::gross));
}

std::string ChangeJson(const RecordChange& change)
{
    if (change.deletes) {
        return JsonObject().Number("record", change.record.value_or(0)).Truth("delete", true).Done();
    }
    JsonObject object;
    if (change.record) {
        object.Number("record", *change.record);
    }
    return object.Moment("start", change.start).Moment("end", change.end).Done();
}

std::string WeekJson(const WorkWeek& week)
{
    return JsonObject()
        .Day("from", week.from)
        .Text("hours", HoursText(week.minutes))
        .Text("above40", HoursText(week.Above40()))
        .Text("paidAsOvertime", HoursText(week.paidAsOvertime))
        .Done();
}

std::string RemedyJson(const Remedy& remedy)
{
    return JsonObject()
        .Text("text", remedy.text)
        .TextOrNull("hours", remedy.hours)
        .Json("changes", JsonList(remedy.changes, ChangeJson))
        .Done();
}

// remedies: those of this finding, nullptr where nobody asked for them.
std::string FindingJson(const Finding& finding, const std::vector<Remedy>* remedies)
{
    JsonObject object;
    object.Text("kind", KindName(finding.kind))
        .Text("severity", SeverityName(SeverityOf(finding.kind)))
        .Json("records", '[' + Joined(finding.records, ",") + ']')
        .Number("minutes", finding.minutes)
        .Moment("from", finding.from)
        .Moment("to", finding.to)
        .Text("text", finding.text);
    if (remedies != nullptr) {
        object.Json("remedies", JsonList(*remedies, RemedyJson));
    }
    return object.Done();
}

std::string FindingsJson(const OverviewRow& row, bool withRemedies)
{
    return JsonList(row.check.findings, [&](const Finding& finding) {
        const auto place = static_cast<std::size_t>(&finding - row.check.findings.data());
        return FindingJson(finding, withRemedies ? &row.remedies.at(place) : nullptr);
    });
}

std::string PaidJson(const std::optional<Closing>& paid)
{
    if (!paid) {
        return "null";
    }
    return JsonObject()
        .Moment("at", paid->paidAt)
        .TextOrNull("by", paid->paidBy)
        .TextOrNull("regular", paid->regular)
        .TextOrNull("overtime", paid->overtime)
        .TextOrNull("gross", paid->gross)
        .Done();
}

std::string ChangedJson(const std::optional<PaidDifference>& changed)
{
    if (!changed) {
        return "null";
    }
    return JsonObject()
        .TextOrNull("regular", changed->regular)
        .TextOrNull("overtime", changed->overtime)
        .TextOrNull("gross", changed->gross)
        .Done();
}

JsonObject& AddPayday(JsonObject& object, const OverviewRow& row)
{
    return object.Json("paid", PaidJson(row.paid)).Json("changed", ChangedJson(row.check.changed));
}

std::string LeftOutJson(const LeftOut& out)
{
    const CEmployee* employee = out.row.employee.get();
    JsonObject object;
    object.NumberOrNull("number", employee == nullptr ? std::nullopt : std::optional<std::int64_t>(employee->EmployeeNumber()))
        .NumberOrNull("id", out.id)
        .TextOrNull("name", employee == nullptr ? std::nullopt : std::optional(employee->DisplayName()))
        .Text("reason", LeftOutName(out.reason))
        .Number("records", out.row.records);
    AddFigures(object, out.row.figures);
    return AddPayday(object, out.row).Done();
}

std::string EmployeeJson(const OverviewRow& row, bool withRemedies)
{
    JsonObject object;
    object.Number("number", row.employee->EmployeeNumber())
        .Number("id", row.employee->EmployeeID())
        .Text("name", row.employee->DisplayName());
    AddFigures(object, row.figures)
        .Text("longestWeek", row.LongestWeek())
        .Truth("clockedIn", row.check.clockedIn)
        .Number("problems", row.check.problems)
        .Number("notices", row.check.notices)
        .Json("findings", FindingsJson(row, withRemedies))
        .Json("weeks", JsonList(row.check.weeks, WeekJson));
    return AddPayday(object, row).Done();
}

// Number, ID and name begin every line of an employee.
CsvLine LineOf(const CEmployee& employee)
{
    return CsvLine().Number(employee.EmployeeNumber()).Number(employee.EmployeeID()).Text(employee.DisplayName());
}

std::string Csv(const OverviewRow& row)
{
    const CardFigures figures = row.figures.value_or(CardFigures());
    CsvLine line = LineOf(*row.employee);
    line.Plain(figures.regular).Plain(figures.overtime).Plain(figures.gross).Plain(row.LongestWeek());
    return line.Truth(row.check.clockedIn).Number(row.check.problems).Number(row.check.notices).Empty(7).Done();
}

std::string Csv(const CEmployee& employee, const Finding& finding)
{
    CsvLine line = LineOf(employee);
    line.Empty(7).Plain(KindName(finding.kind)).Plain(SeverityName(SeverityOf(finding.kind))).Plain(Joined(finding.records, " "));
    return line.Number(finding.minutes).Plain(IsoMoment(finding.from)).Plain(IsoMoment(finding.to)).Text(finding.text).Done();
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

// Each employee stands on a line of its own.
std::string OverviewJson(const Overview& overview)
{
    const auto employee = [&](const OverviewRow& row) { return EmployeeJson(row, overview.withRemedies); };
    const OverviewTotals sums = TotalsOf(overview.rows);
    JsonObject totals;
    AddFigures(totals, sums.figures).Number("clockedIn", sums.clockedIn).Number("problems", sums.problems).Number("notices", sums.notices);
    return JsonObject()
               .Day("from", overview.period.from)
               .Day("to", overview.period.to)
               .Moment("made", overview.made)
               .Json("employees", '[' + JsonLines(overview.rows, employee) + "\r\n]")
               .Json("leftOut", JsonList(overview.leftOut, LeftOutJson))
               .Json("totals", totals.Done())
               .Done() +
           "\r\n";
}

} // namespace ptk
