// The words of a server. Every value there is of its column's type.
#pragma once

#include "store/engine/EngineWords.h"

namespace ptk {

inline constexpr EngineWords kPostgresWords{
    .caseless = "lower({0} COLLATE \"C\")",
    .caselessFirstName = "lower(COALESCE(FirstName, ''))",
    .caselessLastName = "lower(COALESCE(LastName, ''))",
    .thenByKey = ", TimeRecord.TimeRecordID",
    .unusualPunch = "CASE WHEN StartTime IS NOT NULL THEN StartTime = TIMESTAMP '1899-12-30 00:00:00' "
                    "OR EndTime NOT BETWEEN StartTime AND StartTime + interval '1 day' ELSE true END",
    .readablePunch = "(StartTime <> TIMESTAMP '1899-12-30 00:00:00' AND EndTime IS NOT NULL)",
    .wholeMinute = "date_trunc('minute', {0})",
    .minuteOfDay = "CAST(extract(hour FROM {0}) * 60 + extract(minute FROM {0}) AS integer)",
    .amongEmployees = "{0} = ANY(CAST(:employees AS _int4))",
    .inDays = "({0} >= CAST(left(:first, 10) AS date) AND {0} < CAST(left(:last, 10) AS date) + 1)",
    .jsonField = "(({0} ->> CAST('{1}' AS text)) COLLATE \"C\")",
    .number = "'{0}'",
    .makesTables = false,
    .findReasons = "",
    .closedDays =
        "(FromDay BETWEEN DATE '0100-01-01' AND ToDay AND ToDay < DATE '10000-01-01' AND date_trunc('day', FromDay) = FromDay AND "
        "date_trunc('day', ToDay) = ToDay)",
    .lockRows = " FOR UPDATE",
    .lockTable = "LOCK TABLE {0} IN SHARE MODE",
    .lastNumber = "SELECT CASE WHEN is_called THEN last_value ELSE last_value - 1 END FROM {0}_{1}_seq",
    .skipNumbers = "SELECT setval('{0}_{1}_seq', {2}) FROM {0}_{1}_seq WHERE {2} > CASE WHEN is_called THEN last_value ELSE last_value - 1 "
                   "END",
};

} // namespace ptk
