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
    const char* then = ""; // goes behind the ORDER BY: see EngineWords::thenByKey
};

// The texts of CTimeRecSQLConverter, always whole: a failure to make one is raised. Half a statement has no condition, and would change,
// delete or answer everybody's records.
[[nodiscard]] std::string WholeStatement(const TimeRecordRow& record);
[[nodiscard]] std::string WholeFetch(const TimeRecordFetch& fetch);

// Writes SQL text; it holds no connection. Error numbers: 810 insert, 811 update, 812 delete, 813 fetch. Nothing is raised: what was
// written before a failure is answered, and must not be run.
class CTimeRecSQLConverter
{
public:
    // The statement that ToSQL made last.
    std::string sqlstring() const { return m_sqlstring; }

    [[nodiscard]] std::int32_t ErrorNumber() const { return m_errorNumber; }

    // Always true.
    bool ResetError();

    // The statement for the record's state: 1 insert, 2 update, 3 delete, any other "". nullptr gives "" and keeps sqlstring.
    std::string ToSQL(const TimeRecordRow* thetimerecord);

    // The query for the employee's records from the start to the end. Both bounds are inclusive and compared as full date-times, so every
    // open record (end = zero date-time) from the start on is fetched too.
    std::string BuildFetchSQL(std::int32_t theemployeeid, DateTime thestarttime, DateTime theendtime);

private:
    std::string m_sqlstring;
    std::int32_t m_errorNumber = 0;
};

} // namespace ptk
