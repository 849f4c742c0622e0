// Reads records of a text whose cells stand between separators, as spreadsheets and terminals write them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ptk {

struct CsvRecord
{
    std::int64_t line = 0;          // the line of the text on which the record begins, counted from 1
    std::vector<std::string> cells; // without quotation marks and the blanks around those
    std::size_t strayCell = 0;      // the first cell, from 1, with more text behind its closing quotation mark; 0 for none

    // Whether no cell holds anything but blanks and separators, and nothing stands behind a closing quotation mark.
    [[nodiscard]] bool IsBlank() const;
};

// A quotation mark at the beginning of a cell opens it; two of them within it stand for one. CR LF, LF and CR end a line, also within
// quotation marks, where they belong to the cell.
class CsvReader
{
public:
    // The text must outlive the reader.
    CsvReader(std::string_view text, char separator) : m_left(text), m_separator(separator) {}

    // Reads the next record; false at the end. Raises a failure with number 0 that names the line of a quotation mark which is never
    // closed.
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

// The separator of the text: the one of comma, semicolon and tab that stands most often in the first line that is not blank, those within
// quotation marks not counted. Of two equally frequent ones it is the one named first here.
[[nodiscard]] char SeparatorOf(std::string_view text);

// Raises a failure with number 0 that names the line which holds a NUL byte or is longer than 1 MiB.
void RefuseStrangeLines(std::string_view text);

} // namespace ptk
