// The words of a database file. Other tools may have stored values of any kind in it, so no word relies on the kind of a value.
#pragma once

#include "store/engine/EngineWords.h"

namespace ptk {

inline constexpr EngineWords kSqliteWords{
    .caseless = "{0} COLLATE NOCASE",
    .caselessFirstName = "IFNULL(FirstName, '') COLLATE NOCASE",
    .caselessLastName = "IFNULL(LastName, '') COLLATE NOCASE",
    .thenByKey = "",
    .unusualPunch = "CASE WHEN StartTime BETWEEN '0100-' AND ':' THEN "
                    "datetime(StartTime, '+0 days') IS NOT NULLIF(StartTime, '1899-12-30 00:00:00') "
                    "OR EndTime NOT BETWEEN StartTime AND datetime(StartTime, '+1 day') ELSE 1 END",
    // The unary plus keeps the engine from searching an index by it, which is for the days that are asked for.
    .readablePunch = "(+StartTime >= '0100-' AND +EndTime >= '0100-' AND +StartTime <> '1899-12-30 00:00:00' AND "
                     "datetime(StartTime, '+0 days') = StartTime AND datetime(EndTime, '+0 days') = EndTime)",
    .wholeMinute = "substr({0}, 1, 16)",
    .minuteOfDay = "(substr({0}, 12, 2) * 60 + substr({0}, 15, 2))",
    .amongEmployees = "",
    .inDays = "{0} BETWEEN :first AND :last",
    .jsonField = "CASE WHEN json_valid({0}) THEN json_extract({0}, '$.{1}') END",
    .number = "{0}",
    .makesTables = true,
    .findReasons = "SELECT name FROM pragma_table_info('_Change') WHERE name = 'Reason' COLLATE NOCASE",
    .closedDays = "(FromDay BETWEEN '0100-' AND ToDay AND ToDay < ':' AND datetime(FromDay, '+0 days', 'start of day') = FromDay AND "
                  "datetime(ToDay, '+0 days', 'start of day') = ToDay)",
    .lockRows = "",
    .lockTable = "",
    .lastNumber = "SELECT COALESCE((SELECT seq FROM sqlite_sequence WHERE name = '{0}'), 0)",
    .skipNumbers = "INSERT INTO sqlite_sequence SELECT '{0}', {2} WHERE {2} > 0 AND NOT EXISTS (SELECT 1 FROM sqlite_sequence WHERE name = "
                   "'{0}'); UPDATE sqlite_sequence SET seq = {2} WHERE name = '{0}' AND seq < {2}",
};

} // namespace ptk
