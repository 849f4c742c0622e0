// The account of a payday as text, pages, CSV and JSON. Figures are the texts that a time card shows.
#include "model/CEmployee.h"
#include "office/payday/PaydayAccount.h"
#include "platform/text/CsvLine.h"
#include "platform/text/DataText.h"
#include "platform/text/DayText.h"
#include "platform/text/Joined.h"
#include "platform/text/JsonWriter.h"
#include "platform/text/Text.h"
#include "reports/forms/ReportDocument.h"

#include <fmt/format.h>

#include <algorithm>

namespace ptk {

namespace {

constexpr auto kTitle = "Payday account";
constexpr auto kNobody = "There is nobody to show.";
constexpr auto kNotPaid = "not paid";
constexpr auto kUnreadable = "now      cannot be computed";
constexpr auto kNobodyKnown = "now      there is no such employee any more";
constexpr auto kUntellable = "changed  by how much cannot be told";
constexpr auto kNoPerson = "somebody";
constexpr auto kLineEnd = "\r\n";

constexpr auto kAccountHeading = "Number,Name,Paid At,Paid By,Regular,Overtime,Gross,Now Regular,Now Overtime,Now Gross,Changed Regular,"
                                 "Changed Overtime,Changed Gross,Changes\r\n";

JsonObject& AddFigures(JsonObject& object, const std::string& regular, const std::string& overtime, const std::string& gross)
{
    return object.TextOrNull("regular", regular).TextOrNull("overtime", overtime).TextOrNull("gross", gross);
}

std::string ClosingJson(const Closing& closing)
{
    JsonObject object;
    object.Moment("at", closing.paidAt).TextOrNull("by", closing.paidBy);
    return AddFigures(object, closing.regular, closing.overtime, closing.gross).Done();
}

std::string NowJson(const AccountPerson& person)
{
    const CardFigures now = person.now.value_or(CardFigures());
    JsonObject object;
    return person.person.employee == nullptr ? "null" : AddFigures(object, now.regular, now.overtime, now.gross).Done();
}

std::string ChangedJson(const std::optional<PaidDifference>& changed)
{
    JsonObject object;
    return !changed ? "null"
                    : AddFigures(object, changed->regular.value_or(""), changed->overtime.value_or(""), changed->gross.value_or("")).Done();
}

std::vector<std::int64_t> NumbersOf(const AccountPerson& person)
{
    std::vector<std::int64_t> numbers;
    for (const AccountChange& change : person.changes) {
        numbers.push_back(change.id);
    }
    return numbers;
}

std::string PersonJson(const AccountPerson& person)
{
    const CEmployee* employee = person.person.employee.get();
    return JsonObject()
        .NumberOrNull("number", employee == nullptr ? std::nullopt : std::optional<std::int64_t>(employee->EmployeeNumber()))
        .Number("id", person.person.id)
        .TextOrNull("name", employee == nullptr ? std::nullopt : std::optional(employee->DisplayName()))
        .Json("paid", JsonList(person.paid, ClosingJson))
        .Json("now", NowJson(person))
        .Json("changed", ChangedJson(person.changed))
        .Json("changes", '[' + Joined(NumbersOf(person), ",") + ']')
        .Done();
}

std::string AccountJson(const PaydayAccount& account)
{
    return JsonObject()
               .Day("from", account.period.from)
               .Day("to", account.period.to)
               .Json("employees", '[' + JsonLines(account.persons, PersonJson) + "\r\n]")
               .Done() +
           kLineEnd;
}

// A cell for a figure that was paid. Another tool may have left any text there.
std::string FigureCell(const std::string& figure)
{
    return figure.find_first_not_of("+-.0123456789") == std::string::npos ? figure : CsvText(figure);
}

std::string PaidCsv(const AccountPerson& person, const Closing& closing)
{
    const CEmployee* employee = person.person.employee.get();
    const CardFigures now = person.now.value_or(CardFigures());
    const PaidDifference changed = person.changed.value_or(PaidDifference());
    CsvLine line;
    if (employee == nullptr) {
        line.Empty(2);
    } else {
        line.Number(employee->EmployeeNumber()).Text(employee->DisplayName());
    }
    line.Plain(closing.paidAt ? IsoMoment(*closing.paidAt) : "").Text(closing.paidBy);
    line.Plain(FigureCell(closing.regular)).Plain(FigureCell(closing.overtime)).Plain(FigureCell(closing.gross));
    line.Plain(now.regular).Plain(now.overtime).Plain(now.gross);
    line.Plain(changed.regular.value_or("")).Plain(changed.overtime.value_or("")).Plain(changed.gross.value_or(""));
    return line.Plain(Joined(NumbersOf(person), " ")).Done();
}

std::string AccountCsv(const PaydayAccount& account)
{
    std::string text = kAccountHeading;
    for (const AccountPerson& person : account.persons) {
        for (const Closing& closing : person.paid) {
            text += PaidCsv(person, closing);
        }
    }
    return text;
}

std::string FiguresText(const std::string& regular, const std::string& overtime, const std::string& gross)
{
    return fmt::format("{} + {} hours, {}", regular, overtime, gross);
}

std::string PaidLine(const Closing& closing)
{
    const std::string at = closing.paidAt ? MomentText(*closing.paidAt) : "at an unknown time";
    return fmt::format("paid     {}, {} by {}", FiguresText(closing.regular, closing.overtime, closing.gross), at,
                       closing.paidBy.empty() ? kNoPerson : closing.paidBy);
}

std::string NowLine(const AccountPerson& person)
{
    if (person.now) {
        return "now      " + FiguresText(person.now->regular, person.now->overtime, person.now->gross);
    }
    return person.person.employee == nullptr ? kNobodyKnown : kUnreadable;
}

std::string ChangedLine(const PaidDifference& changed)
{
    const bool told = changed.regular && changed.overtime && changed.gross;
    return told ? fmt::format("changed  regular {}, overtime {} hours, {}", *changed.regular, *changed.overtime, *changed.gross)
                : kUntellable;
}

std::string TitleOf(const PaydayAccount& account)
{
    return fmt::format("{} {} - {}", kTitle, DayText(account.period.from), DayText(account.period.to));
}

std::string AccountText(const PaydayAccount& account)
{
    std::string text = fmt::format("{}, made {}\r\n", TitleOf(account), MomentText(account.made));
    for (const AccountPerson& person : account.persons) {
        text += kLineEnd + PersonName(person.person) + kLineEnd;
        for (const std::string& line : LinesOf(person)) {
            text += "    " + line + kLineEnd;
        }
    }
    return account.persons.empty() ? text + kLineEnd + kNobody + kLineEnd : text;
}

ReportDocument AccountDocument(const PaydayAccount& account)
{
    ReportDocument document{.title = TitleOf(account)};
    const auto add = [&](std::string line) {
        document.columns = std::max(document.columns, CharacterCount(line));
        document.Add(std::move(line));
    };
    for (const AccountPerson& person : account.persons) {
        document.BeginGroup();
        add(PersonName(person.person));
        for (const std::string& line : LinesOf(person)) {
            add("    " + line);
        }
        add("");
    }
    if (account.persons.empty()) {
        document.BeginGroup();
        add(kNobody);
    }
    return document;
}

} // namespace

std::vector<std::string> LinesOf(const AccountPerson& person)
{
    if (person.paid.empty()) {
        return {kNotPaid, NowLine(person)};
    }
    std::vector<std::string> lines;
    for (const Closing& closing : person.paid) {
        lines.push_back(PaidLine(closing));
    }
    lines.push_back(NowLine(person));
    if (person.changed) {
        lines.push_back(ChangedLine(*person.changed));
    }
    for (const AccountChange& change : person.changes) {
        lines.push_back(change.text);
    }
    return lines;
}

std::string AccountIn(ReportForm form, const PaydayAccount& account)
{
    switch (form) {
    case ReportForm::Json:
        return AccountJson(account);
    case ReportForm::Csv:
        return AccountCsv(account);
    case ReportForm::Pdf: {
        const ReportDocument document = AccountDocument(account);
        return FileOf(form, {&document, 1}, account.made);
    }
    default:
        return AccountText(account);
    }
}

std::string AccountFile(ReportForm form, const PaydayAccount& account)
{
    return (form == ReportForm::Csv ? std::string(kByteOrderMark) : std::string()) + AccountIn(form, account);
}

std::string AccountFileName(const PayPeriod& period)
{
    return "PTK payday " + IsoDay(period.from);
}

} // namespace ptk
