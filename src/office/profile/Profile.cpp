#include "office/profile/Profile.h"

#include "office/profile/ProfileColumns.h"
#include "platform/text/CodePage.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <fmt/format.h>
#include <type_traits>
#include <utility>

namespace ptk {

namespace {

constexpr std::size_t kLongestText = 100; // characters of a name, a heading or a text

constexpr auto kNoName = "The profile needs a name.";
constexpr auto kNameTaken = "\"{}\" is the name of a profile that is always there.";
constexpr auto kNoColumns = "The table needs at least one column.";
constexpr auto kUnknownColumn = "There is no column \"{}\".";
constexpr auto kBadText =
    "Names, headings and texts have at most 100 characters and no line ends, tabs or other control characters: \"{}\".";

constexpr ProfileChoice kRows[] = {{"person", "one a person"}, {"kind", "one a person and kind of hours"}};
constexpr ProfileChoice kSeparators[] = {{"comma", "comma"}, {"semicolon", "semicolon"}, {"tab", "tab"}, {"bar", "bar"}};
constexpr ProfileChoice kDecimals[] = {{"point", "point"}, {"comma", "comma"}};
constexpr ProfileChoice kHours[] = {{"decimal", "7.50"}, {"h:mm", "7:30"}};
constexpr ProfileChoice kDates[] = {{"yyyy-mm-dd", "2026-03-05"}, {"mm/dd/yyyy", "03/05/2026"}, {"m/d/yyyy", "3/5/2026"},
                                    {"dd.mm.yyyy", "05.03.2026"}, {"dd/mm/yyyy", "05/03/2026"}, {"yyyymmdd", "20260305"}};
constexpr ProfileChoice kEncodings[] = {{"utf-8", "UTF-8"}, {"utf-8-mark", "UTF-8 with mark"}, {"windows-1252", "Windows 1252"}};
constexpr ProfileChoice kHeadings[] = {{"yes", "yes"}, {"no", "no"}};

template <auto member>
constexpr ProfileOption Option(std::string_view word, std::string_view caption, std::span<const ProfileChoice> choices)
{
    using Chosen = std::remove_reference_t<decltype(std::declval<Profile&>().*member)>;
    return {word, caption, choices, [](const Profile& profile) { return static_cast<std::size_t>(profile.*member); },
            [](Profile& profile, std::size_t choice) { profile.*member = static_cast<Chosen>(choice); }};
}

constexpr ProfileOption kOptions[] = {
    Option<&Profile::rows>("rows", "Rows", kRows),
    Option<&Profile::separator>("separator", "Separator", kSeparators),
    Option<&Profile::decimal>("decimal", "Decimal sign", kDecimals),
    Option<&Profile::hours>("hours", "Hours", kHours),
    Option<&Profile::dates>("dates", "Dates", kDates),
    Option<&Profile::encoding>("encoding", "Encoding", kEncodings),
    Option<&Profile::heading>("heading", "Heading line", kHeadings),
};

// Cells for these columns, each with its own name as heading.
std::vector<ProfileCell> CellsNamed(std::initializer_list<const char*> columns)
{
    std::vector<ProfileCell> cells;
    for (const char* column : columns) {
        cells.push_back({column, "", column});
    }
    return cells;
}

std::vector<Profile> MakeReadyProfiles()
{
    Profile plain;
    plain.name = "plain";
    plain.cells = CellsNamed({"Employee Number", "First Name", "Last Name", "From", "To", "Regular Hours", "Regular Pay Rate",
                              "Overtime Hours", "Overtime Pay Rate", "Break Hours", "Regular Pay", "Overtime Pay", "Gross Pay"});
    Profile kinds;
    kinds.name = "kinds";
    kinds.rows = TableRows::KindOfHours;
    kinds.cells = CellsNamed({"Employee Number", "First Name", "Last Name", "From", "To", "Kind", "Hours", "Pay Rate", "Pay"});
    Profile semicolons = plain;
    semicolons.name = "semicolons";
    semicolons.separator = Separator::Semicolon;
    semicolons.decimal = DecimalSign::Comma;
    semicolons.encoding = TableEncoding::MarkedUtf8;
    return {plain, kinds, semicolons};
}

// Whether a text fits into one line: it stands in the heading, in a list, and in what is stored.
bool IsPlainText(const std::string& text)
{
    const auto isControl = [](char c) { return (c >= '\0' && c < ' ') || c == '\x7F'; };
    return CharacterCount(text) <= kLongestText && IsUtf8(text) && std::none_of(text.begin(), text.end(), isControl);
}

std::string FaultOfCell(const ProfileCell& cell)
{
    if (!cell.column.empty() && FindProfileColumn(cell.column) == nullptr) {
        return fmt::format(kUnknownColumn, cell.column);
    }
    for (const std::string& text : {cell.heading, cell.text}) {
        if (!IsPlainText(text)) {
            return fmt::format(kBadText, text);
        }
    }
    return {};
}

std::string FaultOfName(const std::string& name)
{
    if (name.find_first_not_of(' ') == std::string::npos) {
        return kNoName;
    }
    const auto isTaken = [&](const Profile& ready) { return LowerCase(ready.name) == LowerCase(name); };
    return std::any_of(ReadyProfiles().begin(), ReadyProfiles().end(), isTaken) ? fmt::format(kNameTaken, name) : std::string();
}

} // namespace

char SignOf(Separator separator)
{
    return std::string_view(",;\t|").at(static_cast<std::size_t>(separator));
}

char SignOf(DecimalSign decimal)
{
    return decimal == DecimalSign::Comma ? ',' : '.';
}

std::string_view PatternOf(DateForm dates)
{
    return kDates[static_cast<std::size_t>(dates)].word;
}

std::span<const ProfileOption> ProfileOptions()
{
    return kOptions;
}

std::span<const Profile> ReadyProfiles()
{
    static const std::vector<Profile> ready = MakeReadyProfiles();
    return ready;
}

Profile NewProfile()
{
    Profile profile = ReadyProfiles().front();
    profile.name.clear();
    return profile;
}

std::string DescribeProfile(const Profile& profile)
{
    std::string text = fmt::format("{} column{}", profile.cells.size(), profile.cells.size() == 1 ? "" : "s");
    for (const ProfileOption& option : kOptions) {
        text += fmt::format(", {}: {}", LowerCase(option.caption), option.choices[option.get(profile)].caption);
    }
    return text;
}

std::string FaultOf(const Profile& profile)
{
    std::string fault = FaultOfName(profile.name);
    for (const std::string& text : {profile.name, profile.regularCode, profile.overtimeCode}) {
        if (fault.empty() && !IsPlainText(text)) {
            fault = fmt::format(kBadText, text);
        }
    }
    for (const ProfileCell& cell : profile.cells) {
        fault = fault.empty() ? FaultOfCell(cell) : fault;
    }
    return fault.empty() && profile.cells.empty() ? kNoColumns : fault;
}

} // namespace ptk
