#include "office/profile/ProfileTable.h"

#include "office/card/CardTexts.h"
#include "office/profile/ProfileColumns.h"
#include "platform/text/CodePage.h"
#include "platform/text/DataText.h"
#include "platform/text/DayText.h"
#include "platform/text/Text.h"
#include "reports/forms/ReportForms.h"

#include <algorithm>
#include <fmt/format.h>

namespace ptk {

namespace {

constexpr auto kRowEnd = "\r\n";
constexpr auto kLost = "{} not in Windows 1252: question marks stand there";

// Writes the text of a cell. A spreadsheet takes no text of it for a formula; figures are written as they are.
class CellWriter
{
public:
    explicit CellWriter(const Profile& profile) : m_profile(profile) {}

    std::string operator()(std::monostate /*nothing*/) const { return {}; }
    std::string operator()(const std::string& text) const { return NoFormula(text); }
    std::string operator()(const PlainFigure& figure) const { return Decimal(figure.text); }
    std::string operator()(const PaidHours& hours) const
    {
        return m_profile.hours == HoursForm::Clock ? HoursAndMinutes(hours.minutes) : Decimal(hours.text);
    }
    std::string operator()(DateTime day) const { return FormatDateTime(day, PatternOf(m_profile.dates)); }

private:
    std::string Decimal(std::string figure) const
    {
        std::replace(figure.begin(), figure.end(), '.', SignOf(m_profile.decimal));
        return figure;
    }

    const Profile& m_profile;
};

PayCell CellFor(const ProfileCell& cell, const PayRowScope& row)
{
    const ProfileColumn* column = FindProfileColumn(cell.column);
    return column == nullptr ? PayCell(cell.text) : CellOf(*column, row);
}

TableLine LineFor(const Profile& profile, const PayRowScope& row)
{
    TableLine line;
    for (const ProfileCell& cell : profile.cells) {
        line.push_back(std::visit(CellWriter(profile), CellFor(cell, row)));
    }
    return line;
}

TableLine HeadingOf(const Profile& profile)
{
    TableLine line;
    for (const ProfileCell& cell : profile.cells) {
        line.push_back(NoFormula(cell.heading));
    }
    return line;
}

void AddPerson(const Profile& profile, const PaidPerson& person, std::vector<TableLine>& lines)
{
    static const std::string noCode;
    if (profile.rows == TableRows::Person) {
        lines.push_back(LineFor(profile, {person, std::nullopt, noCode}));
        return;
    }
    lines.push_back(LineFor(profile, {person, HoursKind::Regular, profile.regularCode}));
    lines.push_back(LineFor(profile, {person, HoursKind::Overtime, profile.overtimeCode}));
}

// The cells with separators. An empty line gets quotation marks, because readers skip empty lines.
std::string Joined(const TableLine& line, char separator)
{
    std::string text;
    for (const std::string& cell : line) {
        text += &cell == line.data() ? "" : std::string(1, separator);
        text += CsvField(cell, separator);
    }
    return text.empty() ? "\"\"" : text;
}

} // namespace

bool NeedsOverview(const Profile& profile)
{
    return std::any_of(profile.cells.begin(), profile.cells.end(), [](const ProfileCell& cell) {
        const ProfileColumn* column = FindProfileColumn(cell.column);
        return column != nullptr && column->ofOverview;
    });
}

bool IsFigure(const ProfileCell& cell, const PaidPerson& person)
{
    const ProfileColumn* column = FindProfileColumn(cell.column);
    if (column == nullptr) {
        return false;
    }
    const PayCell value = column->cell({person, HoursKind::Regular, ""});
    return std::holds_alternative<PlainFigure>(value) || std::holds_alternative<PaidHours>(value);
}

std::vector<TableLine> TableLines(const Profile& profile, std::span<const PaidPerson> people)
{
    std::vector<TableLine> lines;
    if (profile.heading == HeadingLine::Yes) {
        lines.push_back(HeadingOf(profile));
    }
    for (const PaidPerson& person : people) {
        AddPerson(profile, person, lines);
    }
    return lines;
}

std::string TableText(const Profile& profile, std::span<const PaidPerson> people)
{
    std::string text;
    for (const TableLine& line : TableLines(profile, people)) {
        text += Joined(line, SignOf(profile.separator)) + kRowEnd;
    }
    return text;
}

TableFile TableFileOf(const Profile& profile, std::span<const PaidPerson> people)
{
    std::string text = TableText(profile, people);
    if (profile.encoding == TableEncoding::Western) {
        WesternText western = ToWestern(text);
        return {std::move(western.bytes), western.lost};
    }
    return {profile.encoding == TableEncoding::MarkedUtf8 ? std::string(kByteOrderMark) + text : std::move(text), 0};
}

std::string TableFileName(const PayPeriod& period)
{
    return fmt::format("accountant_{}_{}.csv", IsoDay(period.from), IsoDay(period.to));
}

std::vector<std::string> TableNotices(const TableFile& file)
{
    if (file.lost == 0) {
        return {};
    }
    return {fmt::format(kLost, CountText(static_cast<std::int64_t>(file.lost), "character") + (file.lost == 1 ? " is" : " are"))};
}

} // namespace ptk
