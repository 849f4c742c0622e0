// The same work as the program's, written directly against the engine's C interface: what every figure is compared with.
#pragma once

#include "platform/text/DateTime.h"

#include <cstdint>
#include <string>
#include <vector>

namespace bench {

// Opens with the exclusive hold, fetches the period, reads its texts, sums the hours per day, closes. Returns the hours.
double RawCard(const std::string& path, std::int32_t employee, const std::string& from, const std::string& to);

// The same for so many employees one after the other, the file opened and the fetch prepared once.
double RawCards(const std::string& path, std::int32_t first, std::int32_t count, const std::string& from, const std::string& to);

struct RawEmployee
{
    std::int32_t id = 0;
    std::vector<std::string> texts;
    double payRate = 0;
    double overtimePayRate = 0;
};

// Opens with the exclusive hold, reads every column of every employee in the program's order, closes.
std::vector<RawEmployee> RawEmployees(const std::string& path);

// Opens with the exclusive hold, moves one record's end, commits to the disk, closes.
void RawSave(const std::string& path, std::int32_t record, const std::string& end);

// Copies the file by the engine's own backup, flushes the copy and has the engine check it whole: less is no backup to rely on.
void RawBackup(const std::string& path, const std::string& copy);

// Opens with the exclusive hold and reads all columns of an employee's entries in the edit trail, newest first. Returns their bytes.
std::size_t RawHistory(const std::string& path, std::int32_t employee);

std::string StoredText(ptk::DateTime value); // YYYY-MM-DD HH:MM:SS

} // namespace bench
