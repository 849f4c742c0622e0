// Text files by number: delimited input and line output. Writes are unbuffered: when one returns, its text is on its way to the disk.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ptk::linefile {

enum class Mode : std::int16_t
{
    Read = 0,
    Write = 1,
    Append = 2
};

// The lowest number (1 to 511) that no file is open under; 0 when all are taken.
[[nodiscard]] std::int32_t FreeNumber();

// Opens a file under that number. Read: the file must exist. Write: it is created or truncated. Append: it is created if missing. A new
// file is for its owner only. In both writing modes each text lands at what is then the end of the file, whoever else writes to it.
// Raises 52 (bad number), 53 (no such file), 55 (number in use), 70, 75 (no regular file), 76 (no such folder), 67, 57, 61.
void Open(std::int32_t number, const std::string& path, Mode mode);

// Closes the file. Raises 52 when the number has no open file, 57 or 61 for a late write failure; the number is free again all the same.
void Close(std::int32_t number);

[[nodiscard]] bool AtEnd(std::int32_t number);

// Reads the next item: up to a comma or a line end (CR LF, CR or LF), without the blanks before it. An item in double quotes comes without
// them and may hold commas and line ends, up to the closing quote or the end of the file. Raises 62 at the end of the file.
[[nodiscard]] std::string ReadItem(std::int32_t number);

// Writes the text unchanged, without a line end of its own; raises 61 (disk full), 57.
void Write(std::int32_t number, std::string_view text);
} // namespace ptk::linefile
