// A profile: how the accountant, or the accountant's program, wants the table of what is paid.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ptk {

// The choices of a profile. A new profile has the first one of each.
enum class TableRows : std::uint8_t
{
    Person,
    KindOfHours
};
enum class Separator : std::uint8_t
{
    Comma,
    Semicolon,
    Tab,
    Bar
};
enum class DecimalSign : std::uint8_t
{
    Point,
    Comma
};
enum class HoursForm : std::uint8_t
{
    Decimal,
    Clock
};
enum class DateForm : std::uint8_t
{
    YearFirst,
    MonthFirst,
    ShortMonthFirst,
    DayPoint,
    DaySlash,
    Digits
};
enum class TableEncoding : std::uint8_t
{
    Utf8,
    MarkedUtf8,
    Western
};
enum class HeadingLine : std::uint8_t
{
    Yes,
    No
};

struct ProfileCell
{
    std::string column{}; // the name of one of ProfileColumns(); empty: `text` stands in every row
    std::string text{};   // the text of a cell without a column
    std::string heading{};

    bool operator==(const ProfileCell&) const = default;
};

struct Profile
{
    std::string name{};
    TableRows rows = TableRows::Person;
    Separator separator = Separator::Comma;
    DecimalSign decimal = DecimalSign::Point;
    HoursForm hours = HoursForm::Decimal;
    DateForm dates = DateForm::YearFirst;
    TableEncoding encoding = TableEncoding::Utf8;
    HeadingLine heading = HeadingLine::Yes;
    std::string regularCode = "REG"; // the texts of the column Code for the two kinds of hours
    std::string overtimeCode = "OT";
    std::vector<ProfileCell> cells{}; // of a row, in their order

    bool operator==(const Profile&) const = default;
};

[[nodiscard]] char SignOf(Separator separator);
[[nodiscard]] char SignOf(DecimalSign decimal);

// The pattern for FormatDateTime.
[[nodiscard]] std::string_view PatternOf(DateForm dates);

struct ProfileChoice
{
    std::string_view word;    // as it is stored
    std::string_view caption; // as people see it
};

// A setting of a profile that has a few possible values.
struct ProfileOption
{
    std::string_view word;
    std::string_view caption;
    std::span<const ProfileChoice> choices;
    std::size_t (*get)(const Profile& profile); // index of the choice
    void (*set)(Profile& profile, std::size_t choice);
};
[[nodiscard]] std::span<const ProfileOption> ProfileOptions();

// The profiles that are always there. No other profile may have their names. They have one row for each person, one row for each person and
// kind of hours, and a spreadsheet's semicolons and decimal comma.
[[nodiscard]] std::span<const Profile> ReadyProfiles();

// A profile to start with, which has every column of the first ready one and no name.
[[nodiscard]] Profile NewProfile();

// The profile in words: "13 columns, rows: one a person, separator: comma, ...".
[[nodiscard]] std::string DescribeProfile(const Profile& profile);

// Why the profile cannot be used, in one sentence; empty if it can.
[[nodiscard]] std::string FaultOf(const Profile& profile);

} // namespace ptk
