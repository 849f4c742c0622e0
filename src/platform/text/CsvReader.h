// Records of a text whose cells stand between separators, as spreadsheets and terminals write them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ptk {

struct CsvRecord
{
    std::int64_t line = 0;          // of the text on which it begins, the first being 1
    std::vector<std::string> cells; // without the quotation marks and the blanks around them
    std::size_t strayCell = 0;      // counted from 1: more text stands behind its closing quotation mark; 0 where there is none

    // No cell holds anything but blanks and separators, and nothing stands behind a closing quotation mark.
    [[nodiscard]] bool IsBlank() const;
};

// A quotation mark at the beginning of a cell opens it, two of them within stand for one. CR LF, LF and CR end a line, also within
// quotation marks, where they belong to the cell.
class CsvReader
{
public:
    // The text must outlive the reader.
    CsvReader(std::string_view text, char separator) : m_left(text), m_separator(separator) {}

    // False at the end. Raises a failure without a number that names the line of a quotation mark which is never closed.
    [[nodiscard]] bool Next(CsvRecord& record);

private:
    std::string_view TakeLineEnd();
    std::string TakePlainCell();
    std::string TakeQuotedCell(std::int64_t line);
    [[nodiscard]] bool AtCellEnd() const;
    [[nodiscard]] bool BeginsQuoted();
    bool TakeStray();

    std::string_view m_left;
    char m_separator;
    std::int64_t m_line = 1;
};

// The one of comma, semicolon and tab that the first line which is not blank has most, those in quotation marks left out; of two that it
// has equally often the first named here.
[[nodiscard]] char SeparatorOf(std::string_view text);

// Raises a failure without a number that names the line which holds a NUL byte or is longer than 1 MiB.
void RefuseStrangeLines(std::string_view text);

} // namespace ptk
