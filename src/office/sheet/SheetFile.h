// Reads a CSV file of foreign content, whatever its columns mean.
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
    std::int64_t line = 0; // line of the file on which the record begins, counted from 1
    std::string reason;    // begins with the column's name
};

// Asks whenever `done`, a number of lines or records, is a multiple of 1000, so also for 0. False ends the work with a failure without a
// number.
void AskWhetherToGoOn(const GoesOn& goesOn, std::int64_t done);

// The file's text as UTF-8, without a byte order mark. `codePage` is that of a file that is not UTF-8; none: the western one. Raises
// failures without a number, one sentence each, for a file that is no text or is larger than 256 MB, and those of opening and reading it.
[[nodiscard]] std::string ReadSheet(const std::string& file, std::optional<int> codePage = std::nullopt);

// Reads the records of a text that ReadSheet answered, without the blank ones.
class SheetReader
{
public:
    // Reads the first record, the headings. Raises a failure without a number if there is none. REQUIRES: the text outlives the reader.
    explicit SheetReader(std::string_view text);

    // The headings at first, later the record that Next read.
    [[nodiscard]] const CsvRecord& Record() const { return m_record; }

    // Reads the next record. False at the end. Raises what CsvReader raises.
    [[nodiscard]] bool Next();

private:
    CsvReader m_reader;
    CsvRecord m_record;
};

// The text for people, cut after 40 characters.
[[nodiscard]] std::string Shortened(std::string_view text);

// A value for a reason: in quotation marks, cut after 40 characters.
[[nodiscard]] std::string ShownCell(std::string_view value);

} // namespace ptk
