// Writes the one SQL statement that brings the TimeRecord table in line with a time record, and the query for an employee's period.
#pragma once

#include "store/rows/Rows.h"

#include <cstdint>
#include <string>

namespace ptk {

// What BuildFetchSQL asks for.
struct TimeRecordFetch
{
    std::int32_t employeeID = 0;
    DateTime from;
    DateTime to;
    const char* then = ""; // stands behind the order: see EngineWords::thenByKey
};

// The converter's texts, or what making them raised: of half a statement its condition is missing, and it would change, delete or answer
// everybody's records.
[[nodiscard]] std::string WholeStatement(const TimeRecordRow& record);
[[nodiscard]] std::string WholeFetch(const TimeRecordFetch& fetch);

// Holds no connection; it only writes text. Error numbers: 810 insert, 811 update, 812 delete, 813 fetch. Nothing is raised;
// what was built until a failure is answered, and must not be run.
class CTimeRecSQLConverter
{
public:
    // The last statement of ToSQL.
    std::string sqlstring() const { return m_sqlstring; }

    [[nodiscard]] std::int32_t ErrorNumber() const { return m_errorNumber; }

    // Always true.
    bool ResetError();

    // By the record's state: 1 insert, 2 update, 3 delete, any other the empty text. nullptr gives the empty text and keeps sqlstring.
    std::string ToSQL(const TimeRecordRow* thetimerecord);

    // Both bounds are inclusive and compared as full date-times, so every open record (end = zero date-time) from the start on is fetched
    // too.
    std::string BuildFetchSQL(std::int32_t theemployeeid, DateTime thestarttime, DateTime theendtime);

private:
    std::string m_sqlstring;
    std::int32_t m_errorNumber = 0;
};

} // namespace ptk
