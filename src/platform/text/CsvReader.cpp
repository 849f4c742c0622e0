#include "platform/text/CsvReader.h"

#include "platform/Failure.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>

namespace ptk {

namespace {

constexpr char kQuote = '"';
constexpr std::size_t kLongestLine = std::size_t{1} << 20; // bytes
constexpr std::array kSeparators{',', ';', '\t'};
constexpr std::string_view kBlanks = " ,;\t"; // all that a blank cell holds

constexpr auto kOpenQuote = "line {}: a quotation mark is opened and never closed";
constexpr auto kNul = "line {}: the file holds a NUL byte; it is no text file that can be read";
constexpr auto kTooLong = "line {}: the line is longer than 1 MiB";

bool IsLineEnd(char c)
{
    return c == '\r' || c == '\n';
}

// The length of the line end at the beginning of the text; CR LF is one end.
std::size_t LineEndLength(std::string_view text)
{
    return text.starts_with("\r\n") ? 2 : 1;
}

// Counts the separators of the first line that is not blank. It is not known yet which of them separates, so a cell, and with it a
// quotation mark, may begin behind each.
class HeadingCounter
{
public:
    // Takes the next character; false at the end of that line.
    bool Take(char c)
    {
        if (m_quoted) {
            m_quoted = c != kQuote;
            m_blank = m_blank && kBlanks.find(c) != std::string_view::npos;
        } else if (IsLineEnd(c)) {
            return m_blank && Restart();
        } else if (const auto* at = std::find(kSeparators.begin(), kSeparators.end(), c); at != kSeparators.end()) {
            ++m_counts[static_cast<std::size_t>(at - kSeparators.begin())];
            m_mayOpen = true;
        } else if (c == kQuote) {
            m_quoted = m_mayOpen; // the second of two within a cell opens it again, too
        } else {
            m_mayOpen = m_mayOpen && c == ' ';
            m_blank = m_blank && c == ' ';
        }
        return true;
    }

    [[nodiscard]] char Most() const
    {
        return kSeparators[static_cast<std::size_t>(std::max_element(m_counts.begin(), m_counts.end()) - m_counts.begin())];
    }

private:
    bool Restart()
    {
        m_counts = {};
        m_mayOpen = true;
        return true;
    }

    std::array<std::size_t, kSeparators.size()> m_counts{};
    bool m_quoted = false;
    bool m_mayOpen = true;
    bool m_blank = true;
};

} // namespace

bool CsvRecord::IsBlank() const
{
    return strayCell == 0 && std::all_of(cells.begin(), cells.end(),
                                         [](const std::string& cell) { return cell.find_first_not_of(kBlanks) == std::string::npos; });
}

bool CsvReader::Next(CsvRecord& record)
{
    if (m_left.empty()) {
        return false;
    }
    record = {m_line, {}, 0};
    for (;;) {
        const bool quoted = BeginsQuoted();
        record.cells.push_back(quoted ? TakeQuotedCell(m_line) : TakePlainCell());
        if (quoted && TakeStray() && record.strayCell == 0) {
            record.strayCell = record.cells.size();
        }
        if (m_left.empty() || m_left.front() != m_separator) {
            break;
        }
        m_left.remove_prefix(1);
    }
    TakeLineEnd();
    return true;
}

bool CsvReader::AtCellEnd() const
{
    return m_left.empty() || m_left.front() == m_separator || IsLineEnd(m_left.front());
}

// Whether the next cell begins with a quotation mark; if so, skips it and the blanks before it.
bool CsvReader::BeginsQuoted()
{
    std::size_t at = 0;
    while (at < m_left.size() && m_left[at] == ' ') {
        ++at;
    }
    const bool quoted = at < m_left.size() && m_left[at] == kQuote;
    m_left.remove_prefix(quoted ? at + 1 : 0);
    return quoted;
}

std::string CsvReader::TakePlainCell()
{
    std::size_t length = 0;
    while (length < m_left.size() && m_left[length] != m_separator && !IsLineEnd(m_left[length])) {
        ++length;
    }
    std::string cell(m_left.substr(0, length));
    m_left.remove_prefix(length);
    return cell;
}

std::string CsvReader::TakeQuotedCell(std::int64_t line)
{
    std::string cell;
    while (!m_left.empty()) {
        if (IsLineEnd(m_left.front())) {
            cell += TakeLineEnd();
            continue;
        }
        const char c = m_left.front();
        m_left.remove_prefix(1);
        if (c != kQuote) {
            cell += c;
        } else if (m_left.starts_with(kQuote)) {
            cell += kQuote;
            m_left.remove_prefix(1);
        } else {
            return cell;
        }
    }
    throw Failure(0, "PTK", fmt::format(kOpenQuote, line));
}

// Skips what stands between a closing quotation mark and the end of the cell; answers whether it is more than blanks.
bool CsvReader::TakeStray()
{
    bool stray = false;
    while (!AtCellEnd()) {
        stray = stray || m_left.front() != ' ';
        m_left.remove_prefix(1);
    }
    return stray;
}

std::string_view CsvReader::TakeLineEnd()
{
    if (m_left.empty()) {
        return {};
    }
    const std::string_view end = m_left.substr(0, LineEndLength(m_left));
    m_left.remove_prefix(end.size());
    ++m_line;
    return end;
}

char SeparatorOf(std::string_view text)
{
    HeadingCounter counter;
    while (!text.empty() && counter.Take(text.front())) {
        text.remove_prefix(1);
    }
    return counter.Most();
}

void RefuseStrangeLines(std::string_view text)
{
    for (std::int64_t line = 1; !text.empty(); ++line) {
        const std::string_view own = text.substr(0, text.find_first_of("\r\n"));
        if (own.find('\0') != std::string_view::npos) {
            throw Failure(0, "PTK", fmt::format(kNul, line));
        }
        if (own.size() > kLongestLine) {
            throw Failure(0, "PTK", fmt::format(kTooLong, line));
        }
        text.remove_prefix(own.size());
        text.remove_prefix(text.empty() ? 0 : LineEndLength(text));
    }
}

} // namespace ptk
