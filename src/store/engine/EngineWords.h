// The pieces of SQL in which a file's engine and a server's differ; all other SQL of the program is the same for both.
#pragma once

#include <fmt/format.h>

#include <string>

namespace ptk {

// {0} and so on stand for names that FilledIn puts in. A condition or an expression of an index is here letter for letter as in the index.
struct EngineWords
{
    // A text without letter case, for the 26 letters alone; texts and names in this form are compared and sorted by their bytes. The names
    // are those of the index of the listing.
    const char* caseless;
    const char* caselessFirstName;
    const char* caselessLastName;

    // The end of the ORDER BY of a card's fetch: equal records come in the order in which they were stored. Empty where they do so anyway.
    const char* thenByKey;

    // Whether the check of a card would miss a time record when it searches by the start, as the index TimeRecordUnusual has it.
    const char* unusualPunch;

    // Whether both times of a time record are moments, the end perhaps not set; never used to search an index. Then, of one of these
    // columns {0}, the moment without its seconds, for comparing, and the minute of its day.
    const char* readablePunch;
    const char* wholeMinute;
    const char* minuteOfDay;

    // Whether a column {0} is one of the numbers :employees, "{1,2}": to ask for many people at once. Empty where a question costs nothing.
    const char* amongEmployees;

    // Whether a column {0} of date-times lies in the days :first to :last, which have the forms YYYY-MM-DD and YYYY-MM-DD~.
    const char* inDays;

    // The text of the field {1} in a column {0} of JSON; null where it holds no JSON.
    const char* jsonField;

    // The digits {0} as a value for a column of any type.
    const char* number;

    // Whether tables of later versions are made when they are first written.
    bool makesTables;

    // A query that answers a row where the trail has reasons, which it lacks in files of earlier versions; empty where it always has.
    const char* findReasons;

    // Whether the days of a row of _Payday are days, in their order.
    const char* closedDays;

    // The end of a SELECT within a write: nobody else changes these rows before the write ends.
    const char* lockRows;

    // A statement: nobody else adds rows to the table {0}, or takes any away, before the write ends. Empty where nobody could.
    const char* lockTable;

    // A query for the last number that a row of the table {0} with the key {1} got, and several statements that keep numbers up to {2} from
    // being given.
    const char* lastNumber;
    const char* skipNumbers;
};

// Puts the names into the words: the first for {0}, the next for {1}.
template <typename... Names>
[[nodiscard]] std::string FilledIn(const char* words, const Names&... of)
{
    return fmt::format(fmt::runtime(words), of...);
}

// The ORDER BY of the employee list.
[[nodiscard]] inline std::string ListOrder(const EngineWords& words)
{
    return fmt::format("{}, {}, EmployeeID", words.caselessLastName, words.caselessFirstName);
}

} // namespace ptk
