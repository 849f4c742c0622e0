// A profile: how the accountant, or the accountant's program, wants the table of what is paid.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ptk {

// The first of each is what a new profile has.
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
    std::string column{}; // the name of one of ProfileColumns(); empty: the same text in every row
    std::string text{};   // that text
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
    std::string regularCode = "REG"; // what stands for the kind of hours in the column Code
    std::string overtimeCode = "OT";
    std::vector<ProfileCell> cells{}; // of a row, in their order

    bool operator==(const Profile&) const = default;
};

[[nodiscard]] char SignOf(Separator separator);
[[nodiscard]] char SignOf(DecimalSign decimal);

// For FormatDateTime.
[[nodiscard]] std::string_view PatternOf(DateForm dates);

struct ProfileChoice
{
    std::string_view word;    // in what is stored
    std::string_view caption; // for people
};

// What is chosen from a few possibilities.
struct ProfileOption
{
    std::string_view word;
    std::string_view caption;
    std::span<const ProfileChoice> choices;
    std::size_t (*get)(const Profile& profile); // the choice's place
    void (*set)(Profile& profile, std::size_t choice);
};
[[nodiscard]] std::span<const ProfileOption> ProfileOptions();

// Those that are there without being made, whose names no other has: one row a person, one row a person and kind of hours, and a
// spreadsheet with semicolons and a decimal comma.
[[nodiscard]] std::span<const Profile> ReadyProfiles();

// One with every column of the ready table, for a start.
[[nodiscard]] Profile NewProfile();

// "13 columns, rows: one a person, separator: comma, ...".
[[nodiscard]] std::string DescribeProfile(const Profile& profile);

// Why it cannot be used, in one sentence; empty where it can.
[[nodiscard]] std::string FaultOf(const Profile& profile);

} // namespace ptk
