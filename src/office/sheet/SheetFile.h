// A CSV file of foreign content, before anybody knows what its columns mean.
#pragma once

#include "platform/GoesOn.h"
#include "platform/text/CsvReader.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ptk {

struct RefusedLine
{
    std::int64_t line = 0; // of the file on which the record begins, the first being 1
    std::string reason;    // begins with the column's name
};

// Every thousand lines or records, `done` of them; false ends the work with a failure without a number.
void AskWhetherToGoOn(const GoesOn& goesOn, std::int64_t done);

// The file's text as UTF-8, without a byte order mark. `codePage`: of a file that is no UTF-8, else the western one. Raises failures
// without a number, one sentence each, for a file that is no text, and those of opening and reading it.
[[nodiscard]] std::string ReadSheet(const std::string& file, std::optional<int> codePage = std::nullopt);

// The records of a text as ReadSheet answers it, blank ones aside.
class SheetReader
{
public:
    // Reads the first record, the headings. Raises a failure without a number where there is none. The text must outlive the reader.
    explicit SheetReader(std::string_view text);

    // At first the headings, later what Next read.
    [[nodiscard]] const CsvRecord& Record() const { return m_record; }

    // False at the end. Raises what CsvReader raises.
    [[nodiscard]] bool Next();

private:
    CsvReader m_reader;
    CsvRecord m_record;
};

// For people: a long text cut.
[[nodiscard]] std::string Shortened(std::string_view text);

// A value for a reason: in quotation marks, a long one cut.
[[nodiscard]] std::string ShownCell(std::string_view value);

} // namespace ptk
