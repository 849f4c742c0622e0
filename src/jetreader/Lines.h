// The form in which rows leave this program: one line each, tabs between the fields, each field with a mark that says what it is.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace jet {

// One line. A field is
//   -           no value
//   !           a value that is none of its kind: a date that no calendar has, a field cut short
//   =TEXT       text, as UTF-8; ~TEXT with a mark in place of characters that could not be read
//   #NUMBER     the shortest decimal digits that read back to the same stored number; 1 and 0 for yes and no
//   @SECONDS    a moment, in whole seconds since 30 December 1899 00:00:00
// Inside texts, a tab, a line feed, a carriage return and a backslash are written \t, \n, \r and \\.
class Line
{
public:
    // The first field, which has no mark, says what the line is.
    explicit Line(std::string_view kind) : m_text(kind) {}

    Line& Nothing() { return Marked('-', ""); }
    Line& Impossible() { return Marked('!', ""); }
    Line& Text(std::string_view utf8, bool exact = true);
    Line& Number(std::string_view digits) { return Marked('#', digits); }
    Line& Number(std::int64_t number) { return Number(std::to_string(number)); }
    Line& Moment(std::int64_t seconds) { return Marked('@', std::to_string(seconds)); }

    // Writes the line to the standard output.
    void Write();

private:
    Line& Marked(char mark, std::string_view text);

    std::string m_text;
};

} // namespace jet
