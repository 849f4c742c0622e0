// Database files to measure on: made once below a folder and kept.
#pragma once

#include "platform/text/DateTime.h"

#include <cstdint>
#include <string>

namespace bench {

// A file with `employees` employees and `records` time records spread evenly over them: one shift of eight hours a day, day after day, the
// last one on kLastDay. Employee IDs run from kFirstEmployee on.
struct Size
{
    const char* name;
    std::int32_t employees;
    std::int32_t records;
    bool history = false; // whether the edit trail tells how each record was added
};

inline constexpr std::int32_t kFirstEmployee = 40;
inline constexpr std::int32_t kPeriodDays = 14;
extern const ptk::DateTime kLastDay;

// The folder that --data names, else the present one.
void DataFolder(std::string folder);

std::string DataFolder();

// The path of that file, made now if it is not there yet.
std::string DataFile(const Size& size);

// A copy to write to, made anew.
std::string ScratchCopy(const Size& size);
std::string UntrailedCopy(const Size& size); // of which no change is written down

ptk::DateTime FirstDay(const Size& size); // the day of every employee's first shift

} // namespace bench
