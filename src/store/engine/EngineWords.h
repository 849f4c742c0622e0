// What the SQL of a file's engine and of a server's says differently; all other texts of the program are the same for both.
#pragma once

#include <fmt/format.h>

#include <string>

namespace ptk {

// {0} stands for what is said of; see Said. A condition or an expression that stands in an index is here as it stands there, to the letter.
struct EngineWords
{
    // A text without the difference of letter case, which is that of the 26 letters alone; texts and names so changed are compared, and
    // sorted, by their bytes. The names are those of the index of the listing.
    const char* caseless;
    const char* caselessFirstName;
    const char* caselessLastName;

    // Behind the order of a card's fetch: of records that it leaves equal, the one stored first. Empty where they come so anyway.
    const char* thenByKey;

    // Of a time record: whether a search by its start would pass it over when a card is checked, as the index TimeRecordUnusual has it.
    const char* unusualPunch;

    // Of a time record: whether both its times are moments, the end perhaps not set, never what an index is searched by; and of one of
    // these columns {0} the moment with its seconds cut off, to be compared, and the minute of its day.
    const char* readablePunch;
    const char* wholeMinute;
    const char* minuteOfDay;

    // Whether a column {0} is one of the numbers :employees, "{1,2}": to ask for many people at once. Empty where a question costs nothing.
    const char* amongEmployees;

    // Whether a column of date-times lies in the days :first to :last, of the forms YYYY-MM-DD and YYYY-MM-DD~.
    const char* inDays;

    // Of a column {0} of JSON the text of its field {1}; nothing where it holds no JSON.
    const char* jsonField;

    // Digits, whatever the type of the column that they are for.
    const char* number;

    // Whether tables that came with later versions are made when they are first written.
    bool makesTables;

    // Answers a row where the trail has reasons, which it lacks in files of earlier versions; empty where it always has.
    const char* findReasons;

    // Of a row of _Payday: whether its days are days, in their order.
    const char* closedDays;

    // Behind a SELECT within a write: nobody else changes these rows before its end.
    const char* lockRows;

    // A statement: nobody else adds rows to a table, or takes any away, before the end of the write. Empty where nobody could.
    const char* lockTable;

    // Of a table {0} with the key {1}: the last number that was given to a row, and several statements that keep numbers up to {2} from
    // being given.
    const char* lastNumber;
    const char* skipNumbers;
};

template <typename... Names>
[[nodiscard]] std::string Said(const char* words, const Names&... of)
{
    return fmt::format(fmt::runtime(words), of...);
}

// The order of the employee list.
[[nodiscard]] inline std::string ListOrder(const EngineWords& words)
{
    return fmt::format("{}, {}, EmployeeID", words.caselessLastName, words.caselessFirstName);
}

} // namespace ptk
