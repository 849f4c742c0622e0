// The account of a payday as text, pages, CSV and JSON. Figures are the texts that a time card shows.
#include "model/CEmployee.h"
#include "office/payday/PaydayAccount.h"
#include "platform/text/DataText.h"
#include "platform/text/DayText.h"
#include "platform/text/Joined.h"
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

std::string PaidAt(const Closing& closing)
{
    return closing.paidAt ? IsoMoment(*closing.paidAt) : "";
}

std::string ThreeJson(const std::string& regular, const std::string& overtime, const std::string& gross)
{
    return fmt::format(R"("regular":{},"overtime":{},"gross":{})", JsonTextOrNull(regular), JsonTextOrNull(overtime),
                       JsonTextOrNull(gross));
}

std::string ClosingJson(const Closing& closing)
{
    return fmt::format(R"({{"at":{},"by":{},{}}})", JsonTextOrNull(PaidAt(closing)), JsonTextOrNull(closing.paidBy),
                       ThreeJson(closing.regular, closing.overtime, closing.gross));
}

std::string NowJson(const AccountPerson& person)
{
    const CardFigures now = person.now.value_or(CardFigures());
    return person.person.employee == nullptr ? "null" : '{' + ThreeJson(now.regular, now.overtime, now.gross) + '}';
}

std::string ChangedJson(const std::optional<PaidDifference>& changed)
{
    return !changed ? "null"
                    : '{' + ThreeJson(changed->regular.value_or(""), changed->overtime.value_or(""), changed->gross.value_or("")) + '}';
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
    const auto& employee = person.person.employee;
    std::vector<std::string> paid;
    for (const Closing& closing : person.paid) {
        paid.push_back(ClosingJson(closing));
    }
    return fmt::format(R"({{"number":{},"id":{},"name":{},"paid":[{}],"now":{},"changed":{},"changes":[{}]}})",
                       employee == nullptr ? "null" : std::to_string(employee->EmployeeNumber()), person.person.id,
                       employee == nullptr ? "null" : JsonText(employee->DisplayName()), Joined(paid, ","), NowJson(person),
                       ChangedJson(person.changed), Joined(NumbersOf(person), ","));
}

std::string AccountJson(const PaydayAccount& account)
{
    std::string persons;
    for (const AccountPerson& person : account.persons) {
        persons += (persons.empty() ? "\r\n" : ",\r\n") + PersonJson(person);
    }
    return fmt::format("{{\"from\":\"{}\",\"to\":\"{}\",\"employees\":[{}\r\n]}}\r\n", IsoDay(account.period.from),
                       IsoDay(account.period.to), persons);
}

// What another tool left in the place of figures may be anything.
std::string FigureCell(const std::string& figure)
{
    return figure.find_first_not_of("+-.0123456789") == std::string::npos ? figure : CsvText(figure);
}

// What stands in every line of the person.
std::string PersonCsv(const AccountPerson& person)
{
    const CardFigures now = person.now.value_or(CardFigures());
    const PaidDifference changed = person.changed.value_or(PaidDifference());
    return fmt::format("{},{},{},{},{},{},{}", now.regular, now.overtime, now.gross, changed.regular.value_or(""),
                       changed.overtime.value_or(""), changed.gross.value_or(""), Joined(NumbersOf(person), " "));
}

std::string AccountCsv(const PaydayAccount& account)
{
    std::string text = kAccountHeading;
    for (const AccountPerson& person : account.persons) {
        const auto& employee = person.person.employee;
        for (const Closing& closing : person.paid) {
            text += fmt::format("{},{},{},{},{},{},{},{}\r\n", employee == nullptr ? "" : std::to_string(employee->EmployeeNumber()),
                                employee == nullptr ? "" : CsvText(employee->DisplayName()), PaidAt(closing), CsvText(closing.paidBy),
                                FigureCell(closing.regular), FigureCell(closing.overtime), FigureCell(closing.gross), PersonCsv(person));
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
        text += kLineEnd + NameOf(person.person) + kLineEnd;
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
        add(NameOf(person.person));
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
